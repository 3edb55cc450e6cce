// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptIndex.h"

#include "completion/NameText.h"
#include "completion/ScriptReader.h"
#include "completion/Utf8Text.h"

#include <algorithm>

namespace completion {
namespace {

using engine::analysis::TextSpans;
using engine::analysis::Token;
using engine::analysis::TokenKind;

constexpr long kReach = 1280;      // units behind a stretch that reading it may look at
constexpr long kLineSearch = 2048; // units in which a stretch looks for the end of a line
constexpr std::size_t kLeastMemory = 1 << 20;
constexpr long kSharePart = 10; // of the text's size, from which no more words are taken

bool IsPlainWordByte(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 || value == '_' || (value >= '0' && value <= '9') ||
           (value >= 'a' && value <= 'z') || (value >= 'A' && value <= 'Z');
}

void AppendNumber(std::string& bytes, std::uint32_t number)
{
    for (; number >= 0x80; number >>= 7)
        bytes += static_cast<char>(number | 0x80);
    bytes += static_cast<char>(number);
}

template <typename Take>
void ForEachNumber(const std::string& bytes, Take take)
{
    std::uint32_t last = 0;
    std::uint32_t number = 0;
    int shift = 0;
    for (const char each : bytes) {
        number |= static_cast<std::uint32_t>(each & 0x7F) << shift;
        shift += 7;
        if (each & 0x80)
            continue;
        last += number;
        take(last);
        number = 0;
        shift = 0;
    }
}

bool IsKept(NameKind kind)
{
    return kind <= NameKind::Schema || kind >= NameKind::TableUse;
}

} // namespace

// Reads the bytes of one stretch.
class ScriptIndex::Reader
{
public:
    Reader(ScriptIndex& index, const std::string& bytes, long end)
        : m_index(index), m_bytes(bytes), m_end(end), m_isFull(index.IsFull())
    {}

    // Gives what the next stretch is read from.
    Entry Run(const Entry& entry)
    {
        const long from = ByteOfUnit(entry.skip);
        return m_index.m_dialect ? RunScript(entry, from) : RunPlain(entry, from);
    }

    std::vector<Id> words;
    std::vector<Item> objects;

private:
    Entry RunPlain(const Entry& entry, long at)
    {
        const bool goesOn = entry.names.before == NameState::Before::Word;
        at = goesOn ? EndOfWord(at) : at;
        bool isCut = goesOn && at == Size();
        while (at < m_end) {
            const long start = at;
            at = EndOfWord(start);
            isCut = at > start && at == Size();
            AddPlain(start, at);
            at += at == start;
        }
        Entry exit{.skip = UnitsBehind(at)};
        exit.names.before = isCut ? NameState::Before::Word : NameState::Before::Other;
        return exit;
    }

    long Size() const { return static_cast<long>(m_bytes.size()); }
    long EndOfWord(long at) const
    {
        while (at < Size() && IsPlainWordByte(m_bytes[static_cast<std::size_t>(at)]))
            ++at;
        return at;
    }

    Entry RunScript(const Entry& entry, long from)
    {
        ScriptReader reader(*m_index.m_dialect, TextSpans(m_bytes), from, entry.scan, entry.names);
        UnitCounter units(m_bytes);
        while (reader.Next(m_end)) {
            AddToken(reader.Text(), reader.Last());
            for (const NameEvent& event : reader.Names())
                AddObject(reader.Text(), event, units);
        }
        return {reader.Scan(), reader.Machine().Now(), UnitsBehind(reader.Position())};
    }

    void AddToken(const TextSpans& text, const Token& token)
    {
        if (token.resumed || token.cut || token.Length() < 2)
            return;
        if (token.kind == TokenKind::Word || token.kind == TokenKind::Variable)
            Add(std::string_view(m_bytes).substr(static_cast<std::size_t>(token.start),
                                                 static_cast<std::size_t>(token.Length())));
        else if (token.kind == TokenKind::QuotedName)
            Add(PlainName(text, token.start, token.end));
    }

