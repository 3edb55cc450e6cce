// SPDX-License-Identifier: GPL-3.0-or-later
// Settings that are not seen: code pages, notifications, lexers, the mouse and the focus.
#include "tests/engine/effects/EffectsFixture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace msg = engine::message;

namespace {

class Settings : public Effects
{
protected:
    void Mouse(QEvent::Type type, int column) const
    {
        const QPointF at(1 + ColumnAt(column), LineHeight() / 2);
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, at, Viewport()->mapToGlobal(at),
                          isMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(Viewport(), &event);
    }
};

} // namespace

// The text is Unicode to everybody outside.
TEST_F(Settings, NoCodePageChangesTheText)
{
    m_engine.SetText(u"\u00e9\U0001F600\u4e2d");
    for (const WPARAM page : {0, 932, 1252}) {
        m_engine.Send(msg::SetCodePage, page);
        EXPECT_EQ(m_engine.Send(msg::GetCodePage), 65001);
        EXPECT_EQ(m_engine.Text(), u"\u00e9\U0001F600\u4e2d");
        EXPECT_EQ(m_engine.Send(msg::PositionAfter, 1), 3); // a pair is one character
    }
}

// All of a byte is style.
TEST_F(Settings, EveryUnitHasEightBitsOfStyle)
{
    m_engine.SetText(u"a");
    m_engine.Send(msg::SetStyleBits, 5);
    EXPECT_EQ(m_engine.Send(msg::GetStyleBits), 8);
    m_engine.Send(msg::StartStyling, 0, LPARAM{0xFF});
    m_engine.Send(msg::SetStyling, 1, LPARAM{200});
    EXPECT_EQ(m_engine.Send(msg::GetStyleAt, 0), 200);
    std::u16string cells(4, u'#');
    TextRange range{{0, 1}, cells.data()};
    EXPECT_EQ(m_engine.Send(msg::GetStyledText, 0, &range), 2);
    EXPECT_EQ(cells, std::u16string(u"a\u00c8\0\0", 4));
}

TEST_F(Settings, AMaskChoosesWhichChangesAreTold)
{
    const auto told = [this](int mask) {
        m_engine.Send(msg::SetModEventMask, static_cast<WPARAM>(mask));
        EXPECT_EQ(m_engine.Send(msg::GetModEventMask), mask);
        m_engine.SetText(u"text");
        m_engine.Parent().heard.clear();
        m_engine.Insert(0, u"x");
        m_engine.Erase(0, 2);
        int bits = 0;
        for (const Heard& each : m_engine.Parent().Of(notify::Modified))
            bits |= each.record.modificationType &
                    (modification::InsertText | modification::DeleteText);
        return bits;
    };
    EXPECT_EQ(told(0), 0);
    EXPECT_EQ(told(modification::InsertText), modification::InsertText);
    EXPECT_EQ(told(modification::DeleteText), modification::DeleteText);
}

// The lexers are those that the engine has.
TEST_F(Settings, NoLexersAreLoadedFromOutside)
{
    constexpr WPARAM kTransactSql = 3;
    m_engine.Send(msg::SetLexer, kTransactSql);
    m_engine.Send(msg::LoadLexerLibrary, 0, u"/nowhere/lexers.so");
    EXPECT_EQ(m_engine.Send(msg::GetLexer), LRESULT{kTransactSql});
    m_engine.SetText(u"-- a comment");
    m_engine.Send(msg::Colorize, 0, LPARAM{-1});
    EXPECT_NE(m_engine.Send(msg::GetStyleAt, 4), 0);
}

// The widget system sends a drag to the window in which it began, captured or not.
TEST_F(Settings, ADragSelectsWhetherOrNotTheMouseIsCaptured)
{
    const auto dragged = [this](LRESULT captures) {
        m_engine.Send(msg::SetMouseDownCaptures, static_cast<WPARAM>(captures));
        EXPECT_EQ(m_engine.Send(msg::GetMouseDownCaptures), captures);
        Place(u"|abcdef");
        Mouse(QEvent::MouseButtonPress, 1);
        Mouse(QEvent::MouseMove, 4);
        Mouse(QEvent::MouseButtonRelease, 4);
        return SelectedOfLine(0);
    };
    EXPECT_EQ(dragged(1), u"bcd");
    EXPECT_EQ(dragged(0), u"bcd");
}

TEST_F(Settings, AMouseThatRestsIsTold)
{
    constexpr LRESULT kNever = 10000000;
    EXPECT_EQ(m_engine.Send(msg::GetMouseDwellTime), kNever);
    m_engine.SetText(u"abcdef");
    m_engine.Send(msg::SetMouseDwellTime, 1);
    EXPECT_EQ(m_engine.Send(msg::GetMouseDwellTime), 1);
    const QPointF at(1 + ColumnAt(3), LineHeight() / 2);
    QMouseEvent move(QEvent::MouseMove, at, Viewport()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(Viewport(), &move);
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return !m_engine.Parent().Of(notify::DwellStart).empty(); }));
    EXPECT_EQ(m_engine.Parent().Of(notify::DwellStart)[0].record.position, 3);
}

TEST_F(Settings, AWindowTakesTheFocusWhenItIsToldTo)
{
    QWidget& parent = *m_engine.Parent().GetSafeHwnd();
    QWidget other(&parent);
    other.setFocusPolicy(Qt::StrongFocus);
    parent.show();
    other.setFocus();
    ASSERT_EQ(parent.focusWidget(), &other);
    m_engine.Send(msg::GrabFocus);
    EXPECT_EQ(parent.focusWidget(), m_engine.Window());
    parent.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&parent));
    EXPECT_EQ(m_engine.Send(msg::GetFocus), 1);
    other.setFocus();
    EXPECT_EQ(m_engine.Send(msg::GetFocus), 0);
}
