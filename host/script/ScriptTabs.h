// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs of the main window. A page is the window of a frame around scripts.
#pragma once

#include <QHash>
#include <QPointer>
#include <QTabWidget>

class TabWalk;

// What a tab says of its script.
struct TabCaption
{
    QString name;  // the script's, and which of its tabs it is
    QString marks; // what is to be known of it beside that
    QString path;  // as the system writes it; empty: it has no file
    bool isModified = false;

    bool operator==(const TabCaption&) const = default;
    QString Text() const { return name + marks; }
};

class ScriptTabs final : public QTabWidget
{
    Q_OBJECT

public:
    explicit ScriptTabs(QWidget* parent);

    // Those of the application's main window. Null without one.
    static ScriptTabs* OfMainWindow();

    // As long as this exists a page that is added stands behind the one in front, its tab at that
    // place, and takes no keys.
    class Behind
    {
    public:
        Behind(ScriptTabs& tabs, int place);
        ~Behind();
        Behind(const Behind&) = delete;
        Behind& operator=(const Behind&) = delete;

        QWidget* Page() const { return m_page; } // null: none was added

    private:
        friend class ScriptTabs;
        ScriptTabs& m_tabs;
        int m_place;
        QPointer<QWidget> m_page;
    };
    const Behind* AddingBehind() const { return m_behind; } // null: not now

    void Show(QWidget* page); // adds it if it has no tab yet
    void Remove(QWidget* page);

    // The file of the tab that was closed last and has none, which is forgotten; empty: there is
    // no more.
    QString TakeClosed();
    bool HasClosed() const { return !m_closed.isEmpty(); }

    // Tabs of files of one name tell their folders, too.
    void SetCaption(QWidget* page, const TabCaption& caption);
    bool IsModified(int index) const { return CaptionOf(index).isModified; }
    QString Path(int index) const { return CaptionOf(index).path; }

    // The tab in front first, then by when each was there last.
    const QList<QWidget*>& ByLastUse() const { return m_used; }
    // To the tab that was used last before this one, or with -1 the one that was not for longest.
    // While Ctrl is held a list is shown, further steps walk through it, and the end of Ctrl takes.
    void Walk(int step);

    // What the menu of a tab, or a click on it, asks for.
    void ShowMenu(int index, const QPoint& place); // on the screen
    void ShowList();                               // of all tabs, to choose from
    // One after the other, until a person wants one kept. A page that has no tab is nothing to go
    // by.
    void Close(const QList<QWidget*>& pages);
    void CloseOthers(const QWidget* page);
    void CloseBehind(const QWidget* page); // to the right of it
    void CloseAll();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TabCaption CaptionOf(int index) const { return m_captions.value(widget(index)); }
    QList<QWidget*> From(int index) const;
    bool IsShown(const QString& path) const;
    void AddBehind(QWidget* page);
    void Write();

    TabWalk* m_walk;
    QHash<const QWidget*, TabCaption> m_captions;
    QList<QWidget*> m_used;
    QStringList m_closed; // files, the last one last
    Behind* m_behind = nullptr;

Q_SIGNALS:
    void Added(QWidget* page);
    void Leaving(QWidget* page); // which still shows its script
    void AllWanted();            // before something is done that knows all tabs
};
