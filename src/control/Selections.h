// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Several selections at once, and columns over lines. Messages outside the table; positions count
/// UTF-16 units, and one outside of the text is taken for the nearest inside.
#pragma once

#include "platform/base/Types.h"

namespace engine {

/// One selection. Without a length it is a caret alone.
struct SelectionEnds
{
    int anchor = 0; ///< the end that stays when the caret moves
    int caret = 0;  ///< the end that moves
    /// Whether both ends are the same.
    bool operator==(const SelectionEnds&) const = default;
};

/// The two corners of columns. One may stand behind the end of its line.
struct ColumnCorners
{
    SelectionEnds ends;   ///< as places in the text
    int anchorBlanks = 0; ///< columns behind the line's end; 10,000 at most
    int caretBlanks = 0;  ///< the same of the caret
};

/// Tells the selections, that of the main caret last. wParam: how many there is room for; lParam:
/// SelectionEnds*, null: none. Answers how many there are; columns have one for each line.
inline constexpr UINT kGetSelections = 4024;

/// Makes them. wParam: how many, lParam: const SelectionEnds*; the last has the main caret. Nothing
/// happens if there are none.
inline constexpr UINT kSetSelections = 4025;

/// Selects columns. lParam: const ColumnCorners*. All text between the two ends is selected where
/// a line is too long for columns.
inline constexpr UINT kSetColumns = 4026;

/// Tells the columns. lParam: ColumnCorners*. Answers 1, and 0 if there are none.
inline constexpr UINT kGetColumns = 4029;

} // namespace engine
