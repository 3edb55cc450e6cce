// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CSelfOwnedWnd: an object that belongs to nobody and goes with its window, as views and frames
/// do.
#pragma once

#include "platform/windows/Wnd.h"

/// Made with new. When the window is destroyed, by DestroyWindow or by Qt, it is detached at once:
/// its handle reads as null and no message comes any more. The object and the widget are deleted
/// later, when no code of theirs can be running (Disposal).
class ZN_API CSelfOwnedWnd : public CWnd
{
public:
    ~CSelfOwnedWnd() override;

    void DestroyWindow() override;
    void PostNcDestroy() override; ///< an override calls this one
};
