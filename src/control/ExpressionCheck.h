// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What is wrong with an expression to search for, as the engine tells it.
#pragma once

#include "platform/base/Types.h"

namespace engine {

/// What kExpressionProblem is asked with, and its answer.
struct ExpressionProblem
{
    const char16_t* text = nullptr; ///< the expression, up to its terminator
    int place = -1;                 ///< in it, in UTF-16 units, where it went wrong; -1: unknown
    char16_t reason[128] = {};      ///< in words, without a full stop
};

/// wParam: search flags, lParam: ExpressionProblem*. 1, and the record filled, if the text is no
/// expression under the flags; 0 if it is one, or none is asked for.
inline constexpr UINT kExpressionProblem = 4022;

} // namespace engine
