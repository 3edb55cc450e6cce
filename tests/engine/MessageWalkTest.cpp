// SPDX-License-Identifier: GPL-3.0-or-later
// Every row of the message table on the real engine, with whatever a caller may pass.
#include "tests/engine/EngineFixture.h"
#include "tests/engine/MessageAnswers.h"

#include "control/Completion.h"
#include "control/EngineLooks.h"
#include "control/ExpressionCheck.h"
#include "control/Selections.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <memory>

namespace msg = engine::message;
using engine::Kind;
using engine::MessageRow;

namespace engine {
void PrintTo(const MessageRow& row, std::ostream* out)
{
    *out << row.name;
}
} // namespace engine

namespace {

const std::u16string kAscii = u"select 1,\r\n\t(2)\nfrom t -- end\n";
const std::u16string kMixed = u"s\u00e9lect '\U0001F600'\r\n\u4e2d\u6587 a\u0301\n\r{x}\ntail";

constexpr LPARAM kNumbers[] = {-1, 0, 1, 5, 255, 300, INT_MAX, INT_MIN, LONG_MAX, LONG_MIN};

// What the pointers of the calls point to; alive for the whole walk of a row.
struct Memory
{
    Memory()
    {
        proposals.push_back(std::make_shared<znsqlassist::SQLCompletionProposal>(u"s\u00e9lect"));
        proposals.push_back(nullptr);
        for (const CharacterRange bounds :
             {CharacterRange{0, -1}, {-5, 3}, {5, 2}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MAX}}) {
            ranges.push_back({bounds, buffer.data()});
            finds.push_back({bounds, u"e", {}});
            formats.push_back({nullptr, nullptr, {}, {}, bounds});
        }
        ranges.push_back({{0, 3}, nullptr});
        finds.push_back({{0, 3}, nullptr, {}});
        for (const long start : {-1L, 0L, 3L, LONG_MAX})
            for (const long end : {LONG_MIN, 5L, LONG_MAX})
                errors.emplace_back().nStart = start, errors.back().nEnd = end;
        errors.back().SetText(u"caf\u00e9");
        for (const int number : {INT_MIN, -1, 0, 5, INT_MAX})
            pairs.push_back({number, 7}), positionPairs.push_back({number, 7});
        for (int typed : {-1, 0, INT_MAX})
            configs.push_back({nullptr, 1, typed, 1});
    }

    std::u16string buffer = std::u16string(4096, u'#');
    std::vector<TextRange> ranges;
    std::vector<TextToFind> finds;
    std::vector<RangeToFormat> formats;
    std::vector<ErrorInfo> errors;
    std::vector<NumberPair> pairs;
    std::vector<PositionPair> positionPairs;
    std::vector<AutoCompleteConfig> configs;
    std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> proposals;
};

template <typename T>
LPARAM Address(const T* object)
{
    return reinterpret_cast<LPARAM>(object);
}

template <typename T>
std::vector<LPARAM> AddressesAndNull(std::vector<T>& objects)
{
    std::vector<LPARAM> result{0};
    for (T& object : objects)
        result.push_back(Address(&object));
    return result;
}

std::vector<LPARAM> HostileValues(Kind kind, Memory& memory)
{
    switch (kind) {
    case Kind::None:
    case Kind::Pointer:
    case Kind::Document: // any other pointer would have to be a text's
        return {0};
    case Kind::Count: // as many units as the shortest text beside it has, or up to the terminator
        return {-1, 0, 1};
    case Kind::TextIn:
    case Kind::CellsIn:
        return {0, Address(u"\0\0"), Address(u"ab\u00e9\U0001F600")};
    case Kind::BytesIn: // image or UTF-8, whichever it is read as
        return {0, Address("/* XPM"), Address("/* XPM */ \"1 1 1 1\" \"x c #\xff\x80\""),
                Address("/* XPM */ \"4 4 1 1\""), Address("/* XPM */ \"-1 99999999 1 1\"")};
    case Kind::StylesIn:
        return {0, Address("x\xff\x80y")};
    case Kind::TextOut:
    case Kind::BytesOut:
        return {0, Address(memory.buffer.data())};
    case Kind::RangeIo:
        return AddressesAndNull(memory.ranges);
    case Kind::FindIo:
        return AddressesAndNull(memory.finds);
    case Kind::FormatIo:
        return AddressesAndNull(memory.formats);
    case Kind::Config:
        return AddressesAndNull(memory.configs);
    case Kind::Proposals:
        return {0, Address(&memory.proposals)};
    case Kind::ErrorIn:
        return AddressesAndNull(memory.errors);
    case Kind::PairIn:
        return AddressesAndNull(memory.pairs);
    case Kind::PairIo:
        return AddressesAndNull(memory.positionPairs);
    default:
        return {std::begin(kNumbers), std::end(kNumbers)};
    }
}

