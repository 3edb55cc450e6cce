// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/RecentMenu.h"

#include "host/files/Prompts.h"
#include "host/files/RecentFiles.h"

#include <QDir>

RecentMenu::RecentMenu(RecentFiles& files, QWidget* parent)
    : QMenu(tr("&Recent Files"), parent), m_files(files)
{
    setObjectName(QStringLiteral("recentFiles"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::Fill);
}

void RecentMenu::Fill()
{
    clear();
    const QStringList paths = m_files.Paths();
    const QStringList names = RecentFileNames(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        QString name = names[i];
        const QString number = i < 9 ? QStringLiteral("&%1 ").arg(i + 1) : QString();
        QAction* action = addAction(number + name.replace(u'&', QLatin1String("&&")));
        action->setToolTip(QDir::toNativeSeparators(paths[i]));
        connect(action, &QAction::triggered, this,
                [this, path = paths[i]] { Q_EMIT Chosen(path); });
    }
    if (paths.isEmpty()) {
        addAction(tr("No files yet"))->setEnabled(false);
        return;
    }
    addSeparator();
    addAction(tr("&Clear List"), this, [this] {
        if (!m_files.Clear())
            GetPrompts().Tell(parentWidget(), tr("The list could not be cleared: the "
                                                 "settings cannot be written."));
    });
}
