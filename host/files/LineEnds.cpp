// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/LineEnds.h"

#include "control/TextPieces.h"
#include "control/ZNCoreEditorControl.h"
#include "host/files/Encodings.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kRest = 300ms;
constexpr int kPiecesInASlice = 8; // a few milliseconds

enum Index
{
    CrLfIndex,
    LfIndex,
    CrIndex
};

} // namespace

QString LineEndText(LineEndKind kind, int mode)
{
    switch (kind) {
    case LineEndKind::CrLf:
        return LineEndName(1);
    case LineEndKind::Lf:
        return LineEndName(3);
    case LineEndKind::Cr:
        return LineEndName(2);
    case LineEndKind::Mixed:
        return LineEndWatch::tr("Mixed");
    default:
        return LineEndName(mode);
    }
}

void LineEndCount::Add(std::u16string_view piece)
{
    const char16_t* at = piece.data();
    const char16_t* const end = at + piece.size();
    if (at != end && std::exchange(m_held, false)) {
        m_seen[*at == u'\n' ? CrLfIndex : CrIndex] = true;
        at += *at == u'\n';
    }
    while (at != end && !IsMixed()) {
        at = std::find_if(at, end, [](char16_t unit) { return unit == u'\r' || unit == u'\n'; });
        if (at == end)
            return;
        if (*at++ == u'\n') {
            m_seen[LfIndex] = true;
        } else if (at == end) {
            m_held = true;
        } else if (*at == u'\n') {
            m_seen[CrLfIndex] = true;
            ++at;
        } else {
            m_seen[CrIndex] = true;
        }
    }
}

bool LineEndCount::IsMixed() const
{
    return m_seen[CrLfIndex] + m_seen[LfIndex] + m_seen[CrIndex] > 1;
}

// A CR that is still held ends the text.
LineEndKind LineEndCount::Kind() const
{
    const bool cr = m_seen[CrIndex] || m_held;
    if (m_seen[CrLfIndex] + m_seen[LfIndex] + cr > 1)
        return LineEndKind::Mixed;
    if (m_seen[CrLfIndex])
        return LineEndKind::CrLf;
    if (m_seen[LfIndex])
        return LineEndKind::Lf;
    return cr ? LineEndKind::Cr : LineEndKind::None;
}

LineEndWatch::LineEndWatch(CZNCoreEditorControl& editor, QObject* parent)
    : QObject(parent), m_editor(editor)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRest);
    m_slice.setSingleShot(true);
    m_slice.setInterval(0);
    connect(&m_rest, &QTimer::timeout, this, &LineEndWatch::Look);
    connect(&m_slice, &QTimer::timeout, this, &LineEndWatch::LookAtSlice);
}

LineEndWatch::~LineEndWatch() = default;

void LineEndWatch::TextChanged()
{
    m_pieces.reset();
    m_slice.stop();
    m_rest.start();
}

void LineEndWatch::Look()
{
    m_rest.stop();
    m_count = LineEndCount();
    m_pieces = std::make_unique<TextPieces>(m_editor);
    LookAtSlice();
}

void LineEndWatch::LookAtSlice()
{
    for (int i = 0; i < kPiecesInASlice; ++i) {
        const std::u16string_view piece = m_pieces->Next();
        m_count.Add(piece);
        if (!piece.empty() && !m_count.IsMixed())
            continue;
        m_pieces.reset();
        if (std::exchange(m_kind, m_count.Kind()) != m_count.Kind())
            Q_EMIT KindChanged();
        return;
    }
    m_slice.start();
}
