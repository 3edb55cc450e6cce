// SPDX-License-Identifier: GPL-3.0-or-later
// Typing in lines of many thousand bytes: what is told, undone and shown is what it is in others.
#include "control/LongLine.h"
#include "tests/engine/EngineFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

constexpr int kGeneric = 9;

class LongLine : public testing::Test
{
protected:
    LongLine()
    {
        m_engine.Window()->resize(600, 200);
        while (m_line.size() < 40000)
            m_line += u"insert (\u00e9 'many words without an end'), ";
    }

    void Start(long caret)
    {
        m_engine.SetText(u"a\n" + m_line + u"\nb");
        m_engine.Send(msg::EmptyUndoBuffer);
        m_engine.Send(msg::GotoPos, static_cast<WPARAM>(caret));
        m_engine.Window()->grab();
        m_engine.Parent().heard.clear();
    }

    void Press(Qt::Key key) const { QTest::keyClick(m_engine.Window(), key); }

    // In the viewport, as the caret would be seen.
    long X(long position) const
    {
        return m_engine.Send(msg::PointXFromPosition, 0, LPARAM{position});
    }

    std::u16string m_line;
    EngineUnderTest m_engine;
};

} // namespace

TEST_F(LongLine, AnInputMethodIsToldTheFontOfEveryPlace)
{
    m_engine.Send(msg::SetLexer, kGeneric);
    m_line.insert(0, u"-- ");
    Start(20000);
    QTest::keyClicks(m_engine.Window(), "xyz");
    m_engine.Window()->grab();
    const QFont first = m_engine.Window()->inputMethodQuery(Qt::ImFont).value<QFont>();
    for (WPARAM place = 2; place < 40000; place += 100) {
        m_engine.Send(msg::GotoPos, place);
        ASSERT_EQ(m_engine.Window()->inputMethodQuery(Qt::ImFont).value<QFont>(), first) << place;
    }
}

TEST_F(LongLine, TypingIsToldAndUndoneAsInAnyOther)
{
    Start(20000);
    QTest::keyClicks(m_engine.Window(), "xyz");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(m_engine.Range(19998, 20004),
              m_line.substr(19996, 2) + u"xy" + m_line.substr(19998, 2));
    EXPECT_EQ(m_engine.Send(msg::GetCurrentPos), 20002);
    const auto told = m_engine.Parent().Of(notify::CharAdded);
    ASSERT_EQ(told.size(), 3u);
    EXPECT_EQ(told[2].record.ch, 'z');
    EXPECT_EQ(m_engine.Parent().Of(notify::Modified)[1].record.position, 20001);
    m_engine.Send(msg::Undo);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Range(2, 40002), m_line.substr(0, 40000));
    EXPECT_EQ(m_engine.Send(msg::CanUndo), 0);
}

TEST_F(LongLine, DeleteTakesTheCharacterBehindTheCaretAndNoLineEnd)
{
    Start(20000);
    Press(Qt::Key_Delete);
    EXPECT_EQ(m_engine.Range(19999, 20001), m_line.substr(19997, 1) + m_line.substr(19999, 1));
    Press(Qt::Key_End);
    Press(Qt::Key_Delete);
    EXPECT_EQ(m_engine.Send(msg::GetLineCount), 2);
}

TEST_F(LongLine, TheCaretIsSeenOnceTheWindowIsPainted)
{
    Start(2);
    m_engine.Send(msg::GotoPos, 30000);
    m_engine.Send(msg::SetXOffset, 0);
    QTest::keyClicks(m_engine.Window(), "x");
    m_engine.Window()->grab();
    EXPECT_GT(X(30001), 0);
    EXPECT_LT(X(30001), 600);
}

TEST_F(LongLine, StylesAreTheTextsWhateverIsLaidOverThem)
{
    m_engine.Send(msg::SetLexer, kGeneric);
    Start(2);
    QTest::keyClicks(m_engine.Window(), "/*");
    m_engine.Window()->grab();
    for (const long place : {2, 30, 60, 1000, 1025, 30000, 30030})
        EXPECT_EQ(m_engine.Send(msg::GetStyleAt, static_cast<WPARAM>(place)),
                  m_engine.Send(msg::GetStyleAt, 2))
            << place;
    EXPECT_LT(m_engine.Send(msg::GetStyleAt, 2), 128);
    EXPECT_GT(m_engine.Send(msg::GetStyleAt, 2), 0);
}

TEST_F(LongLine, TextIsAsWideAsInShortLines)
{
    Start(2);
    const long first = m_engine.Send(msg::TextWidth, 0, m_line.substr(0, 20).c_str());
    EXPECT_NEAR(static_cast<double>(X(22) - X(2)), static_cast<double>(first), 2);
    m_engine.Send(msg::StyleSetBold, 0, 1);
    m_engine.Send(msg::StyleSetSize, 0, 24);
    m_engine.Window()->grab();
    const long before = X(102) - X(2);
    const long bold = m_engine.Send(msg::TextWidth, 0, m_line.substr(0, 100).c_str());
    EXPECT_NEAR(static_cast<double>(before), static_cast<double>(bold), 10);
}

TEST_F(LongLine, BracesMatchWhereverTheyStand)
{
    Start(2);
    const auto open = static_cast<long>(m_line.find(u'(', 20000)) + 2;
    EXPECT_EQ(m_engine.Send(msg::BraceMatch, static_cast<WPARAM>(open)),
              static_cast<long>(m_line.find(u')', static_cast<std::size_t>(open))) + 2);
}

// Wide characters, so that fewer of them do.
TEST_F(LongLine, ThatCannotBeDrawnExactlyIsToldOnce)
{
    constexpr int kDefaultStyle = 32;
    m_engine.Send(msg::StyleSetSize, kDefaultStyle, LPARAM{60});
    const long width = m_engine.Send(msg::TextWidth, kDefaultStyle, u"0");
    const auto exact = static_cast<std::size_t>(16 * 1024 * 1024 / width);
    const auto told = [this] {
        m_engine.Window()->grab();
        QApplication::processEvents();
        return m_engine.Parent().Of(engine::kLongLineShown);
    };
    m_engine.SetText(u"a\n" + std::u16string(exact, u'x'));
    EXPECT_TRUE(told().empty());
    m_engine.Insert(2, u"x");
    ASSERT_EQ(told().size(), 1u);
    EXPECT_EQ(told()[0].record.line, 1);
    EXPECT_EQ(told()[0].record.length, static_cast<long>(exact));
    Press(Qt::Key_End);
    EXPECT_EQ(told().size(), 1u);
    m_engine.SetText(u"short");
    EXPECT_EQ(told().size(), 1u);
    m_engine.SetText(std::u16string(exact + 1, u'x'));
    EXPECT_EQ(told().size(), 2u);
}
