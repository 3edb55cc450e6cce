// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/TabMenu.h"

#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "platform/windows/Disposal.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

TabMenu::TabMenu(ScriptTabs& tabs, int index)
    : QMenu(&tabs), m_tabs(tabs), m_page(tabs.widget(index))
{
    setObjectName(QStringLiteral("tabMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    addAction(WithKeys(tr("&Save"), "save"), this, &TabMenu::Save)
        ->setEnabled(tabs.IsModified(index) || tabs.Path(index).isEmpty());
    addSeparator();
    addAction(WithKeys(tr("&Close"), "close"), this, [this] { m_tabs.Close({m_page}); });
    addAction(tr("Close &Others"), this, [this] {
        m_tabs.CloseOthers(m_page);
    })->setEnabled(tabs.count() > 1);
    addAction(tr("Close to the &Right"), this, [this] {
        m_tabs.CloseBehind(m_page);
    })->setEnabled(index + 1 < tabs.count());
    addAction(tr("Close &All"), this, [this] { m_tabs.CloseAll(); });
    if (auto* reopen = tabs.window()->findChild<QAction*>(QStringLiteral("reopenClosed")))
        addAction(reopen);
    addSeparator();
    AddFile();
}

void TabMenu::AddFile()
{
    const QString path = m_tabs.Path(Index());
    const bool isFile = !path.isEmpty();
    addAction(tr("Copy &Path"), this, [path] {
        QGuiApplication::clipboard()->setText(path);
    })->setEnabled(isFile);
    addAction(tr("Open Containing &Folder"), this, [path] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
    })->setEnabled(isFile);
}

// Those that the command has in the menus.
QString TabMenu::WithKeys(const QString& text, const char* command) const
{
    const auto* action = m_tabs.window()->findChild<QAction*>(QLatin1String(command));
    const QString keys = action ? action->shortcut().toString(QKeySequence::NativeText) : QString();
    return keys.isEmpty() ? text : text + u'\t' + keys;
}

int TabMenu::Index() const
{
    return m_tabs.indexOf(m_page);
}

// A person who is asked for a name sees what it is for.
void TabMenu::Save()
{
    const FrameworkCall call;
    const ScriptFrame* frame = Index() < 0 ? nullptr : ScriptFrame::Of(m_page);
    if (!frame || !frame->Script())
        return;
    if (frame->Script()->GetPathName().isEmpty())
        m_tabs.setCurrentWidget(m_page);
    frame->Script()->DoFileSave();
}
