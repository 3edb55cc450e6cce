// SPDX-License-Identifier: GPL-3.0-or-later
// Noncharacters are characters: every move, deletion and read takes them whole.
#include "tests/engine/EngineFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
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

QStringList Lines(const std::u16string& text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), qsizetype(text.size()))
        .split(u'\n');
}

void SelectRectangle(EngineUnderTest& engine, long anchor, long caret)
{
    constexpr WPARAM kRectangle = 1;
    engine.Send(msg::SetSel, static_cast<WPARAM>(anchor), LPARAM{caret});
    engine.Send(msg::SetSelectionMode, kRectangle);
}

// Whether characters were taken out of a line, and nothing else was done to it.
bool IsLeftOf(const QList<uint>& line, const QList<uint>& rest)
{
    qsizetype at = 0;
    for (const uint character : line)
        at += at < rest.size() && rest[at] == character;
    return at == rest.size();
}

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

TEST_P(Noncharacters, StayWholeBesideARectangleThatIsPasted)
{
    EngineUnderTest source;
    source.SetText(u"Q\nQ");
    SelectRectangle(source, 0, 3);
    source.Send(msg::Copy);
    const std::u16string text =
        m_character + u"a\nb" + m_character + u"c\n" + m_character + m_character + u"\nddd";
    for (std::size_t place = 0; place <= text.size(); ++place) {
        m_engine.SetText(text);
        m_engine.Send(msg::GotoPos, place);
        m_engine.Send(msg::Paste);
        std::u16string rest = m_engine.Text();
        EXPECT_GE(std::erase(rest, u'Q'), 2u) << place;
        std::erase(rest, u' ');                          // up to the column
        rest.resize(rest.find_last_not_of(u"\r\n") + 1); // less the lines behind the last one
        EXPECT_TRUE(rest == text) << place;
    }
}

// The own way to put a rectangle in does what the stock engine does in a text without them, whose
// columns are those of the letters where all are as wide.
TEST_P(Noncharacters, ChangeNothingElseAboutARectangleThatIsPasted)
{
    constexpr WPARAM kDefaultStyle = 32;
    EngineUnderTest plain;
    for (EngineUnderTest* engine : {&plain, &m_engine}) {
        engine->Send(msg::StyleSetFont, kDefaultStyle, u"DejaVu Sans Mono");
        engine->Send(msg::StyleClearAll);
        engine->SetText(u"Q\nRS\n");
        SelectRectangle(*engine, 0, 4);
        engine->Send(msg::Copy);
    }
    const std::u16string text = u"a\nbbbb\n\ncc\nd";
    for (std::size_t place = 0; place <= text.size(); ++place) {
        plain.SetText(text);
        m_engine.SetText(text + u"\n" + m_character);
        for (EngineUnderTest* engine : {&plain, &m_engine}) {
            engine->Send(msg::GotoPos, place);
            engine->Send(msg::Paste);
        }
        if (place < text.size() - 4) { // in whose last lines there are further ones here
            EXPECT_EQ(m_engine.Text(), plain.Text() + u"\n" + m_character) << place;
        }
        EXPECT_EQ(Caret(), plain.Send(msg::GetCurrentPos)) << place;
        m_engine.Send(msg::Undo);
        EXPECT_EQ(m_engine.Text(), text + u"\n" + m_character) << place;
    }
}

TEST_P(Noncharacters, BringNoLineBehindARectangleThatIsPastedIntoTheLastOne)
{
    EngineUnderTest source;
    source.SetText(u"Q\nR");
    SelectRectangle(source, 0, 3);
    source.Send(msg::Copy);
    m_engine.SetText(m_character + u"\na");
    m_engine.Send(msg::DocumentEnd);
    m_engine.Send(msg::Paste);
    EXPECT_EQ(m_engine.Text(), m_character + u"\naQ\n R");
}

// One goes to where the one begins that it replaces, whichever way that was selected, and behind
// the ends of lines as well.
TEST_P(Noncharacters, ChangeNothingAboutWhereARectangleGoes)
{
    constexpr WPARAM kDefaultStyle = 32;
    EngineUnderTest plain;
    for (EngineUnderTest* engine : {&plain, &m_engine}) {
        engine->Send(msg::StyleSetFont, kDefaultStyle, u"DejaVu Sans Mono");
        engine->Send(msg::StyleClearAll);
        engine->SetText(u"Q\nR");
        SelectRectangle(*engine, 0, 3);
        engine->Send(msg::Copy);
    }
    const std::u16string text = u"ab\ncdef\nghi\n";
    for (const WPARAM place : {0U, 2U, 4U}) {
        for (const UINT down : {msg::LineDownRectExtend, msg::LineUpRectExtend}) {
            for (const int steps : {0, 1, 3}) {
                for (EngineUnderTest* engine : {&plain, &m_engine}) {
                    engine->SetText(text + (engine == &plain ? u"x" : m_character));
                    engine->Send(msg::GotoPos, place);
                    engine->Send(down);
                    for (int i = 0; i < steps; ++i)
                        engine->Send(msg::CharRightRectExtend);
                    engine->Send(msg::Paste);
                }
                std::u16string expected = plain.Text();
                expected.replace(expected.rfind(u'x'), 1, m_character);
                EXPECT_EQ(m_engine.Text(), expected) << place << ' ' << down << ' ' << steps;
            }
        }
    }
}

