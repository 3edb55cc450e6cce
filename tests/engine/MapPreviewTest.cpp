// SPDX-License-Identifier: GPL-3.0-or-later
// The lines beside the document map: which, when they come and go, where they stand.
#include "tests/engine/MapPreviewFixture.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <functional>

namespace {

using namespace mappreview;

TEST_F(MapPreviewTest, ShowsTheLinesAroundTheMouse)
{
    PutTellable(60);
    EXPECT_FALSE(IsShown());
    RestOver(30);
    ASSERT_TRUE(IsShown());
    EXPECT_EQ(Seen(), FromTo(25, 35, 30));
}

TEST_F(MapPreviewTest, ShowsTheFirstAndTheLastLinesAtTheEnds)
{
    PutTellable(60);
    RestOver(1);
    EXPECT_EQ(Seen(), FromTo(0, 10, 1));
    RestOver(59);
    // The text ends with an empty line.
    EXPECT_EQ(Seen()[0], 50);
    EXPECT_EQ(Seen()[8], 58);
}

TEST_F(MapPreviewTest, ComesWhenTheMouseRestsAndFollowsIt)
{
    PutTellable(60);
    QWindow* window = m_top->windowHandle();
    // Whatever another test has left pressed: no tip comes while a button is down.
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        QTest::mouseRelease(window, button, {}, QPoint(100, 100));
    const auto moveTo = [&](int line) {
        QTest::mouseMove(window, Map().mapTo(m_top, QPoint(30, line * kRow)));
    };
    moveTo(20);
    EXPECT_FALSE(IsShown());
    ASSERT_TRUE(Becomes([this] { return IsShown(); }));
    EXPECT_EQ(Seen(), FromTo(15, 25, 20));
    const QRect before = Preview()->geometry();
    moveTo(40);
    ASSERT_TRUE(Becomes([&] { return Preview()->geometry() != before; }));
    EXPECT_EQ(Seen(), FromTo(35, 45, 40));
    EXPECT_EQ(Preview()->geometry(), before.translated(0, 20 * kRow));
    QTest::mouseMove(window, QPoint(100, 100));
    EXPECT_TRUE(Becomes([this] { return !IsShown(); }));
}

TEST_F(MapPreviewTest, StandsBesideTheMapWithTheLitLineAtTheMouse)
{
    PutTellable(60);
    RestOver(40);
    const QRect map(Map().mapToGlobal(QPoint()), Map().size());
    const QRect place = Preview()->geometry();
    EXPECT_LT(place.right(), map.left());
    EXPECT_GT(place.right(), map.left() - 12);
    EXPECT_NEAR(place.top() + MiddleOf(5, kLines), map.top() + 40 * kRow, 1);
    EXPECT_TRUE(Window().screen()->availableGeometry().contains(place));
}

TEST_F(MapPreviewTest, GoesWithWhateverElseIsDone)
{
    PutTellable(60);
    QWidget other;
    other.setGeometry(700, 60, 50, 50);
    const auto send = [](QWidget& to, QEvent&& event) { QApplication::sendEvent(&to, &event); };
    const std::pair<const char*, std::function<void()>> events[] = {
        {"another text",
         [&] {
             const LRESULT text = m_engine.Send(msg::CreateDocument);
             const LRESULT kept = m_engine.Send(msg::GetDocPointer);
             m_engine.Send(msg::AddRefDocument, 0, kept);
             m_engine.Send(msg::SetDocPointer, 0, text);
             EXPECT_FALSE(IsShown());
             m_engine.Send(msg::SetDocPointer, 0, kept);
             m_engine.Send(msg::ReleaseDocument, 0, kept);
             m_engine.Send(msg::ReleaseDocument, 0, text);
         }},
        {"the mouse leaves", [&] { send(Map(), QEvent(QEvent::Leave)); }},
        {"a key", [&] { QTest::keyClick(&Window(), Qt::Key_Shift); }},
        {"a key elsewhere", [&] { QTest::keyClick(m_top, Qt::Key_F1); }},
        {"the wheel, which cannot scroll here",
         [&] {
             const QPointF place(30, 60);
             QApplication::processEvents();
             send(Map(), QWheelEvent(place, Map().mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                                     Qt::NoModifier, Qt::NoScrollPhase, false));
         }},
        {"a button",
         [&] {
             QTest::mousePress(&Map(), Qt::LeftButton, {}, {30, 60});
         }},
        {"its release",
         [&] {
             QTest::mouseRelease(&Map(), Qt::LeftButton, {}, {30, 60});
         }},
        {"the right one",
         [&] {
             QTest::mouseClick(&Map(), Qt::RightButton, {}, {30, 60});
         }},
        {"the scroll bar", [&] { Window().verticalScrollBar()->setValue(4); }},
        {"a scroll",
         [&] {
             m_engine.Send(msg::LineScroll, 0, 3);
             QApplication::processEvents();
         }},
        {"a scroll across",
         [&] {
             m_engine.Send(msg::SetXOffset, 20);
             QApplication::processEvents();
         }},
        {"typing", [&] { m_engine.Insert(0, u"x"); }},
        {"another size", [&] { Window().resize(590, 400); }},
        {"a window that moves",
         [&] {
             m_top->move(25, 60);
             QApplication::processEvents();
         }},
        {"another window",
         [&] {
             other.show();
             other.activateWindow();
             ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
         }},
        {"no map", [&] { Map().hide(); }},
    };
    for (const auto& [name, happens] : events) {
        SCOPED_TRACE(name);
        Settle();
        if (std::string_view(name) != "its release")
            RestOver(30);
        ASSERT_EQ(IsShown(), std::string_view(name) != "its release");
        happens();
        EXPECT_FALSE(IsShown());
        MoveTo(50);
        EXPECT_FALSE(IsShown()) << "it waits for the mouse to rest anew";
    }
}

TEST_F(MapPreviewTest, IsNotThereWhileTheBoxIsDragged)
{
    PutTellable(60);
    QTest::mousePress(&Map(), Qt::LeftButton, {}, {30, 4});
    RestOver(30);
    EXPECT_FALSE(IsShown());
    QTest::mouseRelease(&Map(), Qt::LeftButton, {}, {30, 4});
    RestOver(30);
    EXPECT_TRUE(IsShown());
}

TEST_F(MapPreviewTest, IsNoneOfAnEmptyTextNorBelowATextsEnd)
{
    Put(u"");
    RestAt(0);
    EXPECT_FALSE(IsShown());
    Put(u"one\ntwo\n");
    RestAt(3 * kRow - 1);
    EXPECT_TRUE(IsShown());
    MoveTo(3 * kRow + 1);
    EXPECT_FALSE(IsShown());
    RestAt(100);
    EXPECT_FALSE(IsShown());
}

TEST_F(MapPreviewTest, LeavesFoldedLinesOut)
{
    PutTellable(60);
    m_engine.Send(msg::HideLines, 22, 49);
    Settle();
    RestOver(20);
    EXPECT_EQ(Seen(), (std::vector<int>{15, 16, 17, 18, 19, -1, 21, 50, 51, 52, 53}));
}

TEST_F(MapPreviewTest, IsDecorationThatTakesNoFocusAndNoMouse)
{
    PutTellable(60);
    const QWindow* focused = QGuiApplication::focusWindow();
    RestOver(30);
    ASSERT_TRUE(IsShown());
    EXPECT_EQ(Preview()->type(), Qt::ToolTip);
    EXPECT_TRUE(Preview()->flags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(Preview()->flags() & Qt::WindowTransparentForInput);
    EXPECT_EQ(QGuiApplication::focusWindow(), focused);
    EXPECT_EQ(Preview()->accessibleRoot(), nullptr);
    const QAccessibleInterface* application = QAccessible::queryAccessibleInterface(qApp);
    ASSERT_NE(application, nullptr);
    for (int i = 0; i < application->childCount(); ++i)
        EXPECT_NE(application->child(i)->object(), Preview());
}

// The best of some, as others may use the processor meanwhile.
TEST_F(MapPreviewTest, TakesFewMillisecondsOfAnyText)
{
    constexpr double kMost = 10;
    Window().resize(Window().screen()->availableGeometry().width() - 40, 400);
    QApplication::processEvents();
    const auto best = [this] {
        double least = 1e9;
        for (int i = 0; i < 20; ++i) {
            QElapsedTimer clock;
            clock.start();
            RestAt(100 + 2 * i);
            least = std::min(least, static_cast<double>(clock.nsecsElapsed()) / 1e6);
            EXPECT_TRUE(IsShown());
        }
        return least;
    };
    std::u16string lines;
    for (int i = 0; i < 400; ++i)
        lines += u"\tselect '\u6F22\u5B57\u05D0' from t -- \u202E some\n";
    std::u16string text;
    while (text.size() < 64U << 20)
        text += lines;
    Put(text);
    const double ofManyLines = best();
    EXPECT_LT(ofManyLines, kMost);
    text =
        lines + std::u16string(10U << 20, u'x') + u'\n' + std::u16string(10U << 20, u'\t') + u'\n';
    std::u16string beforeIt = lines.substr(0, lines.size() / 8);
    Put(beforeIt + text.substr(lines.size()) + beforeIt);
    m_engine.Send(msg::SetZoom, static_cast<WPARAM>(-4));
    const double ofLongLines = best();
    EXPECT_LT(ofLongLines, kMost);
    RecordProperty("milliseconds_many_lines", std::to_string(ofManyLines));
    RecordProperty("milliseconds_long_lines", std::to_string(ofLongLines));
}

} // namespace
