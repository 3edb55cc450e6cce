// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The dialog of the preferences as hosts meet it: it opens by
/// zncoreeditor::OnConfigurePreferences.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>
#include <QStringList>

/// What a host adds to the dialog. Without one the dialog is silent about what it writes.
class ZN_API IPreferencesHost
{
public:
    virtual ~IPreferencesHost(); ///< to be taken away by SetPreferencesHost before

    /// Settings were written, and the open editors have them.
    virtual void OnApplied() {}
    /// These files could not be written; what they lack is still in memory. True keeps the dialog
    /// open, since memory is read anew from the files once it has closed.
    virtual bool OnNotWritten(HWND /*owner*/, const QStringList& /*files*/) { return false; }
    /// The colours of the scheme were written into the settings of all languages.
    virtual void OnSchemeWritten(const QString& /*name*/) {}
    /// The scheme that paints over the settings, by its name; empty for none.
    virtual QString Scheme() { return QString(); }
    virtual bool HasHelp() { return false; } ///< whether the dialog has a button for it
    virtual void OnHelp(HWND /*owner*/) {}   ///< that button was clicked
};

namespace zncoreeditor {

/// Stays the caller's; null takes it away.
ZN_API void SetPreferencesHost(IPreferencesHost* host);
ZN_API IPreferencesHost* GetPreferencesHost(); ///< null if there is none

} // namespace zncoreeditor
