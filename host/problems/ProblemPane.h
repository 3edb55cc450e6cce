// SPDX-License-Identifier: GPL-3.0-or-later
// The list of what is wrong with a script. A double click or Enter leads there.
#pragma once

#include <QDockWidget>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
struct ScriptProblem;

class ProblemPane final : public QDockWidget
{
    Q_OBJECT

public:
    explicit ProblemPane(QWidget* parent);

    QTreeWidget* ListArea() const { return m_list; } // what can have the focus

    void Clear();
    void Add(const ScriptProblem& problem, int line, int column); // from 0
    void Say(const QString& text);                                // instead of a list that is empty
    void ShowCurrent(int problem); // by its number in the order of adding; -1: none is

Q_SIGNALS:
    void Chosen(long start, long end); // positions in the script

private:
    void Choose(const QTreeWidgetItem* item);

    QTreeWidget* m_list;
    QLabel* m_text;
};
