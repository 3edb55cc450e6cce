// SPDX-License-Identifier: GPL-3.0-or-later
// All commands of the menus with their keys, to look through.
#pragma once

#include <QDialog>

class QAction;
class QLineEdit;
class QMenuBar;
class QTreeWidget;

// Deletes itself when it is closed.
class KeysDialog final : public QDialog
{
    Q_OBJECT

public:
    KeysDialog(const QMenuBar& menus, QWidget* parent);

private:
    void Collect(const QList<QAction*>& actions, const QString& path);
    void Filter(const QString& words);

    QLineEdit* m_words;
    QTreeWidget* m_list;
};
