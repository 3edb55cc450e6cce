// SPDX-License-Identifier: GPL-3.0-or-later
// The messages that search, against a plain UTF-16 string: positions count units, whatever stands
// in the text.
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace msg = engine::message;

namespace {

constexpr WPARAM kMatchCase = 4;
constexpr WPARAM kExpression = 0x200000;
constexpr int kRounds = 8000;

std::u16string RandomText(std::mt19937& random, std::size_t pieces)
{
    static const std::u16string kPieces[] = {u"a", u"b",      u"\u00e9", u"\U0001F600",
                                             u" ", u"\u4e2d", u"\r\n",   std::u16string(1, u'\0')};
    std::u16string text;
    for (std::size_t i = 0; i < pieces; ++i)
        text += kPieces[random() % std::size(kPieces)];
    return text;
}

bool IsInsidePair(const std::u16string& text, std::size_t at)
{
    return at < text.size() && (text[at] & 0xFC00) == 0xDC00;
}

// Any place between characters.
std::size_t PlaceIn(std::mt19937& random, const std::u16string& text)
{
    const std::size_t at = random() % (text.size() + 1);
    return IsInsidePair(text, at) ? at - 1 : at;
}

long ModelFind(const std::u16string& text, const std::u16string& sought, std::size_t from,
               std::size_t to)
{
    if (from <= to) {
        const std::size_t at = text.substr(0, to).find(sought, from);
        return at == std::u16string::npos ? -1 : static_cast<long>(at);
    }
    const std::size_t at = text.substr(0, from).rfind(sought);
    return at == std::u16string::npos || at < to ? -1 : static_cast<long>(at);
}

long FindInTarget(const EngineUnderTest& engine, const std::u16string& sought, std::size_t from,
                  std::size_t to)
{
    engine.Send(msg::SetTargetStart, from);
    engine.Send(msg::SetTargetEnd, to);
    return engine.Send(msg::SearchInTarget, sought.size(), sought.data());
}

} // namespace

TEST(SearchPositions, AgreeWithAPlainModelOnAstralCharactersAndNuls)
{
    const unsigned seed = RandomSeed();
    std::cout << "seed " << seed << std::endl;
    std::mt19937 random(seed);
    const EngineUnderTest engine;
    engine.Send(msg::SetSearchFlags, kMatchCase);
    std::u16string text;
    long found = 0;
    for (int i = 0; i < kRounds && !testing::Test::HasFailure(); ++i) {
        if (i % 20 == 0) {
            text = RandomText(random, random() % 60);
            engine.SetText(u"");
            engine.Insert(0, text);
        } else if (i % 5 == 0) { // moves the gap
            const std::u16string piece = RandomText(random, 3);
            const std::size_t at = PlaceIn(random, text);
            engine.Insert(static_cast<long>(at), piece);
            text.insert(at, piece);
        }
        const std::u16string sought = RandomText(random, 1 + random() % 2);
        const std::size_t from = PlaceIn(random, text);
        const std::size_t to = PlaceIn(random, text);
        const long expected = ModelFind(text, sought, from, to);
        EXPECT_EQ(FindInTarget(engine, sought, from, to), expected)
            << testing::PrintToString(sought) << " in " << testing::PrintToString(text) << " from "
            << from << " to " << to;
        if (expected >= 0) {
            EXPECT_EQ(engine.Send(msg::GetTargetEnd), expected + static_cast<long>(sought.size()));
        }
        found += expected >= 0;
    }
    EXPECT_GT(found, kRounds / 20);
}

TEST(SearchMessages, SearchUpToTheTerminatorWithoutALength)
{
    const EngineUnderTest engine;
    engine.SetText(u"one two");
    engine.Send(msg::SetTargetEnd, 7);
    EXPECT_EQ(engine.Send(msg::SearchInTarget, static_cast<WPARAM>(-1), u"two"), 4);
}

TEST(SearchMessages, FindNothingSoughtAtTheStartOfTheTarget)
{
    const EngineUnderTest engine;
    engine.SetText(u"one two");
    EXPECT_EQ(FindInTarget(engine, u"", 3, 7), 3);
    EXPECT_EQ(engine.Send(msg::GetTargetEnd), 3);
}

