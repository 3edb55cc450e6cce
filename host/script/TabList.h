// SPDX-License-Identifier: GPL-3.0-or-later
// TabList: the scripts of all tabs to choose from, by a part of the name. It goes when it is
// closed.
#pragma once

#include <QDialog>

class QLineEdit;
class QListWidget;
class ScriptTabs;

class TabList final : public QDialog
{
    Q_OBJECT

public:
    explicit TabList(ScriptTabs& tabs);

    void ShowBelow(const QWidget& button); // ends where it does, and stays on its screen

    // The row of a tab in a list of them: whether it is changed, its name, whether it is in front.
    static void Add(QListWidget& list, const ScriptTabs& tabs, QWidget* page);
    // To the tab of a row, which may have gone meanwhile.
    static void Choose(const QListWidget& list, ScriptTabs& tabs);

private:
    void Filter(const QString& words);
    void Choose();

    ScriptTabs& m_tabs;
    QLineEdit* m_words;
    QListWidget* m_list;
};
