// SPDX-License-Identifier: GPL-3.0-or-later
// All commands of the menus with their keys, to look through and to change.
#pragma once

#include <QDialog>
#include <QMap>

class CommandKeys;
class QAction;
class QKeySequence;
class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QMenuBar;
class QTreeWidget;
class QTreeWidgetItem;

// Deletes itself when it is closed. The menus and the keys outlive it.
class KeysDialog final : public QDialog
{
    Q_OBJECT

public:
    KeysDialog(const QMenuBar& menus, CommandKeys& keys, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Collect(const QList<QAction*>& actions, const QString& path);
    QWidget* BuildField();
    QWidget* BuildButtons();
    void FitColumns();
    void Filter(const QString& words);
    void Show(QTreeWidgetItem& item) const;
    void ShowAll();
    void FollowRow();
    void GoToList();

    QAction* Current() const; // null: no row
    QString NameOf(const QAction& command) const;
    void AskKey();
    void ClearKey();
    void EndField();
    void TakePressed();
    QString WhyNot(const QKeySequence& key) const; // empty: a command may have it
    bool MayMove(const QList<QKeySequence>& keys, const QAction& to);
    void Remove();
    void Reset();
    void ResetAll();
    void TellKept(bool isKept);
    void Tell(const QString& text);

    const QMenuBar& m_menus;
    CommandKeys& m_keys;
    QLineEdit* m_words;
    QTreeWidget* m_list;
    QLabel* m_none;
    QWidget* m_field = nullptr; // what a key is asked with
    QLabel* m_question = nullptr;
    QKeySequenceEdit* m_key = nullptr;
    QLabel* m_told;
    QAction* m_change = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_reset = nullptr;
    QMap<QTreeWidgetItem*, QAction*> m_commands;
};
