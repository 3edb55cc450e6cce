// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/looks/DeliveredSettings.h"

#include "common/Globals.h"
#include "settings/ConfigFile.h"

CConfigFile& DeliveredConfig()
{
    static CConfigFile& config = [&]() -> CConfigFile& {
        static CConfigFile read;
        read.SetFilename(zncoreeditor::GetAppPath() + QStringLiteral("ZNCoreEditor.xml"));
        read.Parse();
        return read;
    }();
    return config;
}
