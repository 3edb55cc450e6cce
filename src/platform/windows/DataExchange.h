// SPDX-License-Identifier: GPL-3.0-or-later
// What passes between a dialog's controls and its values.
#pragma once

#include "platform/base/Types.h"

struct CDataExchange
{
    bool m_bSaveAndValidate = false; // true: from the controls into the values
    HWND m_dialog = nullptr;
    UINT m_failed = 0; // the first control whose contents are no value; 0: none

    void Fail(UINT id)
    {
        if (m_failed == 0)
            m_failed = id;
    }
};
