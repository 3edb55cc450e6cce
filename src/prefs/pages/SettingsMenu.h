// SPDX-License-Identifier: GPL-3.0-or-later
// SettingsMenu: what can be done with all settings at once: out into a file and in again, as
// shipped, in the colours of a scheme. Each is asked first.
#pragma once

#include "platform/base/Types.h"

#include <QMenu>
#include <QString>

#include <functional>

class CConfigFile;
class CFileTypeManager;

class SettingsMenu final : public QMenu
{
    Q_OBJECT

public:
    SettingsMenu(CConfigFile& config, CFileTypeManager& languages, QWidget* parent);

    // The language that a person looks at, -1 for none.
    std::function<int()> currentLanguage;

Q_SIGNALS:
    // The settings are others, in their files and in memory, and the open editors have them.
    void Replaced();

private:
    void Export();
    void Import();
    void ResetLanguage();
    void ResetAll();
    void WriteScheme(const QString& name);
    bool Agrees(const QString& text);
    void Reload();

    CConfigFile& m_config;
    CFileTypeManager& m_languages;
};
