// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/SelfOwnedWnd.h"

#include "platform/windows/Disposal.h"

CSelfOwnedWnd::~CSelfOwnedWnd()
{
    Disposal::Forget(this);
}

void CSelfOwnedWnd::DestroyWindow()
{
    if (!GetSafeHwnd())
        return;
    const FrameworkCall call;
    SendMessage(GetSafeHwnd(), WM_DESTROY, 0, 0);
    const HWND window = Detach(); // null if the handler did it all
    if (!window)
        return;
    window->hide();
    Disposal::Later(this, window);
    PostNcDestroy();
}

void CSelfOwnedWnd::PostNcDestroy()
{
    Disposal::Later(this, nullptr);
}
