// SPDX-License-Identifier: GPL-3.0-or-later
// The outline of the script in front, beside it.
#pragma once

#include "host/outline/Symbols.h"

#include <QDockWidget>
#include <QSet>

class QLabel;
class QLineEdit;
class QTreeView;
class SymbolModel;

class OutlinePane final : public QDockWidget
{
    Q_OBJECT

public:
    explicit OutlinePane(QWidget* parent);

    QTreeView* ListArea() const { return m_list; } // what can have the focus

    void Show(std::vector<Symbol> symbols);
    void ShowNothing(const QString& why);
    // Of the caret, and of the line around it: in front of the first name of a line it is at that.
    void ShowPlace(long position, long lineStart, long lineEnd);

Q_SIGNALS:
    void Chosen(long start, long end); // positions in the script

private:
    void Filter(const QString& words);
    void RememberOpen();
    void OpenRemembered();

    QLineEdit* m_words;
    SymbolModel* m_symbols;
    QTreeView* m_list;
    QLabel* m_why;        // nothing is listed
    QSet<QString> m_open; // names of what was open before words were sought
};
