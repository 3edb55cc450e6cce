// What the library has one of for the process, and what became of its start.
#pragma once

#include "common/Export.h"

#include <QString>

class CConfigFile;
class CFileTypeManager;

namespace zncoreeditor {

ZN_API CConfigFile* GetConfigFile();
ZN_API CFileTypeManager* GetFileTypeManager();

// How the library came up. The configuration is read when the library is loaded, from
// "ZNCoreEditor.xml" in GetAppPath(); it is saved, if it changed, when the library is unloaded.
// Without it every editor runs on empty settings.
struct Startup
{
    bool configured = false; // the configuration was read, and the languages are known
    QString configFile;      // where it was looked for
};
ZN_API Startup GetStartup();

} // namespace zncoreeditor
