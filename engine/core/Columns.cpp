// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/Columns.h"

#include "engine/text/Characters.h"

#include <algorithm>
#include <string>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kMostBlanks = 100 * 1000; // more take seconds once lines are wrapped
constexpr long kSurely = 30 * 1000;      // pixels, whatever the font
constexpr std::uintptr_t kStyles = 256;

long Ask(const Raw& raw, unsigned message, long wParam = 0, long lParam = 0)
{
    return static_cast<long>(raw.Send(message, static_cast<std::uintptr_t>(wParam), lParam));
}

constexpr long kMeasured = 100;

// Of so many blanks, in the narrowest of the styles.
long NarrowestBlanks(const Raw& raw)
{
    static const std::string blanks(kMeasured, ' ');
    std::intptr_t width = raw.Send(Sci::SCI_TEXTWIDTH, Sci::STYLE_DEFAULT, blanks.c_str());
    for (std::uintptr_t style = 0; style < kStyles; ++style) {
        raw.Send(Sci::SCI_STYLEGETSIZE, style); // which makes the style
        width = std::min(width, raw.Send(Sci::SCI_TEXTWIDTH, style, blanks.c_str()));
    }
    return std::max(1L, static_cast<long>(width));
}

} // namespace

// A thin one too, which is what typing in a rectangle leaves.
bool Columns::AreSelected() const
{
    const long mode = Ask(m_raw, Sci::SCI_GETSELECTIONMODE);
    return mode == Sci::SC_SEL_RECTANGLE || mode == Sci::SC_SEL_THIN;
}

bool Columns::IsNear(long pixels) const
{
    return pixels <= kSurely || pixels <= kMostBlanks / kMeasured * NarrowestBlanks(m_raw);
}

bool Columns::HaveRoomAt(long x) const
{
    return IsNear(x + Ask(m_raw, Sci::SCI_GETXOFFSET));
}

// A place may lie behind the line's end, by so many blanks of the style there.
bool Columns::IsLineNarrow(long position, long blanks) const
{
    const long line = Ask(m_raw, Sci::SCI_LINEFROMPOSITION, position);
    const long start = Ask(m_raw, Sci::SCI_POSITIONFROMLINE, line);
    const long end = Ask(m_raw, Sci::SCI_GETLINEENDPOSITION, line);
    if (end - start > 4 * kMostBlanks) // bytes
        return false;
    const long style = end > start ? Ask(m_raw, Sci::SCI_GETSTYLEAT, end - 1) & 0xFF : 0;
    const auto blank =
        static_cast<long>(m_raw.Send(Sci::SCI_TEXTWIDTH, static_cast<std::uintptr_t>(style), " "));
    return IsNear(Ask(m_raw, Sci::SCI_POINTXFROMPOSITION, 0, end) -
                  Ask(m_raw, Sci::SCI_POINTXFROMPOSITION, 0, start) + blank * blanks);
}

bool Columns::HaveRoom() const
{
    if (!AreSelected())
        return IsLineNarrow(Ask(m_raw, Sci::SCI_GETCURRENTPOS), 0) &&
               IsLineNarrow(Ask(m_raw, Sci::SCI_GETANCHOR), 0);
    return IsLineNarrow(Ask(m_raw, Sci::SCI_GETRECTANGULARSELECTIONCARET),
                        Ask(m_raw, Sci::SCI_GETRECTANGULARSELECTIONCARETVIRTUALSPACE)) &&
           IsLineNarrow(Ask(m_raw, Sci::SCI_GETRECTANGULARSELECTIONANCHOR),
                        Ask(m_raw, Sci::SCI_GETRECTANGULARSELECTIONANCHORVIRTUALSPACE));
}

void Columns::Begin() const
{
    if (AreSelected() || !HaveRoom())
        return;
    const long caret = Ask(m_raw, Sci::SCI_GETCURRENTPOS);
    const long anchor = Ask(m_raw, Sci::SCI_GETANCHOR);
    m_raw.Send(Sci::SCI_SETRECTANGULARSELECTIONANCHOR, static_cast<std::uintptr_t>(anchor));
    m_raw.Send(Sci::SCI_SETRECTANGULARSELECTIONCARET, static_cast<std::uintptr_t>(caret));
    m_raw.Send(Sci::SCI_SETRECTANGULARSELECTIONANCHOR, static_cast<std::uintptr_t>(anchor));
}

// What is put in at a place behind a line's end moves the place by a byte for each column that it
// is behind: into a character.
void Columns::Settle() const
{
    if (!AreSelected())
        return;
    m_raw.Send(Sci::SCI_TEXTHEIGHT);
    for (const auto& [get, set] :
         {std::pair(Sci::SCI_GETRECTANGULARSELECTIONANCHOR, Sci::SCI_SETRECTANGULARSELECTIONANCHOR),
          std::pair(Sci::SCI_GETRECTANGULARSELECTIONCARET,
                    Sci::SCI_SETRECTANGULARSELECTIONCARET)}) {
        const long place = Ask(m_raw, get);
        const long whole = CharacterStart(m_raw, place);
        if (whole != place)
            Ask(m_raw, set, whole);
    }
}

void Columns::Dissolve() const
{
    if (!AreSelected())
        return;
    const long caret = Ask(m_raw, Sci::SCI_GETCURRENTPOS);
    const long anchor = Ask(m_raw, Sci::SCI_GETANCHOR);
    m_raw.Send(Sci::SCI_SETEMPTYSELECTION, static_cast<std::uintptr_t>(caret));
    m_raw.Send(Sci::SCI_SETANCHOR, static_cast<std::uintptr_t>(anchor));
}

} // namespace engine
