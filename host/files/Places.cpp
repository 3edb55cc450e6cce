// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Places.h"

#include "platform/system/SettingsFile.h"
#include "platform/system/SpecialFolders.h"

#include <QDir>

namespace places {

QString SettingsPath()
{
    return settingsfile::PathOf(QStringLiteral("znworkbench/settings.ini"));
}

QString DataPath(const QString& name)
{
    QString folder;
    if (!znutils::CSpecialFolders::GetAppAppDataPath(folder, true, nullptr))
        return QString();
    return folder + u'/' + name;
}

bool CanBeFile(const QString& path)
{
    constexpr qsizetype kLongest = 8192; // units; a system takes half of that
    return QDir::isAbsolutePath(path) && path.size() <= kLongest && !path.contains(QChar(0)) &&
           path.isValidUtf16();
}

} // namespace places
