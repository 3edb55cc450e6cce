// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/errors/ErrorMarks.h"

#include "control/ErrorInfo.h"

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kErrors = 0;
constexpr int kWarnings = 1;

} // namespace

int MarkClassOf(int severity)
{
    if (severity >= problem::Error)
        return kErrors;
    return severity == problem::Warning ? kWarnings : kNoMark;
}

bool IsLetThrough(const ErrorLook& look, int kind, int severity)
{
    if (kind != problem::Syntax && kind != problem::Semantic)
        return true;
    return severity >= look.severities[static_cast<std::size_t>(kind)];
}

ErrorPainter::ErrorPainter(const Raw& raw, const ErrorLook& look)
    : m_raw(raw), m_look(look),
      m_indicator(static_cast<std::uintptr_t>(raw.Send(Sci::SCI_GETINDICATORCURRENT))),
      m_value(static_cast<std::uintptr_t>(raw.Send(Sci::SCI_GETINDICATORVALUE)))
{}

ErrorPainter::~ErrorPainter()
{
    m_raw.Send(Sci::SCI_SETINDICATORCURRENT, m_indicator);
    m_raw.Send(Sci::SCI_SETINDICATORVALUE, m_value);
}

void ErrorPainter::EraseAll() const
{
    EraseText(0, m_raw.Length());
    for (const int marker : m_look.markers) {
        if (marker != kNoMark)
            m_raw.Send(Sci::SCI_MARKERDELETEALL, static_cast<std::uintptr_t>(marker));
    }
}

void ErrorPainter::EraseText(long start, long end) const
{
    if (start >= end)
        return;
    for (const int indicator : m_look.indicators) {
        if (indicator == kNoMark)
            continue;
        m_raw.Send(Sci::SCI_SETINDICATORCURRENT, static_cast<std::uintptr_t>(indicator));
        m_raw.Send(Sci::SCI_INDICATORCLEARRANGE, static_cast<std::uintptr_t>(start), end - start);
    }
}

void ErrorPainter::FillText(int markClass, long start, long end) const
{
    const int indicator = m_look.indicators[static_cast<std::size_t>(markClass)];
    if (indicator == kNoMark || start >= end)
        return;
    m_raw.Send(Sci::SCI_SETINDICATORCURRENT, static_cast<std::uintptr_t>(indicator));
    m_raw.Send(Sci::SCI_SETINDICATORVALUE, 1);
    m_raw.Send(Sci::SCI_INDICATORFILLRANGE, static_cast<std::uintptr_t>(start), end - start);
}

bool ErrorPainter::IsTextMarked(long position) const
{
    for (const int indicator : m_look.indicators) {
        if (indicator != kNoMark &&
            m_raw.Send(Sci::SCI_INDICATORVALUEAT, static_cast<std::uintptr_t>(indicator), position))
            return true;
    }
    return false;
}

unsigned ErrorPainter::MarkerBit(int markClass) const
{
    const int marker = m_look.markers[static_cast<std::size_t>(markClass)];
    return marker == kNoMark ? 0 : 1U << marker;
}

// By line and number: the stock engine looks for a handle through all lines.
void ErrorPainter::SetMarkers(long line, unsigned bits) const
{
    const auto at = static_cast<std::uintptr_t>(line);
    for (const int marker : m_look.markers) {
        if (marker == kNoMark)
            continue;
        const unsigned bit = 1U << marker;
        const auto isSet = [&] {
            return (static_cast<unsigned>(m_raw.Send(Sci::SCI_MARKERGET, at)) & bit) != 0;
        };
        if (bits & bit) {
            if (!isSet())
                m_raw.Send(Sci::SCI_MARKERADD, at, marker);
            continue;
        }
        // Lines that were joined bring a marker each.
        while (isSet())
            m_raw.Send(Sci::SCI_MARKERDELETE, at, marker);
    }
}

} // namespace engine