    void AddPlain(long start, long end)
    {
        const auto word = std::string_view(m_bytes).substr(static_cast<std::size_t>(start),
                                                           static_cast<std::size_t>(end - start));
        if (word.size() > 1 && (word[0] < '0' || word[0] > '9'))
            Add(word);
    }

    Id Add(std::string_view word)
    {
        const Id id = m_index.m_words.Add(word, m_isFull);
        if (id != WordTable::kNone)
            words.push_back(id);
        return id;
    }

    void AddObject(const TextSpans& text, const NameEvent& event, UnitCounter& units)
    {
        if (!IsKept(event.kind) || m_isFull)
            return;
        const Id id = Add(PlainName(text, event.start, event.end));
        if (id == WordTable::kNone)
            return;
        const auto kind = static_cast<std::uint32_t>(event.kind);
        const bool isUse = event.kind >= NameKind::TableUse && event.kind != NameKind::AlterUse;
        if (isUse && std::any_of(objects.begin(), objects.end(), [&](const Item& item) {
                return item.name == id && (item.place & kKindMask) == kind;
            }))
            return;
        objects.push_back(
            {id, static_cast<std::uint32_t>(units.At(event.start)) << kKindBits | kind});
    }

    long ByteOfUnit(long unit) const
    {
        long at = 0;
        for (long passed = 0; passed < unit && at < static_cast<long>(m_bytes.size()); ++at) {
            const auto byte = static_cast<unsigned char>(m_bytes[static_cast<std::size_t>(at)]);
            passed += ((byte & 0xC0) != 0x80) + (byte >= 0xF0);
        }
        while (at < static_cast<long>(m_bytes.size()) &&
               (static_cast<unsigned char>(m_bytes[static_cast<std::size_t>(at)]) & 0xC0) == 0x80)
            ++at;
        return at;
    }

    long UnitsBehind(long position) const
    {
        return position <= m_end ? 0
                                 : CountUnits(std::string_view(m_bytes).substr(
                                       static_cast<std::size_t>(m_end),
                                       static_cast<std::size_t>(position - m_end)));
    }

