// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/text/TextIndex.h"

#include "engine/text/Characters.h"
#include "engine/text/Utf.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kNear = 256;           // so near, the walk is cheaper than asking the line index
constexpr long kNearEnough = 0x10000; // so near, it is cheaper than making one
constexpr long kWalkBudget =
    0x100000;                    // bytes, or the text's length: walked that far, it would have paid
constexpr long kWindow = 0x4000; // bytes read at a time; asking for more may move the gap far
constexpr long kBytesPerUnit = 3; // at most; a pair takes four for two
constexpr long kLongestCharacter = 4;
constexpr std::size_t kBlock = 128; // bytes: a walk of so many units takes them whole

std::uintptr_t Word(long value)
{
    return static_cast<std::uintptr_t>(value);
}

} // namespace

// While a change is under way the text is the older one until its length differs.
void TextIndex::Settle() const
{
    if (m_change.underWay && m_raw.Length() != m_change.lengthBefore)
        ChangeDone();
}

long TextIndex::Length() const
{
    Settle();
    if (!m_unitsAreKnown) {
        m_bytes = m_raw.Length();
        m_units = WalkToByte({}, m_bytes).unit;
        m_unitsAreKnown = true;
        m_hasNoncharacters = false;
        if (m_units != m_bytes)
            LookForNoncharacters(0, m_bytes);
    }
    return m_units;
}

long TextIndex::LengthInBytes() const
{
    return m_unitsAreKnown && !m_change.underWay ? m_bytes : m_raw.Length();
}

bool TextIndex::IsAscii() const
{
    return IsSettledAscii() || Length() == LengthInBytes();
}

// Whether the change at a place touches a pair of CR and LF: the CR stands before it, the LF is the
// first of its bytes or the first behind them.
bool TextIndex::TouchesCrLf(BytePos at, long bytes) const
{
    const auto byteAt = [this](long position) {
        return m_raw.Send(Sci::SCI_GETCHARAT, Word(position));
    };
    return at.value > 0 && byteAt(at.value - 1) == '\r' &&
           (byteAt(at.value) == '\n' || byteAt(at.value + bytes) == '\n');
}

// In place: see ChangeReporter::Note.
void TextIndex::ChangeBegins(BytePos at)
{
    ChangeDone();
    m_change.at = at;
    m_change.lengthBefore = LengthInBytes();
    m_change.underWay = true;
}

void TextIndex::InsertionBegins(BytePos at, long bytes)
{
    ChangeBegins(at);
    m_change.inserted = bytes;
    m_change.deleted = 0;
}

void TextIndex::DeletionBegins(BytePos at, long bytes)
{
    const long units =
        !m_unitsAreKnown || IsAscii() ? bytes : WalkToByte({0, at.value}, at.value + bytes).unit;
    ChangeBegins(at);
    m_change.inserted = 0;
    m_change.deleted = bytes;
    m_change.deletedUnits = units;
    m_change.touchesCrLf = !m_lineIndexIsWrong && TouchesCrLf(at, bytes);
}

void TextIndex::ChangeDone(long insertedUnits) const
{
    if (!m_change.underWay)
        return;
    m_change.underWay = false;
    const long at = m_change.at.value;
    const long inserted = m_change.inserted;
    if (inserted == 0) {
        m_lineIndexIsWrong |= m_change.touchesCrLf;
        m_units -= m_change.deletedUnits;
        m_bytes -= m_change.deleted;
        m_hasNoncharacters = m_hasNoncharacters && m_bytes > 0;
        MovePlaces(m_change, -m_change.deletedUnits);
        return;
    }
    m_lineIndexIsWrong = m_lineIndexIsWrong || TouchesCrLf(m_change.at, inserted);
    const long units = insertedUnits >= 0 ? insertedUnits : WalkToByte({0, at}, at + inserted).unit;
    m_units += units;
    m_bytes += inserted;
    if (units != inserted)
        LookForNoncharacters(at, at + inserted);
    MovePlaces(m_change, units);
}

// Around as well, for the case that the bytes make a character with what stands beside them.
void TextIndex::LookForNoncharacters(long start, long end) const
{
    start = std::max(0L, start - kLongestCharacter);
    end = std::min(m_raw.Length(), end + kLongestCharacter);
    for (; start < end && !m_hasNoncharacters; start += kWindow) {
        const long stop = std::min(end, start + kWindow + kLongestCharacter);
        m_hasNoncharacters = HasNoncharacter(m_raw.Bytes(start, stop));
    }
}

