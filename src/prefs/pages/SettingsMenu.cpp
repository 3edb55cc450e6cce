// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/SettingsMenu.h"

#include "editing/OpenEditors.h"
#include "editing/language/FileTypeManager.h"
#include "editing/looks/SchemeSettings.h"
#include "looks/Schemes.h"
#include "platform/windows/Questions.h"
#include "prefs/pages/Preferences.h"
#include "prefs/pages/UserSettings.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SettingsMenu)
};

// Those that are shipped; a scheme of a person's own has the name that the person gave it.
[[maybe_unused]] constexpr const char* kSchemes[] = {
    QT_TRANSLATE_NOOP("SettingsMenu", "Light"),
    QT_TRANSLATE_NOOP("SettingsMenu", "Dark"),
    QT_TRANSLATE_NOOP("SettingsMenu", "High Contrast"),
    QT_TRANSLATE_NOOP("SettingsMenu", "Print"),
};

QString Title()
{
    return Texts::tr("Settings");
}

QString FileFilter()
{
    return Texts::tr("Settings (*.znsettings)");
}

QString WhatIsLost()
{
    return Texts::tr("What has not been applied yet is lost.");
}

} // namespace

SettingsMenu::SettingsMenu(CConfigFile& config, CFileTypeManager& languages, QWidget* parent)
    : QMenu(parent), m_config(config), m_languages(languages)
{
    const auto add = [this](const char* name, const char* text, void (SettingsMenu::*run)()) {
        QAction* action = addAction(Texts::tr(text));
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    add("exportSettings", QT_TRANSLATE_NOOP("SettingsMenu", "&Export All Settings..."),
        &SettingsMenu::Export);
    add("importSettings", QT_TRANSLATE_NOOP("SettingsMenu", "&Import All Settings..."),
        &SettingsMenu::Import);
    addSeparator();
    QMenu* schemes = addMenu(Texts::tr("&Write the Colours of a Scheme"));
    for (const QString& name : zncoreeditor::SchemeNames()) {
        QAction* action = schemes->addAction(Texts::tr(name.toUtf8().constData()));
        action->setObjectName(QStringLiteral("write") + QString(name).remove(u' '));
        connect(action, &QAction::triggered, this, [this, name] { WriteScheme(name); });
    }
    addSeparator();
    QAction* language =
        add("resetLanguage", QT_TRANSLATE_NOOP("SettingsMenu", "This &Language as Shipped..."),
            &SettingsMenu::ResetLanguage);
    add("resetAll", QT_TRANSLATE_NOOP("SettingsMenu", "E&verything as Shipped..."),
        &SettingsMenu::ResetAll);
    connect(this, &QMenu::aboutToShow, this,
            [this, language] { language->setEnabled(currentLanguage() >= 0); });
}

bool SettingsMenu::Agrees(const QString& text)
{
    return AskYesNoUnder(parentWidget(), Title(), text);
}

void SettingsMenu::Reload()
{
    m_config.Clear();
    m_languages.Init(&m_config);
    ReloadOpenEditors();
    if (IPreferencesHost* host = zncoreeditor::GetPreferencesHost())
        host->OnApplied();
    Q_EMIT Replaced();
}

void SettingsMenu::Export()
{
    const QString path = AskSaveFile(
        parentWidget(), QDir::home().filePath(QStringLiteral("editor.znsettings")), FileFilter());
    if (!path.isEmpty() && usersettings::Export(path) != usersettings::Result::Done)
        ShowMessageUnder(parentWidget(), Title(), Texts::tr("%1 could not be written.").arg(path),
                         MessageKind::Warning);
}

void SettingsMenu::Import()
{
    const QString path = AskOpenFile(parentWidget(), FileFilter());
    if (path.isEmpty() ||
        !Agrees(Texts::tr("All settings become those of %1, and the present ones are given "
                          "up. %2\n\nImport them?")
                    .arg(path, WhatIsLost())))
        return;
    switch (usersettings::Import(path)) {
    case usersettings::Result::Done:
        Reload();
        return;
    case usersettings::Result::NotWritten:
        ShowMessageUnder(parentWidget(), Title(),
                         Texts::tr("The settings could not be written; they are as they "
                                   "were."),
                         MessageKind::Warning);
        return;
    default:
        ShowMessageUnder(parentWidget(), Title(),
                         Texts::tr("%1 holds no settings of this editor.").arg(path),
                         MessageKind::Warning);
    }
}

void SettingsMenu::ResetLanguage()
{
    const int language = currentLanguage();
    const CSyntaxFile* file = m_languages.GetSyntaxFile(language);
    if (!file || !Agrees(Texts::tr("All settings of %1 become those that it was shipped with. "
                                   "%2\n\nReset them?")
                             .arg(m_languages.GetLanguageName(language), WhatIsLost())))
        return;
    usersettings::ResetLanguage(QFileInfo(file->GetFilename()).fileName());
    Reload();
}

void SettingsMenu::ResetAll()
{
    if (!Agrees(Texts::tr("The settings of all languages become those that they were shipped "
                          "with. %1\n\nReset them?")
                    .arg(WhatIsLost())))
        return;
    usersettings::ResetAll();
    Reload();
}

// Where schemes are painted too, the one that was written is what is painted from here on: colours
// of two would mix.
void SettingsMenu::WriteScheme(const QString& name)
{
    const ColourScheme* scheme = zncoreeditor::FindScheme(name);
    if (!scheme ||
        !Agrees(Texts::tr("The colours of all languages become those of \"%1\", and stay so "
                          "whatever the desktop looks like. %2\n\nWrite them?")
                    .arg(name, WhatIsLost())))
        return;
    ::WriteScheme(*scheme, m_config, m_languages);
    QStringList notWritten;
    for (int language = 0; language < m_languages.GetLanguageCount(); ++language) {
        CSyntaxFile* file = m_languages.GetSyntaxFile(language);
        if (file && file->GetModified() && !file->Save())
            notWritten << file->GetCustomFilename();
    }
    if (!m_config.Save())
        notWritten << m_config.GetUserCopy();
    IPreferencesHost* host = zncoreeditor::GetPreferencesHost();
    if (host && !notWritten.isEmpty())
        host->OnNotWritten(parentWidget(), notWritten);
    if (host)
        host->OnSchemeWritten(name);
    Reload();
}
