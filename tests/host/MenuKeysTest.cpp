// SPDX-License-Identifier: GPL-3.0-or-later
// Keys that platforms bring along, on commands of no window.
#include "host/window/MenuKeys.h"

#include <QAction>

#include <gtest/gtest.h>

namespace {

QStringList Names(const QList<QKeySequence>& keys)
{
    QStringList names;
    for (const QKeySequence& key : keys)
        names << key.toString(QKeySequence::PortableText);
    return names;
}

QList<QKeySequence> Keys(const QStringList& names)
{
    QList<QKeySequence> keys;
    for (const QString& name : names)
        keys << QKeySequence(name, QKeySequence::PortableText);
    return keys;
}

TEST(MenuKeys, AreThoseThatKeyboardsHave)
{
    EXPECT_EQ(Names(KnownKeys(Keys({"Ctrl+X", "Back", "Shift+Del", "F20", "F12", "Forward"}))),
              QStringList({"Ctrl+X", "Shift+Del", "F12"}));
}

TEST(MenuKeys, AreWrittenAsPeopleSayThem)
{
    EXPECT_EQ(Names(KnownKeys(Keys({"Ctrl+Shift+Backtab", "Ctrl+Tab"}))),
              QStringList({"Ctrl+Shift+Tab", "Ctrl+Tab"}));
}

TEST(MenuKeys, BelongToTheCommandThatHasThemFirst)
{
    QAction remove;
    QAction duplicate;
    remove.setShortcuts(Keys({"Del", "Ctrl+D"}));
    duplicate.setShortcuts(Keys({"Ctrl+D"}));
    GiveFirstKeysWay({&remove, &duplicate});
    EXPECT_EQ(Names(remove.shortcuts()), QStringList({"Del"}));
    EXPECT_EQ(Names(duplicate.shortcuts()), QStringList({"Ctrl+D"}));
}

} // namespace
