// SPDX-License-Identifier: GPL-3.0-or-later
// The list of what is wrong with a script. A double click or Enter leads there.
#pragma once

#include <QDockWidget>

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
    void Add(const ScriptProblem& problem, int line); // the line from 0

Q_SIGNALS:
    void Chosen(long start, long end); // positions in the script

private:
    void Choose(const QTreeWidgetItem* item);

    QTreeWidget* m_list;
};
