#include "host/Places.h"

#include "platform/SpecialFolders.h"

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

} // namespace places
