// SPDX-License-Identifier: GPL-3.0-or-later
// Panes in rows and columns: how they are made, numbered, drawn and taken away.
#include "ViewFixture.h"

#include "docview/ZNCoreEditorSplitter.h"
#include "platform/docview/SplitterParts.h"
#include "platform/windows/DeviceContext.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/VisualManager.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QRubberBand>
#include <QTest>

namespace {

class Look final : public CBCGPVisualManager
{
public:
    Look() { SetInstance(this); }
    ~Look() override { SetInstance(nullptr); }
    void OnDrawSplitterBorder(CDC&, CWnd&, const RECT& rect) override { Note("border", rect); }
    void OnDrawSplitterBox(CDC&, CWnd&, RECT& rect) override
    {
        Note("box", rect);
        rect.left += 2;
    }
    void OnFillSplitterBackground(CDC&, CWnd&, const RECT& rect) override { Note("fill", rect); }
    void Note(const char* what, const RECT& rect)
    {
        drawn << QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(rect.left);
    }
    QStringList drawn;
};

class OpenSplitter final : public CZNCoreEditorSplitter
{
public:
    void OnPaneMade(CView& made, CView& divided) override
    {
        CZNCoreEditorSplitter::OnPaneMade(made, divided);
        beside << &divided;
    }
    QList<CView*> beside;
};

class Splitter : public ViewTest
{
protected:
    void Make(int maxRows, int maxColumns)
    {
        frame->LoadFrame(nullptr);
        CCreateContext context{OpenView::GetThisClass(), doc, &viewed, frame};
        ASSERT_TRUE(splitter.Create(frame->GetSafeHwnd(), maxRows, maxColumns, context));
        frame->GetSafeHwnd()->resize(600, 500);
        splitter.GetSafeHwnd()->resize(600, 500);
        frame->GetSafeHwnd()->show();
        Put(QString(500, u'\n'), 0, 0);
        Settle();
    }
    ~Splitter() override
    {
        splitter.DestroyWindow();
        if (frame->GetSafeHwnd())
            frame->DestroyWindow(); // it goes with its window
        else
            delete frame;
        Disposal::Run();
    }
    std::vector<UINT> Numbers() const
    {
        std::vector<UINT> numbers;
        for (int row = 0; row < splitter.GetRowCount(); ++row) {
            for (int column = 0; column < splitter.GetColumnCount(); ++column) {
                const CWnd* pane = splitter.GetPane(row, column);
                numbers.push_back(pane ? GetDlgCtrlID(pane->GetSafeHwnd()) : 0);
            }
        }
        return numbers;
    }
    SplitBox* Box(const char* name) const
    {
        return splitter.GetSafeHwnd()->findChild<SplitBox*>(QLatin1String(name));
    }

    OpenSplitter splitter;
    CFrameWnd* frame = new CFrameWnd;
};

} // namespace

TEST_F(Splitter, NumbersItsPanesBySixteenARow)
{
    Make(2, 2);
    EXPECT_EQ(Numbers(), std::vector<UINT>{59648});
    EXPECT_TRUE(splitter.SplitRow(200));
    EXPECT_TRUE(splitter.SplitColumn(0));
    EXPECT_EQ(Numbers(), (std::vector<UINT>{59648, 59649, 59664, 59665}));
    EXPECT_EQ(doc->GetViews().size(), 5u) << "with the one of the test";
    int row = 9;
    int column = 9;
    EXPECT_TRUE(splitter.IsChildPane(splitter.GetPane(1, 0), &row, &column));
    EXPECT_EQ(std::pair(row, column), std::pair(1, 0));
    EXPECT_FALSE(splitter.IsChildPane(view, &row, &column));
    EXPECT_EQ(CSplitterWnd::Around(splitter.GetPane(1, 1)->GetSafeHwnd()), &splitter);
    EXPECT_EQ(CSplitterWnd::Around(view->GetSafeHwnd()), nullptr);
}

TEST_F(Splitter, HasNoMoreThanItIsAllowed)
{
    Make(2, 1);
    EXPECT_TRUE(splitter.SplitRow(0));
    EXPECT_FALSE(splitter.SplitRow(0));
    EXPECT_FALSE(splitter.SplitColumn(0));
    EXPECT_EQ(Numbers().size(), 2u);
}

TEST_F(Splitter, DividesAtThePlaceOrInTheMiddle)
{
    Make(2, 2);
    splitter.SplitRow(150);
    Settle();
    EXPECT_NEAR(splitter.GetPane(0, 0)->GetSafeHwnd()->height(), 150, 1);
    splitter.DeleteRow(1);
    splitter.SplitRow(499);
    Settle();
    EXPECT_NEAR(splitter.GetPane(0, 0)->GetSafeHwnd()->height(), 246, 2);
}

