// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/Preferences.h"

#include "editing/language/Library.h"
#include "prefs/pages/EditorPrefsDialog.h"

#include <QCoreApplication>

IPreferencesHost::~IPreferencesHost() = default;

namespace zncoreeditor {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(EditorPrefsDialog)
};

IPreferencesHost* g_host = nullptr;

void RunDialog()
{
    CEditorPrefsDialog dialog(Texts::tr("Editor and Language Preferences"), *GetConfigFile(),
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
