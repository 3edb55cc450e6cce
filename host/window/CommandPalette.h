// SPDX-License-Identifier: GPL-3.0-or-later
// CommandPalette: every command of the menus by its name, with its keys. It goes when it is closed.
#pragma once

#include <QDialog>
#include <QPointer>

#include <vector>

class QAction;
class QLineEdit;
class QListWidget;
class QMenuBar;

class CommandPalette final : public QDialog
{
    Q_OBJECT

public:
    CommandPalette(const QMenuBar& menus, QWidget* parent);

    void Choose(); // runs the command that is marked

private:
    void Collect(const QList<QAction*>& actions, const QString& path);
    void Filter(const QString& words);

    struct Entry
    {
        QString name; // with the menus it stands in
        QPointer<QAction> action;
    };
    std::vector<Entry> m_entries;
    QLineEdit* m_words;
    QListWidget* m_list;
};
