// SPDX-License-Identifier: GPL-3.0-or-later
// The bars with the tabs of panes that share a place. Qt leaves a bar that has one pane or none
// outside of the window, but shown: the keyboard and a screen reader get to it there.
#pragma once

#include <QObject>

class QMainWindow;
class QTabBar;

class PaneTabs final : public QObject
{
    Q_OBJECT

public:
    // Of the window's bars that come from here on, only what is seen takes keys and is told of.
    static void Take(QMainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
    static void Follow(QTabBar& bar);
};
