// SPDX-License-Identifier: GPL-3.0-or-later
// One change of the stored text, and what it does to a place in it. Bytes.
#pragma once

#include <algorithm>

namespace engine {

enum class EditOrigin
{
    Person, // or a program
    Undo,
    Redo
};

struct TextEdit
{
    bool inserts = false;
    long position = 0;
    long bytes = 0;
    EditOrigin origin = EditOrigin::Person;

    // A place goes along with the text behind it. Where text goes in it stays, and what is deleted
    // around it leaves it at the deletion.
    long Moved(long place) const
    {
        if (place <= position)
            return place;
        return inserts ? place + bytes : std::max(position, place - bytes);
    }
};

} // namespace engine
