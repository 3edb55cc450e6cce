// SPDX-License-Identifier: GPL-3.0-or-later
// Messages that carry text in or out.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"
#include "engine/text/Characters.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kChunk = 8 * 1024; // bytes read at a time; asking for more may move the gap far

// The text beside a count of units; a negative count means up to the terminator.
std::u16string_view CountedText(WPARAM length, LPARAM text)
{
    const auto* units = reinterpret_cast<const char16_t*>(text);
    const auto count = static_cast<long>(static_cast<int>(length));
    if (!units || count < 0)
        return TerminatedText(units);
    return {units, static_cast<std::size_t>(count)};
}

// The stock engine keeps an allocation failure as its status; here it is an exception.
void ThrowIfOutOfMemory(Engine& engine)
{
    if (engine.raw.Send(Sci::SCI_GETSTATUS) == Sci::SC_STATUS_BADALLOC) {
        engine.raw.Send(Sci::SCI_SETSTATUS, 0);
        engine.reporter.ForgetSource();
        throw std::bad_alloc();
    }
}

// The stock engine counts positions in ints.
void ThrowIfTooLong(const Engine& engine, std::size_t bytes)
{
    if (bytes > static_cast<std::size_t>(std::numeric_limits<int>::max() - engine.raw.Length()))
        throw std::bad_alloc();
}

LRESULT SendCounted(Engine& engine, UINT number, WPARAM wParam, LPARAM lParam)
{
    const std::u16string_view units = CountedText(wParam, lParam);
    const Utf8Text text(units);
    ThrowIfTooLong(engine, text.Size());
    const ChangeReporter::Source source(engine.reporter, units, text.Size());
    const LRESULT result = engine.raw.Send(number, text.Size(), text.Data());
    ThrowIfOutOfMemory(engine);
    return result;
}

template <UINT Number>
LRESULT EnterCounted(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    return SendCounted(engine, Number, wParam, lParam);
}

template <UINT Number>
LRESULT EnterTerminated(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text text(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    const LRESULT result = engine.raw.Send(Number, wParam, text.Data());
    ThrowIfOutOfMemory(engine);
    return result;
}

LRESULT InsertText(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    return EnterTerminated<Sci::SCI_INSERTTEXT>(
        engine, static_cast<WPARAM>(engine.Bytes(static_cast<LPARAM>(wParam))), lParam);
}

// Gives the units of what the target became.
LRESULT ReplaceTarget(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text text(CountedText(wParam, lParam));
    engine.ReplaceTarget(text.View());
    ThrowIfOutOfMemory(engine);
    return engine.Units(engine.target.end) - engine.Units(engine.target.start);
}

// Pairs of unit and style; the stock engine wants a style for each byte.
LRESULT AddStyledText(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const std::u16string_view cells = CountedText(wParam, lParam);
    std::string bytes;
    std::string styles;
    for (std::size_t i = 0; i + 1 < cells.size(); i += 2) {
        char16_t character[2] = {cells[i], 0};
        std::size_t units = 1;
        const bool isPair = (cells[i] & 0xFC00) == 0xD800 && i + 3 < cells.size() &&
                            (cells[i + 2] & 0xFC00) == 0xDC00;
        if (isPair) {
            character[units++] = cells[i + 2];
            i += 2;
        }
        const Utf8Text text(std::u16string_view(character, units));
        bytes += text.View();
        styles.append(text.Size(), static_cast<char>(cells[i + 1]));
    }
    // In two steps: the stock message styles what a read-only text did not take, and aborts.
    const long before = engine.raw.Length();
    engine.raw.Send(Sci::SCI_ADDTEXT, bytes.size(), bytes.data());
    ThrowIfOutOfMemory(engine);
    if (engine.raw.Length() == before + static_cast<long>(bytes.size()) && !bytes.empty()) {
        const LRESULT behind = engine.raw.Send(Sci::SCI_GETCURRENTPOS);
        engine.raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(behind) - bytes.size());
        engine.raw.Send(Sci::SCI_SETSTYLINGEX, styles.size(), styles.data());
    }
    return 0;
}