TEST(SearchMessages, LeaveTheTargetWhereItIsWithoutAMatch)
{
    const EngineUnderTest engine;
    engine.SetText(u"one two");
    EXPECT_EQ(FindInTarget(engine, u"three", 1, 6), -1);
    EXPECT_EQ(engine.Send(msg::GetTargetStart), 1);
    EXPECT_EQ(engine.Send(msg::GetTargetEnd), 6);
}

TEST(SearchMessages, FindARangeAndLeaveTheTargetAlone)
{
    const EngineUnderTest engine;
    engine.SetText(u"\U0001F600 one one");
    engine.Send(msg::SetTargetStart, 1);
    TextToFind record{{0, -1}, u"o\\(n\\)e", {}};
    EXPECT_EQ(engine.Send(msg::FindTextW, kExpression, &record), 3);
    EXPECT_EQ(record.chrgText.cpMax, 6);
    record.chrg = {10, 0};
    EXPECT_EQ(engine.Send(msg::FindTextW, kExpression, &record), 7);
    EXPECT_EQ(engine.Send(msg::GetTargetStart), 0); // between the halves of a pair
}

TEST(SearchMessages, SelectFromTheAnchorWithTheCaretAtTheStart)
{
    const EngineUnderTest engine;
    engine.SetText(u"one \U0001F600 one one");
    engine.Send(msg::SetSel, 7, 7);
    engine.Send(msg::SearchAnchor);
    EXPECT_EQ(engine.Send(msg::SearchNext, 0, u"ONE"), 7);
    EXPECT_EQ(engine.Send(msg::GetCurrentPos), 7);
    EXPECT_EQ(engine.Send(msg::GetAnchor), 10);
    EXPECT_EQ(engine.Send(msg::SearchPrev, 0, u"one"), 0);
    EXPECT_EQ(engine.Send(msg::GetAnchor), 3);
    EXPECT_EQ(engine.Send(msg::SearchNext, 0, u"two"), -1);
    EXPECT_EQ(engine.Send(msg::GetAnchor), 3);
}

TEST(SearchMessages, AreRecordedForAMacro)
{
    EngineUnderTest engine;
    engine.SetText(u"one two");
    engine.Send(msg::StartRecord);
    engine.Send(msg::SearchAnchor);
    engine.Send(msg::SearchNext, kMatchCase, u"two");
    engine.Send(msg::StopRecord);
    engine.Send(msg::SearchPrev, 0, u"one");
    const std::vector<Heard> records = engine.Parent().Of(notify::MacroRecord);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].record.message, static_cast<int>(msg::SearchAnchor));
    EXPECT_EQ(records[1].record.message, static_cast<int>(msg::SearchNext));
    EXPECT_EQ(records[1].record.wParam, kMatchCase);
}

TEST(SearchMessages, ReplaceWithWhatTheGroupsTook)
{
    const EngineUnderTest engine;
    engine.SetText(u"\u00e9t\u00e9=\U0001F600;");
    engine.Send(msg::SetSearchFlags, kExpression);
    const std::u16string pattern = u"\\(.*\\)=\\(.*\\);";
    EXPECT_EQ(FindInTarget(engine, pattern, 0, 7), 0);
    const std::u16string replacement = u"\\2\\t\\1";
    EXPECT_EQ(engine.Send(msg::ReplaceTargetRE, replacement.size(), replacement.data()), 6);
    EXPECT_EQ(engine.Text(), u"\U0001F600\t\u00e9t\u00e9");
}

TEST(SearchMessages, CrossLineEndsWhereThePatternNamesThem)
{
    const EngineUnderTest engine;
    engine.SetText(u"select 1\r\ngo\r\n");
    engine.Send(msg::SetSearchFlags, kExpression);
    EXPECT_EQ(FindInTarget(engine, u"[0-9]\\r\\ngo", 0, 14), 7);
    EXPECT_EQ(FindInTarget(engine, u"[0-9]\\r\\ngo", 14, 0), 7);
    EXPECT_EQ(FindInTarget(engine, u"[^a]*go", 0, 14), 10);
}

TEST(SearchMessages, SurviveATargetBehindTheText)
{
    const EngineUnderTest engine;
    engine.SetText(u"one two three");
    engine.Send(msg::SetTargetStart, 10);
    engine.Send(msg::SetTargetEnd, 13);
    engine.SetText(u"\U0001F600");
    for (const WPARAM flags : {WPARAM{0}, kExpression}) {
        engine.Send(msg::SetSearchFlags, flags);
        EXPECT_EQ(engine.Send(msg::SearchInTarget, 1, u"e"), -1);
    }
}
