// SPDX-License-Identifier: GPL-3.0-or-later
// Text that is dragged from one window to another, of the same document and of different ones.
#include "control/Selections.h"
#include "tests/engine/EngineFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

class DragBetweenWindows : public testing::Test
{
protected:
    DragBetweenWindows()
    {
        int left = 0;
        for (EngineUnderTest* engine : {&m_first, &m_second}) {
            engine->SetText(u"one two\nthree\n");
            engine->Send(msg::EmptyUndoBuffer);
            QWidget* window = engine->Window()->window();
            window->setGeometry(left, 0, 400, 300);
            engine->Window()->show();
            window->show();
            EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
            left += 400;
        }
    }

    void ShowSame() const
    {
        m_second.Send(msg::SetDocPointer, 0, m_first.Send(msg::GetDocPointer));
    }

    static QWidget* Viewport(const EngineUnderTest& engine)
    {
        return qobject_cast<QAbstractScrollArea*>(engine.Window())->viewport();
    }

    static QPoint PlaceOf(const EngineUnderTest& engine, long position)
    {
        return Viewport(engine)->mapToGlobal(QPoint(
            static_cast<int>(engine.Send(msg::PointXFromPosition, 0, LPARAM{position})) + 1,
            static_cast<int>(engine.Send(msg::PointYFromPosition, 0, LPARAM{position})) + 3));
    }

    static void Mouse(QObject* receiver, QPoint local, QEvent::Type type, QPoint place,
                      Qt::KeyboardModifiers held)
    {
        QMouseEvent event(type, local, place,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, held);
        QApplication::sendEvent(receiver, &event);
    }

    // What is selected in the first window, from a place in it.
    void Drag(long from, long to, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QApplication::processEvents(); // the release of the button before
        QWidget* source = Viewport(m_first);
        const QPoint start = PlaceOf(m_first, from);
        const QPoint end = PlaceOf(m_second, to);
        QTimer::singleShot(0, source, [=] {
            QWindow* window = source->window()->windowHandle();
            Mouse(window, window->mapFromGlobal(end), QEvent::MouseMove, end, held);
            Mouse(window, window->mapFromGlobal(end), QEvent::MouseButtonRelease, end, held);
        });
        Mouse(source, source->mapFromGlobal(start), QEvent::MouseButtonPress, start, {});
        const QPoint on = start + QPoint(3 * QApplication::startDragDistance(), 0);
        Mouse(source, source->mapFromGlobal(on), QEvent::MouseMove, on, {});
    }

    static std::pair<long, long> Selected(const EngineUnderTest& engine)
    {
        return {engine.Send(msg::GetSelectionStart), engine.Send(msg::GetSelectionEnd)};
    }

    bool HasKeys(const EngineUnderTest& engine) const
    {
        return engine.Window()->window()->focusWidget() == engine.Window();
    }

    EngineUnderTest m_first;
    EngineUnderTest m_second;
};

using Range = std::pair<long, long>;

} // namespace

TEST_F(DragBetweenWindows, MovesInOneStepWithinADocument)
{
    ShowSame();
    m_first.Send(msg::SetSel, 0, 4);
    Drag(1, 8);
    EXPECT_EQ(m_first.Text(), u"two\none three\n");
    EXPECT_EQ(Selected(m_second), Range(4, 8));
    EXPECT_EQ(Selected(m_first), Range(0, 0));
    EXPECT_TRUE(HasKeys(m_second));
    m_second.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), u"one two\nthree\n");
    EXPECT_FALSE(m_second.Send(msg::CanUndo));
    m_first.Send(msg::Redo);
    EXPECT_EQ(m_first.Text(), u"two\none three\n");
}

TEST_F(DragBetweenWindows, MovesToAPlaceInFrontToo)
{
    ShowSame();
    m_first.Send(msg::SetSel, 8, 13);
    Drag(9, 4);
    EXPECT_EQ(m_first.Text(), u"one threetwo\n\n");
    EXPECT_EQ(Selected(m_second), Range(4, 9));
    m_second.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), u"one two\nthree\n");
}

TEST_F(DragBetweenWindows, MovesNothingOntoItself)
{
    ShowSame();
    for (const auto& [from, place] : {Range(1, 2), Range(3, 4), Range(0, 0)}) {
        m_first.Send(msg::SetSel, 0, 4);
        Drag(from, place); // from elsewhere each time, which is no double click
        EXPECT_EQ(m_first.Text(), u"one two\nthree\n");
        EXPECT_FALSE(m_first.Send(msg::CanUndo)) << place;
        EXPECT_EQ(Selected(m_second), Range(place, place));
        EXPECT_TRUE(HasKeys(m_second));
    }
}

TEST_F(DragBetweenWindows, MovesColumns)
{
    ShowSame();
    const engine::ColumnCorners corners = {{0, 9}}; // "o" and "t"
    m_first.Send(engine::kSetColumns, 0, &corners);
    Drag(0, 14);
    EXPECT_EQ(m_first.Text(), u"ne two\nhree\no\nt");
    m_second.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), u"one two\nthree\n");
    EXPECT_FALSE(m_second.Send(msg::CanUndo));
}

TEST_F(DragBetweenWindows, CopiesWithControl)
{
    ShowSame();
    m_first.Send(msg::SetSel, 0, 4);
    Drag(1, 8, Qt::ControlModifier);
    EXPECT_EQ(m_first.Text(), u"one two\none three\n");
    EXPECT_EQ(Selected(m_second), Range(8, 12));
    EXPECT_TRUE(HasKeys(m_second));
    m_second.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), u"one two\nthree\n");
    EXPECT_FALSE(m_second.Send(msg::CanUndo));
}

TEST_F(DragBetweenWindows, MovesInAStepOfEachOfTwoDocuments)
{
    m_first.Send(msg::SetSel, 0, 4);
    Drag(1, 8);
    EXPECT_EQ(m_first.Text(), u"two\nthree\n");
    EXPECT_EQ(m_second.Text(), u"one two\none three\n");
    EXPECT_TRUE(HasKeys(m_second));
    m_first.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), u"one two\nthree\n");
    EXPECT_EQ(m_second.Text(), u"one two\none three\n");
    m_second.Send(msg::Undo);
    EXPECT_EQ(m_second.Text(), u"one two\nthree\n");
}
