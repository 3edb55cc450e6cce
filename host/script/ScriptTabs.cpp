// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/ScriptTabs.h"

#include "host/files/RecentFiles.h"
#include "host/icons/Icons.h"
#include "host/script/TabList.h"
#include "host/script/TabMenu.h"
#include "host/script/TabWalk.h"
#include "platform/docview/WinApp.h"
#include "platform/windows/Wnd.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QTabBar>
#include <QToolButton>

ScriptTabs::ScriptTabs(QWidget* parent) : QTabWidget(parent), m_walk(new TabWalk(*this))
{
    setTabsClosable(true);
    setMovable(true);
    tabBar()->setChangeCurrentOnDrag(true);
    setDocumentMode(true);
    setUsesScrollButtons(true);
    tabBar()->setElideMode(Qt::ElideNone);
    tabBar()->setExpanding(false);
    tabBar()->installEventFilter(this);
    auto* list = new QToolButton(this);
    list->setObjectName(QStringLiteral("tabList"));
    list->setAutoRaise(true);
    list->setAccessibleName(tr("List of tabs"));
    list->setToolTip(tr("List of tabs"));
    list->setArrowType(Qt::DownArrow);
    connect(list, &QToolButton::clicked, this, &ScriptTabs::ShowList);
    setCornerWidget(list);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        if (QWidget* page = widget(index)) {
            m_used.removeAll(page);
            m_used.prepend(page);
        }
    });
}

// The middle button closes a tab, the right one opens its menu.
bool ScriptTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        const int index = tabBar()->tabAt(mouse.position().toPoint());
        if (mouse.button() == Qt::MiddleButton && index >= 0) {
            Q_EMIT tabCloseRequested(index);
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto& menu = static_cast<const QContextMenuEvent&>(*event);
        const int index = tabBar()->tabAt(menu.pos());
        if (index >= 0)
            ShowMenu(index, menu.globalPos());
        return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

void ScriptTabs::ShowMenu(int index, const QPoint& place)
{
    if (index >= 0)
        (new TabMenu(*this, index))->popup(place);
}

void ScriptTabs::ShowList()
{
    Q_EMIT AllWanted();
    auto* list = new TabList(*this);
    list->ShowBelow(*cornerWidget());
}

void ScriptTabs::Walk(int step)
{
    Q_EMIT AllWanted();
    m_walk->Step(step);
}

QList<QWidget*> ScriptTabs::From(int index) const
{
    QList<QWidget*> pages;
    for (int i = index; i < count(); ++i)
        pages << widget(i);
    return pages;
}

void ScriptTabs::CloseOthers(const QWidget* page)
{
    Q_EMIT AllWanted();
    QList<QWidget*> pages = From(0);
    if (pages.removeOne(page))
        Close(pages);
}

void ScriptTabs::CloseBehind(const QWidget* page)
{
    Q_EMIT AllWanted();
    if (const int index = indexOf(page); index >= 0)
        Close(From(index + 1));
}

// A question that is broken off leaves its tab, and those that were not asked about.
void ScriptTabs::Close(const QList<QWidget*>& pages)
{
    const QPointer<ScriptTabs> self(this);
    for (QWidget* page : pages) {
        if (const int index = indexOf(page); index >= 0)
            Q_EMIT tabCloseRequested(index);
        if (!self || indexOf(page) >= 0)
            return;
    }
}

ScriptTabs* ScriptTabs::OfMainWindow()
{
    const CWnd* main = GetApp() ? GetApp()->GetMainWnd() : nullptr;
    return main ? main->GetSafeHwnd()->findChild<ScriptTabs*>() : nullptr;
}

void ScriptTabs::CloseAll()
{
    Q_EMIT AllWanted();
    Close(From(0));
}

ScriptTabs::Behind::Behind(ScriptTabs& tabs, int place) : m_tabs(tabs), m_place(place)
{
    tabs.m_behind = this;
}

ScriptTabs::Behind::~Behind()
{
    m_tabs.m_behind = nullptr;
    if (m_page)
        m_page->setEnabled(true);
}

// Shown and hidden before anything is painted: lines are scrolled to in a window of its size.
void ScriptTabs::AddBehind(QWidget* page)
{
    m_behind->m_page = page;
    insertTab(m_behind->m_place, page, {});
    if (!m_used.contains(page))
        m_used << page;
    if (const QWidget* front = currentWidget(); front != page) {
        page->setGeometry(front->geometry());
        page->show();
        page->hide();
    }
    Q_EMIT Added(page);
}

void ScriptTabs::Show(QWidget* page)
{
    const bool isNew = indexOf(page) < 0;
    if (isNew && m_behind) {
        AddBehind(page);
        return;
    }
    if (isNew)
        addTab(page, {});
    setCurrentWidget(page);
    if (isNew)
        Q_EMIT Added(page);
}

void ScriptTabs::Remove(QWidget* page)
{
    constexpr qsizetype kMost = 50;
    const int index = indexOf(page);
    if (index < 0)
        return;
    const QString path = m_captions.take(page).path;
    m_used.removeAll(page);
    // Before the tab goes, since the commands are looked at when another one comes to the front.
    if (!path.isEmpty() && !IsShown(path)) {
        m_closed.removeAll(path);
        m_closed << path;
        if (m_closed.size() > kMost)
            m_closed.removeFirst();
    }
    if (index == currentIndex() && !m_used.isEmpty())
        setCurrentWidget(m_used.first());
    removeTab(index);
    Write();
}

bool ScriptTabs::IsShown(const QString& path) const
{
    for (int i = 0; i < count(); ++i) {
        if (Path(i) == path)
            return true;
    }
    return false;
}

QString ScriptTabs::TakeClosed()
{
    while (!m_closed.isEmpty()) {
        const QString path = m_closed.takeLast();
        if (!IsShown(path) && QFileInfo(path).isFile())
            return path;
    }
    return {};
}

void ScriptTabs::SetCaption(QWidget* page, const TabCaption& caption)
{
    if (indexOf(page) < 0 || m_captions.value(page) == caption)
        return;
    m_captions[page] = caption;
    Write();
}

void ScriptTabs::Write()
{
    QStringList paths;
    for (int i = 0; i < count(); ++i)
        paths << QDir::fromNativeSeparators(Path(i));
    const QStringList names = RecentFileNames(paths);
    for (int i = 0; i < count(); ++i) {
        const TabCaption caption = CaptionOf(i);
        const QString folder = names[i].mid(paths[i].section(u'/', -1).size());
        const QString text = caption.name + folder + caption.marks;
        // A single ampersand would mark the letter behind it.
        const QString shown = QString(text).replace(u'&', QLatin1String("&&"));
        if (tabText(i) != shown)
            setTabText(i, shown);
        if (tabToolTip(i) != caption.path)
            setTabToolTip(i, caption.path);
        if (tabIcon(i).isNull() == caption.isModified)
            setTabIcon(i, caption.isModified ? CommandIcon(QStringLiteral("modified")) : QIcon());
        tabBar()->setAccessibleTabName(i, caption.isModified ? tr("%1, changed").arg(text) : text);
    }
}
