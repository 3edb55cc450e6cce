// SPDX-License-Identifier: GPL-3.0-or-later
// What an engine draws by itself beside and over its text, in which colours: icons in the margins,
// fold marks, bars at changed lines, highlights, marks on the scroll bar. Nothing, until it is
// told.
#pragma once

#include "platform/base/Types.h"

namespace engine {

struct Looks
{
    COLORREF margin = 0;
    COLORREF fold = 0;
    COLORREF foldHot = 0; // with the mouse over the margin
    COLORREF foldedLine = 0;
    COLORREF currentNumber = 0; // of the line that the caret is in
    COLORREF bookmark = 0;
    COLORREF error = 0;
    COLORREF warning = 0;
    COLORREF lineChanged = 0;
    COLORREF lineSaved = 0;
    COLORREF occurrence = 0;
    COLORREF match = 0;
    COLORREF statement = 0; // of the script, at the caret
    COLORREF whitespace = 0;
    COLORREF selection = 0;
    COLORREF selectionWithoutFocus = 0;
};

// Messages of these, outside the table.
inline constexpr UINT kSetLooks = 4020;    // lParam: const Looks*, copied; null: nothing more
inline constexpr UINT kShowMatches = 4021; // wParam: search flags, lParam: UTF-16, null: none
inline constexpr UINT kNextFolded = 4023;  // wParam: line; the next folded from it on, -1: none

// The markers that stand for what is drawn: their own symbols are to be empty then.
namespace lookmarker {
inline constexpr int kBookmark = 0;
inline constexpr int kError = 2;
inline constexpr int kWarning = 9;
inline constexpr int kLineChanged = 21;
inline constexpr int kLineSaved = 22;
} // namespace lookmarker

} // namespace engine
