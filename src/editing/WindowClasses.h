// SPDX-License-Identifier: GPL-3.0-or-later
// What kind of window an editor stands in.
#pragma once

#include "platform/windows/Wnd.h"

#include <QDialog>

#include <string_view>

// By its name, since the classes above stand in rooms that this one does not know.
inline bool IsOfClass(const CWnd* window, std::string_view name)
{
    const CRuntimeClass* at = window ? window->GetRuntimeClass() : nullptr;
    while (at && at->name != name)
        at = at->base;
    return at != nullptr;
}

inline bool IsDialog(HWND window)
{
    return IsOfClass(AttachedWnd(window), "CDialog") || qobject_cast<QDialog*>(window);
}
