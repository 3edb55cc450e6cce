// SPDX-License-Identifier: GPL-3.0-or-later
// A text that fingers have moved stands at a line again, and is as if it had been scrolled by
// lines.
#include "tests/RandomSeed.h"
#include "tests/looks/MovedEditor.h"

#include <QProxyStyle>
#include <QSignalSpy>
#include <QTest>

#include <cstdio>
#include <functional>
#include <random>
#include <set>

namespace {

using namespace finescroll;

TEST(FineScrolling, TakesAClickForTheCharacterThatIsSeen)
{
    const Moving editor;
    const long wanted = editor.control.PositionFromLine(14, 1) + 4;
    const QPoint place(editor.control.PointXFromPosition(wanted, 1) + 1,
                       14 * editor.Height() - editor.Top() + 2);
    ASSERT_FALSE(editor.IsAtLine());
    QTest::mouseClick(&editor.Viewport(), Qt::LeftButton, {},
                      editor.Viewport().mapFrom(&editor.Window(), place));
    EXPECT_EQ(editor.control.GetCurrentPos(1), wanted);
    EXPECT_FALSE(editor.IsAtLine()); // a second click would mean the same character
    QTest::mouseDClick(&editor.Viewport(), Qt::LeftButton, {},
                       editor.Viewport().mapFrom(&editor.Window(), place));
    EXPECT_EQ(editor.control.LineFromPosition(editor.control.GetSelectionStart(1), 1), 14);
    QTest::mouseRelease(&editor.Viewport(), Qt::LeftButton);
    EXPECT_TRUE(Becomes([&] { return editor.IsAtLine(); }));
}

TEST(FineScrolling, StandsStillUnderAButtonThatIsHeld)
{
    const Moving editor;
    const int top = editor.Top();
    const auto at = [&](int y) {
        return editor.Viewport().mapFrom(&editor.Window(), QPoint(150, y));
    };
    QTest::mousePress(&editor.Viewport(), Qt::LeftButton, {}, at(100));
    editor.Wheel({}, Qt::ScrollEnd);
    QTest::qWait(250); // longer than an end is waited for
    EXPECT_EQ(editor.Top(), top);
    QMouseEvent drag(QEvent::MouseMove, at(150), editor.Viewport().mapToGlobal(at(150)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&editor.Viewport(), &drag);
    QTest::mouseRelease(&editor.Viewport(), Qt::LeftButton, {}, at(150));
    const auto lineOf = [&](long position) { return editor.control.LineFromPosition(position, 1); };
    EXPECT_EQ(lineOf(editor.control.GetSelectionStart(1)), (top + 100) / editor.Height());
    EXPECT_EQ(lineOf(editor.control.GetSelectionEnd(1)), (top + 150) / editor.Height());
    EXPECT_TRUE(Becomes([&] { return editor.IsAtLine(); }));
}

TEST(FineScrolling, IsAfterwardsAsIfScrolledByLines)
{
    for (const int pixels : {1, 8, 9, 16, 17, 100, 5000}) {
        const Editor moved(Script(15));
        const Editor scrolled(Script(15));
        moved.Fingers(pixels);
        EXPECT_EQ(moved.Bar().maximum(), scrolled.Bar().maximum());
        EXPECT_EQ(moved.Bar().pageStep(), scrolled.Bar().pageStep());
        EXPECT_EQ(moved.control.LinesOnScreen(1), scrolled.control.LinesOnScreen(1));
        ASSERT_TRUE(moved.Gone()) << pixels;
        scrolled.control.LineScroll(0, (pixels + 8) / moved.Height(), 1);
        EXPECT_EQ(moved.Line(), scrolled.Line()) << pixels;
        EXPECT_EQ(moved.Bar().value(), scrolled.Bar().value());
        EXPECT_EQ(moved.Bar().maximum(), scrolled.Bar().maximum());
        EXPECT_EQ(moved.control.LinesOnScreen(1), scrolled.control.LinesOnScreen(1));
        EXPECT_EQ(Shown(moved), Shown(scrolled)) << pixels;
    }
}

TEST(FineScrolling, StandsAtALineAtOnceForWhatIsDoneToTheText)
{
    const std::pair<const char*, std::function<void(const Editor&)>> acts[] = {
        {"a key", [](const Editor& e) { QTest::keyClick(&e.Window(), Qt::Key_Right); }},
        {"a letter", [](const Editor& e) { QTest::keyClick(&e.Window(), Qt::Key_A); }},
        {"an edit", [](const Editor& e) { e.control.ReplaceSel(u"x", 1); }},
        {"a scroll", [](const Editor& e) { e.control.LineScroll(0, 2, 1); }},
        {"the bar", [](const Editor& e) { e.Bar().setValue(3); }},
        {"a page", [](const Editor& e) { e.Bar().triggerAction(QScrollBar::SliderPageStepAdd); }},
        {"a selection", [](const Editor& e) { e.control.SetSel(3, 9, 1); }},
        {"zoom", [](const Editor& e) { e.control.ZoomIn(1); }},
        {"wrapping", [](const Editor& e) { e.control.SetWrapMode(1, 1); }},
        {"a fold", [](const Editor& e) { e.control.ToggleFold(2, 1); }},
        {"a size", [](const Editor& e) { const_cast<Editor&>(e).face.resize(400, 190); }},
        {"focus",
         [](const Editor& e) {
             QFocusEvent out(QEvent::FocusOut);
             QApplication::sendEvent(&e.Window(), &out);
         }},
        {"a wheel",
         [](const Editor& e) {
             e.Wheel({}, Qt::NoScrollPhase, {0, -120});
         }},
        {"a composition",
         [](const Editor& e) {
             QInputMethodEvent typed(QStringLiteral("a"), {});
             QApplication::sendEvent(&e.Window(), &typed);
         }},
    };
    for (const auto& [name, act] : acts) {
        const Editor moved(Script(15));
        const Editor scrolled(Script(15));
        moved.Fingers(10 * moved.Height() + 5);
        ASSERT_FALSE(moved.IsAtLine());
        scrolled.control.LineScroll(0, 10, 1);
        act(moved);
        act(scrolled);
        EXPECT_TRUE(moved.IsAtLine()) << name;
        QApplication::processEvents();
        EXPECT_EQ(moved.Line(), scrolled.Line()) << name;
        EXPECT_EQ(moved.Bar().maximum(), scrolled.Bar().maximum()) << name;
    }
}

TEST(FineScrolling, GoesOnWhileTheTextIsMarkedAndMeasured)
{
    const Moving editor;
    const int top = editor.Top();
    editor.control.MarkerAdd(4, 0, 1);
    editor.control.SetMarginWidthN(1, 60, 1);
    editor.control.BraceHighlight(3, 9, 1);
    editor.control.SetScrollWidth(900, 1);
    editor.control.GetText();
    QApplication::processEvents();
    EXPECT_FALSE(editor.IsAtLine());
    EXPECT_EQ(editor.Top(), top);
}

// What is typed into the other pane is an edit of this one as well.
TEST(FineScrolling, StandsAtALineOnceAnotherPaneIsTypedIn)
{
    Editor first(Script(15));
    Editor second(QString{});
    second.control.SetDocPointer(first.control.GetDocPointer(1), 1);
    first.Fingers(40);
    const int last = first.Bar().maximum();
    QSignalSpy range(&first.Bar(), &QScrollBar::rangeChanged);
    second.control.ReplaceSel(u"x\n\n", 1);
    QApplication::processEvents();
    EXPECT_TRUE(first.IsAtLine());
    EXPECT_EQ(first.Bar().maximum(), last + 2);
    ASSERT_FALSE(range.isEmpty());
    EXPECT_EQ(range.last().at(1).toInt(), last + 2);
    second.control.SetDocPointer(0, 1);
}

class StyleAtRest final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

// The places that are seen once the fingers are gone.
std::set<int> PlacesAfter(const Editor& editor)
{
    std::set<int> places;
    editor.Wheel({}, Qt::ScrollEnd);
    EXPECT_TRUE(Becomes([&] {
        places.insert(editor.Top());
        return editor.IsAtLine();
    }));
    return places;
}

TEST(FineScrolling, GlidesToALineWhereThingsAreAnimated)
{
    const Moving editor;
    std::set<int> places = PlacesAfter(editor);
    for (int again = 0; places.size() == 2 && again < 10; ++again) { // on a machine that is busy
        editor.Fingers(5);
        places = PlacesAfter(editor);
    }
    EXPECT_GT(places.size(), 2U);
    EXPECT_EQ(*places.begin(), 10 * editor.Height());
    EXPECT_EQ(*places.rbegin(), 10 * editor.Height() + 5);
}

TEST(FineScrolling, GoesToALineInOneStepWhereNothingIsAnimated)
{
    StyleAtRest style;
    const Moving editor;
    editor.Window().setStyle(&style);
    editor.Fingers(4); // the style has ended it
    const int line = 10 * editor.Height();
    EXPECT_EQ(PlacesAfter(editor), (std::set<int>{line, line + 4}));
}

// Twins, of which one is moved by fingers and the other by lines.
class TwinEditors
{
public:
    explicit TwinEditors(unsigned seed) : m_random(seed) {}

    void Act()
    {
        switch (Any(10)) {
        case 0: {
            const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up,    Qt::Key_Return,
                                    Qt::Key_A,    Qt::Key_Home,     Qt::Key_Delete};
            const Qt::Key key = keys[Any(7)];
            return Both([key](Editor& e) { QTest::keyClick(&e.Window(), key); });
        }
        case 1: {
            const QSize size(250 + Any(300), 60 + Any(300));
            return Both([size](Editor& e) { e.face.resize(size); });
        }
        case 2: {
            const int mode = Any(2);
            return Both([mode](Editor& e) { e.control.SetWrapMode(mode, 1); });
        }
        case 3: {
            const int ends = Any(2);
            return Both([ends](Editor& e) { e.control.SetEndAtLastLine(ends, 1); });
        }
        case 4: {
            const int line = Any(80);
            return Both([line](Editor& e) {
                e.control.Colorize(0, -1, 1); // headers are known where it has been seen
                e.control.ToggleFold(line, 1);
            });
        }
        case 5: {
            const int zoom = Any(5) - 2;
            return Both([zoom](Editor& e) { e.control.SetZoom(zoom, 1); });
        }
        default:
            return Gesture();
        }
    }

    void Compare()
    {
        QApplication::processEvents();
        EXPECT_TRUE(m_moved.IsAtLine());
        EXPECT_EQ(m_moved.Line(), m_scrolled.Line());
        EXPECT_EQ(m_moved.Bar().value(), m_scrolled.Bar().value());
        EXPECT_EQ(m_moved.Bar().maximum(), m_scrolled.Bar().maximum());
        EXPECT_EQ(m_moved.Bar().pageStep(), m_scrolled.Bar().pageStep());
        EXPECT_EQ(m_moved.control.GetCurrentPos(1), m_scrolled.control.GetCurrentPos(1));
        EXPECT_TRUE(Becomes([this] { return Shown(m_moved) == Shown(m_scrolled); }));
    }

private:
    int Any(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }

    // The one is between lines mostly, the other at the line that is nearest.
    template <class What>
    void Both(What act)
    {
        const int height = m_moved.Height();
        const int line = (m_moved.Top() + height / 2) / height;
        m_scrolled.Bar().setValue(line);
        act(m_moved);
        act(m_scrolled);
        Compare();
    }

    void Gesture()
    {
        const int steps = 1 + Any(12);
        for (int step = 0; step < steps; ++step) {
            const int before = m_moved.Top();
            const int way = Any(3) == 0 ? Any(4000) - 2000 : Any(40) - 20;
            m_moved.Fingers(way);
            const int last = LastOf(m_moved, m_moved.control.GetEndAtLastLine(1) != 0);
            EXPECT_EQ(m_moved.Top(), std::clamp(before + way, 0, std::max(0, last)));
            if (Any(4) == 0)
                QApplication::processEvents();
        }
    }

    std::mt19937 m_random;
    Editor m_moved{Script(15)};
    Editor m_scrolled{Script(15)};
};

TEST(FineScrolling, IsAsByLinesWhateverIsDoneBetweenMovements)
{
    const unsigned seed = RandomSeed();
    TwinEditors twins(seed);
    for (int act = 0; act < 150 && !testing::Test::HasFailure(); ++act) {
        SCOPED_TRACE(act);
        twins.Act();
    }
}

} // namespace