// As far as it reaches into a tab, the column is made of blanks, or the tab stands before it.
TEST_P(Noncharacters, ChangeNothingAboutARectangleBesideTabs)
{
    constexpr WPARAM kDefaultStyle = 32;
    const std::u16string text = u"abcdefghijkl\n\tz\nxy\tz\n";
    EngineUnderTest plain;
    for (EngineUnderTest* engine : {&plain, &m_engine}) {
        engine->Send(msg::StyleSetFont, kDefaultStyle, u"DejaVu Sans Mono");
        engine->Send(msg::StyleClearAll);
        engine->SetText(u"Q\nRS\nT");
        SelectRectangle(*engine, 0, 6);
        engine->Send(msg::Copy);
    }
    for (WPARAM column = 0; column <= 12; ++column) {
        for (EngineUnderTest* engine : {&plain, &m_engine}) {
            engine->SetText(text + (engine == &plain ? u"x" : m_character));
            engine->Send(msg::GotoPos, column);
            engine->Send(msg::Paste);
        }
        std::u16string expected = plain.Text();
        expected.replace(expected.rfind(u'x'), 1, m_character);
        EXPECT_EQ(m_engine.Text(), expected) << column;
    }
}

TEST_P(Noncharacters, AreBesideARectangleThatIsPastedWithAllOfItsText)
{
    const QString pasted = QStringLiteral("Q") + QChar(0) + QStringLiteral("R");
    auto* data = new QMimeData;
    data->setText(pasted);
    data->setData(QStringLiteral("text/x-qscintilla-rectangular"), {});
    QApplication::clipboard()->setMimeData(data);
    m_engine.SetText(m_character);
    m_engine.Send(msg::GotoPos, 0);
    m_engine.Send(msg::Paste);
    EXPECT_TRUE(m_engine.Text() == pasted.toStdU16String() + m_character);
}

TEST_P(Noncharacters, BringNothingButThePasteIntoAMacro)
{
    m_engine.SetText(u"Q\nQ");
    SelectRectangle(m_engine, 0, 3);
    m_engine.Send(msg::Copy);
    m_engine.SetText(m_character + u"ab");
    m_engine.Send(msg::StartRecord);
    m_engine.Parent().heard.clear();
    m_engine.Send(msg::Paste);
    auto told = m_engine.Parent().Of(notify::MacroRecord);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].record.message, int{msg::Paste});
    m_engine.Send(msg::SelectAll); // which is still recorded
    EXPECT_EQ(m_engine.Parent().Of(notify::MacroRecord).size(), 2u);
}

TEST_P(Noncharacters, GoWholeWithARectangle)
{
    const std::u16string text =
        m_character + u"aab\nb" + m_character + u"cc\n" + m_character + m_character + u"dd";
    const auto last =
        static_cast<long>(text.size()) - static_cast<long>(2 * m_character.size()) - 2;
    for (long anchor = 0; anchor <= 3 + Width(); ++anchor) {
        for (long caret = last; caret <= static_cast<long>(text.size()); ++caret) {
            m_engine.SetText(text);
            SelectRectangle(m_engine, anchor, caret);
            m_engine.Send(msg::Clear);
            // What is left of each line stands in it in this order.
            const QStringList before = Lines(text);
            const QStringList after = Lines(m_engine.Text());
            ASSERT_EQ(after.size(), before.size());
            for (qsizetype line = 0; line < before.size(); ++line)
                EXPECT_TRUE(IsLeftOf(before[line].toUcs4(), after[line].toUcs4()))
                    << anchor << " " << caret << " line " << line;
        }
    }
}

TEST_P(Noncharacters, AreNotDividedByWhatIsDropped)
{
    const std::u16string text = m_character + u"a" + m_character;
    m_engine.Window()->resize(300, 100);
    QMimeData data;
    data.setText(QStringLiteral("Q"));
    constexpr int kRight = 120; // pixels, behind the text
    for (int x = 0; x < kRight; ++x) {
        m_engine.SetText(text);
        auto* view = qobject_cast<QAbstractScrollArea*>(m_engine.Window())->viewport();
        QDragEnterEvent enter({x, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &enter);
        QDropEvent drop({double(x), 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &drop);
        std::u16string rest = m_engine.Text();
        EXPECT_EQ(std::erase(rest, u'Q'), 1u) << x;
        EXPECT_TRUE(rest == text) << x;
    }
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
