// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of languages: every language of the registry, the present one marked.
#pragma once

#include <QMenu>

class QActionGroup;

class LanguageMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent);

    void ShowLanguage(int language); // -1: none

Q_SIGNALS:
    void DefaultWanted(); // the language that is shown, for scripts of which nothing tells
    void Chosen(int language);

private:
    void AddLanguage(int language);

    QActionGroup* m_group;
};
