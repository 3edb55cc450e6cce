// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside the lines in a host's own margin, and a text that is to be styled anew.
#include "tests/engine/EngineFixture.h"

#include <QImage>
#include <QWidget>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace msg = engine::message;

namespace {

constexpr int kMarginWidth = 80;
constexpr int kStyle = 33; // of line numbers

class MarginTexts : public testing::Test
{
protected:
    MarginTexts()
    {
        m_engine.SetText(u"one\ntwo\nthree");
        m_engine.Send(msg::SetMarginWidthN, 0, kMarginWidth);
        m_engine.Send(msg::StyleSetFore, kStyle, 0x0000FF);
        m_engine.Send(msg::StyleSetBack, kStyle, 0xFFFFFF);
    }

    // Whether anything red stands beside a line.
    bool IsMarked(int line)
    {
        const QImage image = m_engine.Window()->grab().toImage();
        const int height = static_cast<int>(m_engine.Send(msg::TextHeight, 0));
        for (int y = line * height; y < (line + 1) * height; ++y) {
            for (int x = 0; x < kMarginWidth; ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.red() > 200 && colour.green() < 100)
                    return true;
            }
        }
        return false;
    }
    std::set<int> MarkedLines()
    {
        std::set<int> lines;
        for (int line = 0; line < 5; ++line) {
            if (IsMarked(line))
                lines.insert(line);
        }
        return lines;
    }
    void SetTexts(const std::map<int, std::u16string>& texts)
    {
        m_engine.Send(engine::kExtendedTexts, reinterpret_cast<WPARAM>(&texts));
    }
    void SetText(const std::u16string& text)
    {
        m_engine.Send(engine::kExtendedText, reinterpret_cast<WPARAM>(text.data()),
                      static_cast<LPARAM>(text.size()));
    }

    EngineUnderTest m_engine;
};

} // namespace

TEST_F(MarginTexts, StandBesideTheirLines)
{
    SetTexts({{0, u"MMM"}, {2, u"MMM"}});
    EXPECT_EQ(MarkedLines(), (std::set{0, 2}));
}

TEST_F(MarginTexts, GiveWayToTheNextOnes)
{
    SetTexts({{0, u"MMM"}, {2, u"MMM"}});
    SetTexts({{1, u"MMM"}});
    EXPECT_EQ(MarkedLines(), std::set{1});
    SetTexts({});
    EXPECT_TRUE(MarkedLines().empty());
}

TEST_F(MarginTexts, OfLinesThatAreNotThereAreLeftOut)
{
    SetTexts({{-1, u"MMM"}, {3, u"MMM"}, {1000000, u"MMM"}});
    EXPECT_TRUE(MarkedLines().empty());
}

TEST_F(MarginTexts, KeepToOneLineEach)
{
    SetTexts({{0, u"MMM\nMMM\nMMM"}});
    EXPECT_EQ(MarkedLines(), std::set{0});
}

TEST_F(MarginTexts, GoAlongWithTheirLines)
{
    SetTexts({{1, u"MMM"}});
    m_engine.Send(msg::InsertText, 0, u"\n");
    EXPECT_EQ(MarkedLines(), std::set{2});
}

TEST_F(MarginTexts, OfOneTextGoLineByLine)
{
    SetText(u"MMM\r\n\r\nMMM");
    EXPECT_EQ(MarkedLines(), (std::set{0, 2}));
    SetText(u"\nMMM\rMMM");
    EXPECT_EQ(MarkedLines(), (std::set{1, 2}));
}

TEST(Restyling, GivesATextItsColoursBack)
{
    constexpr WPARAM kTransactSql = 3;
    EngineUnderTest engine;
    engine.Send(msg::SetLexer, kTransactSql);
    engine.SetText(u"-- a comment");
    engine.Send(msg::Colorize, 0, LPARAM{-1});
    const LRESULT style = engine.Send(msg::GetStyleAt, 4);
    ASSERT_NE(style, 0);
    engine.Send(msg::ClearDocumentStyle);
    ASSERT_EQ(engine.Send(msg::GetStyleAt, 4), 0);
    engine.Send(engine::kRestyle);
    EXPECT_EQ(engine.Send(msg::GetEndStyled), 0);
    engine.Window()->grab();
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 4), style);
}

TEST(Restyling, AsksAHostThatStylesByItself)
{
    EngineUnderTest engine;
    engine.SetText(u"text");
    engine.Send(msg::StartStyling, 0, LPARAM{0});
    engine.Send(msg::SetStyling, 4, LPARAM{1});
    engine.Parent().heard.clear();
    engine.Send(engine::kRestyle);
    engine.Window()->grab();
    EXPECT_FALSE(engine.Parent().Of(notify::StyleNeeded).empty());
}
