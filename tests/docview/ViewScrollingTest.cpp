// SPDX-License-Identifier: GPL-3.0-or-later
// The bars of a view, and what its neighbours in a splitter do.
#include "ViewFixture.h"

#include "docview/ZNCoreEditorSplitter.h"
#include "platform/docview/SplitterWnd.h"
#include "platform/windows/ScrollBars.h"

#include <QAbstractScrollArea>
#include <QPaintEvent>
#include <QScrollBar>

namespace {

// Counts what a window paints.
class Paints final : public QObject
{
public:
    explicit Paints(CZNCoreEditorControlEx& control)
        : m_viewport(static_cast<QAbstractScrollArea*>(control.GetSafeHwnd())->viewport())
    {
        m_viewport->installEventFilter(this);
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;

private:
    QWidget* m_viewport;
};

class ViewScrolling : public ViewTest
{
protected:
    static SCROLLINFO Record(int last, int page, int position)
    {
        SCROLLINFO info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = last;
        info.nPage = page;
        info.nPos = position;
        return info;
    }
    static LRESULT Set(CView* to, const SCROLLINFO& info, int bar = SB_VERT)
    {
        return SendMessage(to->GetSafeHwnd(), 2101, reinterpret_cast<WPARAM>(&info),
                           bar == SB_VERT ? 0x8001 : 1);
    }
    static SCROLLINFO StateOf(CView* of, int bar = SB_VERT)
    {
        SCROLLINFO info;
        info.fMask = 23;
        EXPECT_TRUE(SendMessage(of->GetSafeHwnd(), 2100, reinterpret_cast<WPARAM>(&info),
                                bar == SB_VERT ? 0x8000 : 0));
        return info;
    }

    // Panes of the document, shown.
    void Split(int rows, int columns)
    {
        CCreateContext context{OpenView::GetThisClass(), doc, &viewed, nullptr};
        ASSERT_TRUE(splitter.CreateStatic(&desk, rows, columns));
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                ASSERT_TRUE(splitter.CreateView(row, column, context));
                Pane(row, column)->m_initialized = 1;
            }
        }
        splitter.GetSafeHwnd()->resize(600, 500);
        desk.resize(600, 500);
        desk.show();
        Settle();
    }
    OpenView* Pane(int row, int column) const
    {
        return static_cast<OpenView*>(splitter.GetPane(row, column));
    }
    CZNCoreEditorSplitter splitter;
};

} // namespace

TEST_F(ViewScrolling, KeepsWhatItIsTold)
{
    EXPECT_EQ(Set(view, Record(200, 20, 7)), 1); // a view outside of a splitter
    const SCROLLINFO state = StateOf(view);
    EXPECT_EQ(state.nMin, 0);
    EXPECT_EQ(state.nMax, 200);
    EXPECT_EQ(state.nPage, 20);
    EXPECT_EQ(state.nPos, 7);
    EXPECT_EQ(state.nTrackPos, 7);
    EXPECT_EQ(StateOf(view, SB_HORZ).nMax, 0) << "the bars are two";
}

TEST_F(ViewScrolling, TakesTheMaskedFieldsAlone)
{
    Set(view, Record(200, 20, 7));
    SCROLLINFO info = Record(999, 5, 9);
    info.fMask = SIF_POS;
    EXPECT_EQ(Set(view, info), 1);
    EXPECT_EQ(StateOf(view).nMax, 200);
    EXPECT_EQ(StateOf(view).nPage, 20);
    EXPECT_EQ(StateOf(view).nPos, 9);
}

TEST_F(ViewScrolling, CutsPageAndPositionToTheRange)
{
    Set(view, Record(10, 4, 500));
    EXPECT_EQ(StateOf(view).nPos, 7);
    Set(view, Record(10, 400, 5));
    EXPECT_EQ(StateOf(view).nPage, 11);
    EXPECT_EQ(StateOf(view).nPos, 0);
    EXPECT_EQ(StateOf(view).nMax, 10);
}

TEST_F(ViewScrolling, ComparesATrackPositionWithThePosition)
{
    Split(2, 1);
    Set(Pane(0, 0), Record(200, 20, 7));
    Paints paints(Pane(1, 0)->GetCoreEditorControlRef());
    SCROLLINFO info;
    info.fMask = SIF_TRACKPOS;
    info.nTrackPos = 7;
    EXPECT_EQ(Set(Pane(0, 0), info), 1);
    EXPECT_EQ(paints.count, 0);
    info.nTrackPos = 8;
    EXPECT_EQ(Set(Pane(0, 0), info), 1);
    EXPECT_EQ(paints.count, 1);
    EXPECT_EQ(StateOf(Pane(0, 0)).nPos, 7) << "and sets none";
}

TEST_F(ViewScrolling, ARecordThatCannotBeSetGivesNothing)
{
    Split(2, 1);
    Paints paints(Pane(1, 0)->GetCoreEditorControlRef());
    SCROLLINFO info = Record(200, 20, 7);
    info.cbSize = 1;
    EXPECT_EQ(Set(Pane(0, 0), info), 0);
    EXPECT_EQ(paints.count, 0);
    EXPECT_FALSE(GetScrollInfo(nullptr, SB_VERT, &info));
}

