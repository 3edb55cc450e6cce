// What a host may say and a stock engine does not survive.
#include "tests/engine/EngineFixture.h"

#include "control/Completion.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

namespace msg = engine::message;

namespace {

void FoldThreeLines(const EngineUnderTest& engine)
{
    engine.SetText(u"a\nb\nc\nd\n");
    engine.Send(msg::HideLines, 1, 2);
}

constexpr WPARAM kMinusOne = static_cast<WPARAM>(-1);

} // namespace

TEST(HostileCalls, ANegativeLineIsNotSoughtAmongHiddenOnes)
{
    EngineUnderTest engine;
    FoldThreeLines(engine);
    EXPECT_EQ(engine.Send(msg::VisibleFromDocLine, kMinusOne), 0);
    engine.Send(msg::EnsureVisibleEnforcePolicy, kMinusOne);
    engine.Send(msg::EnsureVisible, kMinusOne);
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 1), 0);
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 3), 1);
}

TEST(HostileCalls, ARangeThatRunsBackwardsIsNotColoured)
{
    EngineUnderTest engine;
    for (const WPARAM lexer : {WPARAM{3}, WPARAM{2}}) {
        engine.Send(msg::SetLexer, lexer);
        engine.SetText(u"select 1 -- x");
        const LRESULT before = engine.Send(msg::GetEndStyled);
        engine.Send(msg::Colorize, 5, 2);
        EXPECT_EQ(engine.Send(msg::GetEndStyled), before) << lexer;
    }
}

TEST(HostileCalls, KeyWordsOfASetThatIsNoneAreIgnored)
{
    EngineUnderTest engine;
    for (const WPARAM lexer : {WPARAM{2}, WPARAM{3}, WPARAM{5}}) {
        engine.Send(msg::SetLexer, lexer);
        for (const long set : {-1L, 9L, 100L, 1L << 40, -(1L << 31)})
            engine.Send(msg::SetKeyWords, static_cast<WPARAM>(set), u"alpha beta");
        engine.SetText(u"alpha");
        engine.Send(msg::Colorize, 0, LPARAM{-1});
        EXPECT_EQ(engine.Send(msg::GetEndStyled), 5) << lexer;
    }
}

TEST(HostileCalls, WidthsOfTabsAndIndentationsStayWithinALine)
{
    EngineUnderTest engine;
    engine.Send(msg::SetTabWidth, 5);
    engine.Send(msg::SetTabWidth, kMinusOne);
    EXPECT_EQ(engine.Send(msg::GetTabWidth), 5);
    engine.Send(msg::SetUseTabs, 0);
    for (const UINT number : {msg::SetIndent, msg::SetTabWidth}) {
        engine.SetText(u"x");
        engine.Send(number, 1000000000);
        engine.Send(msg::Tab);
        EXPECT_LE(engine.Send(msg::GetLength), 64 * 1024 + 1);
        engine.Send(number, 4);
    }
    engine.Send(msg::SetLineIndentation, 0, 1000000000);
    EXPECT_LE(engine.Send(msg::GetLineIndentation, 0), 64 * 1024);
}

TEST(HostileCalls, AStatusThatAHostHasSetStopsNoText)
{
    EngineUnderTest engine;
    engine.Send(msg::SetStatus, 2);
    EXPECT_EQ(engine.Send(msg::GetStatus), 2);
    EXPECT_NO_THROW(engine.SetText(u"abc"));
    EXPECT_EQ(engine.Text(), u"abc");
    EXPECT_EQ(engine.Send(msg::GetStatus), 2);
}

TEST(HostileCalls, AListWithTheCaretFarAwayIsShownAtTheCaret)
{
    EngineUnderTest engine;
    engine.Parent().GetSafeHwnd()->show();
    engine.SetText(std::u16string(5000, u'\n'));
    engine.Send(msg::GotoPos, 5000);
    engine.Send(msg::LineScroll, 0, -5000);
    engine.Send(msg::UserListShow, 1, u"one two");
    EXPECT_EQ(engine.Send(msg::AutoCActive), 1);
    EXPECT_GT(engine.Send(msg::GetFirstVisibleLine), 0);
}

TEST(HostileCalls, AWindowOffEveryScreenShowsNoList)
{
    EngineUnderTest engine;
    engine.SetText(u"o");
    QWidget& top = *engine.Parent().GetSafeHwnd();
    const std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> proposals{
        std::make_shared<znsqlassist::SQLCompletionProposal>(u"one")};
    const AutoCompleteConfig config{nullptr, 1, 0, 1};
    for (const QPoint place : {QPoint(-90000, -90000), QPoint(-20, -20), QPoint(10, 10)}) {
        top.move(place);
        top.show();
        engine.Send(msg::AutoCShow, reinterpret_cast<WPARAM>(&config), &proposals);
        EXPECT_EQ(engine.Send(msg::AutoCActive), place.x() > 0) << place.x();
        engine.Send(msg::AutoCCancel);
        engine.Send(msg::UserListShow, 1, u"one two");
        EXPECT_EQ(engine.Send(msg::AutoCActive), place.x() > 0) << place.x();
        engine.Send(msg::AutoCCancel);
    }
}

TEST(HostileCalls, StylesOfARangeThatEndsInsideALineEndStayWithinIt)
{
    EngineUnderTest engine;
    engine.SetText(u"ab\r\ncd");
    std::u16string cells(12, u'#');
    TextRange range{{1, 3}, cells.data()};
    EXPECT_EQ(engine.Send(msg::GetStyledText, 0, &range), 4);
    EXPECT_EQ(cells.substr(0, 8), std::u16string(u"b\0\r\0\0\0##", 8));
}

TEST(HostileCalls, ARectangleIsReadIntoTheRoomThatItsEndsTell)
{
    EngineUnderTest engine;
    engine.Send(msg::SetEOLMode, 1);
    engine.SetText(u"a\nb\nc\n");
    engine.Send(msg::GotoPos, 0);
    engine.Send(msg::LineDownRectExtend);
    engine.Send(msg::LineDownRectExtend);
    engine.Send(msg::CharRightRectExtend);
    const LRESULT room =
        engine.Send(msg::GetSelectionEnd) - engine.Send(msg::GetSelectionStart) + 1;
    const LRESULT all = engine.Send(msg::GetSelText);
    EXPECT_GT(all, room);
    std::u16string buffer(static_cast<std::size_t>(all) + 1, u'#');
    engine.Send(msg::GetSelText, 0, buffer.data());
    EXPECT_EQ(buffer[static_cast<std::size_t>(room) - 1], u'\0');
    EXPECT_EQ(buffer[static_cast<std::size_t>(room)], u'#');
    engine.Send(msg::GetSelText, static_cast<WPARAM>(all), buffer.data());
    EXPECT_EQ(buffer, u"a\r\nb\r\nc\r\n" + std::u16string(u"\0#", 2));
}

TEST(HostileCalls, AWindowThatGoesWithAnOpenListTellsNobody)
{
    auto engine = std::make_unique<EngineUnderTest>();
    Listener& parent = engine->Parent();
    parent.GetSafeHwnd()->show();
    engine->SetText(u"x");
    engine->Send(msg::UserListShow, 1, u"one two");
    ASSERT_EQ(engine->Send(msg::AutoCActive), 1);
    parent.heard.clear();
    delete engine->Window();
    EXPECT_TRUE(parent.heard.empty());
}
