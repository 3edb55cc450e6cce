// SPDX-License-Identifier: GPL-3.0-or-later
// Columns: whether there is room for a rectangle of text. The stock engine counts a place behind a
// line's end in blanks of the style there, and aborts when there are 800,000 of them.
#pragma once

#include "engine/text/Raw.h"

namespace engine {

class Columns
{
public:
    explicit Columns(const Raw& raw) : m_raw(raw) {}

    bool AreSelected() const;
    // For a rectangle that the lines of the caret and of the anchor are in.
    bool HaveRoom() const;
    // At a place in the window, pixels from its left.
    bool HaveRoomAt(long x) const;
    // What is selected becomes a rectangle, for what goes on with one that it takes to be there.
    void Begin() const;
    // Counts the columns anew if styles wait for it, and puts their ends beside whole characters.
    // In the middle of a change the stock engine would do so, and go on with selections that are
    // gone.
    void Settle() const;
    // A rectangle becomes all text between its ends.
    void Dissolve() const;

private:
    bool IsLineNarrow(long position, long blanks) const;
    bool IsNear(long pixels) const;

    const Raw& m_raw;
};

} // namespace engine
