// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The application profile: texts by section and entry that outlive the process. By default a file
/// of the user's for the application, written whole. Sections and entries may hold any character
/// and differ by case; two applications that write at the same time lose nothing of each other's.
#pragma once

#include "common/Export.h"

#include <QString>

/// Where the profile is kept.
class ZN_API IApplicationProfile
{
public:
    virtual ~IApplicationProfile(); ///< to be taken back by SetApplicationProfile before

    /// The fallback if there is no such entry.
    virtual QString GetString(const QString& section, const QString& entry,
                              const QString& fallback) = 0;
    /// Null removes the entry. False if the profile could not be written.
    virtual bool WriteString(const QString& section, const QString& entry,
                             const char16_t* value) = 0;
};

/// The profile takes effect at once and stays the caller's; null brings back the default.
ZN_API void SetApplicationProfile(IApplicationProfile* profile);
ZN_API IApplicationProfile& ApplicationProfile(); ///< the one in force
