// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The folders that an application has for each user, and temporary files in them. The places come
/// from one service, by default the desktop's base directories.
/// Knows Qt Core alone. Folders are given without a separator at their end.
#pragma once

#include "common/Export.h"

#include <QString>

/// Where the folders are.
class ZN_API ISpecialFolders
{
public:
    virtual ~ISpecialFolders(); ///< to be taken back by SetSpecialFolders before

    /// Each is empty if there is none. Nothing is created here.
    virtual QString LocalAppData() const; ///< $XDG_DATA_HOME, or ~/.local/share
    virtual QString Config() const;       ///< $XDG_CONFIG_HOME, or ~/.config
    virtual QString AppData() const;      ///< the application's folder below LocalAppData
    virtual QString Temp() const;         ///< $TMPDIR, or /tmp
    /// The application's folder below Temp, told from those of other users by their number.
    virtual QString AppTemp() const;
    virtual QString AppName() const; ///< the name of QCoreApplication
};

/// The service takes effect at once and stays the caller's; null brings back the default.
ZN_API void SetSpecialFolders(const ISpecialFolders* folders);

/// The folder that settings of the library are kept in, below the user's for each kind: a name
/// without a separator. "Marrowfield", which all hosts share, unless a host sets its own: see
/// zncoreeditor::SetSettingsFolder.
ZN_API void SetSettingsFolderName(const QString& name);
ZN_API const QString& SettingsFolderName(); ///< the one in force

namespace znutils {

/// Folders that are created are for their user alone. A folder that is there stays as it is.
class ZN_API CSpecialFolders
{
public:
    /// Per user, for data of every application. Empty if it is unknown or, with create, cannot be
    /// made.
    static QString GetLocalAppDataPath(bool create);
    static QString GetConfigPath(); ///< the same for settings; it may not exist

    /// The application's folder for data, or the one of that name below it. False, and an empty
    /// path, if it is unknown or, with create, cannot be made.
    static bool GetAppAppDataPath(QString& path, bool create, const char16_t* below);

    /// The application's folder for temporary files. False, and an empty path, also for a folder
    /// that belongs to another user or that others may write to: in a shared place anybody can
    /// have made it first.
    static bool GetAppTempPath(QString& path, bool create);

    /// The path of an empty file, just created for its user alone, whose name begins with prefix.
    /// A null folder is that for temporary files, a null extension ".tmp". Empty if it cannot be
    /// made.
    static QString GetTempFile(const char16_t* prefix, const char16_t* folder,
                               const char16_t* extension);
    /// The same in the application's folder for temporary files.
    static QString GetAppTempFile(const char16_t* prefix, const char16_t* extension);

    /// The application's name as a person knows it, never empty and free of separators.
    static QString GetSimpleAppName();
};

} // namespace znutils
