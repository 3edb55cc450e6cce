// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/FindDialogs.h"

namespace {

IFindDialogs* g_dialogs = nullptr;
GotoDialog g_gotoDialog = nullptr;

} // namespace

IFindDialogs::~IFindDialogs() = default;

IFindDialogs* GetFindDialogs()
{
    return g_dialogs;
}

void SetFindDialogs(IFindDialogs* dialogs)
{
    g_dialogs = dialogs;
}

GotoDialog GetGotoDialog()
{
    return g_gotoDialog;
}

void SetGotoDialog(GotoDialog dialog)
{
    g_gotoDialog = dialog;
}