// One where text goes in moves behind it, where the next is likely to go in.
void TextIndex::MovePlaces(const Change& change, long units) const
{
    if (!m_hasPlaces)
        return;
    const long at = change.at.value;
    for (Place& place : m_places) {
        if (place.byte >= at + change.deleted)
            place = {place.unit + units, place.byte + change.inserted - change.deleted};
        else if (place.byte > at)
            place = Place();
    }
}

void TextIndex::Reset()
{
    m_change = Change();
    m_lineIndexIsWrong = true; // what another window knows of an index is not known here
    m_unitsAreKnown = false;
    m_places = {};
    m_hasPlaces = false;
    m_walked = 0;
}

bool TextIndex::HasLineIndex() const
{
    return !m_lineIndexIsWrong &&
           (m_raw.Send(Sci::SCI_GETLINECHARACTERINDEX) & Sci::SC_LINECHARACTERINDEX_UTF16);
}

// The index belongs to the document, whatever number of windows shows it.
// The stock engine miscounts lines where a change behind a CR brings an LF to it or takes one away.
// The index is made anew then, but not before it is asked: a change of all line ends does so at
// each of them.
void TextIndex::EnsureLineIndex() const
{
    if (HasLineIndex())
        return;
    if (m_raw.Send(Sci::SCI_GETLINECHARACTERINDEX) & Sci::SC_LINECHARACTERINDEX_UTF16)
        m_raw.Send(Sci::SCI_RELEASELINECHARACTERINDEX, Sci::SC_LINECHARACTERINDEX_UTF16);
    m_raw.Send(Sci::SCI_ALLOCATELINECHARACTERINDEX, Sci::SC_LINECHARACTERINDEX_UTF16);
    m_lineIndexIsWrong = false;
    m_walked = 0;
    if (m_change.underWay && m_change.deleted > 0) // which is not in the text yet
        m_change.touchesCrLf = TouchesCrLf(m_change.at, m_change.deleted);
}

// Of a line that is there, or the one behind the last.
TextIndex::Place TextIndex::IndexedStart(long line) const
{
    return {static_cast<long>(m_raw.Send(Sci::SCI_INDEXPOSITIONFROMLINE, Word(line),
                                         Sci::SC_LINECHARACTERINDEX_UTF16)),
            StartInBytes(line).value};
}

// The stock engine has no answer for what is beyond the line behind the last.
BytePos TextIndex::StartInBytes(long line) const
{
    const auto start =
        static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, Word(std::max(line, 0L))));
    return {start >= 0 ? start : m_raw.Length()};
}

UnitPos TextIndex::StartOfLine(long line) const
{
    const BytePos start = StartInBytes(line);
    if (IsAscii() || start.value == 0)
        return {start.value};
    if (WalkPays(Nearest(&Place::byte, start.value).byte - start.value))
        return ToUnits(start);
    EnsureLineIndex();
    return {IndexedStart(std::clamp(line, 0L, m_raw.LineCount())).unit};
}

// Units of the line, its line end included.
long TextIndex::LengthOfLine(long line) const
{
    const BytePos start = StartInBytes(line);
    const BytePos end = StartInBytes(line + 1);
    if (IsAscii())
        return end.value - start.value;
    if (end.value - start.value <= kWindow)
        return CountUnits(m_raw.Bytes(start.value, end.value));
    return StartOfLine(line + 1).value - StartOfLine(line).value;
}

long TextIndex::LineOf(UnitPos position) const
{
    return static_cast<long>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(ToBytes(position).value)));
}

BytePos TextIndex::BytesOf(UnitPos position) const
{
    const long unit = std::clamp(position.value, 0L, Length());
    if (IsAscii())
        return {unit};
    const Place nearest = Nearest(&Place::unit, unit);
    if (WalkPays(nearest.unit - unit))
        return {Remember(WalkToUnit(nearest, unit)).byte};
    EnsureLineIndex();
    const auto line = static_cast<long>(
        m_raw.Send(Sci::SCI_LINEFROMINDEXPOSITION, Word(unit), Sci::SC_LINECHARACTERINDEX_UTF16));
    const auto start = static_cast<long>(
        m_raw.Send(Sci::SCI_INDEXPOSITIONFROMLINE, Word(line), Sci::SC_LINECHARACTERINDEX_UTF16));
    Place from{start, StartInBytes(line).value};
    if (std::labs(nearest.unit - unit) < unit - from.unit)
        from = nearest;
    return {Remember(WalkToUnit(from, unit)).byte};
}

UnitPos TextIndex::UnitsOf(BytePos position) const
{
    if (IsAscii())
        return {std::clamp(position.value, 0L, m_units)};
    const long byte = std::clamp(position.value, 0L, m_raw.Length());
    const Place nearest = Nearest(&Place::byte, byte);
    if (WalkPays(nearest.byte - byte))
        return {Remember(WalkToByte(nearest, byte)).unit};
    EnsureLineIndex();
    const auto line = static_cast<long>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(byte)));
    Place from = IndexedStart(line);
    if (std::labs(nearest.byte - byte) < byte - from.byte)
        from = nearest;
    return {Remember(WalkToByte(from, byte)).unit};
}

