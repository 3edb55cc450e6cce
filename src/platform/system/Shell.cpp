// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Shell.h"

#include <QDesktopServices>

namespace {

IShell*& HostShell()
{
    static IShell* shell = nullptr;
    return shell;
}

} // namespace

IShell::~IShell() = default;

bool IShell::Open(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

void SetShell(IShell* shell)
{
    HostShell() = shell;
}

bool OpenInShell(const QUrl& url)
{
    static IShell desktop;
    return (HostShell() ? *HostShell() : desktop).Open(url);
}