// Writes the text between two places, at most so many units of it, and a terminator; gives the
// units without it. The caller's buffer holds these and no more; the converter is far faster where
// it has a unit for each byte.
long Read(const Engine& engine, BytePos from, BytePos to, long room, char16_t* buffer)
{
    std::array<char16_t, kChunk> scratch;
    long done = 0;
    for (long start = from.value; start < to.value && done < room;) {
        long stop = std::min(to.value, start + kChunk);
        if (stop < to.value)
            stop = CharacterStart(engine.raw, stop);
        const auto units = static_cast<long>(
            ToUtf16(engine.raw.Bytes(start, stop), scratch.data(), scratch.size()));
        const long taken = std::min(units, room - done);
        std::copy_n(scratch.data(), taken, buffer + done);
        done += taken;
        start = stop;
    }
    buffer[done] = u'\0';
    return done;
}

// Where reading begins: behind a character that the position cuts, so that no more units are
// written than the range has.
BytePos StartOfRange(const Engine& engine, UnitPos position)
{
    const BytePos byte = engine.text.ToBytes(position);
    if (engine.text.IsAscii() || engine.text.ToUnits(byte).value >= position.value)
        return byte;
    return {BehindCharacter(engine.raw, byte.value)};
}

long Read(const Engine& engine, UnitPos from, UnitPos to, char16_t* buffer)
{
    return Read(engine, StartOfRange(engine, from), engine.text.ToBytes(to), to.value - from.value,
                buffer);
}

LRESULT GetText(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    auto* buffer = reinterpret_cast<char16_t*>(lParam);
    if (!buffer)
        return engine.text.Length() + 1;
    const long room = static_cast<int>(wParam);
    if (room <= 0)
        return 0;
    return Read(engine, UnitPos{0}, UnitPos{room - 1}, buffer);
}

LRESULT GetLine(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const long line = static_cast<int>(wParam);
    if (line < 0 || line >= engine.raw.LineCount())
        return 0;
    auto* buffer = reinterpret_cast<char16_t*>(lParam);
    if (!buffer)
        return engine.text.LengthOfLine(line);
    const BytePos from = engine.text.StartInBytes(line);
    const BytePos to = engine.text.StartInBytes(line + 1);
    return Read(engine, from, to, to.value - from.value, buffer); // no more units than bytes
}

// Fills the buffer with at most length - 1 units of the caret's line; gives the caret's place in
// it.
LRESULT GetCurLine(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const long caret = engine.Units(static_cast<long>(engine.raw.Send(Sci::SCI_GETCURRENTPOS)));
    const long line = engine.text.LineOf({caret});
    const long start = engine.text.StartOfLine(line).value;
    const long end = engine.text.StartOfLine(line + 1).value;
    auto* buffer = reinterpret_cast<char16_t*>(lParam);
    if (!buffer)
        return end - start + 1;
    const long room = static_cast<int>(wParam);
    if (room > 0)
        Read(engine, UnitPos{start}, UnitPos{std::min(end, start + room - 1)}, buffer);
    return caret - start;
}

// What the stock engine makes of a rectangle or of several pieces; NULs are blanks in it.
std::u16string PiecesText(const Engine& engine)
{
    const auto size =
        static_cast<std::size_t>(std::max<LRESULT>(engine.raw.Send(Sci::SCI_GETSELTEXT), 1));
    std::string bytes(size, '\0'); // with its terminator
    engine.raw.Send(Sci::SCI_GETSELTEXT, 0, bytes.data());
    bytes.pop_back();
    return ToUtf16(bytes);
}

