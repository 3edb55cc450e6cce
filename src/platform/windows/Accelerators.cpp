// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Accelerators.h"

#include "platform/windows/Window.h"

int TranslateAccelerator(HWND window, HACCEL table, const MSG& message)
{
    constexpr WPARAM kByKey = 0x10000;
    if (!table || message.message != WM_KEYDOWN)
        return 0;
    for (const Accelerator& entry : *table) {
        if (static_cast<WPARAM>(entry.key) != message.wParam ||
            static_cast<LPARAM>(entry.modifiers) != message.lParam)
            continue;
        SendMessage(window, WM_COMMAND, entry.command | kByKey, 0);
        return 1;
    }
    return 0;
}
