// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/language/Library.h"

#include "common/Globals.h"
#include "control/ZNCoreEditorControl.h"
#include "editing/OpenEditors.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/UserFolder.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/SpecialFolders.h"
#include "settings/ConfigFile.h"

#include <QFileInfo>

namespace zncoreeditor {

namespace {

const QString kConfigName = QStringLiteral("ZNCoreEditor.xml");

// Attached with the process, detached with it: the one object of this kind.
class Attached
{
public:
    Attached()
    {
        config.SetFilename(GetAppPath() + kConfigName);
        Read();
    }
    Attached(const Attached&) = delete;
    Attached& operator=(const Attached&) = delete;
    ~Attached() { config.Save(); } // writes if something changed

    void Read()
    {
        config.SetUserCopy(UserSettingsPath(kConfigName));
        configured = config.Parse();
        if (!configured) {
            qWarning("ZNCoreEditor: the settings cannot be read: %s",
                     qPrintable(config.GetFilename()));
            return;
        }
        languages.Init(&config);
        if (const QString folder = GetAppPath() + QStringLiteral("Syntax");
            !QFileInfo(folder).isDir())
            qWarning("ZNCoreEditor: the languages have no files: %s", qPrintable(folder));
    }

    CConfigFile config;
    CFileTypeManager languages;
    bool configured = false;
};

Attached& Library()
{
    static Attached library;
    return library;
}

[[maybe_unused]] const Attached& g_attachedAtLoad = Library();

void (*g_preferencesDialog)() = nullptr;

} // namespace

CConfigFile* GetConfigFile()
{
    return &Library().config;
}

CFileTypeManager* GetFileTypeManager()
{
    return &Library().languages;
}

bool SetSettingsFolder(const QString& name)
{
    if (name.isEmpty() || name.contains(u'/') || name.contains(u'\\') ||
        name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    SetSettingsFolderName(name);
    Library().config.Clear();
    Library().Read();
    return true;
}

void OnConfigurePreferences()
{
    if (g_preferencesDialog)
        g_preferencesDialog();
    GetFileTypeManager()->Init(GetConfigFile());
    // What the options fill in has gone with the settings in memory.
    for (CZNCoreEditorControlEx* editor : OpenEditors()) {
        if (editor->GetUserSettingsFirst())
            SendMessage(editor->GetSafeHwnd(), kOptionsChanged, 0, 0);
    }
}

void SetPreferencesDialog(void (*run)())
{
    g_preferencesDialog = run;
}

Startup GetStartup()
{
    const QString& problem = CZNCoreEditorControl::LoadEngine();
    return {Library().configured, Library().config.GetFilename(),
            CZNCoreEditorControl::m_hEditorDllHandle != nullptr, problem};
}

} // namespace zncoreeditor
