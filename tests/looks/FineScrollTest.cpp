// SPDX-License-Identifier: GPL-3.0-or-later
// A text that fingers move by pixels.
#include "tests/looks/MovedEditor.h"
#include "tests/looks/TouchScreen.h"

#include <QScrollArea>
#include <QTest>

namespace {

using namespace finescroll;
using Sci = QsciScintillaBase;

TEST(FineScrolling, ShowsThePageMovedByEachPixel)
{
    const Editor editor(Script(15));
    editor.control.MarkerAdd(3, 0, 1);
    editor.control.MarkerAdd(84, 0, 1);
    ExpectEachPixel(editor, PageOf(editor), LastOf(editor, true));
}

// Without a bar below, what has been painted is moved on the screen.
TEST(FineScrolling, ShowsWhatIsMovedAsWhatIsPainted)
{
    const Editor editor(Script(8), {900, 230});
    editor.control.SetScrollWidth(100, 1);
    QApplication::processEvents();
    ASSERT_FALSE(editor.Window().horizontalScrollBar()->isVisible());
    ExpectEachPixel(editor, PageOf(editor), LastOf(editor, true));
}

TEST(FineScrolling, GoesOnToTheLastLineAlone)
{
    const Editor editor(Script(15));
    editor.control.SetEndAtLastLine(0, 1);
    ExpectEachPixel(editor, PageOf(editor), LastOf(editor, false));
}

TEST(FineScrolling, CountsTheRowsOfWrappedLines)
{
    const Editor editor(Script(15), {260, 230});
    editor.control.SetWrapMode(1, 1);
    QApplication::processEvents();
    const QImage page = PageOf(editor, 1);
    ASSERT_GT(LastOf(editor, true), 70 * editor.Height());
    ExpectEachPixel(editor, page, LastOf(editor, true));
}

TEST(FineScrolling, IsTheSameWhereTextGoesFromTheRight)
{
    Editor editor(QString{});
    editor.face.setLayoutDirection(Qt::RightToLeft);
    editor.face.setText(Script(15));
    editor.control.SetScrollWidth(2000, 1);
    QApplication::processEvents();
    ASSERT_GT(editor.Viewport().x(), 0);
    ExpectEachPixel(editor, PageOf(editor), LastOf(editor, true));
}

TEST(FineScrolling, LeavesOutHiddenLines)
{
    const Editor editor(Script(15));
    editor.control.Colorize(0, -1, 1);
    for (const int header : {2, 8, 80})
        editor.control.ToggleFold(header, 1);
    ASSERT_FALSE(editor.control.GetFoldExpanded(8, 1));
    ExpectEachPixel(editor, PageOf(editor), LastOf(editor, true));
}

// The bar for going across takes room from the text.
TEST(FineScrolling, StaysWhereItIsBehindABarThatComes)
{
    const Editor editor(Script(15), {900, 230});
    editor.control.SetScrollWidth(100, 1);
    QApplication::processEvents();
    QScrollBar& across = *editor.Window().horizontalScrollBar();
    ASSERT_FALSE(across.isVisible());
    const QImage page = PageOf(editor);
    editor.Fingers(175);
    editor.control.SetScrollWidth(5000, 1);
    QApplication::processEvents();
    ASSERT_TRUE(across.isVisible());
    EXPECT_EQ(editor.Top(), 175);
    EXPECT_TRUE(IsCutOf(page, 175, Shown(editor)));
    const QRect place(across.mapTo(&editor.Window(), QPoint(0, 0)), across.size());
    const QImage behind = editor.Window().grab(place).toImage();
    ASSERT_TRUE(editor.Gone());
    EXPECT_EQ(behind, editor.Window().grab(place).toImage()); // no text over it
}

TEST(FineScrolling, GoesAcrossAndDownTogether)
{
    const Editor editor(Script(15));
    editor.Fingers(21, 13);
    EXPECT_EQ(editor.control.GetXOffset(1), 13);
    const QImage seen = Shown(editor);
    EXPECT_TRUE(IsCutOf(PageOf(editor), 21, seen));
}

// As many touchpads of X11 have it: parts of a wheel's step, and no end.
TEST(FineScrolling, TakesPartsOfAStepOfATouchpad)
{
    const Touchpad touchpad;
    const Editor editor(Script(15));
    const int step = QApplication::wheelScrollLines() * editor.Height();
    int angle = 0;
    for (; angle < 300; angle += 4)
        editor.Wheel({}, Qt::NoScrollPhase, {0, -4}, &touchpad);
    EXPECT_NEAR(editor.Top(), angle * step / 120, 1);
    EXPECT_TRUE(Becomes([&] { return editor.IsAtLine(); }));
}

TEST(FineScrolling, FollowsAFingerOnTheGlass)
{
    const Editor editor(Script(15));
    QPointingDevice* device = TouchScreen();
    const auto finger = [&] { return QTest::touchEvent(&editor.Viewport(), device); };
    QPoint place(200, 190);
    finger().press(0, place, &editor.Window());
    const auto move = [&](int way) {
        place.ry() -= way;
        finger().move(0, place, &editor.Window());
    };
    move(60); // it takes some way for a movement
    ASSERT_TRUE(Becomes([&] { return editor.Top() > 0; }));
    QTest::qWait(100);
    for (int top = editor.Top() + 7; top < 100 && !HasFailure(); top += 7) {
        move(7);
        EXPECT_TRUE(Becomes([&] { return editor.Top() == top; })) << editor.Top() << " of " << top;
    }
    QTest::qWait(200); // held still, it leaves no swing
    finger().release(0, place, &editor.Window());
    EXPECT_TRUE(Becomes([&] { return editor.IsAtLine(); }));
}

TEST(FineScrolling, TakesTwoFingersForNone)
{
    const Editor editor(Script(15));
    QPointingDevice* device = TouchScreen();
    QWidget* window = &editor.Window();
    const auto touch = [&] { return QTest::touchEvent(&editor.Viewport(), device); };
    touch().press(0, {200, 190}, window).press(1, {240, 190}, window);
    touch().move(0, {200, 90}, window).move(1, {240, 90}, window);
    touch().release(0, {200, 90}, window).release(1, {240, 90}, window);
    QTest::qWait(50);
    EXPECT_EQ(editor.Top(), 0);
    touch().press(0, {200, 190}, window);
    touch().move(0, {200, 130}, window);
    EXPECT_TRUE(Becomes([&] { return editor.Top() == 60; }));
    touch().release(0, {200, 130}, window);
}

TEST(FineScrolling, LeavesWhatGoesNowhereToTheWindowAround)
{
    QScrollArea around;
    auto* editor = new ZNCoreEditorWidget;
    around.setWidget(editor);
    editor->setText(Script(8));
    editor->resize(300, 600);
    around.resize(320, 200);
    around.show();
    QApplication::processEvents();
    auto& window = *static_cast<Sci*>(editor->control().GetSafeHwnd());
    const Touchpad touchpad;
    const auto move = [&] {
        const QPointF place(60, 60);
        QWheelEvent wheel(place, window.viewport()->mapToGlobal(place), {0, -10}, {0, -20},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false,
                          Qt::MouseEventNotSynthesized, &touchpad);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // as others go to no window around
        qApp->notify(window.viewport(), &wheel);
    };
    move();
    EXPECT_EQ(window.viewport()->y(), -10);
    EXPECT_EQ(around.verticalScrollBar()->value(), 0);
    for (int i = 0; i < 100; ++i)
        move();
    EXPECT_EQ(window.verticalScrollBar()->value(), window.verticalScrollBar()->maximum());
    EXPECT_GT(around.verticalScrollBar()->value(), 0);
}

TEST(FineScrolling, TellsInputMethodsWhereTheCaretIsSeen)
{
    const Moving editor;
    editor.control.GotoPos(editor.control.PositionFromLine(13, 1), 1);
    editor.Fingers(5);
    QInputMethodQueryEvent query(Qt::ImCursorRectangle);
    QApplication::sendEvent(&editor.Window(), &query);
    EXPECT_EQ(query.value(Qt::ImCursorRectangle).toRect().top(),
              13 * editor.Height() - editor.Top());
}

TEST(FineScrolling, MovesOnePaneAlone)
{
    Editor first(Script(15));
    Editor second(QString{});
    second.control.SetDocPointer(first.control.GetDocPointer(1), 1);
    QApplication::processEvents();
    first.Fingers(40);
    EXPECT_TRUE(second.IsAtLine());
    EXPECT_EQ(second.Top(), 0);
    second.control.SetDocPointer(0, 1);
}

TEST(FineScrolling, GoesNowhereInATextThatIsSeenWhole)
{
    for (const QString& text : {QString(), QStringLiteral("one"), QStringLiteral("one\ntwo\n")}) {
        const Editor editor(text);
        EXPECT_FALSE(editor.Fingers(9));
        EXPECT_FALSE(editor.Fingers(-9));
        EXPECT_TRUE(editor.IsAtLine());
    }
}

// The taller viewport would show all of it: the bar must not go for that.
TEST(FineScrolling, GoesThroughATextThatIsALineTooLong)
{
    const Editor editor(QString{});
    const int lines = editor.Room().height() / editor.Height() + 1;
    editor.control.SetText(QStringLiteral("line\n").repeated(lines - 1).toStdU16String().c_str(),
                           1);
    QApplication::processEvents();
    ASSERT_EQ(editor.Bar().maximum(), 1);
    ExpectEachPixel(editor, PageOf(editor), editor.Height());
    EXPECT_TRUE(editor.Bar().isVisible());
}

TEST(FineScrolling, CountsMorePixelsThanAnIntHolds)
{
    const Editor editor(QString{});
    constexpr int kAscent = 4000;
    editor.Window().SendScintilla(Sci::SCI_SETEXTRAASCENT, kAscent);
    constexpr int kLines = 600'000;
    editor.control.SetText(std::u16string(kLines, u'\n').c_str(), 1);
    editor.Window().SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, kLines - 9);
    QApplication::processEvents();
    ASSERT_GT(qint64{editor.Height()} * kLines, qint64{1} << 31);
    editor.Fingers(3);
    EXPECT_EQ(editor.Line(), kLines - 9);
    EXPECT_EQ(editor.Viewport().y(), -3);
    editor.Fingers(editor.Height());
    EXPECT_EQ(editor.Line(), kLines - 8);
    EXPECT_EQ(editor.Viewport().y(), -3);
}

} // namespace
