// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The two context menus of an editor.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <memory>

class QMenu;

/// For an editor that is written in, or one that is only read. Each item is a command to the owner,
/// whose child the menu is; all are possible until somebody brings them up to date.
ZN_API std::unique_ptr<QMenu> MakeContextMenu(bool isWritable, HWND owner);
