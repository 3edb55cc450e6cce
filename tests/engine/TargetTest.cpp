// SPDX-License-Identifier: GPL-3.0-or-later
// The target and the groups of an expression go along with the text.
#include "control/ExpressionCheck.h"
#include "tests/engine/EngineFixture.h"

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

class Targets : public testing::Test
{
protected:
    void SetTarget(long start, long end)
    {
        m_engine.Send(msg::SetTargetStart, static_cast<WPARAM>(start));
        m_engine.Send(msg::SetTargetEnd, static_cast<WPARAM>(end));
    }
    std::pair<long, long> Target() const
    {
        return {m_engine.Send(msg::GetTargetStart), m_engine.Send(msg::GetTargetEnd)};
    }
    void InsertAt(long position, const char16_t* text)
    {
        m_engine.Send(msg::InsertText, static_cast<WPARAM>(position), text);
    }

    EngineUnderTest m_engine;
};

using Places = std::pair<long, long>;

} // namespace

TEST_F(Targets, GoAlongWithInsertions)
{
    m_engine.SetText(u"one two three");
    SetTarget(4, 7);
    InsertAt(0, u"\u00e9\u00e9");
    EXPECT_EQ(Target(), Places(6, 9));
    InsertAt(7, u"--");
    EXPECT_EQ(Target(), Places(6, 11));
    InsertAt(11, u"!");
    EXPECT_EQ(Target(), Places(6, 11));
}

TEST_F(Targets, ShrinkWithWhatIsDeleted)
{
    m_engine.SetText(u"one two three");
    SetTarget(4, 7);
    m_engine.Send(msg::SetSel, 2, 5);
    m_engine.Send(msg::Clear);
    EXPECT_EQ(Target(), Places(2, 4));
    m_engine.Send(msg::ClearAll);
    EXPECT_EQ(Target(), Places(0, 0));
}

TEST_F(Targets, CutNoCharacterOfANewText)
{
    const std::u16string emoji = u"\U0001F600\U0001F601\U0001F602";
    m_engine.SetText(u"abcdefghijkl");
    SetTarget(3, 6);
    m_engine.SetText(emoji);
    m_engine.Send(msg::ReplaceTargetNoProcess, 0, u"");
    EXPECT_EQ(m_engine.Text(), emoji);
}

TEST_F(Targets, AreKeptInTheText)
{
    m_engine.SetText(u"abc");
    SetTarget(-1, 100);
    EXPECT_EQ(Target(), Places(0, 3));
    m_engine.Send(msg::ReplaceTargetNoProcess, 1, u"x");
    EXPECT_EQ(m_engine.Text(), u"x");
}

TEST_F(Targets, GoAlongInTheOtherWindowOfAText)
{
    EngineUnderTest second;
    m_engine.SetText(u"one two");
    second.Send(msg::SetDocPointer, 0, m_engine.Send(msg::GetDocPointer));
    SetTarget(4, 7);
    second.Send(msg::InsertText, 0, u"- ");
    EXPECT_EQ(Target(), Places(6, 9));
}

TEST_F(Targets, OfAnExpressionKeepTheirGroups)
{
    m_engine.SetText(u" key = value");
    SetTarget(0, 12);
    m_engine.Send(msg::SetSearchFlags, 0x00200000); // a regular expression
    ASSERT_EQ(m_engine.Send(msg::SearchInTarget, static_cast<WPARAM>(-1),
                            u"\\(k[a-z]*\\) = \\(v[a-z]*\\)"),
              1);
    InsertAt(0, u"\u4e2d\u6587 ");
    m_engine.Send(msg::ReplaceTargetRE, static_cast<WPARAM>(-1), u"\\2 = \\1");
    EXPECT_EQ(m_engine.Text(), u"\u4e2d\u6587  value = key");
}

TEST_F(Targets, OfAnExpressionWhoseMatchWasCutPutInWhatIsLeft)
{
    m_engine.SetText(u"abc\u00e9\u00e9\u00e9");
    SetTarget(0, 6);
    m_engine.Send(msg::SetSearchFlags, 0x00200000);
    ASSERT_EQ(m_engine.Send(msg::SearchInTarget, static_cast<WPARAM>(-1), u"\u00e9*$"), 3);
    m_engine.SetText(u"\U0001F600\U0001F601");
    m_engine.Send(msg::ReplaceTargetRE, static_cast<WPARAM>(-1), u"<\\0>");
    EXPECT_EQ(m_engine.Text(), u"<>\U0001F600\U0001F601");
}

