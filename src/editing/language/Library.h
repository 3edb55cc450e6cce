// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What the library has one of for the process, and what became of its start.
#pragma once

#include "common/Export.h"

#include <QString>

class CConfigFile;
class CFileTypeManager;

namespace zncoreeditor {

ZN_API CConfigFile* GetConfigFile();           ///< never null
ZN_API CFileTypeManager* GetFileTypeManager(); ///< never null

/// How the library came up. The configuration is read when the library is loaded, from
/// "ZNCoreEditor.xml" in GetAppPath() or the user's copy of it; if it changed, the copy is written
/// when the library is unloaded. Without it every editor runs on empty settings. The engine is
/// loaded by the first editor, or by the first question after it; without it nothing is edited,
/// opened or saved.
struct Startup
{
    bool configured = false; ///< the configuration was read, and the languages are known
    QString configFile;      ///< where it was looked for
    bool hasEngine = false;  ///< whether editors can be made
    QString engineProblem;   ///< what the loader said, if there is no engine
};
ZN_API Startup GetStartup(); ///< loads the engine if no editor has done so

/// Keeps the settings of the user in a folder of this name from here on, in place of the one that
/// all hosts of the library share, and reads them there. Before the first editor; false, and
/// nothing is changed, for a name that is empty or holds a separator.
ZN_API bool SetSettingsFolder(const QString& name);

/// Runs the dialog of the preferences, and takes the list of languages anew whatever came of it.
ZN_API void OnConfigurePreferences();

/// The dialog, which the room that has it sets; null: there is none, and nothing is asked.
ZN_API void SetPreferencesDialog(void (*run)());

} // namespace zncoreeditor
