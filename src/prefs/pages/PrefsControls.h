// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the dialog of the preferences, of its pages and of their controls.
#pragma once

#include "platform/base/Types.h"

namespace prefscontrol {

// The dialog.
inline constexpr UINT Dialog = 28090;
inline constexpr UINT Tree = 28054;
inline constexpr UINT Caption = 28052;
inline constexpr UINT Frame = 28123; // the pages are shown on it
inline constexpr UINT Apply = 28122;
inline constexpr UINT Help = 28055;

// The pages.
inline constexpr UINT EditorPage = 28091;
inline constexpr UINT FontPage = 28092;
inline constexpr UINT ColorPage = 28093;
inline constexpr UINT CodingPage = 28094;
inline constexpr UINT KeywordPage = 28095;
inline constexpr UINT MainPage = 28096;

// "Colors and Fonts".
inline constexpr UINT CaretColor = 28118;
inline constexpr UINT UseSelectionFore = 28113;
inline constexpr UINT SelectionFore = 28109;
inline constexpr UINT UseSelectionBack = 28114;
inline constexpr UINT SelectionBack = 28110;
inline constexpr UINT HighlightLine = 28051;
inline constexpr UINT LineColor = 28111;
inline constexpr UINT RightEdge = 28064;
inline constexpr UINT EdgeColor = 28112;
inline constexpr UINT EdgeColumn = 28077;

// Editor.
inline constexpr UINT LineNumbers = 28078;
inline constexpr UINT BookmarkMargin = 28079;
inline constexpr UINT Outlining = 28080;
inline constexpr UINT WordWrap = 28081;
inline constexpr UINT EndOfLine = 28082;
inline constexpr UINT Whitespace = 28050;
inline constexpr UINT TabIndents = 28058;
inline constexpr UINT IndentSize = 28075;
inline constexpr UINT IndentOff = 28053; // with the next two a group
inline constexpr UINT IndentAsAbove = 28084;
inline constexpr UINT IndentByLanguage = 28083;
inline constexpr UINT IndentGuides = 28060;
inline constexpr UINT TabSize = 28076;
inline constexpr UINT TabsToSpaces = 28057;

// Code.
inline constexpr UINT SyntaxHighlighting = 28085;
inline constexpr UINT BraceMatching = 28098;
inline constexpr UINT AutoCompletion = 28087;
inline constexpr UINT CodeCompletion = 28088;
inline constexpr UINT CompleteByTab = 28089; // with the next one a group
inline constexpr UINT CompleteBySpace = 28097;
inline constexpr UINT FinalNewLine = 28115;
inline constexpr UINT SaveTabsAsSpaces = 28116;
inline constexpr UINT SaveTrimmed = 28117;

// Color, Font, Keywords.
inline constexpr UINT ColorStyles = 28061;
inline constexpr UINT Foreground = 28059;
inline constexpr UINT Background = 28056;
inline constexpr UINT Sample = 28062;
inline constexpr UINT ResetColors = 28063;
inline constexpr UINT FontStyles = 28074;
inline constexpr UINT FontName = 28067;
inline constexpr UINT FontNames = 28065;
inline constexpr UINT FontSize = 28071;
inline constexpr UINT FontSizes = 28066;
inline constexpr UINT Bold = 28068;
inline constexpr UINT Italic = 28069;
inline constexpr UINT Underline = 28070;
inline constexpr UINT ToAllStyles = 28072;
inline constexpr UINT KeywordSets = 28108;
inline constexpr UINT Keywords = 28107;

} // namespace prefscontrol

// To the dialog: a page has changes (no parameters); a page is to be shown (wParam: its place).
inline constexpr UINT kPageChanged = 3024;
inline constexpr UINT kShowPage = 0x8064;
