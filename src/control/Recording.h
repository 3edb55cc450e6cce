// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// A message of the engine beside the table: commands of a host in a macro.
#pragma once

#include "platform/base/Types.h"

namespace engine {

/// Around a command that is no message of the engine: wParam is its number in front of it, and 0
/// behind it. A window that records a macro tells the number as MacroRecord, and nothing of what
/// the command itself sends. Answers 1 if it does, and 0 if it records nothing: there is nothing to
/// send behind the command then.
inline constexpr UINT kRecordCommand = 4033;

} // namespace engine