// Of the text's start, its end and the places that were asked for.
TextIndex::Place TextIndex::Nearest(long Place::*coordinate, long value) const
{
    Place nearest;
    const auto take = [&](const Place& candidate) {
        if (std::labs(candidate.*coordinate - value) < std::labs(nearest.*coordinate - value))
            nearest = candidate;
    };
    take({Length(), m_raw.Length()});
    for (const Place& place : m_places)
        take(place);
    return nearest;
}

// Walks without the line index are on an allowance: when they have cost as much as the index, it
// is made.
bool TextIndex::WalkPays(long distance) const
{
    distance = std::labs(distance);
    if (distance <= kNear)
        return true;
    if (HasLineIndex() || distance > kNearEnough)
        return false;
    m_walked += distance;
    return m_walked < std::max(kWalkBudget, m_raw.Length());
}

TextIndex::Place TextIndex::Remember(Place place) const
{
    if (m_change.underWay && place.byte > m_change.at.value)
        return place;
    m_hasPlaces = true;
    auto* const near = std::find_if(m_places.begin(), m_places.end(), [place](const Place& other) {
        return std::labs(other.byte - place.byte) <= kNear;
    });
    if (near != m_places.end())
        *near = place;
    else
        m_places[m_oldest++ % m_places.size()] = place;
    return place;
}

TextIndex::Place TextIndex::WalkToUnit(Place from, long unit) const
{
    return from.unit < unit ? WalkForward(from, unit) : WalkBack(from, unit);
}

// Stops before the unit if that is the second half of a pair.
TextIndex::Place TextIndex::WalkForward(Place at, long unit) const
{
    const long length = m_raw.Length();
    while (at.unit < unit && at.byte < length) {
        const long room = std::min(kWindow, kBytesPerUnit * (unit - at.unit) + kLongestCharacter);
        const std::string_view bytes = m_raw.Bytes(at.byte, std::min(length, at.byte + room));
        std::size_t done = 0;
        // A block has no more units than bytes, so that it can be taken whole.
        while (unit - at.unit >= static_cast<long>(kBlock) && bytes.size() - done >= kBlock) {
            at.unit += CountUnits(bytes.substr(done, kBlock));
            done += kBlock;
        }
        while (done < bytes.size() && IsContinuation(bytes[done]))
            ++done; // of a character that is counted
        while (done < bytes.size() && at.unit < unit) {
            const long width = WidthOf(bytes[done]);
            const long step = width == kLongestCharacter ? 2 : 1;
            if (at.unit + step > unit)
                return {at.unit, at.byte + static_cast<long>(done)};
            if (static_cast<long>(bytes.size() - done) < width)
                break;
            at.unit += step;
            done += static_cast<std::size_t>(width);
        }
        at.byte += static_cast<long>(done);
    }
    return at;
}

TextIndex::Place TextIndex::WalkBack(Place at, long unit) const
{
    while (at.unit > unit && at.byte > 0) {
        const long room = std::min(kWindow, kBytesPerUnit * (at.unit - unit) + kLongestCharacter);
        const long start = std::max(0L, at.byte - room);
        const std::string_view bytes = m_raw.Bytes(start, at.byte);
        std::size_t left = bytes.size();
        while (at.unit - unit >= static_cast<long>(kBlock) && left >= kBlock) {
            left -= kBlock;
            at.unit -= CountUnits(bytes.substr(left, kBlock));
        }
        while (left > 0 && at.unit > unit) {
            --left;
            if (!IsContinuation(bytes[left]))
                at.unit -= WidthOf(bytes[left]) == kLongestCharacter ? 2 : 1;
        }
        at.byte = start + static_cast<long>(left);
        if (at.unit <= unit) // a block may have ended within a character that is still counted
            while (left < bytes.size() && IsContinuation(bytes[left])) {
                ++left;
                ++at.byte;
            }
    }
    return at;
}

TextIndex::Place TextIndex::WalkToByte(Place at, long byte) const
{
    while (at.byte != byte) {
        const bool forwards = at.byte < byte;
        const long start = forwards ? at.byte : std::max(byte, at.byte - kWindow);
        const long end = forwards ? std::min(byte, at.byte + kWindow) : at.byte;
        const std::string_view bytes = m_raw.Bytes(start, end);
        const long units = CountUnits(bytes);
        at.unit += forwards ? units : -units;
        at.byte = forwards ? end : start;
    }
    return at;
}

} // namespace engine
