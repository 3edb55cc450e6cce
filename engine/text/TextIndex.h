// SPDX-License-Identifier: GPL-3.0-or-later
// TextIndex: positions in UTF-16 units to positions in bytes and back, for the text of one window.
// Text that is all ASCII costs one comparison. In other text a place is reached from the nearest
// place that is known; for one that is far from all of these the stock engine's UTF-16 line index
// is made, once it pays, and tells the line.
#pragma once

#include "engine/text/Raw.h"

#include <algorithm>
#include <array>

namespace engine {

struct UnitPos
{
    long value = 0;
};

struct BytePos
{
    long value = 0;
};

class TextIndex
{
public:
    explicit TextIndex(const Raw& raw) : m_raw(raw) {}

    // A position outside the text is clamped. One between the halves of a pair counts as its start.
    BytePos ToBytes(UnitPos position) const
    {
        return IsSettledAscii() ? BytePos{std::clamp(position.value, 0L, m_bytes)}
                                : BytesOf(position);
    }
    UnitPos ToUnits(BytePos position) const
    {
        return IsSettledAscii() ? UnitPos{std::clamp(position.value, 0L, m_units)}
                                : UnitsOf(position);
    }

    long LineOf(UnitPos position) const;   // lines count from 0
    UnitPos StartOfLine(long line) const;  // the line behind the last one starts at the text's end
    BytePos StartInBytes(long line) const; // likewise
    long LengthOfLine(long line) const;    // units, its line end included
    long Length() const;                   // units
    long LengthInBytes() const;

    bool IsAscii() const;

    // Whether there are any, or were when the text was last empty.
    bool MayHaveNoncharacters() const
    {
        if (!m_unitsAreKnown)
            Length();
        return m_hasNoncharacters;
    }

    // A change of the text: announced while the text is as it was, done once it is in. What is
    // asked in between is answered for the text as it stands at that moment.
    void InsertionBegins(BytePos at, long bytes);
    void DeletionBegins(BytePos at, long bytes);
    void ChangeDone() const { ChangeDone(-1); }
    void InsertionDone(long units) const { ChangeDone(units); } // the units that went in
    void Reset();                                               // another document

private:
    struct Place
    {
        long unit = 0;
        long byte = 0;
    };

    // From its beginning until it is done.
    struct Change
    {
        bool underWay = false;
        BytePos at;
        long inserted = 0;     // bytes
        long deleted = 0;      // bytes
        long deletedUnits = 0; // of a deletion
        long lengthBefore = 0; // bytes
        bool touchesCrLf = false;
    };

    bool IsSettledAscii() const
    {
        return m_unitsAreKnown && !m_change.underWay && m_units == m_bytes;
    }
    BytePos BytesOf(UnitPos position) const;
    UnitPos UnitsOf(BytePos position) const;
    void ChangeBegins(BytePos at);
    void ChangeDone(long insertedUnits) const; // -1: they are to be counted
    void LookForNoncharacters(long start, long end) const;
    void Settle() const;
    void MovePlaces(const Change& change, long units) const;
    bool TouchesCrLf(BytePos at, long bytes) const;
    bool HasLineIndex() const;
    void EnsureLineIndex() const;
    Place IndexedStart(long line) const;
    Place Remember(Place place) const;
    Place Nearest(long Place::*coordinate, long value) const;
    bool WalkPays(long distance) const;
    Place WalkToUnit(Place from, long unit) const;
    Place WalkForward(Place at, long unit) const;
    Place WalkBack(Place at, long unit) const;
    Place WalkToByte(Place from, long byte) const;

    const Raw& m_raw;
    mutable Change m_change;
    mutable bool m_lineIndexIsWrong = false;
    mutable bool m_unitsAreKnown = false;
    mutable bool m_hasNoncharacters = false;
    mutable long m_units = 0;  // in the text
    mutable long m_bytes = 0;  // likewise; both while no change is under way
    mutable long m_walked = 0; // bytes, since there was no line index
    // Places that are known: a caret's, and the ends of its line and of the styles far from it.
    mutable std::array<Place, 4> m_places;
    mutable std::size_t m_oldest = 0; // of the places
    mutable bool m_hasPlaces = false; // beside the text's start; never in a text that stays ASCII
};

} // namespace engine
