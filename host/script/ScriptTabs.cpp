// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/ScriptTabs.h"

#include "host/icons/MenuButton.h"
#include "platform/docview/WinApp.h"
#include "platform/windows/Wnd.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTabBar>
#include <QUrl>

ScriptTabs::ScriptTabs(QWidget* parent) : QTabWidget(parent), m_list(new QMenu(this))
{
    setTabsClosable(true);
    setMovable(true);
    setDocumentMode(true);
    setUsesScrollButtons(true);
    tabBar()->setElideMode(Qt::ElideNone);
    tabBar()->setExpanding(false);
    tabBar()->installEventFilter(this);
    auto* list = new MenuButton(this);
    list->setObjectName(QStringLiteral("tabList"));
    list->setAccessibleName(tr("List of tabs"));
    list->setToolTip(tr("List of tabs"));
    list->setArrowType(Qt::DownArrow);
    list->setMenu(m_list);
    connect(m_list, &QMenu::aboutToShow, this, &ScriptTabs::FillList);
    setCornerWidget(list);
}

void ScriptTabs::FillList()
{
    m_list->clear();
    for (int i = 0; i < count(); ++i) {
        QAction* action = m_list->addAction(tabText(i), this, [this, i] { setCurrentIndex(i); });
        action->setCheckable(true);
        action->setChecked(i == currentIndex());
    }
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
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("tabMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString path = tabToolTip(index);
    const bool isFile = QFileInfo(path).isAbsolute();
    menu->addAction(tr("&Close"), this, [this, index] { Q_EMIT tabCloseRequested(index); });
    menu->addAction(tr("Close &Others"), this, [this, index] { CloseOthers(index); })
        ->setEnabled(count() > 1);
    menu->addSeparator();
    menu->addAction(tr("Copy &Path"), this, [path] { QGuiApplication::clipboard()->setText(path); })
        ->setEnabled(isFile);
    menu->addAction(tr("Open &Folder"), this,
                    [path] {
                        QDesktopServices::openUrl(
                            QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
                    })
        ->setEnabled(isFile);
    menu->popup(place);
}

// From the end, so that the places of those that are still to be asked stay.
void ScriptTabs::CloseOthers(int index)
{
    const QWidget* kept = widget(index);
    for (int i = count() - 1; i >= 0; --i) {
        if (widget(i) != kept)
            Q_EMIT tabCloseRequested(i);
    }
}

ScriptTabs* ScriptTabs::OfMainWindow()
{
    const CWnd* main = GetApp() ? GetApp()->GetMainWnd() : nullptr;
    return main ? main->GetSafeHwnd()->findChild<ScriptTabs*>() : nullptr;
}

void ScriptTabs::Show(QWidget* page)
{
    const bool isNew = indexOf(page) < 0;
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
    const QString path = tabToolTip(index);
    setTabToolTip(index, {});
    // Before the tab goes, since the commands are looked at when another one comes to the front.
    if (QFileInfo(path).isAbsolute() && !IsShown(path)) {
        m_closed.removeAll(path);
        m_closed << path;
        if (m_closed.size() > kMost)
            m_closed.removeFirst();
    }
    removeTab(index);
}

bool ScriptTabs::IsShown(const QString& path) const
{
    for (int i = 0; i < count(); ++i) {
        if (tabToolTip(i) == path)
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

void ScriptTabs::SetCaption(QWidget* page, const QString& caption, const QString& toolTip)
{
    const int index = indexOf(page);
    if (index < 0)
        return;
    // A single ampersand would mark the letter behind it.
    const QString text = QString(caption).replace(u'&', QLatin1String("&&"));
    if (tabText(index) != text)
        setTabText(index, text);
    if (tabToolTip(index) != toolTip)
        setTabToolTip(index, toolTip);
}