    ScriptIndex& m_index;
    const std::string& m_bytes;
    long m_end; // of the stretch, in bytes
    bool m_isFull;
};

ScriptIndex::ScriptIndex(const engine::analysis::SqlDialect* dialect, long stretch)
    : m_dialect(dialect), m_stretch(stretch)
{
    Reset(0);
}

void ScriptIndex::Reset(long units)
{
    m_stretches.assign(1, {});
    m_stretches[0].length = units;
    m_words = {};
    m_size = units;
    m_kept = 0;
    m_fresh = 0;
    m_nearest = 0;
    m_nearestStart = 0;
}

// The last one for a place at the end.
std::size_t ScriptIndex::IndexAt(long position, long& start) const
{
    std::size_t index = std::min(m_nearest, m_stretches.size() - 1);
    start = index == m_nearest ? m_nearestStart : 0;
    if (index != m_nearest)
        index = 0;
    while (index > 0 && position < start)
        start -= m_stretches[--index].length;
    while (index + 1 < m_stretches.size() && position >= start + m_stretches[index].length)
        start += m_stretches[index++].length;
    m_nearest = index;
    m_nearestStart = start;
    return index;
}

void ScriptIndex::MakeStale(std::size_t index)
{
    m_stretches[index].isStale = true;
    m_fresh = std::min(m_fresh, index);
}

// Those in front that were read as far as the place.
void ScriptIndex::MakeReachingStale(std::size_t index, long distance)
{
    while (index > 0 && distance < kReach) {
        MakeStale(--index);
        distance += m_stretches[index].length;
    }
}

void ScriptIndex::Inserted(long position, long units)
{
    position = std::clamp(position, 0L, m_size);
    long start = 0;
    const std::size_t index = IndexAt(position, start);
    m_stretches[index].length += units;
    m_size += units;
    MakeStale(index);
    MakeReachingStale(index, position - start);
}

void ScriptIndex::Deleted(long position, long units)
{
    position = std::clamp(position, 0L, m_size);
    units = std::clamp(units, 0L, m_size - position);
    long start = 0;
    std::size_t index = IndexAt(position, start);
    MakeStale(index);
    MakeReachingStale(index, position - start);
    m_size -= units;
    long offset = position - start;
    const std::size_t first = index;
    std::size_t last = index;
    while (units > 0 && index < m_stretches.size()) {
        Stretch& stretch = m_stretches[index];
        const long taken = std::min(units, stretch.length - offset);
        stretch.length -= taken;
        units -= taken;
        MakeStale(index);
        last = index++;
        offset = 0;
    }
    // What is empty goes, but for the first, which the place of the last search names.
    for (std::size_t i = last; i > first; --i) {
        if (m_stretches[i].length > 0)
            continue;
        Forget(m_stretches[i]);
        m_stretches.erase(m_stretches.begin() + static_cast<std::ptrdiff_t>(i));
    }
    if (first + 1 < m_stretches.size())
        MakeStale(first + 1);
}

std::size_t ScriptIndex::FirstStale() const
{
    while (m_fresh < m_stretches.size() && !m_stretches[m_fresh].isStale)
        ++m_fresh;
    return m_fresh;
}

bool ScriptIndex::Work(const Read& read, long units)
{
    while (units > 0) {
        const std::size_t index = FirstStale();
        if (index == m_stretches.size())
            return false;
        long start = m_nearestStart;
        if (index != m_nearest) {
            std::size_t at = std::min(m_nearest, m_stretches.size() - 1);
            start = at == m_nearest ? m_nearestStart : 0;
            at = at == m_nearest ? at : 0;
            while (at > index)
                start -= m_stretches[--at].length;
            while (at < index)
                start += m_stretches[at++].length;
            m_nearest = index;
            m_nearestStart = start;
        }
        units -= ReadStretch(read, index, start) + 1;
    }
    return FirstStale() != m_stretches.size();
}

void ScriptIndex::Freshen(const Read& read, long position)
{
    position = std::clamp(position, 0L, m_size);
    long start = 0;
    std::size_t index = IndexAt(position, start);
    if (m_stretches[index].length > 2 * m_stretch && position - start > m_stretch) {
        const long cut = CutBefore(read, start, position - m_stretch / 2);
        Split(index, cut - start);
        index = IndexAt(position, start);
    }
    if (m_stretches[index].isStale)
        ReadStretch(read, index, start);
}

void ScriptIndex::Split(std::size_t index, long length)
{
    Stretch behind;
    behind.length = m_stretches[index].length - length;
    m_stretches[index].length = length;
    m_stretches.insert(m_stretches.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                       std::move(behind));
    MakeStale(index);
}

// Behind a line's end if one is near, and not within a pair.
long ScriptIndex::CutBefore(const Read& read, long start, long position) const
{
    const long from = std::max(start + 1, position - kLineSearch);
    std::u16string units;
    read(from, std::min(position + 1, m_size), units);
    const auto room = static_cast<std::size_t>(position - from);
    if (units.size() <= room)
        return position;
    if (const std::size_t line = units.rfind(u'\n', room == 0 ? 0 : room - 1);
        line != std::u16string::npos)
        return from + static_cast<long>(line) + 1;
    const bool isLow = units[room] >= 0xDC00 && units[room] < 0xE000;
    return isLow && position > start + 1 ? position - 1 : position;
}

// One that has grown long is cut, one that has become short takes the next.
void ScriptIndex::FitStretch(const Read& read, std::size_t index, long start)
{
    if (m_stretches[index].length > 2 * m_stretch)
        Split(index, CutBefore(read, start, start + m_stretch) - start);
    while (m_stretches[index].length < m_stretch / 4 && index + 1 < m_stretches.size() &&
           m_stretches[index + 1].length <= m_stretch) {
        m_stretches[index].length += m_stretches[index + 1].length;
        Forget(m_stretches[index + 1]);
        m_stretches.erase(m_stretches.begin() + static_cast<std::ptrdiff_t>(index) + 1);
    }
}

// Gives how many units were read.
long ScriptIndex::ReadStretch(const Read& read, std::size_t index, long start)
{
    FitStretch(read, index, start);
    Stretch& stretch = m_stretches[index];
    Entry exit = stretch.entry;
    Forget(stretch);
    stretch.isStale = false;
    if (exit.skip >= stretch.length && stretch.length > 0) {
        exit.skip -= stretch.length;
    } else {
        const long end = start + stretch.length;
        read(start, std::min(end + kReach, m_size), m_units);
        const std::u16string_view units(m_units);
        const auto length = std::min(static_cast<std::size_t>(stretch.length), units.size());
        m_bytes.clear();
        AppendUtf8(units.substr(0, length), m_bytes);
        const long bytes = static_cast<long>(m_bytes.size());
        AppendUtf8(units.substr(length), m_bytes);
        Reader reader(*this, m_bytes, bytes);
        exit = reader.Run(stretch.entry);
        Keep(stretch, reader.words, std::move(reader.objects));
    }
    if (index + 1 < m_stretches.size() && m_stretches[index + 1].entry != exit) {
        m_stretches[index + 1].entry = exit;
        MakeStale(index + 1);
    }
    return stretch.length;
}

void ScriptIndex::Keep(Stretch& stretch, std::vector<Id>& words, std::vector<Item> objects)
{
    std::sort(words.begin(), words.end());
    std::string bytes;
    Id last = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0 && words[i] == words[i - 1]) {
            m_words.Release(words[i]);
            continue;
        }
        AppendNumber(bytes, words[i] - last);
        last = words[i];
    }
    stretch.words.assign(bytes);
    stretch.objects.assign(objects.begin(), objects.end());
    stretch.objects.shrink_to_fit();
    m_kept += stretch.words.capacity() + stretch.objects.capacity() * sizeof(Item);
}