TEST_F(ViewScrolling, AVerticalChangePaintsThePaneInTheOtherRow)
{
    Split(2, 1);
    Paints own(Pane(0, 0)->GetCoreEditorControlRef());
    Paints other(Pane(1, 0)->GetCoreEditorControlRef());
    EXPECT_EQ(Set(Pane(0, 0), Record(200, 20, 7)), 1);
    EXPECT_EQ(other.count, 1);
    EXPECT_EQ(own.count, 0);
    EXPECT_EQ(Set(Pane(0, 0), Record(200, 20, 7), SB_HORZ), 1);
    EXPECT_EQ(other.count, 1) << "there is one column";
    EXPECT_EQ(StateOf(Pane(1, 0)).nPos, 0) << "each has its own place";
}

TEST_F(ViewScrolling, AHorizontalChangePaintsThePanesBesideIt)
{
    Split(2, 3);
    std::vector<std::unique_ptr<Paints>> paints;
    for (int i = 0; i < 6; ++i)
        paints.push_back(std::make_unique<Paints>(Pane(i / 3, i % 3)->GetCoreEditorControlRef()));
    Set(Pane(1, 1), Record(200, 20, 7), SB_HORZ);
    std::vector<int> counts;
    for (const auto& watched : paints)
        counts.push_back(watched->count);
    EXPECT_EQ(counts, (std::vector<int>{0, 0, 0, 1, 0, 1}));
    Set(Pane(1, 1), Record(200, 20, 7));
    EXPECT_EQ(paints[1]->count, 1);
}

TEST_F(ViewScrolling, AnUnchangedStatePaintsNoNeighbour)
{
    Split(2, 1);
    Set(Pane(0, 0), Record(200, 20, 7));
    Put("()", 0, 0);
    Pane(0, 0)->GetCoreEditorControl()->SetBraces(QStringLiteral("()"));
    Paints other(Pane(1, 0)->GetCoreEditorControlRef());
    EXPECT_EQ(Set(Pane(0, 0), Record(200, 20, 7)), 1);
    EXPECT_EQ(other.count, 0);
}

TEST_F(ViewScrolling, PaintsNoNeighbourBeforeItsDocumentIsShown)
{
    Split(2, 1);
    Pane(0, 0)->m_initialized = 0;
    Paints other(Pane(1, 0)->GetCoreEditorControlRef());
    EXPECT_EQ(Set(Pane(0, 0), Record(200, 20, 7)), 1);
    EXPECT_EQ(other.count, 0);
    EXPECT_EQ(StateOf(Pane(0, 0)).nPos, 7);
}

TEST_F(ViewScrolling, FollowsTheEngine)
{
    desk.resize(300, 200);
    view->GetSafeHwnd()->setParent(&desk);
    view->GetSafeHwnd()->resize(300, 200);
    desk.show();
    Put(QString(500, u'\n'), 0, 0);
    Settle();
    const SCROLLINFO before = StateOf(view);
    EXPECT_GE(before.nMax, 500);
    EXPECT_GT(before.nPage, 2);
    Control().LineScroll(0, 123, 1);
    Settle();
    EXPECT_EQ(StateOf(view).nPos, 123);
    EXPECT_EQ(Control().GetFirstVisibleLine(1), 123);
    view->GetSafeHwnd()->setParent(nullptr);
}

TEST_F(ViewScrolling, HandsItsOwnBarsToTheEngine)
{
    desk.resize(300, 200);
    view->GetSafeHwnd()->setParent(&desk);
    view->GetSafeHwnd()->resize(300, 200);
    desk.show();
    Put(QString(200000, u'\n'), 0, 0);
    Settle();
    QScrollBar* bar = ScrollBarOf(view->GetSafeHwnd(), SB_VERT);
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(Control().GetFirstVisibleLine(1), 1);
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_GT(Control().GetFirstVisibleLine(1), 3);
    bar->triggerAction(QAbstractSlider::SliderToMinimum);
    EXPECT_EQ(Control().GetFirstVisibleLine(1), 0);
    bar->setSliderPosition(150000); // beyond what the message has room for
    EXPECT_EQ(Control().GetFirstVisibleLine(1), 150000);
    SendMessage(view->GetSafeHwnd(), 277, ScrollParam(SB_THUMBPOSITION, 40), 0);
    EXPECT_EQ(Control().GetFirstVisibleLine(1), 40);
    SendMessage(view->GetSafeHwnd(), 277, ScrollParam(SB_LINEUP, 0), 0);
    EXPECT_EQ(Control().GetFirstVisibleLine(1), 39);
    view->GetSafeHwnd()->setParent(nullptr);
}

TEST_F(ViewScrolling, TwoViewsLeaveTheFlagToTheSavePoint)
{
    OpenView* further = FurtherView();
    Type(doc, "x");
    SendMessage(view->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_TRUE(doc->IsModified());
    Control().Undo(1);
    doc->CDocument::SetModifiedFlag(1); // as if no save point had been told
    SendMessage(view->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_TRUE(doc->IsModified());
    view->Hear(notify::SavePointReached);
    EXPECT_FALSE(doc->IsModified());
    EXPECT_NE(further, view);
}

TEST_F(ViewScrolling, AnEditBeforeTheDocumentIsShownChangesNothing)
{
    view->m_initialized = 0;
    doc->CDocument::SetModifiedFlag(1);
    SendMessage(view->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_TRUE(doc->IsModified());
    view->m_initialized = 1;
    SendMessage(view->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_FALSE(doc->IsModified());
}
