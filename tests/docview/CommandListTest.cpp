// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the view and of the control, made from their maps, beside the list that is kept:
// a number that loses its handler or its rule is seen. With ZN_WRITE_COMMANDS set this test writes
// the list.
#include "tests/SourceTree.h"
#include "tests/docview/OpenView.h"

#include <QFile>

#include <gtest/gtest.h>

#include <map>

namespace {

class OpenControl final : public CZNCoreEditorControlEx
{
public:
    using CZNCoreEditorControlEx::GetCommandMap;
};

void List(const char* who, const CommandMap& map, QString& list)
{
    struct Known
    {
        bool runs = false;
        bool updates = false;
    };
    std::map<UINT, Known> commands;
    for (const CommandMap* each = &map; each; each = each->base) {
        for (const CommandEntry& entry : each->commands)
            commands[entry.id].runs = true;
        for (const UpdateEntry& entry : each->updates)
            commands[entry.id].updates = true;
    }
    for (const auto& [id, known] : commands)
        list += QStringLiteral("%1 %2%3%4\n")
                    .arg(QLatin1String(who))
                    .arg(id)
                    .arg(known.runs ? QStringLiteral(" command") : QString(),
                         known.updates ? QStringLiteral(" rule") : QString());
}

} // namespace

TEST(Commands, AreThoseOfTheList)
{
    QString list;
    OpenView view;
    OpenControl control;
    List("view", view.GetCommandMap(), list);
    List("control", control.GetCommandMap(), list);
    QFile file(QString::fromStdString(InSourceTree("tests/golden/commands.txt")));
    if (qEnvironmentVariableIsSet("ZN_WRITE_COMMANDS")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(list.toUtf8());
        file.close();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(list.toStdString(), file.readAll().toStdString());
}
