// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/options/OptionsDialog.h"
#include "host/options/WorkbenchOptions.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

TEST(TheOptions, OfTheWorkbenchHelpTypingUnlessSomebodyHasChosen)
{
    for (const int key : {option::ClosePairs, option::SurroundSelection}) {
        const QString kept = CZNOptionsServer::GetObjectW()->GetString(key);
        WorkbenchOptions options;
        ASSERT_EQ(CZNOptionsServer::GetObjectW(), &options);
        options.SetString(key, QString());
        EXPECT_TRUE(options.GetBool(key));
        EXPECT_FALSE(CZNOptionsServer().GetBool(key));
        options.SetInt(key, 0);
        EXPECT_FALSE(options.GetBool(key));
        options.SetString(key, kept);
    }
}

// From the top, as it is read.
TEST(TheOptions, AreWalkedThroughRowByRow)
{
    OptionsDialog dialog(nullptr);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto top = [&dialog](const QWidget* field) {
        return field->mapTo(&dialog, QPoint()).y();
    };
    QWidget* const first = dialog.focusWidget();
    ASSERT_NE(first, nullptr);
    int rows = 1;
    int reached = top(first);
    for (QTest::keyClick(first, Qt::Key_Tab); dialog.focusWidget() != first && rows < 100; ++rows) {
        EXPECT_GE(top(dialog.focusWidget()), reached);
        reached = top(dialog.focusWidget());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_GT(rows, 10);
    EXPECT_LT(rows, 100);
}
