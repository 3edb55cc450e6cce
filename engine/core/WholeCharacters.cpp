// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/WholeCharacters.h"

#include "engine/core/Engine.h"
#include "engine/text/Characters.h"

namespace engine {
namespace {

using Sci = QsciScintillaBase;

} // namespace

long WholeCharacters::Get(UINT number, long selection) const
{
    return static_cast<long>(m_engine.raw.Send(number, static_cast<WPARAM>(selection)));
}

void WholeCharacters::Begin()
{
    m_caret = Get(Sci::SCI_GETCURRENTPOS);
    if (!m_listens)
        m_engine.raw.Send(Sci::SCI_STARTRECORD);
    m_listens = true;
    Round(true);
}

long WholeCharacters::Rounded(long position, bool down) const
{
    return down ? CharacterStart(m_engine.raw, position) : CharacterEnd(m_engine.raw, position);
}

void WholeCharacters::End()
{
    Round(Get(Sci::SCI_GETCURRENTPOS) < m_caret);
}

void WholeCharacters::Round(bool down) const
{
    const Raw& raw = m_engine.raw;
    const auto round = [&](UINT get, UINT set, long selection) {
        const long position = Get(get, selection);
        const long whole = Rounded(position, down);
        if (whole == position)
            return;
        if (set == Sci::SCI_SETRECTANGULARSELECTIONCARET ||
            set == Sci::SCI_SETRECTANGULARSELECTIONANCHOR)
            raw.Send(set, static_cast<WPARAM>(whole));
        else
            raw.Send(set, static_cast<WPARAM>(selection), whole);
    };
    if (m_engine.columns.AreSelected()) {
        round(Sci::SCI_GETRECTANGULARSELECTIONCARET, Sci::SCI_SETRECTANGULARSELECTIONCARET, 0);
        round(Sci::SCI_GETRECTANGULARSELECTIONANCHOR, Sci::SCI_SETRECTANGULARSELECTIONANCHOR, 0);
    }
    const long selections = Get(Sci::SCI_GETSELECTIONS);
    for (long each = 0; each < selections; ++each) {
        round(Sci::SCI_GETSELECTIONNCARET, Sci::SCI_SETSELECTIONNCARET, each);
        round(Sci::SCI_GETSELECTIONNANCHOR, Sci::SCI_SETSELECTIONNANCHOR, each);
    }
}

bool WholeCharacters::IsEmpty() const
{
    return Get(Sci::SCI_GETSELECTIONEMPTY) != 0;
}

// How far a deletion goes that starts at a caret; a line end of CR and LF goes as one.
long WholeCharacters::Reach(long caret, Side side) const
{
    const auto line = Get(Sci::SCI_LINEFROMPOSITION, caret);
    if (side == Side::BehindInLine && caret >= Get(Sci::SCI_GETLINEENDPOSITION, line))
        return caret;
    if (side == Side::BeforeInLine && caret <= Get(Sci::SCI_POSITIONFROMLINE, line))
        return caret;
    const bool down = side == Side::Before || side == Side::BeforeInLine;
    return Rounded(Get(down ? Sci::SCI_POSITIONBEFORE : Sci::SCI_POSITIONAFTER, caret), down);
}

// Whether the stock engine would go into a character from any of the carets.
bool WholeCharacters::CutsAny(Side side) const
{
    const bool down = side == Side::Before || side == Side::BeforeInLine;
    const long selections = Get(Sci::SCI_GETSELECTIONS);
    for (long each = 0; each < selections; ++each) {
        const long caret = Get(Sci::SCI_GETSELECTIONNCARET, each);
        const long stop = Get(down ? Sci::SCI_POSITIONBEFORE : Sci::SCI_POSITIONAFTER, caret);
        if (Rounded(stop, down) != stop)
            return true;
    }
    return false;
}

// Several carets are all covered, since a deletion of selections leaves out the empty ones.
void WholeCharacters::Cover(Side side)
{
    if (!IsEmpty() || Get(Sci::SCI_GETREADONLY) || !CutsAny(side))
        return;
    const long selections = Get(Sci::SCI_GETSELECTIONS);
    for (long each = 0; each < selections; ++each) {
        const long caret = Get(Sci::SCI_GETSELECTIONNCARET, each);
        m_engine.raw.Send(Sci::SCI_SETSELECTIONNANCHOR, static_cast<WPARAM>(each),
                          Reach(caret, side));
    }
}

void WholeCharacters::OnCommand(UINT number)
{
    if (!m_engine.text.MayHaveNoncharacters())
        return;
    if (number == message::DeleteBack)
        Cover(Side::Before);
    else if (number == message::DeleteBackNotLine)
        Cover(Side::BeforeInLine);
    else if (number == message::Clear)
        Cover(Side::Behind);
    else if (number == message::LineCut)
        m_engine.columns.Dissolve();
}

void WholeCharacters::BeforeTyping()
{
    if (m_engine.text.MayHaveNoncharacters() && Get(Sci::SCI_GETOVERTYPE))
        Cover(Side::BehindInLine);
}

} // namespace engine
