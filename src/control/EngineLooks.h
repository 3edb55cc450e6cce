// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an engine draws by itself beside and over its text, in which colours: icons in the margins,
/// fold marks, bars at changed lines, highlights, marks on the scroll bar, a map of the text.
/// Nothing, until it is told.
#pragma once

#include "platform/base/Types.h"

#include <bitset>

namespace engine {

/// The colours, 0x00BBGGRR.
struct Looks
{
    COLORREF margin = 0;                ///< the ground of the margins
    COLORREF fold = 0;                  ///< fold marks
    COLORREF foldHot = 0;               ///< with the mouse over the margin
    COLORREF foldedLine = 0;            ///< the line drawn where text is folded
    COLORREF currentNumber = 0;         ///< of the line that the caret is in
    COLORREF bookmark = 0;              ///< the flag of a bookmark
    COLORREF error = 0;                 ///< the icon and the squiggle of an error
    COLORREF warning = 0;               ///< the icon and the squiggle of a warning
    COLORREF lineChanged = 0;           ///< the bar of a line that differs from the file
    COLORREF lineSaved = 0;             ///< the bar of a line that was changed and saved since
    COLORREF occurrence = 0;            ///< the ground of the caret's word elsewhere
    COLORREF match = 0;                 ///< the ground of what kShowMatches finds
    COLORREF statement = 0;             ///< of the script, at the caret
    COLORREF whitespace = 0;            ///< drawn blanks and tabs
    COLORREF selection = 0;             ///< the ground of the selection
    COLORREF selectionWithoutFocus = 0; ///< the same while the focus is elsewhere
    /// Styles, by number, of words that are nobody's names: one at the caret is not lit elsewhere.
    std::bitset<128> quiet;
};

/// Messages of these, outside the table.
inline constexpr UINT kSetLooks = 4020;    ///< lParam: const Looks*, copied; null: nothing more
inline constexpr UINT kShowMatches = 4021; ///< wParam: search flags, lParam: UTF-16, null: none
inline constexpr UINT kShowMatchesWithin = 4030; ///< wParam, lParam: from and to, UTF-16 units that
                                                 ///< follow the text; from < 0: everywhere
inline constexpr UINT kMatchesFrom = 4031;       ///< where that starts by now, -1: everywhere
inline constexpr UINT kMatchesTo = 4032;         ///< where it ends by now, -1: everywhere
inline constexpr UINT kNextFolded = 4023; ///< wParam: line; the next folded from it on, -1: none
inline constexpr UINT kShowDocumentMap = 4027;    ///< wParam: whether there is one beside the text
inline constexpr UINT kIsDocumentMapShown = 4028; ///< 1 if there is one

/// The markers that stand for what is drawn: their own symbols are to be empty then.
namespace lookmarker {
inline constexpr int kBookmark = 0;     ///< a bookmark
inline constexpr int kError = 2;        ///< an error
inline constexpr int kWarning = 9;      ///< a warning
inline constexpr int kLineChanged = 21; ///< a line that differs from the file
inline constexpr int kLineSaved = 22;   ///< a line that was changed and saved since
} // namespace lookmarker

} // namespace engine
