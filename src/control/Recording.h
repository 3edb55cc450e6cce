// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Messages of the engine beside the table: commands and keys of a host, as macros and undo have
/// them.
#pragma once

#include "platform/base/Types.h"

namespace engine {

/// Around a command that is no message of the engine: wParam is its number in front of it, and 0
/// behind it. A window that records a macro tells the number as MacroRecord, and nothing of what
/// the command itself sends. Answers 1 if it does, and 0 if it records nothing: there is nothing to
/// send behind the command then.
inline constexpr UINT kRecordCommand = 4033;

/// Types at every caret and in each line of columns, as keys do, and tells of no character that was
/// typed: what a macro plays. lParam: const char16_t*, UTF-16 up to its terminator. Answers 1, and
/// 0 where there is one place alone: nothing is done then.
inline constexpr UINT kTypeAtEach = 4034;

/// Around a key that begins a line, where the host does more about it than the engine: wParam 1 in
/// front of it, 0 behind it. With looks what is typed behind the line is of the same step of undo.
inline constexpr UINT kLineKey = 4035;

} // namespace engine