void ScriptIndex::Forget(Stretch& stretch)
{
    ForEachNumber(stretch.words, [this](Id id) { m_words.Release(id); });
    m_kept -=
        std::min(m_kept, stretch.words.capacity() + stretch.objects.capacity() * sizeof(Item));
    stretch.words = {};
    stretch.objects = {};
}

bool ScriptIndex::IsFull() const
{
    return MemoryBytes() > std::max(kLeastMemory, static_cast<std::size_t>(m_size / kSharePart));
}

std::size_t ScriptIndex::MemoryBytes() const
{
    return m_words.MemoryBytes() + m_kept + m_stretches.capacity() * sizeof(Stretch);
}

std::vector<ScriptIndex::Object> ScriptIndex::Objects() const
{
    std::vector<Object> objects;
    ForEachObject([&](const Object& object) {
        objects.push_back(object);
        return true;
    });
    return objects;
}

std::vector<ScriptIndex::Id> ScriptIndex::NumbersOf(std::string_view word) const
{
    std::vector<Id> ids;
    m_words.FindSame(word, [&](Id id) { ids.push_back(id); });
    return ids;
}

// A stretch in front of that of the position, so that a statement that reaches over is seen.
ScriptIndex::Start ScriptIndex::StartBefore(long position) const
{
    long start = 0;
    std::size_t index = IndexAt(std::clamp(position, 0L, m_size), start);
    if (m_stretches[index].entry.skip > position - start && index > 0)
        start -= m_stretches[--index].length;
    return {start, m_stretches[index].entry};
}

} // namespace completion
