#include "engine/TextIndex.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kNear = 256;             // units: so near, the walk is cheaper than finding the line
constexpr long kNearEnough = 64 * 1024; // likewise, if the line index has to be made first
constexpr long kWindow = 16 * 1024; // bytes read at a time; asking for more may move the gap far
constexpr long kBytesPerUnit = 3;   // at most; a pair takes four for two
constexpr long kLongestCharacter = 4;

std::uintptr_t Word(long value)
{
    return static_cast<std::uintptr_t>(value);
}

bool IsContinuation(char byte)
{
    return (byte & 0xC0) == 0x80;
}

long WidthOf(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// How many units begin in the bytes: one for each byte that is not a continuation, and one more for
// the lead of a pair. A character that is cut counts where its lead stands.
long CountUnits(std::string_view bytes)
{
    std::size_t continuations = 0;
    std::size_t pairs = 0;
    for (const char byte : bytes) {
        continuations += IsContinuation(byte);
        pairs += (byte & 0xF8) == 0xF0;
    }
    return static_cast<long>(bytes.size() - continuations + pairs);
}

std::string_view WithoutCutCharacter(std::string_view bytes)
{
    std::size_t lead = bytes.size();
    while (lead > 0 && IsContinuation(bytes[lead - 1]))
        --lead;
    if (lead > 0 && lead - 1 + static_cast<std::size_t>(WidthOf(bytes[lead - 1])) > bytes.size())
        return bytes.substr(0, lead - 1);
    return bytes;
}

} // namespace

void TextIndex::Look() const
{
    RepairLineIndex();
    m_units = static_cast<long>(m_raw.Send(Sci::SCI_INDEXPOSITIONFROMLINE, Word(m_raw.LineCount()),
                                           Sci::SC_LINECHARACTERINDEX_UTF16));
    m_state = m_units == m_raw.Length() ? State::Ascii : State::Mixed;
    m_lookedWhileChanging = m_changing;
}

bool TextIndex::IsAscii() const
{
    if (m_state == State::Unknown || m_changing)
        Look();
    return m_state == State::Ascii;
}

long TextIndex::Length() const
{
    IsAscii();
    return m_units;
}

// The stock engine miscounts lines where a change behind a CR brings an LF to it or takes one away.
// The index is then made anew, but not before it is asked: a change of all line ends does so at
// each of them.
void TextIndex::RepairLineIndex() const
{
    if (!std::exchange(m_lineIndexIsWrong, false))
        return;
    m_raw.Send(Sci::SCI_RELEASELINECHARACTERINDEX, Sci::SC_LINECHARACTERINDEX_UTF16);
    m_raw.Send(Sci::SCI_ALLOCATELINECHARACTERINDEX, Sci::SC_LINECHARACTERINDEX_UTF16);
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

void TextIndex::ChangeBegins(const Change& change)
{
    if (m_changing) // two at once: nothing is known
        m_state = State::Unknown;
    m_changing = true;
    m_change = change;
    if (change.at.value < m_last.byte)
        m_last = Place();
}

void TextIndex::InsertionBegins(BytePos at, long bytes)
{
    ChangeBegins({at, bytes, 0, false});
}

void TextIndex::DeletionBegins(BytePos at, long bytes)
{
    const long end = at.value + bytes;
    const long units = m_state == State::Mixed ? CountUnits(m_raw.Bytes(at.value, end)) : bytes;
    ChangeBegins({at, 0, units, TouchesCrLf(at, bytes)});
}

void TextIndex::ChangeDone()
{
    if (!m_changing)
        return;
    m_changing = false;
    const long at = m_change.at.value;
    m_lineIndexIsWrong |=
        m_change.inserted > 0 ? TouchesCrLf(m_change.at, m_change.inserted) : m_change.touchesCrLf;
    if (m_lookedWhileChanging) // at the older text or at the younger
        m_state = State::Unknown;
    m_lookedWhileChanging = false;
    if (m_state == State::Unknown)
        return;
    if (m_change.inserted > 0)
        m_units += CountUnits(m_raw.Bytes(at, at + m_change.inserted));
    else
        m_units -= m_change.units;
    m_state = m_units == m_raw.Length() ? State::Ascii : State::Mixed;
}

void TextIndex::Reset()
{
    // The index is counted: one for the document, whatever number of windows shows it.
    if (!(m_raw.Send(Sci::SCI_GETLINECHARACTERINDEX) & Sci::SC_LINECHARACTERINDEX_UTF16))
        m_raw.Send(Sci::SCI_ALLOCATELINECHARACTERINDEX, Sci::SC_LINECHARACTERINDEX_UTF16);
    m_changing = false;
    m_lineIndexIsWrong = false;
    m_state = State::Unknown;
    m_last = Place();
}

UnitPos TextIndex::StartOfLine(long line) const
{
    if (IsAscii())
        return {StartInBytes(line).value};
    RepairLineIndex();
    line = std::clamp(line, 0L, m_raw.LineCount());
    return {static_cast<long>(
        m_raw.Send(Sci::SCI_INDEXPOSITIONFROMLINE, Word(line), Sci::SC_LINECHARACTERINDEX_UTF16))};
}

BytePos TextIndex::StartInBytes(long line) const
{
    const long lines = m_raw.LineCount();
    if (line >= lines)
        return {m_raw.Length()};
    return {static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, Word(std::max(line, 0L))))};
}