// Rectangles and selections of several pieces have more text than there is between the ends that
// the window tells. A caller who does not say his room, in units with the terminator, has room for
// that: of several pieces he gets the one with these ends. Asked without a buffer, the answer is
// what all of it takes.
LRESULT GetSelText(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    auto* buffer = reinterpret_cast<char16_t*>(lParam);
    const BytePos start = {static_cast<long>(engine.raw.Send(Sci::SCI_GETSELECTIONSTART))};
    const BytePos end = {static_cast<long>(engine.raw.Send(Sci::SCI_GETSELECTIONEND))};
    const long between = engine.Units(end.value) - engine.Units(start.value);
    const bool isRectangle = engine.raw.Send(Sci::SCI_SELECTIONISRECTANGLE) != 0;
    const bool hasPieces = isRectangle || engine.raw.Send(Sci::SCI_GETSELECTIONS) > 1;
    const long room = wParam > 0 ? static_cast<long>(wParam) - 1 : between;
    const bool isOnePiece = !hasPieces || (!isRectangle && buffer && wParam == 0);
    if (isOnePiece)
        return (buffer ? Read(engine, start, end, room, buffer) : between) + 1;
    std::u16string text = PiecesText(engine);
    if (!buffer)
        return static_cast<LRESULT>(text.size()) + 1;
    text.resize(std::min(text.size(), static_cast<std::size_t>(std::max(room, 0L))));
    std::copy_n(text.c_str(), text.size() + 1, buffer);
    return static_cast<LRESULT>(text.size()) + 1;
}

LRESULT GetTextRange(Engine& engine, WPARAM, LPARAM lParam)
{
    const auto* range = reinterpret_cast<const TextRange*>(lParam);
    if (!range || !range->lpstrText)
        return 0;
    const long length = engine.text.Length();
    const long start = std::clamp<long>(range->chrg.cpMin, 0, length);
    const long end = range->chrg.cpMax < 0 ? length : std::min<long>(range->chrg.cpMax, length);
    if (end <= start) {
        *range->lpstrText = u'\0';
        return 0;
    }
    return Read(engine, UnitPos{start}, UnitPos{end}, range->lpstrText);
}

int StyleAt(const Engine& engine, long byte)
{
    return engine.colouring->Alike().Plain(
        static_cast<int>(engine.raw.Send(Sci::SCI_GETSTYLEAT, static_cast<WPARAM>(byte))));
}

LRESULT GetStyleAt(Engine& engine, WPARAM wParam, LPARAM)
{
    return StyleAt(engine, engine.Bytes(static_cast<LPARAM>(wParam)));
}

// Writes the units of whole characters, each with its style behind it, as far as there is room, and
// gives the place behind the last. Bytes.
char16_t* ReadStyled(const Engine& engine, long start, long end, char16_t* out,
                     const char16_t* last)
{
    const auto count = static_cast<std::size_t>(end - start);
    std::array<char, 2 * kChunk + 2> cells; // a byte and its style each, and two terminators
    struct
    {
        long start, end;
        char* cells;
    } range{start, end, cells.data()};
    engine.raw.Send(Sci::SCI_GETSTYLEDTEXT, 0, &range);
    std::array<char, kChunk> bytes;
    for (std::size_t i = 0; i < count; ++i)
        bytes[i] = cells[2 * i];
    std::array<char16_t, kChunk> units;
    const std::size_t unitCount = ToUtf16({bytes.data(), count}, units.data(), units.size());
    const AlikeStyles& alike = engine.colouring->Alike();
    for (std::size_t i = 0, unit = 0; i < count; ++i) {
        if (IsContinuation(bytes[i]))
            continue;
        const auto style = static_cast<char16_t>(alike.Plain(cells[2 * i + 1]));
        for (long n = WidthOf(bytes[i]) > 3 ? 2 : 1; n > 0 && unit < unitCount; --n, ++unit) {
            if (out == last)
                return out;
            *out++ = units[unit];
            *out++ = style;
        }
    }
    return out;
}

LRESULT GetStyledText(Engine& engine, WPARAM, LPARAM lParam)
{
    const auto* range = reinterpret_cast<const TextRange*>(lParam);
    if (!range || !range->lpstrText)
        return 0;
    const long length = engine.text.Length();
    const long start = StartOfRange(engine, {range->chrg.cpMin}).value;
    const long end =
        engine.text.ToBytes({range->chrg.cpMax < 0 ? length : range->chrg.cpMax}).value;
    const char16_t* const last =
        range->lpstrText + 2 * ((range->chrg.cpMax < 0 ? length : range->chrg.cpMax) -
                                std::max(0L, long{range->chrg.cpMin}));
    char16_t* out = range->lpstrText;
    for (long byte = start; byte < end;) {
        const long next = byte + kChunk < end ? CharacterStart(engine.raw, byte + kChunk) : end;
        out = ReadStyled(engine, byte, next, out, last);
        byte = next;
    }
    out[0] = out[1] = u'\0';
    return out - range->lpstrText;
}

