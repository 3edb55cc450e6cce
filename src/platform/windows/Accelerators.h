// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Key tables: keys that become commands before a window sees them.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <span>

inline constexpr UINT WM_KEYFIRST = 0x0100; ///< the first message of keys
/// A key; wParam: Qt::Key, lParam: Qt::KeyboardModifiers.
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_CHAR = 0x0102;    ///< a unit that a key gives
inline constexpr UINT WM_KEYLAST = 0x0109; ///< the last message of keys
inline constexpr UINT WM_COMMAND = 0x0111; ///< wParam: the command, 0x10000 more if by a key

/// A message on its way to a window. For WM_KEYDOWN wParam is a Qt::Key and lParam the
/// Qt::KeyboardModifiers. WM_CHAR follows for each UTF-16 unit that the key gives, unless the key
/// was taken: wParam is the unit, lParam a repeat count in the low 16 bits and flags above.
struct MSG
{
    HWND hwnd = nullptr; ///< where it is to go
    UINT message = 0;    ///< its number
    WPARAM wParam = 0;   ///< the key, or the unit
    LPARAM lParam = 0;   ///< the modifiers, or the repeat count
};

/// A key and the command that it means.
struct Accelerator
{
    int key = 0;       ///< Qt::Key
    int modifiers = 0; ///< Qt::KeyboardModifiers, exactly these
    UINT command = 0;  ///< what WM_COMMAND is sent with
};

using AcceleratorTable = std::span<const Accelerator>; ///< keys, whose first entry wins
using HACCEL = const AcceleratorTable*;                ///< null: none

/// Sends WM_COMMAND to the window if the message is a key of the table. 1 if it was, whatever
/// became of the command; else 0. The first entry of a key wins.
ZN_API int TranslateAccelerator(HWND window, HACCEL table, const MSG& message);
