// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The editors of the process, and settings on their way to them.
#pragma once

#include "common/Export.h"

#include <vector>

class CZNCoreEditorControlEx;

ZN_API std::vector<CZNCoreEditorControlEx*> OpenEditors(); ///< those with a window

/// Each editor once more, after the settings in memory were read anew.
ZN_API void ReloadOpenEditors();

/// Binds each editor again whose language is among these, or all of them.
ZN_API void RebindOpenEditors(const std::vector<int>& languages, bool all);
