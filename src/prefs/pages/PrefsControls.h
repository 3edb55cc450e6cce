// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The numbers of the dialog of the preferences, of its pages and of their controls.
#pragma once

#include "platform/base/Types.h"

/// The number of each control of the preferences.
namespace prefscontrol {

// The dialog.

inline constexpr UINT Dialog = 28090;  ///< the dialog itself
inline constexpr UINT Tree = 28054;    ///< of the pages
inline constexpr UINT Caption = 28052; ///< over the page
inline constexpr UINT Frame = 28123;   ///< the pages are shown on it
inline constexpr UINT Apply = 28122;   ///< the button
inline constexpr UINT Help = 28055;    ///< the button

// The pages.

inline constexpr UINT EditorPage = 28091;  ///< "Editor"
inline constexpr UINT FontPage = 28092;    ///< "Font"
inline constexpr UINT ColorPage = 28093;   ///< "Color"
inline constexpr UINT CodingPage = 28094;  ///< "Code"
inline constexpr UINT KeywordPage = 28095; ///< "Keywords"
inline constexpr UINT MainPage = 28096;    ///< "Colors and Fonts"

// "Colors and Fonts".

inline constexpr UINT CaretColor = 28118;       ///< of all editors
inline constexpr UINT UseSelectionFore = 28113; ///< whether selected text has a colour of its own
inline constexpr UINT SelectionFore = 28109;    ///< that colour
inline constexpr UINT UseSelectionBack = 28114; ///< whether it has a ground of its own
inline constexpr UINT SelectionBack = 28110;    ///< that ground
inline constexpr UINT HighlightLine = 28051; ///< whether the caret's line has a ground of its own
inline constexpr UINT LineColor = 28111;     ///< that ground
inline constexpr UINT RightEdge = 28064;     ///< whether the edge is shown
inline constexpr UINT EdgeColor = 28112;     ///< its colour
inline constexpr UINT EdgeColumn = 28077;    ///< its column

// Editor.

inline constexpr UINT LineNumbers = 28078;      ///< whether they are shown
inline constexpr UINT BookmarkMargin = 28079;   ///< whether it is shown
inline constexpr UINT Outlining = 28080;        ///< whether the margin of folds is shown
inline constexpr UINT WordWrap = 28081;         ///< whether long lines are wrapped
inline constexpr UINT EndOfLine = 28082;        ///< whether line ends are drawn
inline constexpr UINT Whitespace = 28050;       ///< whether blanks are drawn
inline constexpr UINT TabIndents = 28058;       ///< whether Tab indents
inline constexpr UINT IndentSize = 28075;       ///< in columns
inline constexpr UINT IndentOff = 28053;        ///< with the next two a group
inline constexpr UINT IndentAsAbove = 28084;    ///< as the line above
inline constexpr UINT IndentByLanguage = 28083; ///< by braces
inline constexpr UINT IndentGuides = 28060;     ///< whether they are drawn
inline constexpr UINT TabSize = 28076;          ///< in columns
inline constexpr UINT TabsToSpaces = 28057;     ///< blanks in place of tabs

// Code.

inline constexpr UINT SyntaxHighlighting = 28085; ///< whether text is coloured
inline constexpr UINT BraceMatching = 28098;      ///< whether braces are lit
inline constexpr UINT AutoCompletion = 28087;     ///< whether the list opens while somebody types
inline constexpr UINT CodeCompletion = 28088;     ///< kept for the host
inline constexpr UINT CompleteByTab = 28089;      ///< with the next one a group
inline constexpr UINT CompleteBySpace = 28097;    ///< the key that chooses a row
inline constexpr UINT FinalNewLine = 28115;       ///< at a save the last line gets an end
inline constexpr UINT SaveTabsAsSpaces = 28116;   ///< at a save tabs become blanks
inline constexpr UINT SaveTrimmed = 28117;        ///< at a save blanks at line ends go

// Color, Font, Keywords.

inline constexpr UINT ColorStyles = 28061; ///< the list of styles
inline constexpr UINT Foreground = 28059;  ///< the text's colour
inline constexpr UINT Background = 28056;  ///< the ground
inline constexpr UINT Sample = 28062;      ///< text in that style
inline constexpr UINT ResetColors = 28063; ///< those that were delivered
inline constexpr UINT FontStyles = 28074;  ///< the list of styles
inline constexpr UINT FontName = 28067;    ///< the edit
inline constexpr UINT FontNames = 28065;   ///< the list
inline constexpr UINT FontSize = 28071;    ///< the edit
inline constexpr UINT FontSizes = 28066;   ///< the list
inline constexpr UINT Bold = 28068;        ///< whether the style is bold
inline constexpr UINT Italic = 28069;      ///< whether it is slanted
inline constexpr UINT Underline = 28070;   ///< whether it is underlined
inline constexpr UINT ToAllStyles = 28072; ///< the button
inline constexpr UINT KeywordSets = 28108; ///< the list of sets
inline constexpr UINT Keywords = 28107;    ///< the words of the set

} // namespace prefscontrol

/// To the dialog: a page has changes; no parameters.
inline constexpr UINT kPageChanged = 3024;
inline constexpr UINT kShowPage = 0x8064; ///< a page is to be shown; wParam: its place
