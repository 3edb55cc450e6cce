// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/language/UserFolder.h"

#include "platform/system/SpecialFolders.h"

QString UserSettingsPath(const QString& relative)
{
    const QString data = znutils::CSpecialFolders::GetLocalAppDataPath(false);
    return data.isEmpty() ? data : data + u'/' + SettingsFolderName() + u'/' + relative;
}
