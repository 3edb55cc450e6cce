// SPDX-License-Identifier: GPL-3.0-or-later
// Batches, catalogs and problems in the workbench.
#include "control/Analysis.h"
#include "control/ErrorInfo.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/problems/ProblemPane.h"
#include "host/problems/ScriptChecker.h"
#include "tests/host/WorkbenchTest.h"

#include <QStatusBar>
#include <QTreeWidget>

namespace {

constexpr int kBatchMarker = 10;

class WorkbenchProblems : public WorkbenchTest
{
protected:
    QTreeWidget& List() const
    {
        return *m_window.findChild<ProblemPane*>()->findChild<QTreeWidget*>();
    }

    // The lines with the bar, from 0.
    QList<int> MarkedLines() const
    {
        QList<int> lines;
        for (int line = 0; line < Editor().GetLineCount(1); ++line) {
            if (Editor().MarkerGet(line, 1) & (1 << kBatchMarker))
                lines << line;
        }
        return lines;
    }

    void GoTo(long position)
    {
        Editor().GotoPos(position, 1);
        Editor().Colorize(0, -1, 1);
        Editor().GetSafeHwnd()->repaint();
        Settle();
    }
};

TEST_F(WorkbenchProblems, MarkTheBatchAroundTheCaret)
{
    m_window.show();
    Open("a.tsql", "select 1\nselect 2\ngo\nselect 3\ngo\n");
    GoTo(0);
    EXPECT_EQ(MarkedLines(), QList<int>({0, 1}));
    GoTo(23);
    EXPECT_EQ(MarkedLines(), QList<int>({3}));
}

TEST_F(WorkbenchProblems, MarkTheBatchOfTheActivePaneAlone)
{
    m_window.show();
    Open("a.tsql", "select 1\nselect 2\ngo\nselect 3\ngo\n");
    GoTo(0);
    Trigger("splitBelow");
    Frame().View()->SetFocus();
    GoTo(23);
    EXPECT_EQ(MarkedLines(), QList<int>({3}));
    Trigger("otherPane");
    Settle();
    EXPECT_EQ(MarkedLines(), QList<int>({0, 1}));
}

TEST_F(WorkbenchProblems, MarkTheBatchInTheColoursOfTheDesktop)
{
    const auto shows = [this](QRgb colour) {
        GoTo(0);
        const QImage picture = Editor().GetSafeHwnd()->grab().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) == colour)
                    return true;
            }
        }
        return false;
    };
    constexpr QRgb kLight = 0xFF9DB8D9;
    constexpr QRgb kDark = 0xFF4B6484;
    m_window.show();
    Open("a.tsql", "select 1\nselect 2\ngo\nselect 3\ngo\n");
    EXPECT_TRUE(shows(kLight));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    QApplication::processEvents();
    EXPECT_TRUE(shows(kDark));
    QApplication::setPalette(before);
    QApplication::processEvents();
    EXPECT_TRUE(shows(kLight));
}

TEST_F(WorkbenchProblems, MarkNoLineTwiceWhenTwoAreJoined)
{
    m_window.show();
    Open("a.tsql", "select 1\nselect 2\ngo\nselect 3\ngo\n");
    GoTo(0);
    Editor().SetSel(8, 9, 1);
    Editor().Clear(1);
    GoTo(22);
    EXPECT_EQ(MarkedLines(), QList<int>({2}));
}

TEST_F(WorkbenchProblems, MarkNothingInAScriptOfOneBatch)
{
    m_window.show();
    Open("a.tsql", "select 1\nselect 2\n");
    GoTo(0);
    EXPECT_EQ(MarkedLines(), QList<int>());
}

TEST_F(WorkbenchProblems, ShowTheCatalogInForce)
{
    Open("a.tsql", "select 1\nuse [sales db]\nselect 2\n");
    GoTo(0);
    EXPECT_EQ(Status("catalog"), QString());
    GoTo(Editor().GetLength(1));
    EXPECT_EQ(Status("catalog"), QStringLiteral("sales db"));
}

TEST_F(WorkbenchProblems, AreListedOnceTheScriptIsOpen)
{
    Open("a.sqlite", "create table t (a);\nselekt 1;\nselect b from t;\n");
    Script().Checker()->Check();
    ASSERT_EQ(List().topLevelItemCount(), 2);
    EXPECT_EQ(List().topLevelItem(0)->text(0), QStringLiteral("2"));
    EXPECT_TRUE(List().topLevelItem(0)->text(2).contains(QStringLiteral("selekt")));
    EXPECT_EQ(List().topLevelItem(1)->text(0), QStringLiteral("3"));
    EXPECT_EQ(List().topLevelItem(1)->text(2), QStringLiteral("no such column: b"));
}

