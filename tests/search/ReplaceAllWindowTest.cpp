// SPDX-License-Identifier: GPL-3.0-or-later
// Replacing in a window of a real display, where whoever selects something has to tell the server.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "search/FindReplaceManager.h"

#include <QApplication>
#include <QClipboard>

#include <gtest/gtest.h>

namespace {

constexpr int kMatches = 3000;

class ReplaceAllInAWindow : public testing::Test
{
protected:
    ReplaceAllInAWindow()
    {
        QString text;
        for (int i = 0; i < kMatches; ++i)
            text += QStringLiteral("select one from t;\n");
        editor.setText(text);
        editor.show();
        QApplication::processEvents();
        QObject::connect(QApplication::clipboard(), &QClipboard::selectionChanged, &editor,
                         [this] { ++tellings; });
        manager.SetWrap(true);
        manager.SetDown(true);
        manager.SetWholeWord(false);
        manager.SetMatchCase(false);
        manager.SetRegExp(false);
        manager.SetTransform(false);
        manager.SetFind(QStringLiteral("one"));
        manager.SetReplace(QStringLiteral("three"));
    }

    CZNCoreEditorControlEx& control() { return editor.control(); }

    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    ZNCoreEditorWidget editor;
    int tellings = 0; // of a selection, to the server
};

} // namespace

TEST_F(ReplaceAllInAWindow, TellsTheServerOfNoSelectionOnTheWay)
{
    ASSERT_TRUE(QApplication::clipboard()->supportsSelection());
    EXPECT_EQ(manager.ReplaceAll(&control(), false), kMatches);
    EXPECT_EQ(editor.text().count(QStringLiteral("select three from")), kMatches);
    EXPECT_LE(tellings, 2);
    control().Undo(1);
    EXPECT_EQ(editor.text().count(QStringLiteral("select one from")), kMatches);
    EXPECT_LE(tellings, 4);
}

TEST_F(ReplaceAllInAWindow, OwnsTheSelectionThatIsLeft)
{
    control().SetSel(0, 18, 1);
    ASSERT_EQ(QApplication::clipboard()->text(QClipboard::Selection),
              QStringLiteral("select one from t;"));
    EXPECT_EQ(manager.ReplaceAll(&control(), true), 1);
    EXPECT_EQ(QApplication::clipboard()->text(QClipboard::Selection),
              QStringLiteral("select three from t;"));
}
