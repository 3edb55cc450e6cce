// SPDX-License-Identifier: GPL-3.0-or-later
// TabMenu: what can be done with a tab. It goes when it is closed.
#pragma once

#include <QMenu>
#include <QPointer>

class ScriptTabs;

class TabMenu final : public QMenu
{
    Q_OBJECT

public:
    TabMenu(ScriptTabs& tabs, int index);

private:
    void AddFile();
    QString WithKeys(const QString& text, const char* command) const;
    int Index() const; // -1: the tab has gone meanwhile
    void Save();

    ScriptTabs& m_tabs;
    QPointer<QWidget> m_page;
};