TEST_F(Targets, SayWhichLinesAreJoinedAndSplit)
{
    m_engine.SetText(u"one\ntwo\nthree\nfour");
    SetTarget(4, 13);
    m_engine.Send(msg::LinesJoin);
    EXPECT_EQ(m_engine.Text(), u"one\ntwo three\nfour");
    EXPECT_EQ(Target(), Places(4, 13));
    const LRESULT width = m_engine.Send(msg::TextWidth, 0, u"three ");
    m_engine.Send(msg::LinesSplit, static_cast<WPARAM>(width));
    EXPECT_EQ(m_engine.Text(), u"one\ntwo \nthree\nfour");
}

TEST_F(Targets, LeftBehindByATextDoNotHaveItsLinesJoined)
{
    m_engine.SetText(u"a\nb\nc\nd\ne");
    SetTarget(0, 9);
    m_engine.Send(msg::LinesJoin);
    m_engine.SetText(u"x\ny");
    m_engine.Send(msg::LinesJoin);
    EXPECT_EQ(m_engine.Text(), u"x\ny");
}

TEST_F(Targets, AreSplitBetweenWholeCharacters)
{
    m_engine.SetText(u"a\xFFFF\U0001F600\u4e2d b\n\t\tcd");
    SetTarget(0, 12);
    m_engine.Send(msg::LinesSplit, 1);
    EXPECT_EQ(m_engine.Text(), u"a\n\xFFFF\n\U0001F600\n\u4e2d \nb\n\t\t\nc\nd");
    EXPECT_EQ(Target(), Places(0, 18));
    m_engine.Send(msg::LinesSplit, 1);
    EXPECT_EQ(m_engine.Text(), u"a\n\xFFFF\n\U0001F600\n\u4e2d \nb\n\t\t\nc\nd");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Text(), u"a\xFFFF\U0001F600\u4e2d b\n\t\tcd");
}

TEST_F(Targets, AreNotSplitWhereTheTextIsProtected)
{
    m_engine.SetText(u"one two");
    SetTarget(0, 7);
    m_engine.Send(msg::StyleSetChangeable, 0, LPARAM{0});
    m_engine.Send(msg::LinesSplit, 1);
    EXPECT_EQ(m_engine.Text(), u"one two");
    m_engine.Send(msg::StyleSetChangeable, 0, LPARAM{1});
    m_engine.Send(msg::SetReadOnly, 1);
    m_engine.Send(msg::LinesSplit, 1);
    EXPECT_EQ(m_engine.Text(), u"one two");
}

TEST_F(Targets, TellWhatIsWrongWithAnExpression)
{
    constexpr WPARAM kExpression = 0x200000;
    constexpr WPARAM kPerlSyntax = 0x800000;
    const auto problemOf = [this](const char16_t* text, WPARAM flags) -> std::u16string {
        engine::ExpressionProblem problem;
        problem.text = text;
        if (!m_engine.Send(engine::kExpressionProblem, flags, &problem))
            return u"none";
        return std::u16string(problem.reason) + u'@' + static_cast<char16_t>(u'0' + problem.place);
    };
    EXPECT_EQ(problemOf(u"(", 0), u"none");
    EXPECT_EQ(problemOf(u"(", kExpression), u"none");
    EXPECT_EQ(problemOf(u"\\(a\\)", kExpression), u"none");
    EXPECT_EQ(problemOf(u"\U0001F600\\(", kExpression), u"the group has no end@2");
    EXPECT_EQ(problemOf(u"a\\", kExpression), u"nothing follows the backslash@1");
    EXPECT_EQ(problemOf(u"\u00e4(", kExpression | kPerlSyntax), u"missing closing parenthesis@2");
    EXPECT_EQ(m_engine.Send(engine::kExpressionProblem, kExpression, LPARAM{0}), 0);
}
