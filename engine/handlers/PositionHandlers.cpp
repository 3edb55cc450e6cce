// SPDX-License-Identifier: GPL-3.0-or-later
// Messages about places in the text that need more than a position translated.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"
#include "engine/text/Characters.h"

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

LRESULT GetLength(Engine& engine, WPARAM, LPARAM)
{
    return engine.text.Length();
}

// The unit at a position, 0 outside the text.
LRESULT GetCharAt(Engine& engine, WPARAM wParam, LPARAM)
{
    const auto unit = static_cast<long>(wParam);
    if (unit < 0 || unit >= engine.text.Length())
        return 0;
    const long byte = engine.text.ToBytes({unit}).value;
    const auto lead =
        static_cast<unsigned char>(engine.raw.Send(Sci::SCI_GETCHARAT, static_cast<WPARAM>(byte)));
    if (lead < 0x80)
        return lead;
    const std::u16string character =
        ToUtf16(engine.raw.Bytes(byte, BehindCharacter(engine.raw, byte)));
    const long offset = unit - engine.text.ToUnits({byte}).value;
    return character[static_cast<std::size_t>(
        std::min<long>(offset, static_cast<long>(character.size()) - 1))];
}

LRESULT LineFromPosition(Engine& engine, WPARAM wParam, LPARAM)
{
    return engine.text.LineOf({static_cast<long>(wParam)});
}

// Of the line behind the last one: the text's end. Of a line further on: -1.
LRESULT PositionFromLine(Engine& engine, WPARAM wParam, LPARAM)
{
    const long line = static_cast<int>(wParam);
    if (line < 0) // the stock engine takes the line of the selection's start
        return engine.text
            .StartOfLine(engine.text.LineOf(
                {engine.Units(static_cast<long>(engine.raw.Send(Sci::SCI_GETSELECTIONSTART)))}))
            .value;
    return line > engine.raw.LineCount() ? -1 : engine.text.StartOfLine(line).value;
}

// Units of the line, its line end included; 0 for a line that is not there.
LRESULT LineLength(Engine& engine, WPARAM wParam, LPARAM)
{
    const long line = static_cast<int>(wParam);
    if (line < 0 || line >= engine.raw.LineCount())
        return 0;
    return engine.text.LengthOfLine(line);
}

// Where styles go on: at the start of a character that they ended inside of.
long StylingStart(const Engine& engine)
{
    const auto end = static_cast<long>(engine.raw.Send(Sci::SCI_GETENDSTYLED));
    const long start = CharacterStart(engine.raw, end);
    if (start != end)
        engine.raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(start));
    return start;
}

LRESULT SetStyling(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const long from = StylingStart(engine);
    const long length = std::max(0L, static_cast<long>(static_cast<int>(wParam)));
    const long to = std::max(from, engine.Bytes(engine.Units(from) + length));
    return engine.raw.Send(Sci::SCI_SETSTYLING, static_cast<WPARAM>(to - from), lParam);
}

// One style for each unit becomes one for each byte.
LRESULT SetStylingEx(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* styles = reinterpret_cast<const char*>(lParam);
    const long from = StylingStart(engine);
    const long start = engine.Units(from);
    const long length = std::min<long>(static_cast<int>(wParam), engine.text.Length() - start);
    if (!styles || length <= 0)
        return 0;
    const long to = engine.Bytes(start + length);
    if (to <= from) // the styles end inside of a character
        return 0;
    std::string expanded;
    expanded.reserve(static_cast<std::size_t>(to - from));
    long unit = -1;
    for (const char byte : engine.raw.Bytes(from, to)) {
        unit += (byte & 0xC0) != 0x80;
        unit += (byte & 0xF8) == 0xF0; // the style of a pair is that of its second half
        expanded.push_back(styles[std::min(unit, length - 1)]);
    }
    return engine.raw.Send(Sci::SCI_SETSTYLINGEX, expanded.size(), expanded.data());
}

// Offsets into the tip's text.
LRESULT CallTipSetHlt(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const std::u16string tip = ToUtf16(engine.callTip);
    const auto toBytes = [&tip](long unit) {
        const auto end =
            static_cast<std::size_t>(std::clamp(unit, 0L, static_cast<long>(tip.size())));
        return Utf8Text(std::u16string_view(tip).substr(0, end)).Size();
    };
    return engine.raw.Send(Sci::SCI_CALLTIPSETHLT, toBytes(static_cast<long>(wParam)),
                           static_cast<LPARAM>(toBytes(static_cast<long>(lParam))));
}

