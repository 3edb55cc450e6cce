// SPDX-License-Identifier: GPL-3.0-or-later
// docs/keys.md, which is made from the menus: with ZN_WRITE_KEYS set this test writes it.
#include "tests/SourceTree.h"
#include "tests/host/WorkbenchTest.h"

#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace {

QString Plain(QString text)
{
    return text.remove(u'&').remove(QStringLiteral("..."));
}

void List(const QList<QAction*>& actions, const QString& path, QString& page)
{
    for (const QAction* action : actions) {
        const QString name = path + Plain(action->text());
        if (action->menu()) {
            List(action->menu()->actions(), name + QStringLiteral(" \u203A "), page);
            continue;
        }
        QStringList keys;
        for (const QKeySequence& key : action->shortcuts())
            keys << key.toString(QKeySequence::PortableText);
        if (!action->isSeparator())
            page += QStringLiteral("| %1 | %2 |\n").arg(name, keys.join(QStringLiteral(", ")));
    }
}

class KeysPage : public WorkbenchTest
{};

TEST_F(KeysPage, ListsEveryCommandOfTheMenus)
{
    QString page = QStringLiteral("# Keys and commands\n\nMade from the menus of the workbench; a "
                                  "test compares.\n\n| Command | Keys |\n| --- | --- |\n");
    for (const QAction* menu : m_window.menuBar()->actions()) {
        const QString title = Plain(menu->text());
        if (title != QLatin1String("Language"))
            List(menu->menu()->actions(), title + QStringLiteral(" \u203A "), page);
    }
    QFile file(QString::fromStdString(InSourceTree("docs/keys.md")));
    if (qEnvironmentVariableIsSet("ZN_WRITE_KEYS")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(page.toUtf8());
        file.close();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList written = QString::fromUtf8(file.readAll()).split(u'\n');
    const QStringList made = page.split(u'\n');
    for (qsizetype row = 0; row < std::min(written.size(), made.size()); ++row)
        ASSERT_EQ(written[row].toStdString(), made[row].toStdString()) << "row " << row;
    EXPECT_EQ(written.size(), made.size());
}

TEST_F(KeysPage, GivesNoKeyToTwoCommands)
{
    QMap<QString, QString> taken;
    for (const QAction* action : m_window.findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            const QString name = key.toString();
            EXPECT_FALSE(taken.contains(name))
                << name.toStdString() << ' ' << action->text().toStdString() << ' '
                << taken.value(name).toStdString();
            taken[name] = action->text();
        }
    }
    EXPECT_GT(taken.size(), 40);
}

} // namespace
