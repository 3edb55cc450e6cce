// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// StyleRoles: which role each style of a language has, read from Roles.xml, which tells the rules.
#pragma once

#include "common/Export.h"

#include <QHash>
#include <QString>

/// Which role each style of a language has, read from Roles.xml, which tells the rules.
class ZN_API StyleRoles
{
public:
    StyleRoles() = default;                   ///< no style has a role
    explicit StyleRoles(const QString& path); ///< of a file; none if it cannot be read

    /// Language: its file's name without the folder. Empty for a style that has no role.
    QString RoleOf(const QString& language, const QString& style) const;

private:
    QHash<QString, QString> m_roles; // by the style's name, with the language in front or without
};