TEST_F(WorkbenchProblems, AreMarkedInTheText)
{
    Open("a.pgsql", "select 1;\nselekt 2;\n");
    Script().Checker()->Check();
    const ErrorInfo* found = Editor().ErrorGetOverPos(12, 1);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->nStart, 10);
    EXPECT_EQ(found->nEnd, 16);
    EXPECT_NE(Editor().MarkerGet(1, 1) & (1 << 2), 0);
    EXPECT_EQ(Editor().MarkerGet(0, 1) & (1 << 2), 0);
}

TEST_F(WorkbenchProblems, GoWhenTheyAreMended)
{
    Open("a.pgsql", "selekt 2;\n");
    Script().Checker()->Check();
    ASSERT_EQ(List().topLevelItemCount(), 1);
    Editor().SetSel(0, 6, 1);
    Type(u"select");
    Script().Checker()->Check();
    EXPECT_EQ(List().topLevelItemCount(), 0);
    EXPECT_EQ(Editor().ErrorGetFirst(problem::kAny, 1), nullptr);
}

TEST_F(WorkbenchProblems, LeadToTheirPlace)
{
    Open("a.pgsql", "select 1;\nselekt 2;\n");
    Script().Checker()->Check();
    ASSERT_EQ(List().topLevelItemCount(), 1);
    Q_EMIT List().itemActivated(List().topLevelItem(0), 0);
    EXPECT_EQ(Editor().GetSelectionStart(1), 10);
    EXPECT_EQ(Editor().GetSelectionEnd(1), 16);
}

TEST_F(WorkbenchProblems, AreReachedOneByOneByAKey)
{
    Open("a.pgsql", "selekt 1;\nselekt 2;\n");
    Script().Checker()->Check();
    GoTo(0);
    Trigger("nextProblem");
    EXPECT_EQ(Editor().GetSelectionStart(1), 10);
    Trigger("nextProblem");
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
}

TEST_F(WorkbenchProblems, AreReachedBackwardsToo)
{
    Open("a.pgsql", "selekt 1;\nselekt 2;\nselekt 3;\n");
    Script().Checker()->Check();
    GoTo(15);
    QList<long> reached;
    for (int i = 0; i < 4; ++i) {
        Trigger("previousProblem");
        reached << Editor().GetSelectionStart(1);
    }
    EXPECT_EQ(reached, QList<long>({10, 0, 20, 10}));
}

TEST_F(WorkbenchProblems, AreSelectedInTheListAsAKeyReachesThem)
{
    Open("a.pgsql", "selekt 1;\nselekt 2;\n");
    Script().Checker()->Check();
    GoTo(0);
    const auto current = [this] { return List().indexOfTopLevelItem(List().currentItem()); };
    EXPECT_EQ(current(), -1);
    Trigger("nextProblem");
    EXPECT_EQ(current(), 1);
    EXPECT_TRUE(List().topLevelItem(1)->isSelected());
    Q_EMIT Script().ProblemsChanged(); // the same ones again
    EXPECT_EQ(current(), 1);
    Trigger("previousProblem");
    EXPECT_EQ(current(), 0);
}

TEST_F(WorkbenchProblems, AreNotTheLinesOfThePreProcessor)
{
    Open("a.pgsql", "#include sub/more.sql\n#define &&T orders\nselect 1;\nselect &&T from;\n"
                    "  #include x.sql\nselekt 2;\n");
    Script().Checker()->Check();
    ASSERT_EQ(List().topLevelItemCount(), 1);
    EXPECT_EQ(List().topLevelItem(0)->text(0), QStringLiteral("6"));
}

TEST_F(WorkbenchProblems, AreThoseOfTheScriptInFront)
{
    Open("a.pgsql", "selekt 2;\n");
    Script().Checker()->Check();
    Open("b.tsql", "selekt 2\n");
    EXPECT_EQ(List().topLevelItemCount(), 0);
    Trigger("previous");
    EXPECT_EQ(List().topLevelItemCount(), 1);
}

TEST_F(WorkbenchProblems, AreCountedInTheStatusBarUntilTheirListIsAskedFor)
{
    Open("a.pgsql", "selekt 1;\nselekt 2;\n");
    Script().Checker()->Check();
    auto* count = m_window.findChild<QLabel*>(QStringLiteral("problemCount"));
    EXPECT_EQ(count->text(), QStringLiteral("Problems: 2"));
    const auto* pane = m_window.findChild<ProblemPane*>();
    EXPECT_TRUE(pane->isHidden());
    m_window.OpenField(count->objectName());
    EXPECT_TRUE(pane->isVisible());
    Trigger("nextProblem");
    EXPECT_EQ(m_window.statusBar()->currentMessage(), List().topLevelItem(1)->text(2));
    Editor().SetSel(0, -1, 1);
    Type(u"select 1;");
    Script().Checker()->Check();
    EXPECT_TRUE(count->parentWidget()->isHidden());
}

} // namespace