long TextIndex::LineOf(UnitPos position) const
{
    if (IsAscii())
        return static_cast<long>(
            m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(std::clamp(position.value, 0L, m_units))));
    RepairLineIndex();
    return static_cast<long>(m_raw.Send(Sci::SCI_LINEFROMINDEXPOSITION,
                                        Word(std::clamp(position.value, 0L, m_units)),
                                        Sci::SC_LINECHARACTERINDEX_UTF16));
}

BytePos TextIndex::ToBytes(UnitPos position) const
{
    if (IsAscii())
        return {std::clamp(position.value, 0L, m_units)};
    const long unit = std::clamp(position.value, 0L, m_units);
    if (std::labs(unit - m_last.unit) <= Near())
        return {Remember(WalkToUnit(m_last, unit)).byte};
    const long line = LineOf({unit});
    const Place start{StartOfLine(line).value, StartInBytes(line).value};
    const Place end{StartOfLine(line + 1).value, StartInBytes(line + 1).value};
    if (end.unit - start.unit == end.byte - start.byte)
        return {start.byte + (unit - start.unit)};
    return {Remember(WalkToUnit(NearestTo(start, end, &Place::unit, unit), unit)).byte};
}

UnitPos TextIndex::ToUnits(BytePos position) const
{
    const long byte = std::clamp(position.value, 0L, m_raw.Length());
    if (IsAscii())
        return {byte};
    if (std::labs(byte - m_last.byte) <= Near())
        return {Remember(WalkToByte(m_last, byte)).unit};
    const auto line = static_cast<long>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(byte)));
    const Place start{StartOfLine(line).value, StartInBytes(line).value};
    const Place end{StartOfLine(line + 1).value, StartInBytes(line + 1).value};
    if (end.unit - start.unit == end.byte - start.byte)
        return {start.unit + (byte - start.byte)};
    return {Remember(WalkToByte(NearestTo(start, end, &Place::byte, byte), byte)).unit};
}

long TextIndex::Near() const
{
    return m_lineIndexIsWrong ? kNearEnough : kNear;
}

TextIndex::Place TextIndex::NearestTo(Place start, Place end, long Place::*coordinate,
                                      long value) const
{
    Place nearest = start;
    for (const Place& candidate : {end, m_last}) {
        if (std::labs(candidate.*coordinate - value) < std::labs(nearest.*coordinate - value))
            nearest = candidate;
    }
    return nearest;
}

TextIndex::Place TextIndex::Remember(Place place) const
{
    if (!m_changing)
        m_last = place;
    return place;
}

// Stops before the unit if that is the second half of a pair.
TextIndex::Place TextIndex::WalkForward(Place at, long unit) const
{
    while (at.unit < unit) {
        const long left = unit - at.unit;
        const long room = std::min(kWindow, kBytesPerUnit * left + kLongestCharacter);
        const long end = std::min(m_raw.Length(), at.byte + room);
        std::string_view bytes = m_raw.Bytes(at.byte, end);
        if (left > kWindow) { // no window holds that many units, so it is taken whole
            if (end < m_raw.Length())
                bytes = WithoutCutCharacter(bytes);
            at.unit += CountUnits(bytes);
            at.byte += static_cast<long>(bytes.size());
            continue;
        }
        const Place before = at;
        std::size_t done = 0;
        while (done < bytes.size() && at.unit < unit) {
            const long width = WidthOf(bytes[done]);
            const long step = width == kLongestCharacter ? 2 : 1;
            if (at.unit + step > unit)
                return at;
            at.unit += step;
            at.byte += width;
            done += static_cast<std::size_t>(width);
        }
        if (at.byte == before.byte)
            break;
    }
    return at;
}

TextIndex::Place TextIndex::WalkBack(Place at, long unit) const
{
    while (at.unit > unit && at.byte > 0) {
        const long left = at.unit - unit;
        const long room = std::min(kWindow, kBytesPerUnit * left + kLongestCharacter);
        const long start = std::max(0L, at.byte - room);
        const std::string_view bytes = m_raw.Bytes(start, at.byte);
        if (left > kWindow) {
            std::size_t cut = 0;
            while (cut < bytes.size() && IsContinuation(bytes[cut]))
                ++cut;
            at.unit -= CountUnits(bytes.substr(cut));
            at.byte = start + static_cast<long>(cut);
            continue;
        }
        auto index = static_cast<long>(bytes.size());
        while (index > 0 && at.unit > unit) {
            --index;
            if (!IsContinuation(bytes[static_cast<std::size_t>(index)]))
                at.unit -=
                    WidthOf(bytes[static_cast<std::size_t>(index)]) == kLongestCharacter ? 2 : 1;
        }
        at.byte = start + index;
    }
    return at;
}

TextIndex::Place TextIndex::WalkToUnit(Place from, long unit) const
{
    return from.unit < unit ? WalkForward(from, unit) : WalkBack(from, unit);
}

TextIndex::Place TextIndex::WalkToByte(Place at, long byte) const
{
    while (at.byte != byte) {
        const bool forwards = at.byte < byte;
        const long start = forwards ? at.byte : std::max(byte, at.byte - kWindow);
        const long end = forwards ? std::min(byte, at.byte + kWindow) : at.byte;
        const long units = CountUnits(m_raw.Bytes(start, end));
        at.unit += forwards ? units : -units;
        at.byte = forwards ? end : start;
    }
    return at;
}

} // namespace engine
