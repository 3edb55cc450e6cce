// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/Fences.h"

#include "engine/core/Engine.h"

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kStyles = 256;
constexpr long kFarthestColumn = 700 * 1000; // a click so far out is no place, and aborts
constexpr long kMostColumns = 10 * 1000;     // of one scroll
constexpr long kWidestMargin = 32 * 1024;    // pixels
constexpr long kWidestWrap = 1000;           // columns
constexpr long kLargestFont = 256;           // points
constexpr long kMostZoom = 100;              // points
constexpr long kMarkers = 32;
constexpr long kWidestIndentation = 64 * 1024; // columns; it is made of real characters

long Number(std::uintptr_t value)
{
    return static_cast<int>(value);
}

// The table of styles grows to any number that is set, and is read behind its end.
bool IsStyle(const Engine&, WPARAM& wParam, LPARAM&)
{
    const long style = Number(wParam);
    wParam = static_cast<WPARAM>(style);
    return style >= 0 && style < kStyles;
}

// The stock engine makes styles when they are set or asked for, not when they are measured with.
bool IsStyleMade(const Engine& engine, WPARAM& wParam, LPARAM& lParam)
{
    if (!IsStyle(engine, wParam, lParam))
        return false;
    engine.raw.Send(Sci::SCI_STYLEGETSIZE, wParam);
    return true;
}

bool IsStyleWithFont(const Engine& engine, WPARAM& wParam, LPARAM& lParam)
{
    return lParam && IsStyle(engine, wParam, lParam);
}

// The tables by line are read where they have no entry.
bool IsLine(const Engine& engine, WPARAM& wParam, LPARAM&)
{
    const long line = Number(wParam);
    return line >= 0 && line < engine.raw.LineCount();
}

// What is hidden or folded is asked by line, and the tables abort on a negative one.
bool IsNotBeforeText(const Engine&, WPARAM& wParam, LPARAM&)
{
    return Number(wParam) >= 0;
}

bool MakesNarrow(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::clamp(Number(wParam), 0L, kWidestIndentation));
    return true;
}

// Lines that go on are moved by so much, however narrow the window.
bool MakesWrapIndentation(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::clamp(Number(wParam), 0L, kWidestWrap));
    return true;
}

bool IsNarrowIndentation(const Engine& engine, WPARAM& wParam, LPARAM& lParam)
{
    lParam = std::clamp(Number(static_cast<WPARAM>(lParam)), 0L, kWidestIndentation);
    return IsLine(engine, wParam, lParam);
}

// A flag that is neither 0 nor 1 aborts.
bool MakesFlag(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = wParam != 0;
    return true;
}

bool IsCaretSticky(const Engine&, WPARAM& wParam, LPARAM&)
{
    return wParam <= Sci::SC_CARETSTICKY_WHITESPACE;
}

bool MakesPositive(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::max(Number(wParam), 1L));
    return true;
}

bool MakesNotNegative(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::max(Number(wParam), 0L));
    return true;
}

long FarthestRight(const Engine& engine)
{
    const LRESULT width = engine.raw.Send(Sci::SCI_TEXTWIDTH, Sci::STYLE_DEFAULT, " ");
    return kFarthestColumn * std::max(1L, static_cast<long>(width));
}

bool MakesNear(const Engine& engine, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::clamp(Number(wParam), 0L, FarthestRight(engine)));
    return true;
}

bool MakesShortScroll(const Engine& engine, WPARAM& wParam, LPARAM&)
{
    const bool isFar = engine.raw.Send(Sci::SCI_GETXOFFSET) > FarthestRight(engine);
    wParam =
        static_cast<WPARAM>(std::clamp(Number(wParam), -kMostColumns, isFar ? 0 : kMostColumns));
    return true;
}

// Words and selections end nowhere before the text.
bool MakesPosition(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::max(static_cast<LPARAM>(wParam), LPARAM{0}));
    return true;
}

// The stock engine leaves the rectangle to be one of long ago.
bool BeginsColumns(const Engine& engine, WPARAM&, LPARAM&)
{
    engine.columns.Begin();
    return engine.columns.HaveRoom();
}

bool MakesSelectionMode(const Engine& engine, WPARAM& wParam, LPARAM&)
{
    if (wParam != Sci::SC_SEL_RECTANGLE && wParam != Sci::SC_SEL_THIN)
        return true;
    engine.columns.Begin();
    return engine.columns.HaveRoom();
}

bool HasRoomForColumns(const Engine& engine, WPARAM&, LPARAM&)
{
    return engine.columns.HaveRoom();
}

// Of a rectangle the stock engine would cut the columns up to where its last line ends.
bool DissolvesColumns(const Engine& engine, WPARAM&, LPARAM&)
{
    engine.columns.Dissolve();
    return true;
}

// A size that is below none is a very large one.
bool MakesFontSize(const Engine& engine, WPARAM& wParam, LPARAM& lParam)
{
    lParam = std::clamp(Number(static_cast<WPARAM>(lParam)), 1L, kLargestFont);
    return IsStyle(engine, wParam, lParam);
}

bool MakesZoom(const Engine&, WPARAM& wParam, LPARAM&)
{
    wParam = static_cast<WPARAM>(std::clamp(Number(wParam), -kMostZoom, kMostZoom));
    return true;
}

