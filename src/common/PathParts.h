// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CPathParts: a path in four parts. Either kind of separator parts them; of a UNC path,
/// `\\server\share`, all in front of the fourth separator is the drive.
#pragma once

#include "common/Export.h"

#include <QString>

/// A path in four parts.
class ZN_API CPathParts
{
public:
    CPathParts() = default; ///< no parts
    /// A path of which a part is longer than it may be has no parts at all.
    explicit CPathParts(const QString& path);

    void SetNameExt(const QString& path); ///< takes name and extension of the path, and no folder
    /// The parts put together again.
    QString GetPath() const { return drive + folder + name + extension; }

    /// By its first two characters: a separator first, or a colon behind a drive's letter.
    static bool IsAbsolute(const QString& path);

    QString drive;     ///< with its colon
    QString folder;    ///< with a separator at its end
    QString name;      ///< without its extension
    QString extension; ///< with its dot
};