template <UINT Number>
LRESULT GetProperty(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text key(TerminatedText(reinterpret_cast<const char16_t*>(wParam)));
    const auto keyWord = reinterpret_cast<WPARAM>(key.Data());
    std::string value(static_cast<std::size_t>(engine.raw.Send(Number, keyWord)) + 1, '\0');
    engine.raw.Send(Number, keyWord, value.data());
    value.pop_back();
    const std::u16string text = ToUtf16(value);
    if (auto* buffer = reinterpret_cast<char16_t*>(lParam)) {
        std::copy(text.begin(), text.end(), buffer);
        buffer[text.size()] = u'\0';
    }
    return static_cast<LRESULT>(text.size());
}

// Gives the bytes without the terminator; a null buffer measures. The stock engine leaves this to
// its windows, and this one does not do it.
LRESULT TargetAsUtf8(Engine& engine, WPARAM, LPARAM lParam)
{
    const long length = engine.raw.Length(); // the target may lie behind a text that was cut
    const long start = std::clamp(engine.target.start, 0L, length);
    const long end = std::clamp(engine.target.end, 0L, length);
    const std::string_view bytes = engine.raw.Bytes(std::min(start, end), std::max(start, end));
    if (auto* buffer = reinterpret_cast<char*>(lParam)) {
        std::copy(bytes.begin(), bytes.end(), buffer);
        buffer[bytes.size()] = '\0';
    }
    return static_cast<LRESULT>(bytes.size());
}

LRESULT SetLengthForEncode(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.lengthForEncode = static_cast<int>(wParam);
    return 0;
}

// UTF-8 as the document holds it to the outside: UTF-16. Gives its units; a null buffer measures.
LRESULT EncodedFromUtf8(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* utf8 = reinterpret_cast<const char*>(wParam);
    if (!utf8)
        return 0;
    const std::u16string text =
        engine.lengthForEncode < 0
            ? ToUtf16(utf8)
            : ToUtf16({utf8, static_cast<std::size_t>(engine.lengthForEncode)});
    if (auto* buffer = reinterpret_cast<char16_t*>(lParam)) {
        std::copy(text.begin(), text.end(), buffer);
        buffer[text.size()] = u'\0';
    }
    return static_cast<LRESULT>(text.size());
}

constexpr HandlerRow kRows[] = {
    {message::AddTextNoProcess, EnterCounted<Sci::SCI_ADDTEXT>},
    {message::AppendText, EnterCounted<Sci::SCI_APPENDTEXT>},
    {message::CopyText, EnterCounted<Sci::SCI_COPYTEXT>},
    {message::SetText, EnterTerminated<Sci::SCI_SETTEXT>},
    {message::ReplaceSel, EnterTerminated<Sci::SCI_REPLACESEL>},
    {message::InsertText, InsertText},
    {message::ReplaceTargetNoProcess, ReplaceTarget},
    {message::AddStyledText, AddStyledText},
    {message::GetText, GetText},
    {message::GetLine, GetLine},
    {message::GetCurLine, GetCurLine},
    {message::GetSelText, GetSelText},
    {message::GetTextRange, GetTextRange},
    {message::GetStyleAt, GetStyleAt},
    {message::GetStyledText, GetStyledText},
    {message::GetProperty, GetProperty<Sci::SCI_GETPROPERTY>},
    {message::GetPropertyExpanded, GetProperty<Sci::SCI_GETPROPERTYEXPANDED>},
    {message::TargetAsUTF8, TargetAsUtf8},
    {message::SetLengthForEncode, SetLengthForEncode},
    {message::EncodedFromUTF8, EncodedFromUtf8},
};

} // namespace

std::span<const HandlerRow> TextHandlers()
{
    return kRows;
}

} // namespace engine
