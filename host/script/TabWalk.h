// SPDX-License-Identifier: GPL-3.0-or-later
// TabWalk: the way to a script by last use, as long as Ctrl is held.
#pragma once

#include <QFrame>

class QListWidget;
class QTimer;
class ScriptTabs;

class TabWalk final : public QFrame
{
    Q_OBJECT

public:
    explicit TabWalk(ScriptTabs& tabs);

    // The first step begins, and ends at once where Ctrl is not held.
    void Step(int by);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Begin();
    void Unfold();
    void Take();
    void End();
    void OnKey(int key, bool withShift);

    ScriptTabs& m_tabs;
    QListWidget* m_list;
    QTimer* m_wait;
    bool m_isWalking = false;
};
