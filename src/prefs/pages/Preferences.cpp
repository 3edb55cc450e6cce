// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/Preferences.h"

#include "editing/language/Library.h"
#include "prefs/pages/EditorPrefsDialog.h"

IPreferencesHost::~IPreferencesHost() = default;

namespace zncoreeditor {
namespace {

IPreferencesHost* g_host = nullptr;

void RunDialog()
{
    CEditorPrefsDialog dialog(QStringLiteral("Editor and Language Preferences"), *GetConfigFile(),
                              *GetFileTypeManager());
    dialog.DoModal();
}

// From the library's loading on.
[[maybe_unused]] const bool g_isKnown = (SetPreferencesDialog(RunDialog), true);

} // namespace

void SetPreferencesHost(IPreferencesHost* host)
{
    g_host = host;
}

IPreferencesHost* GetPreferencesHost()
{
    return g_host;
}

} // namespace zncoreeditor
