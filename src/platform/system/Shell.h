// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's way to open things: files by their program, mails by the mail program.
#pragma once

#include "common/Export.h"

#include <QUrl>

class ZN_API IShell
{
public:
    virtual ~IShell();

    // False if nothing is there to open it. QDesktopServices stands behind the default.
    virtual bool Open(const QUrl& url);
};

// Takes effect at once and stays the caller's; null brings back the desktop's.
ZN_API void SetShell(IShell* shell);
ZN_API bool OpenInShell(const QUrl& url);
