#include "editing/FindDialogs.h"

namespace {

IFindDialogs* g_dialogs = nullptr;

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
