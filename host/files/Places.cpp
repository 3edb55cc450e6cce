// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Places.h"

#include "platform/system/SpecialFolders.h"

#include <QDir>

namespace places {

QSettings Settings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("znworkbench"),
                     QStringLiteral("settings"));
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
