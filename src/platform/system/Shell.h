// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The desktop's way to open things: files by their program, mails by the mail program.
#pragma once

#include "common/Export.h"

#include <QUrl>

/// Who opens things.
class ZN_API IShell
{
public:
    virtual ~IShell(); ///< to be taken back by SetShell before

    /// False if nothing is there to open it. QDesktopServices stands behind the default.
    virtual bool Open(const QUrl& url);
};

/// Takes effect at once and stays the caller's; null brings back the desktop's.
ZN_API void SetShell(IShell* shell);
/// By the one in force; false if nothing is there to open it.
ZN_API bool OpenInShell(const QUrl& url);
