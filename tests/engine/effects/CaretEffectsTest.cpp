// SPDX-License-Identifier: GPL-3.0-or-later
// Where each message that moves the caret leads it, and that its twin selects the way.
#include "tests/engine/effects/EffectsFixture.h"

#include <ostream>

namespace msg = engine::message;

namespace {

struct Move
{
    const char* name;
    UINT move;
    UINT extend;
    const char16_t* before;
    const char16_t* after;
};

std::ostream& operator<<(std::ostream& out, const Move& move)
{
    return out << move.name;
}

class CaretMoves : public Effects, public testing::WithParamInterface<Move>
{};

constexpr Move kMoves[] = {
    {"LineDown", msg::LineDown, msg::LineDownExtend, u"ab|c\ndef", u"abc\nde|f"},
    {"LineUp", msg::LineUp, msg::LineUpExtend, u"abc\nde|f", u"ab|c\ndef"},
    {"CharLeft", msg::CharLeft, msg::CharLeftExtend, u"a\U0001F600|b", u"a|\U0001F600b"},
    {"CharRight", msg::CharRight, msg::CharRightExtend, u"a|\U0001F600b", u"a\U0001F600|b"},
    {"WordLeft", msg::WordLeft, msg::WordLeftExtend, u"one two|, three", u"one |two, three"},
    {"WordLeftOfAWord", msg::WordLeft, msg::WordLeftExtend, u"one |two", u"|one two"},
    {"WordRight", msg::WordRight, msg::WordRightExtend, u"o|ne two", u"one |two"},
    {"WordRightToASign", msg::WordRight, msg::WordRightExtend, u"o|ne+two", u"one|+two"},
    {"WordLeftEnd", msg::WordLeftEnd, msg::WordLeftEndExtend, u"one tw|o", u"one| two"},
    {"WordRightEnd", msg::WordRightEnd, msg::WordRightEndExtend, u"one| two x", u"one two| x"},
    {"WordPartLeft", msg::WordPartLeft, msg::WordPartLeftExtend, u"myTableName|", u"myTable|Name"},
    {"WordPartLeftOfALine", msg::WordPartLeft, msg::WordPartLeftExtend, u"my_table|", u"my_|table"},
    {"WordPartRight", msg::WordPartRight, msg::WordPartRightExtend, u"|myTableName",
     u"my|TableName"},
    {"Home", msg::Home, msg::HomeExtend, u"one\n  tw|o", u"one\n|  two"},
    {"LineEnd", msg::LineEnd, msg::LineEndExtend, u"o|ne\r\ntwo", u"one|\r\ntwo"},
    {"VCHome", msg::VCHome, msg::VCHomeExtend, u"one\n  tw|o", u"one\n  |two"},
    {"VCHomeAgain", msg::VCHome, msg::VCHomeExtend, u"one\n  |two", u"one\n|  two"},
    {"DocumentStart", msg::DocumentStart, msg::DocumentStartExtend, u"one\nt|wo", u"|one\ntwo"},
    {"DocumentEnd", msg::DocumentEnd, msg::DocumentEndExtend, u"o|ne\n\u4e2d", u"one\n\u4e2d|"},
    {"ParaDown", msg::ParaDown, msg::ParaDownExtend, u"o|ne\ntwo\n\nthree\n",
     u"one\ntwo\n\n|three\n"},
    {"ParaUp", msg::ParaUp, msg::ParaUpExtend, u"one\n\ntwo\nthr|ee", u"one\n\n|two\nthree"},
};

// A line of two words that stand below each other where lines are wrapped at 40 columns.
#define ZN_A30 u"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
#define ZN_B15 u"bbbbbbbbbbbbbbb"

constexpr Move kWrappedMoves[] = {
    {"HomeDisplay", msg::HomeDisplay, msg::HomeDisplayExtend, u" " ZN_A30 u" " ZN_B15 u"|" ZN_B15,
     u" " ZN_A30 u" |" ZN_B15 ZN_B15},
    {"LineEndDisplay", msg::LineEndDisplay, msg::LineEndDisplayExtend,
     u"| " ZN_A30 u" " ZN_B15 ZN_B15, u" " ZN_A30 u"| " ZN_B15 ZN_B15},
    {"HomeWrap", msg::HomeWrap, msg::HomeWrapExtend, u" " ZN_A30 u" " ZN_B15 u"|" ZN_B15,
     u" " ZN_A30 u" |" ZN_B15 ZN_B15},
    {"HomeWrapAgain", msg::HomeWrap, msg::HomeWrapExtend, u" " ZN_A30 u" |" ZN_B15 ZN_B15,
     u"| " ZN_A30 u" " ZN_B15 ZN_B15},
    {"LineEndWrap", msg::LineEndWrap, msg::LineEndWrapExtend, u"| " ZN_A30 u" " ZN_B15 ZN_B15,
     u" " ZN_A30 u"| " ZN_B15 ZN_B15},
    {"LineEndWrapAgain", msg::LineEndWrap, msg::LineEndWrapExtend, u" " ZN_A30 u"| " ZN_B15 ZN_B15,
     u" " ZN_A30 u" " ZN_B15 ZN_B15 u"|"},
    {"VCHomeWrap", msg::VCHomeWrap, msg::VCHomeWrapExtend, u" " ZN_A30 u" " ZN_B15 u"|" ZN_B15,
     u" " ZN_A30 u" |" ZN_B15 ZN_B15},
    {"VCHomeWrapAgain", msg::VCHomeWrap, msg::VCHomeWrapExtend, u" " ZN_A30 u" |" ZN_B15 ZN_B15,
     u" |" ZN_A30 u" " ZN_B15 ZN_B15},
};

class WrappedCaretMoves : public CaretMoves
{
protected:
    WrappedCaretMoves()
    {
        m_engine.Send(msg::SetMarginWidthN, 1, LPARAM{0});
        m_engine.Window()->resize(ColumnAt(45), 300);
        m_engine.Window()->grab();
        m_engine.Send(msg::SetWrapMode, 1);
    }

    void Place(const std::u16string& marked)
    {
        Effects::Place(marked);
        Picture(); // where lines are wrapped
    }
};

std::u16string WithAnchor(const Move& move)
{
    const auto anchor = std::u16string(move.before).find(u'|');
    std::u16string marked = move.after;
    marked.insert(anchor + (marked.find(u'|') < anchor ? 1 : 0), u"[");
    return marked;
}

std::string NameOf(const testing::TestParamInfo<Move>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(CaretMoves, LeadWhereTheyAreNamedFor)
{
    Place(GetParam().before);
    m_engine.Send(GetParam().move);
    EXPECT_EQ(Placed(), GetParam().after);
}

TEST_P(CaretMoves, SelectTheirWayInTheirOtherForm)
{
    Place(GetParam().before);
    m_engine.Send(GetParam().extend);
    EXPECT_EQ(Placed(), WithAnchor(GetParam()));
}

TEST_P(WrappedCaretMoves, LeadWhereTheyAreNamedFor)
{
    Place(GetParam().before);
    m_engine.Send(GetParam().move);
    EXPECT_EQ(Placed(), GetParam().after);
}

TEST_P(WrappedCaretMoves, SelectTheirWayInTheirOtherForm)
{
    Place(GetParam().before);
    m_engine.Send(GetParam().extend);
    EXPECT_EQ(Placed(), WithAnchor(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Unwrapped, CaretMoves, testing::ValuesIn(kMoves), NameOf);
INSTANTIATE_TEST_SUITE_P(Wrapped, WrappedCaretMoves, testing::ValuesIn(kWrappedMoves), NameOf);
