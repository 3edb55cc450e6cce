// SPDX-License-Identifier: GPL-3.0-or-later
// What the workbench adds to the dialog of the preferences: its scheme, its help, and a word about
// files that cannot be written.
#pragma once

#include "prefs/pages/Preferences.h"

#include <functional>

class WorkbenchPreferences final : public IPreferencesHost
{
public:
    // Applied runs whenever settings were written and editors have them; chosen takes a scheme
    // whose colours were written.
    WorkbenchPreferences(std::function<void()> applied,
                         std::function<void(const QString& scheme)> chosen);
    ~WorkbenchPreferences() override;
    WorkbenchPreferences(const WorkbenchPreferences&) = delete;
    WorkbenchPreferences& operator=(const WorkbenchPreferences&) = delete;

    void OnApplied() override { m_applied(); }
    void OnSchemeWritten(const QString& name) override { m_chosen(name); }
    bool OnNotWritten(HWND owner, const QStringList& files) override;
    QString Scheme() override;
    bool HasHelp() override { return true; }
    void OnHelp(HWND owner) override;

private:
    std::function<void()> m_applied;
    std::function<void(const QString&)> m_chosen;
};
