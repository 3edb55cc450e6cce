// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/ToolBar.h"

#include "host/icons/Icons.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QToolBar>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ToolBar)
};

constexpr const char* kTools[] = {
    "new",         "open",     "save",  "saveAll",     nullptr,  "undo",  "redo",
    nullptr,       "cut",      "copy",  "paste",       nullptr,  "find",  "replace",
    "findInFiles", "goToLine", nullptr, "nextProblem", "expand", nullptr, "commands",
};

} // namespace

QToolBar* AddToolBar(QMainWindow& window)
{
    constexpr int kIcon = 20; // pixels
    auto* bar = window.addToolBar(Texts::tr("Tool Bar"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setIconSize({kIcon, kIcon});
    bar->setMovable(false);
    bar->toggleViewAction()->setObjectName(QStringLiteral("showToolBar"));
    return bar;
}

void FillToolBar(QToolBar& bar, QMainWindow& window)
{
    for (QAction* action : window.findChildren<QAction*>()) {
        const QIcon icon = CommandIcon(action->objectName());
        if (!icon.isNull())
            action->setIcon(icon);
    }
    for (const char* name : kTools) {
        if (!name)
            bar.addSeparator();
        else if (auto* action = window.findChild<QAction*>(QLatin1String(name)))
            bar.addAction(action);
    }
}
