// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/MenuKeys.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

QList<QKeySequence> KnownKeys(const QList<QKeySequence>& keys)
{
    QList<QKeySequence> known;
    for (const QKeySequence& sequence : keys) {
        const QKeyCombination combination = sequence[0];
        const Qt::Key key = combination.key();
        if ((key > Qt::Key_F12 && key <= Qt::Key_F35) || key == Qt::Key_Back ||
            key == Qt::Key_Forward)
            continue;
        known << (key == Qt::Key_Backtab
                      ? QKeySequence(QKeyCombination(combination.keyboardModifiers(), Qt::Key_Tab))
                      : sequence);
    }
    return known;
}

void GiveFirstKeysWay(const QList<QAction*>& commands)
{
    QSet<QKeySequence> first;
    for (const QAction* command : commands)
        first << command->shortcut();
    for (QAction* command : commands) {
        QList<QKeySequence> keys = command->shortcuts();
        const auto isTaken = [&](const QKeySequence& key) {
            return key != command->shortcut() && first.contains(key);
        };
        if (keys.removeIf(isTaken) > 0)
            command->setShortcuts(keys);
    }
}

QList<QAction*> CommandsOf(const QMenuBar& menus)
{
    QList<QAction*> commands;
    QList<QAction*> entries = menus.actions();
    while (!entries.isEmpty()) {
        QAction* entry = entries.takeFirst();
        if (entry->menu())
            entries += entry->menu()->actions();
        else if (!entry->isSeparator())
            commands << entry;
    }
    return commands;
}
