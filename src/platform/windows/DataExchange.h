// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What passes between a dialog's controls and its values.
#pragma once

#include "platform/base/Types.h"

/// One exchange, in one direction.
struct CDataExchange
{
    bool m_bSaveAndValidate = false; ///< true: from the controls into the values
    HWND m_dialog = nullptr;         ///< whose controls they are
    UINT m_failed = 0;               ///< the first control whose contents are no value; 0: none

    /// The first one that fails is kept.
    void Fail(UINT id)
    {
        if (m_failed == 0)
            m_failed = id;
    }
};
