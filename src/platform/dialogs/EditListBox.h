// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNBaseEditListBox: a list whose items are added, written, moved and removed in place; a
/// QListWidget with buttons beside it.
#pragma once

#include "common/Export.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QListWidget;
class QToolButton;

/// Insert adds an item to write, F2 and a double click write, Delete removes, Alt+Up and Alt+Down
/// move. An item left empty goes.
class ZN_API CZNBaseEditListBox : public QWidget
{
    Q_OBJECT

public:
    explicit CZNBaseEditListBox(QWidget* parent = nullptr); ///< empty

    /// Asks for the text of an item, its present text given; empty: none. Puts a button "..."
    /// beside the list.
    void SetBrowse(std::function<QString(const QString&)> browse);

    void AddItem(const QString& text);       ///< behind the last one
    void SetItems(const QStringList& items); ///< in place of those that there are
    QStringList GetItems() const;            ///< in their order
    int GetCurSel() const;                   ///< -1: none
    void SetCurSel(int row);                 ///< a row that there is not: none

    void NewItem();        ///< an empty one at the end, being written
    void DeleteItem();     ///< the current one
    void MoveItem(int by); ///< the current one, by so many rows

Q_SIGNALS:
    void Changed(); ///< the items are others

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; ///< the keys of the list

private:
    QToolButton* AddButton(const char* icon, const QString& name, std::function<void()> run);
    void Browse();
    void DropEmpty();

    QListWidget* m_list;
    QToolButton* m_browseButton;
    std::function<QString(const QString&)> m_browse;
};