// What stands beside the text moves it, further than a place can be counted.
bool MakesMargin(const Engine&, WPARAM&, LPARAM& lParam)
{
    lParam = std::clamp(Number(static_cast<WPARAM>(lParam)), 0L, kWidestMargin);
    return true;
}

// 32 bits of a line tell its markers: a number beyond shows as one of them, and never goes away.
// A line that is none has no marker added, and tells so.
bool IsMarker(const Engine&, WPARAM& wParam, LPARAM& lParam)
{
    if (lParam < 0 || lParam >= kMarkers)
        wParam = static_cast<WPARAM>(-1);
    return true;
}

// A list that is not shown has no rows to ask.
bool IsListShown(const Engine& engine, WPARAM&, LPARAM&)
{
    return engine.raw.Send(Sci::SCI_AUTOCACTIVE) != 0;
}

// Null is no text at all, where an empty one would mean something else.
bool HasWords(const Engine&, WPARAM&, LPARAM& lParam)
{
    StoredText::WordsMayChange();
    return lParam != 0;
}

bool MakesDefaultWords(const Engine&, WPARAM&, LPARAM&)
{
    StoredText::WordsMayChange();
    return true;
}

bool TakesMarkers(const Engine&, WPARAM&, LPARAM&)
{
    ChangeBars::MarksMayGo();
    return true;
}

constexpr FenceRow kRows[] = {
    {message::StyleSetFore, IsStyle},
    {message::StyleSetBack, IsStyle},
    {message::StyleSetBold, IsStyle},
    {message::StyleSetItalic, IsStyle},
    {message::StyleSetSize, MakesFontSize},
    {message::StyleSetFont, IsStyleWithFont},
    {message::StyleSetEOLFilled, IsStyle},
    {message::StyleSetUnderline, IsStyle},
    {message::StyleSetCase, IsStyle},
    {message::StyleSetCharacterSet, IsStyle},
    {message::StyleSetVisible, IsStyle},
    {message::StyleSetChangeable, IsStyle},
    {message::StyleSetHotSpot, IsStyle},
    {message::TextWidth, IsStyleMade},
    {message::SetLineState, IsLine},
    {message::GetLineState, IsLine},
    {message::WrapCount, IsLine},
    {message::SetLineIndentation, IsNarrowIndentation},
    {message::SetTabWidth, MakesNarrow},
    {message::SetIndent, MakesNarrow},
    {message::SetWrapStartIndent, MakesWrapIndentation},
    {message::VisibleFromDocLine, IsNotBeforeText},
    {message::GetLineVisible, IsNotBeforeText},
    {message::EnsureVisible, IsNotBeforeText},
    {message::EnsureVisibleEnforcePolicy, IsNotBeforeText},
    {message::ToggleFold, IsNotBeforeText},
    {message::GetFoldLevel, IsNotBeforeText},
    {message::SetFoldLevel, IsNotBeforeText},
    {message::GetFoldExpanded, IsNotBeforeText},
    {message::SetFoldExpanded, IsNotBeforeText},
    {message::TextHeight, IsNotBeforeText},
    {message::SetEndAtLastLine, MakesFlag},
    {message::SetCaretSticky, IsCaretSticky},
    {message::SetScrollWidth, MakesPositive},
    {message::SetXOffset, MakesNear},
    {message::LineScroll, MakesShortScroll},
    {message::SetZoom, MakesZoom},
    {message::SetMarginLeft, MakesMargin},
    {message::SetMarginRight, MakesMargin},
    {message::SetMarginWidthN, MakesMargin},
    {message::MarkerAdd, IsMarker},
    {message::MarkerDelete, TakesMarkers},
    {message::MarkerDeleteAll, TakesMarkers},
    {message::MarkerDeleteHandle, TakesMarkers},
    {message::LineCut, DissolvesColumns},
    {message::LineDownRectExtend, HasRoomForColumns},
    {message::LineUpRectExtend, HasRoomForColumns},
    {message::CharLeftRectExtend, HasRoomForColumns},
    {message::CharRightRectExtend, HasRoomForColumns},
    {message::HomeRectExtend, HasRoomForColumns},
    {message::VCHomeRectExtend, HasRoomForColumns},
    {message::LineEndRectExtend, HasRoomForColumns},
    {message::PageUpRectExtend, BeginsColumns},
    {message::PageDownRectExtend, BeginsColumns},
    {message::SetSelectionMode, MakesSelectionMode},
    {message::SetCaretPeriod, MakesNotNegative},
    {message::SetMouseDwellTime, MakesNotNegative},
    {message::Allocate, MakesNotNegative},
    {message::GotoPos, MakesPosition},
    {message::SetSelectionStart, MakesPosition},
    {message::SetSelectionEnd, MakesPosition},
    {message::WordStartPosition, MakesPosition},
    {message::WordEndPosition, MakesPosition},
    {message::AutoCComplete, IsListShown},
    {message::AutoCSelect, IsListShown},
    {message::SetWordChars, HasWords},
    {message::SetWhitespaceChars, HasWords},
    {message::SetCharsDefault, MakesDefaultWords},
};

} // namespace

std::span<const FenceRow> Fences()
{
    return kRows;
}

} // namespace engine
