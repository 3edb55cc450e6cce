#include "host/script/ScriptTabs.h"

#include "platform/docview/WinApp.h"
#include "platform/windows/Wnd.h"

#include <QTabBar>

ScriptTabs::ScriptTabs(QWidget* parent) : QTabWidget(parent)
{
    setTabsClosable(true);
    setMovable(true);
    setDocumentMode(true);
    tabBar()->setElideMode(Qt::ElideMiddle);
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
    const int index = indexOf(page);
    if (index >= 0)
        removeTab(index);
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