// A count belongs to the text beside it: with an empty text there is nothing to count.
bool Honest(const MessageRow& row, LPARAM w, LPARAM l)
{
    if (row.number == msg::Allocate && w == INT_MAX)
        return false; // two gigabytes, really taken
    if (row.lParam == Kind::StylesIn)
        return l == 0 || w >= 0;
    return row.wParam != Kind::Count || l == 0 || w <= 0 || row.lParam == Kind::TextOut ||
           row.lParam == Kind::Num || *reinterpret_cast<const char*>(l) != 0;
}

// A text of which a whole answers every question sensibly.
void ExpectSound(const EngineUnderTest& engine)
{
    const std::u16string text = engine.Text();
    ASSERT_EQ(engine.Send(msg::GetLength), static_cast<LRESULT>(text.size()));
    const LRESULT lines = engine.Send(msg::GetLineCount);
    ASSERT_EQ(engine.Send(msg::PositionFromLine, static_cast<WPARAM>(lines)),
              static_cast<LRESULT>(text.size()));
    const LRESULT caret = engine.Send(msg::GetCurrentPos);
    ASSERT_GE(caret, 0);
    ASSERT_LE(caret, static_cast<LRESULT>(text.size()));
}

void WalkOn(const MessageRow& row, const std::u16string& text, bool readOnly, bool paint)
{
    EngineUnderTest engine;
    Memory memory;
    for (const LPARAM w : HostileValues(row.wParam, memory)) {
        for (const LPARAM l : HostileValues(row.lParam, memory)) {
            if (!Honest(row, w, l))
                continue;
            SCOPED_TRACE(testing::Message() << row.name << ' ' << w << ' ' << l);
            engine.Send(msg::SetReadOnly, 0);
            engine.SetText(text);
            engine.Send(msg::SetSel, 1, 4);
            engine.Send(msg::SetReadOnly, readOnly);
            const LRESULT answer = engine.Send(row.number, static_cast<WPARAM>(w), l);
            if (row.number == msg::CreateDocument)
                engine.Send(msg::ReleaseDocument, 0, answer);
            Release(row, answer);
            ASSERT_NO_FATAL_FAILURE(ExpectSound(engine));
            if (readOnly && row.number != msg::SetReadOnly && row.number != msg::SetDocPointer) {
                ASSERT_EQ(engine.Text(), text);
            }
            if (paint)
                engine.Window()->grab();
        }
    }
}

class EveryMessage : public testing::TestWithParam<MessageRow>
{};

