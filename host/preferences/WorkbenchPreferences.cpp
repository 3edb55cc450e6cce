// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/preferences/WorkbenchPreferences.h"

#include "host/preferences/Appearance.h"
#include "platform/windows/Questions.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WorkbenchPreferences)
};

} // namespace

WorkbenchPreferences::WorkbenchPreferences(std::function<void()> applied,
                                           std::function<void(const QString&)> chosen)
    : m_applied(std::move(applied)), m_chosen(std::move(chosen))
{
    zncoreeditor::SetPreferencesHost(this);
}

WorkbenchPreferences::~WorkbenchPreferences()
{
    if (zncoreeditor::GetPreferencesHost() == this)
        zncoreeditor::SetPreferencesHost(nullptr);
}

// The dialog stays, and with it what was chosen: Apply tries again.
bool WorkbenchPreferences::OnNotWritten(HWND owner, const QStringList& files)
{
    ShowMessageUnder(
        owner, Texts::tr("Preferences"),
        Texts::tr("The changes are in force for now, but these files could not be "
                  "written:\n\n%1\n\nApply again once they can be, or Cancel to give the "
                  "changes up.")
            .arg(files.join(u'\n')),
        MessageKind::Warning);
    return true;
}

QString WorkbenchPreferences::Scheme()
{
    return appearance::Current();
}

void WorkbenchPreferences::OnHelp(HWND owner)
{
    ShowMessageUnder(
        owner, Texts::tr("Preferences"),
        Texts::tr(
            "The tree has a page for what all languages share, and pages for each language. Type "
            "over the tree to find one.\n\n"
            "Apply writes the changes and shows them in the open scripts; Cancel does not take "
            "back what was applied.\n\n"
            "A colour that is \"Default\" follows the scheme of the View menu. What is set here "
            "for a language comes before the Options of all editors."),
        MessageKind::Information);
}
