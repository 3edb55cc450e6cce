// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The key table of an editor that stands alone, and of a view around one.
#pragma once

#include "common/Export.h"
#include "platform/windows/Accelerators.h"

ZN_API HACCEL EditorKeyTable(); ///< never null
