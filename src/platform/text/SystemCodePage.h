// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Which code page stands for text that says nothing of its own.
#pragma once

#include "common/Export.h"

/// Services of text beneath the library.
namespace platform {

/// The code page that 0 means; windows-1252 unless a host or a user sets another.
/// Known to the host of the library; each program or library that links this room has its own.
ZN_API void SetSystemCodePage(int codePage);
ZN_API int GetSystemCodePage(); ///< never 0

} // namespace platform