TEST_F(Splitter, TakesTwentySplitsAndTheirEnd)
{
    Make(16, 16);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(splitter.SplitRow(0), i < 15) << i;
    Settle();
    EXPECT_EQ(Numbers().back(), 59648u + 16 * 15);
    while (splitter.GetRowCount() > 1)
        splitter.DeleteRow(splitter.GetRowCount() / 2);
    splitter.DeleteRow(0);
    Settle();
    EXPECT_EQ(Numbers(), std::vector<UINT>{59648});
    EXPECT_EQ(doc->GetViews().size(), 2u);
}

TEST_F(Splitter, RenumbersWhatIsLeft)
{
    Make(2, 2);
    splitter.SplitRow(0);
    splitter.SplitColumn(0);
    const CWnd* last = splitter.GetPane(1, 1);
    splitter.DeleteRow(0);
    EXPECT_EQ(splitter.GetPane(0, 1), last);
    splitter.DeleteColumn(0);
    EXPECT_EQ(splitter.GetPane(0, 0), last);
    EXPECT_EQ(Numbers(), std::vector<UINT>{59648});
    Settle();
    EXPECT_EQ(splitter.GetPane(0, 0)->GetSafeHwnd()->width(), 600);
}

TEST_F(Splitter, WalksThroughItsPanesInBothDirections)
{
    Make(2, 2);
    splitter.SplitRow(0);
    splitter.SplitColumn(0);
    splitter.SetActivePane(0, 0);
    std::vector<int> walk;
    for (int i = 0; i < 5; ++i) {
        int row = 0;
        int column = 0;
        splitter.GetActivePane(&row, &column);
        walk.push_back(10 * row + column);
        splitter.ActivateNext();
    }
    EXPECT_EQ(walk, (std::vector<int>{0, 1, 10, 11, 0}));
    splitter.ActivateNext(true);
    splitter.ActivateNext(true);
    int row = 0;
    splitter.GetActivePane(&row);
    EXPECT_EQ(row, 1);
}

TEST_F(Splitter, KeepsColumnsAsWideInEveryRow)
{
    Make(2, 2);
    splitter.SplitRow(0);
    splitter.SplitColumn(0);
    Settle();
    auto* first = qobject_cast<QSplitter*>(GetParent(splitter.GetPane(0, 0)->GetSafeHwnd()));
    QTest::mousePress(first->handle(1), Qt::LeftButton, {}, QPoint(3, 9));
    QTest::mouseMove(first->handle(1), QPoint(-97, 9));
    QTest::mouseRelease(first->handle(1), Qt::LeftButton, {}, QPoint(3, 9));
    Settle();
    EXPECT_LT(splitter.GetPane(0, 0)->GetSafeHwnd()->width(), 230);
    EXPECT_EQ(splitter.GetPane(0, 0)->GetSafeHwnd()->width(),
              splitter.GetPane(1, 0)->GetSafeHwnd()->width());
}

TEST_F(Splitter, IsDividedByDrawingItsBox)
{
    Make(2, 1);
    ASSERT_TRUE(Box("rowBox"));
    EXPECT_FALSE(Box("columnBox"));
    QTest::mousePress(Box("rowBox"), Qt::LeftButton, {}, QPoint(3, 3));
    QTest::mouseMove(Box("rowBox"), QPoint(3, 180));
    Settle();
    EXPECT_EQ(splitter.GetPane(0, 0)->GetSafeHwnd()->height(), 500) << "a line is drawn over it";
    EXPECT_TRUE(splitter.GetSafeHwnd()->window()->findChild<QRubberBand*>());
    QTest::mouseRelease(Box("rowBox"), Qt::LeftButton, {}, QPoint(3, 180));
    Settle();
    ASSERT_EQ(splitter.GetRowCount(), 2);
    EXPECT_NEAR(splitter.GetPane(0, 0)->GetSafeHwnd()->height(), 180, 4);
    EXPECT_FALSE(Box("rowBox")) << "no further row is allowed";
    EXPECT_EQ(splitter.beside, QList<CView*>{static_cast<CView*>(splitter.GetPane(0, 0))});
}

