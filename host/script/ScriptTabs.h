// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs of the main window. A page is the window of a frame around scripts.
#pragma once

#include <QTabWidget>

class QMenu;

class ScriptTabs final : public QTabWidget
{
    Q_OBJECT

public:
    explicit ScriptTabs(QWidget* parent);

    // Those of the application's main window. Null without one.
    static ScriptTabs* OfMainWindow();

    void Show(QWidget* page); // adds it if it has no tab yet
    void Remove(QWidget* page);

    // The file of the tab that was closed last and has none, which is forgotten; empty: there is
    // no more.
    QString TakeClosed();
    bool HasClosed() const { return !m_closed.isEmpty(); }
    void SetCaption(QWidget* page, const QString& caption, const QString& toolTip);

    // What the menu of a tab, or a click on it, asks for.
    void CloseOthers(int index);
    void ShowMenu(int index, const QPoint& place); // on the screen

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FillList();

    bool IsShown(const QString& path) const;

    QMenu* m_list;        // of all tabs
    QStringList m_closed; // files, the last one last

Q_SIGNALS:
    void Added(QWidget* page);
    void Leaving(QWidget* page); // which still shows its script
};
