// SPDX-License-Identifier: GPL-3.0-or-later
// When commands of the control are possible: the names that ControlCommands.def uses.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/windows/Window.h"

namespace controlrules {

using Control = CZNCoreEditorControlEx;

constexpr long kTooShort = 2; // units of a text in which there is nothing to look for

inline bool Always(Control& /*control*/)
{
    return true;
}

inline bool Enabled(Control& control)
{
    return IsWindowEnabled(control.GetSafeHwnd()) != 0;
}

inline bool Writable(Control& control)
{
    return !control.GetReadOnly(1);
}

inline bool CanCut(Control& control)
{
    return control.CanCut();
}

inline bool CanCopy(Control& control)
{
    return control.CanCopy();
}

inline bool CanPaste(Control& control)
{
    return control.CanPaste(1);
}

inline bool CanUndo(Control& control)
{
    return control.CanUndo(1);
}

inline bool CanRedo(Control& control)
{
    return control.CanRedo(1);
}

inline bool Bookmarked(Control& control)
{
    return control.HasBookmarks();
}

inline bool HasSomeText(Control& control)
{
    return control.GetTextLength(1) > kTooShort;
}

inline bool EnabledSomeText(Control& control)
{
    return Enabled(control) && HasSomeText(control);
}

inline bool CanRepeatFind(Control& control)
{
    return control.HasFindString() && HasSomeText(control);
}

inline bool AtBrace(Control& control)
{
    return EnabledSomeText(control) &&
           control.IsBrace(static_cast<char16_t>(control.GetCharAt(control.GetCurrentPos(1), 1)));
}

inline bool WritableAndCanPaste(Control& control)
{
    return Writable(control) && CanPaste(control);
}

inline bool WritableEnabled(Control& control)
{
    return Writable(control) && Enabled(control);
}

inline bool WritableEnabledSomeText(Control& control)
{
    return WritableEnabled(control) && HasSomeText(control);
}

inline bool WritableSelection(Control& control)
{
    return control.IsSelection() && Writable(control);
}

inline bool WritableSelectionEnabled(Control& control)
{
    return WritableSelection(control) && Enabled(control);
}

inline bool WritableText(Control& control)
{
    return control.GetTextLength(1) != 0 && Writable(control);
}

inline bool WritableSelectedText(Control& control)
{
    return WritableText(control) && control.IsSelection();
}

} // namespace controlrules
