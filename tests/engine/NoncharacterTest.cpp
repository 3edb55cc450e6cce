// SPDX-License-Identifier: GPL-3.0-or-later
// Noncharacters are characters: every move, deletion and read takes them whole.
#include "tests/engine/EngineFixture.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

constexpr const char16_t* kNoncharacters[] = {u"\xFFFE", u"\xFFFF",       u"\xFDD0",
                                              u"\xFDEF", u"\xD83F\xDFFE", u"\xDBFF\xDFFF"};

class Noncharacters : public testing::TestWithParam<const char16_t*>
{
protected:
    // The text around the character, with the caret at one of its sides.
    void StandBefore() { Stand(2); }
    void StandBehind() { Stand(2 + Width()); }
    long Width() const { return static_cast<long>(m_character.size()); }

    void Stand(long position)
    {
        m_engine.SetText(u"ab" + m_character + u"cd");
        m_engine.Send(msg::GotoPos, static_cast<WPARAM>(position));
    }
    long Caret() const { return m_engine.Send(msg::GetCurrentPos); }
    long CaretAfter(UINT command)
    {
        m_engine.Send(command);
        return Caret();
    }
    std::u16string TextAfter(UINT command)
    {
        m_engine.Send(command);
        return m_engine.Text();
    }

    EngineUnderTest m_engine;
    std::u16string m_character = GetParam();
};

} // namespace

TEST_P(Noncharacters, ArePassedByACaretInOneStep)
{
    StandBehind();
    EXPECT_EQ(CaretAfter(msg::CharLeft), 2);
    EXPECT_EQ(CaretAfter(msg::CharRight), 2 + Width());
    EXPECT_EQ(CaretAfter(msg::CharLeftExtend), 2);
    EXPECT_EQ(m_engine.Send(msg::GetAnchor), 2 + Width());
}

TEST_P(Noncharacters, AreDeletedWhole)
{
    StandBehind();
    EXPECT_EQ(TextAfter(msg::DeleteBack), u"abcd");
    StandBehind();
    EXPECT_EQ(TextAfter(msg::DeleteBackNotLine), u"abcd");
    StandBefore();
    EXPECT_EQ(TextAfter(msg::Clear), u"abcd");
    EXPECT_EQ(TextAfter(msg::Undo), u"ab" + m_character + u"cd");
    EXPECT_EQ(TextAfter(msg::Redo), u"abcd");
}

TEST_P(Noncharacters, AreDeletedWholeByKeys)
{
    StandBehind();
    QTest::keyClick(m_engine.Window(), Qt::Key_Backspace);
    EXPECT_EQ(m_engine.Text(), u"abcd");
    StandBefore();
    QTest::keyClick(m_engine.Window(), Qt::Key_Delete);
    EXPECT_EQ(m_engine.Text(), u"abcd");
    StandBefore();
    QTest::keyClick(m_engine.Window(), Qt::Key_Right);
    EXPECT_EQ(Caret(), 2 + Width());
}

TEST_P(Noncharacters, AreToldWholeWhenTheyGo)
{
    StandBehind();
    m_engine.Parent().heard.clear();
    m_engine.Send(msg::DeleteBack);
    const auto told = m_engine.Parent().Of(notify::Modified);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].text, m_character);
    EXPECT_EQ(told[0].record.position, 2);
    EXPECT_TRUE(m_engine.Parent().Of(notify::MacroRecord).empty());
}

TEST_P(Noncharacters, AreTypedOverWhole)
{
    StandBefore();
    m_engine.Send(msg::SetOvertype, 1);
    QTest::keyClick(m_engine.Window(), Qt::Key_X, Qt::NoModifier);
    EXPECT_EQ(m_engine.Text(), u"abxcd");
    QTest::keyClick(m_engine.Window(), Qt::Key_Y, Qt::NoModifier);
    EXPECT_EQ(m_engine.Text(), u"abxyd");
}

TEST_P(Noncharacters, AreSteppedOverByPositions)
{
    StandBefore();
    EXPECT_EQ(m_engine.Send(msg::PositionAfter, 2), 2 + Width());
    EXPECT_EQ(m_engine.Send(msg::PositionBefore, static_cast<WPARAM>(2 + Width())), 2);
}

TEST_P(Noncharacters, AreReadWholeBehindALongText)
{
    constexpr std::size_t kJustBeforeABlock = 8190;
    const std::u16string text = std::u16string(kJustBeforeABlock, u'x') + m_character;
    m_engine.SetText(text);
    EXPECT_EQ(m_engine.Text(), text);
    m_engine.Send(msg::GotoPos, text.size());
    m_engine.Send(msg::DeleteBack);
    EXPECT_EQ(m_engine.Send(msg::LineLength, 0), static_cast<LRESULT>(kJustBeforeABlock));
    std::u16string line(kJustBeforeABlock + 2, u'#');
    EXPECT_EQ(m_engine.Send(msg::GetLine, 0, line.data()), static_cast<LRESULT>(kJustBeforeABlock));
    EXPECT_EQ(line.substr(kJustBeforeABlock), std::u16string(u"\0#", 2));
}

TEST_P(Noncharacters, HaveTheirStylesRead)
{
    StandBefore();
    std::u16string cells(20, u'#');
    TextRange range{{2, static_cast<int>(2 + Width())}, cells.data()};
    ASSERT_EQ(m_engine.Send(msg::GetStyledText, 0, &range), 2 * Width());
    EXPECT_EQ(cells[0], m_character[0]);
    EXPECT_EQ(cells[static_cast<std::size_t>(2 * Width() + 2)], u'#');
    EXPECT_EQ(m_engine.Send(msg::GetCharAt, 2), m_character[0]);
}

INSTANTIATE_TEST_SUITE_P(OfUnicode, Noncharacters, testing::ValuesIn(kNoncharacters));

TEST(NoncharactersAmongCarets, AMacroTellsOfCommandsOnlyWhileItIsRecorded)
{
    EngineUnderTest engine;
    engine.SetText(u"a\xFFFF"
                   u"b");
    engine.Send(msg::SelectAll);
    EXPECT_TRUE(engine.Parent().Of(notify::MacroRecord).empty());
    engine.Send(msg::StartRecord);
    engine.Send(msg::SelectAll);
    EXPECT_EQ(engine.Parent().Of(notify::MacroRecord).size(), 1u);
    engine.Send(msg::StopRecord);
    engine.Send(msg::SelectAll);
    EXPECT_EQ(engine.Parent().Of(notify::MacroRecord).size(), 1u);
}