std::string RowName(const testing::TestParamInfo<MessageRow>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(EveryMessage, SurvivesHostileParameters)
{
    for (const std::u16string& text : {std::u16string(), kAscii, kMixed}) {
        WalkOn(GetParam(), text, false, text == kMixed);
        WalkOn(GetParam(), text, true, false);
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheTable, EveryMessage, testing::ValuesIn(engine::kMessageRows),
                         RowName);

TEST(MessageWalk, NumbersOutsideTheTableAnswerNothing)
{
    EngineUnderTest engine;
    engine.SetText(kMixed);
    std::map<UINT, bool> known{{msg::GetDirectFunction, true},
                               {msg::GetDirectPointer, true},
                               {engine::kRestyle, true},
                               {engine::kExtendedTexts, true},
                               {engine::kExtendedText, true},
                               {engine::kSetLooks, true},
                               {engine::kShowMatches, true},
                               {engine::kExpressionProblem, true},
                               {engine::kNextFolded, true},
                               {engine::kGetSelections, true},
                               {engine::kSetSelections, true},
                               {engine::kSetColumns, true},
                               {engine::kGetColumns, true},
                               {engine::kShowDocumentMap, true},
                               {engine::kIsDocumentMapShown, true},
                               {engine::kShowMatchesWithin, true},
                               {engine::kMatchesFrom, true},
                               {engine::kMatchesTo, true}};
    for (const MessageRow& row : engine::kMessageRows)
        known[row.number] = true;
    for (UINT number = 0; number <= 5000; ++number) {
        if (!known.contains(number)) {
            EXPECT_EQ(SendMessage(engine.Window(), number, 1, 1), 0) << number;
        }
    }
    EXPECT_EQ(engine.Text(), kMixed);
}

namespace {

struct SettingPair
{
    MessageRow set;
    MessageRow get;
};

bool IsPlainSetting(Kind kind)
{
    return kind == Kind::Num || kind == Kind::Flag || kind == Kind::Colour || kind == Kind::Pos;
}

// What is set by one message and asked by another of the same name, for the whole window.
std::vector<SettingPair> SettingPairs()
{
    std::vector<SettingPair> pairs;
    for (const MessageRow& set : engine::kMessageRows) {
        std::string name = set.name;
        const std::size_t at = name.find("Set");
        const Kind value = set.lParam == Kind::None ? set.wParam : set.lParam;
        if (at == std::string::npos || !IsPlainSetting(value))
            continue;
        name.replace(at, 3, "Get");
        for (const MessageRow& get : engine::kMessageRows) {
            if (name == get.name && (set.shape == engine::Shape::C) == (get.wParam == Kind::Num))
                pairs.push_back({set, get});
        }
    }
    return pairs;
}

void PrintTo(const SettingPair& pair, std::ostream* out)
{
    *out << pair.set.name;
}

std::string PairName(const testing::TestParamInfo<SettingPair>& info)
{
    return info.param.set.name;
}

class EverySetting : public testing::TestWithParam<SettingPair>
{
protected:
    LRESULT SetAndGet(LRESULT value)
    {
        const auto& [set, get] = GetParam();
        if (set.shape == engine::Shape::C) // of a numbered thing: the second of its kind
            m_engine.Send(set.number, 1, value);
        else if (set.shape == engine::Shape::D)
            m_engine.Send(set.number, 0, value);
        else
            m_engine.Send(set.number, static_cast<WPARAM>(value));
        return m_engine.Send(get.number, 1);
    }

    EngineUnderTest m_engine;
};

// The stock engine's lowest width is 1, it wraps a print in one way, and it is Unicode with one
// byte of style for each of text, whatever is set.
std::vector<LRESULT> ValuesOf(const MessageRow& set)
{
    if (set.number == msg::SetTabWidth || set.number == msg::SetScrollWidth)
        return {1, 2, 1};
    if (set.wParam == Kind::Flag || set.lParam == Kind::Flag || set.number == msg::SetPrintWrapMode)
        return {1, 0, 1};
    return {1, 2, 1, 0};
}

LRESULT FixedValueOf(const MessageRow& set)
{
    return set.number == msg::SetCodePage     ? 65001
           : set.number == msg::SetStyleBits  ? 8
           : set.number == msg::SetUsePalette ? 0
                                              : -1;
}

} // namespace

TEST_P(EverySetting, ReadsBackWhatWasSet)
{
    m_engine.SetText(kMixed);
    const LRESULT fixed = FixedValueOf(GetParam().set);
    for (const LRESULT value : ValuesOf(GetParam().set))
        EXPECT_EQ(SetAndGet(value), fixed >= 0 ? fixed : value);
}

INSTANTIATE_TEST_SUITE_P(OfTheTable, EverySetting, testing::ValuesIn(SettingPairs()), PairName);
