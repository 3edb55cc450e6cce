// TextIndex: positions in UTF-16 units to positions in bytes and back, for the text of one window.
// Text that is all ASCII costs one comparison. In other text a line is found by the engine's UTF-16
// line index, and the place in it from the nearest place that is known already.
#pragma once

#include "engine/Raw.h"

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
    BytePos ToBytes(UnitPos position) const;
    UnitPos ToUnits(BytePos position) const;

    long LineOf(UnitPos position) const;   // lines count from 0
    UnitPos StartOfLine(long line) const;  // the line behind the last one starts at the text's end
    BytePos StartInBytes(long line) const; // likewise
    long Length() const;                   // units

    bool IsAscii() const;

    // A change of the text: announced while the text is as it was, done once it is in. What is
    // asked in between is found out anew, since the text may be older or younger than the change.
    void InsertionBegins(BytePos at, long bytes);
    void DeletionBegins(BytePos at, long bytes);
    void ChangeDone();
    void Reset(); // another document; makes its line index if it has none

private:
    enum class State : unsigned char
    {
        Unknown,
        Ascii,
        Mixed
    };

    struct Place
    {
        long unit = 0;
        long byte = 0;
    };

    // From ChangeBegins to ChangeDone.
    struct Change
    {
        BytePos at;
        long inserted = 0; // bytes
        long units = 0;    // that a deletion takes away
        bool touchesCrLf = false;
    };

    void ChangeBegins(const Change& change);
    void Look() const;
    void RepairLineIndex() const;
    long Near() const;
    bool TouchesCrLf(BytePos at, long bytes) const;
    Place NearestTo(Place start, Place end, long Place::*coordinate, long value) const;
    Place WalkToUnit(Place from, long unit) const;
    Place WalkForward(Place at, long unit) const;
    Place WalkBack(Place at, long unit) const;
    Place WalkToByte(Place from, long byte) const;
    Place Remember(Place place) const;

    const Raw& m_raw;
    bool m_changing = false;
    Change m_change;
    mutable bool m_lineIndexIsWrong = false;
    mutable bool m_lookedWhileChanging = false;
    mutable State m_state = State::Unknown;
    mutable long m_units = 0; // in the text, if the state is known
    mutable Place m_last;
};

} // namespace engine