TEST_F(Splitter, TakesTheLineAlongWhenItsBoxGoesBeforeTheButtonIsUp)
{
    Make(2, 1);
    QTest::mousePress(Box("rowBox"), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_TRUE(splitter.GetSafeHwnd()->window()->findChild<QRubberBand*>());
    splitter.SplitRow(200); // by a key
    Settle();
    ASSERT_FALSE(Box("rowBox"));
    EXPECT_FALSE(splitter.GetSafeHwnd()->window()->findChild<QRubberBand*>());
}

TEST_F(Splitter, LeavesTheScrollBarAllButAFewPixelsForItsBox)
{
    Make(2, 2);
    for (auto* area : splitter.GetSafeHwnd()->findChildren<QAbstractScrollArea*>()) {
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    }
    Settle();
    constexpr int kLittle = 10;
    EXPECT_LE(Box("rowBox")->height(), kLittle);
    EXPECT_LE(Box("columnBox")->width(), kLittle);
}

TEST_F(Splitter, IsDividedInTheMiddleByADoubleClickAndJoinedByAnother)
{
    Make(2, 1);
    QTest::mouseDClick(Box("rowBox"), Qt::LeftButton, {}, QPoint(3, 3));
    Settle();
    ASSERT_EQ(splitter.GetRowCount(), 2);
    splitter.SetActivePane(1, 0);
    const CWnd* active = splitter.GetPane(1, 0);
    auto* panes = qobject_cast<QSplitter*>(splitter.GetSafeHwnd());
    QTest::mouseDClick(panes->handle(1), Qt::LeftButton, {}, QPoint(9, 3));
    Settle();
    ASSERT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), active);
    EXPECT_TRUE(Box("rowBox"));
}

TEST_F(Splitter, LosesThePaneThatIsDrawnToNothing)
{
    Make(2, 1);
    splitter.SplitRow(0);
    Settle();
    const CWnd* below = splitter.GetPane(1, 0);
    auto* panes = qobject_cast<QSplitter*>(splitter.GetSafeHwnd());
    panes->setSizes({0, 493});
    splitter.OnBarReleased(true);
    ASSERT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), below);
}

TEST_F(Splitter, StandsWithoutRoom)
{
    Make(4, 4);
    splitter.SplitRow(0);
    splitter.SplitColumn(0);
    frame->GetSafeHwnd()->resize(0, 0);
    splitter.GetSafeHwnd()->resize(0, 0);
    Settle();
    EXPECT_TRUE(splitter.SplitRow(5));
    EXPECT_TRUE(splitter.SplitColumn(-5));
    Settle();
    EXPECT_EQ(Numbers().size(), 9u);
}

TEST_F(Splitter, RefusesNumbersThatAreNone)
{
    CCreateContext context{OpenView::GetThisClass(), doc, &viewed, nullptr};
    EXPECT_FALSE(splitter.Create(&desk, 0, 1, context));
    EXPECT_FALSE(splitter.Create(&desk, 1, 17, context));
    EXPECT_FALSE(splitter.SplitRow(0));
    EXPECT_EQ(splitter.GetPane(0, 0), nullptr);
    EXPECT_TRUE(splitter.CreateStatic(&desk, 1, 2));
    EXPECT_FALSE(splitter.CreateView(0, 2, context));
    EXPECT_FALSE(splitter.CreateView(-1, 0, context));
    EXPECT_TRUE(splitter.CreateView(0, 1, context));
    EXPECT_FALSE(splitter.CreateView(0, 1, context)) << "there is one";
    EXPECT_EQ(splitter.GetPane(0, 0), nullptr);
    EXPECT_FALSE(splitter.SplitColumn(0)) << "not by the user";
}

TEST_F(Splitter, DrawsItsPartsAsTheHostsLookHasThem)
{
    Look look;
    QImage image(40, 40, QImage::Format_RGB32);
    QPainter painter(&image);
    CDC dc(painter);
    const auto draw = [&](CSplitterWnd::ESplitType type) {
        look.drawn.clear();
        splitter.OnDrawSplitter(&dc, type, {3, 0, 30, 10});
        return look.drawn;
    };
    EXPECT_EQ(draw(CSplitterWnd::splitBorder), QStringList{"border 3"});
    EXPECT_EQ(draw(CSplitterWnd::splitBox), (QStringList{"box 3", "fill 5"}));
    EXPECT_EQ(draw(CSplitterWnd::splitBar), QStringList{"fill 3"});
    EXPECT_EQ(draw(CSplitterWnd::splitIntersection), QStringList{"fill 3"});
}

TEST_F(Splitter, IsPaintedAgainWithoutAContext)
{
    Make(2, 1);
    splitter.SplitRow(0);
    Settle();
    Look look;
    splitter.OnDrawSplitter(nullptr, CSplitterWnd::splitBar, {0, 0, 600, 500});
    EXPECT_TRUE(look.drawn.isEmpty());
    Settle();
    EXPECT_TRUE(look.drawn.contains("fill 0")) << "the bar between the rows";
}
