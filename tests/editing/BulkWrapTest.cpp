// SPDX-License-Identifier: GPL-3.0-or-later
// Word wrap rests while many lines change: their heights are found when the window is free again.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "search/FindReplaceManager.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

constexpr int kLines = 40;
constexpr int kWrapWord = 1;

class BulkWrap : public testing::Test
{
protected:
    BulkWrap()
    {
        m_editor.resize(300, 200);
        m_editor.show();
        control.SetEOLMode(3, 1);
        control.SetWrapMode(kWrapWord, 1);
    }

    // Lines that all wrap, in the window whose idle work is done.
    void PutLongLines()
    {
        QString text;
        for (int line = 0; line < kLines; ++line)
            text += QStringLiteral("longer ").repeated(60) + QStringLiteral("\n");
        m_editor.setText(text);
        control.GotoPos(0, 1);
        WorkUntil([this] { return WrappedLines() == kLines; });
    }

    // As the window keeps them: asking for one line alone would lay it out.
    int WrappedLines()
    {
        int wrapped = 0;
        for (int line = 0; line < kLines; ++line)
            wrapped += Top(line + 1) - Top(line) > 1;
        return wrapped;
    }
    int Top(int line) { return control.VisibleFromDocLine(line, 1); }

    template <class Condition>
    static void WorkUntil(Condition condition)
    {
        while (!condition())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    ZNCoreEditorWidget m_editor;
    CZNCoreEditorControlEx& control = m_editor.control();
};

TEST_F(BulkWrap, RestsDuringAReplacementOfAll)
{
    PutLongLines();
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    manager.SetRegExp(false);
    manager.SetDown(true);
    manager.SetFind(QStringLiteral("longer "));
    manager.SetReplace(QString());
    EXPECT_EQ(manager.ReplaceAll(&control, false), kLines * 60);
    EXPECT_EQ(WrappedLines(), kLines);
    WorkUntil([this] { return WrappedLines() == 0; });
}

TEST_F(BulkWrap, RestsWhileLinesAreCommented)
{
    m_editor.setText(QStringLiteral("x\n").repeated(kLines));
    WorkUntil([this] { return WrappedLines() == 0; });
    control.Reset();
    control.AddSingleLineComment(QStringLiteral("longer ").repeated(60));
    control.SetSel(0, control.GetLength(1), 1);
    ASSERT_TRUE(control.CommentSelection(0, false));
    EXPECT_EQ(WrappedLines(), 0);
    WorkUntil([this] { return WrappedLines() == kLines; });
}

TEST_F(BulkWrap, RestsWhileLinesAreSorted)
{
    QString text;
    for (int line = 0; line < kLines; ++line)
        text += line % 2 ? QStringLiteral("b\n")
                         : QStringLiteral("a longer ").repeated(60) + QStringLiteral("\n");
    m_editor.setText(text);
    WorkUntil([this] { return WrappedLines() == kLines / 2; });
    control.SelectAll(1);
    control.SortLines(true, false, true, 0, -1, -1);
    EXPECT_EQ(WrappedLines(), 0) << "the lines that were put in";
    WorkUntil([this] { return WrappedLines() == kLines / 2; });
    EXPECT_EQ(Top(kLines) - Top(kLines / 2), kLines / 2); // those of "b"
}

} // namespace