LRESULT CallTipShow(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text tip(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    engine.callTip = tip.View();
    return engine.raw.Send(Sci::SCI_CALLTIPSHOW,
                           static_cast<WPARAM>(engine.Bytes(static_cast<LPARAM>(wParam))),
                           tip.Data());
}

// A line of this many bytes takes long to lay out, and far longer before it is styled: the widths
// of short pieces are cached.
constexpr long kLongLine = 256 * 1024;

void ShowLine(Engine& engine, long line)
{
    const auto first = static_cast<long>(engine.raw.Send(Sci::SCI_GETFIRSTVISIBLELINE));
    const auto onScreen = static_cast<long>(engine.raw.Send(Sci::SCI_LINESONSCREEN));
    const auto display =
        static_cast<long>(engine.raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, static_cast<WPARAM>(line)));
    if (display < first || display >= first + onScreen)
        engine.raw.Send(Sci::SCI_SETFIRSTVISIBLELINE, static_cast<WPARAM>(display));
    engine.raw.Send(Sci::SCI_SETXOFFSET, 0);
}

// The stock engine lays the caret's line out to bring the caret into view. At a line's start there
// is nothing to measure, so a load does not wait for a line of 50 MB.
LRESULT SetSel(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const long caret = engine.Bytes(lParam);
    const long anchor = engine.Bytes(static_cast<LPARAM>(wParam));
    if (caret >= 0) {
        const auto line = static_cast<long>(
            engine.raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(caret)));
        const long start = engine.text.StartInBytes(line).value;
        if (caret == start && engine.text.StartInBytes(line + 1).value - start > kLongLine) {
            engine.raw.Send(Sci::SCI_SETSELECTION, static_cast<WPARAM>(caret),
                            anchor < 0 ? caret : anchor);
            ShowLine(engine, line);
            return 0;
        }
    }
    return engine.raw.Send(Sci::SCI_SETSEL, static_cast<WPARAM>(anchor), caret);
}

// One range of characters, as most selections are.
bool IsPlainSelection(const Engine& engine)
{
    return engine.raw.Send(Sci::SCI_GETSELECTIONS) == 1 &&
           engine.raw.Send(Sci::SCI_GETSELECTIONMODE) == Sci::SC_SEL_STREAM;
}

long PlaceOf(const Engine& engine, WPARAM position)
{
    return std::clamp(engine.Bytes(std::max(static_cast<LPARAM>(position), LPARAM{0})), 0L,
                      engine.raw.Length());
}

LRESULT SetAnchor(Engine& engine, WPARAM wParam, LPARAM)
{
    const long anchor = PlaceOf(engine, wParam);
    if (engine.bulkChange && IsPlainSelection(engine))
        engine.SelectQuietly(anchor, static_cast<long>(engine.raw.Send(Sci::SCI_GETCURRENTPOS)));
    else
        engine.raw.Send(Sci::SCI_SETANCHOR, static_cast<WPARAM>(anchor));
    return 0;
}

LRESULT SetCurrentPos(Engine& engine, WPARAM wParam, LPARAM)
{
    const long caret = PlaceOf(engine, wParam);
    if (engine.bulkChange && IsPlainSelection(engine))
        engine.SelectQuietly(static_cast<long>(engine.raw.Send(Sci::SCI_GETANCHOR)), caret);
    else
        engine.raw.Send(Sci::SCI_SETCURRENTPOS, static_cast<WPARAM>(caret));
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::SetSel, SetSel},
    {message::SetAnchor, SetAnchor},
    {message::SetCurrentPos, SetCurrentPos},
    {message::GetLength, GetLength},
    {message::GetTextLength, GetLength},
    {message::GetCharAt, GetCharAt},
    {message::LineFromPosition, LineFromPosition},
    {message::PositionFromLine, PositionFromLine},
    {message::LineLength, LineLength},
    {message::SetStyling, SetStyling},
    {message::SetStylingEx, SetStylingEx},
    {message::CallTipSetHlt, CallTipSetHlt},
    {message::CallTipShow, CallTipShow},
};

} // namespace

std::span<const HandlerRow> PositionHandlers()
{
    return kRows;
}

} // namespace engine
