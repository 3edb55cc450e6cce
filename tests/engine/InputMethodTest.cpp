// SPDX-License-Identifier: GPL-3.0-or-later
// What an input method asks, and what a composition does and leaves alone.
#include "tests/engine/EngineFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

class InputMethods : public testing::Test
{
protected:
    void Start(const std::u16string& text, long anchor, long caret)
    {
        m_engine.SetText(text);
        m_engine.Send(msg::EmptyUndoBuffer);
        m_engine.Send(msg::SetSavePoint);
        m_engine.Send(msg::SetSel, static_cast<WPARAM>(anchor), caret);
        m_engine.Parent().heard.clear();
    }

    void Compose(const std::u16string& preedit) const
    {
        QInputMethodEvent event(QString::fromStdU16String(preedit), {});
        QApplication::sendEvent(m_engine.Window(), &event);
    }

    void Commit(const std::u16string& text, int from = 0, int length = 0) const
    {
        QInputMethodEvent event;
        event.setCommitString(QString::fromStdU16String(text), from, length);
        QApplication::sendEvent(m_engine.Window(), &event);
    }

    QVariant Ask(Qt::InputMethodQuery query) const
    {
        QInputMethodQueryEvent event(query);
        QApplication::sendEvent(m_engine.Window(), &event);
        return event.value(query);
    }

    QWidget* Viewport() const
    {
        return qobject_cast<QAbstractScrollArea*>(m_engine.Window())->viewport();
    }

    QPoint AskCaret() const
    {
        return Ask(Qt::ImCursorRectangle).toRect().topLeft() - Viewport()->pos();
    }

    QPoint CaretOfTheText() const
    {
        const LRESULT caret = m_engine.Send(msg::GetCurrentPos);
        return {static_cast<int>(m_engine.Send(msg::PointXFromPosition, 0, caret)),
                static_cast<int>(m_engine.Send(msg::PointYFromPosition, 0, caret))};
    }

    std::u16string AskText(Qt::InputMethodQuery query) const
    {
        return Ask(query).toString().toStdU16String();
    }

    std::u16string UndoneText() const
    {
        m_engine.Send(msg::Undo);
        return m_engine.Text();
    }

    EngineUnderTest m_engine;
};

} // namespace

TEST_F(InputMethods, SurroundingTextIsTheLineOfTheCaret)
{
    Start(u"\u00e9rste\r\n\U0001F600 zweite\r\ndritte", 9, 12);
    EXPECT_EQ(AskText(Qt::ImSurroundingText), u"\U0001F600 zweite");
    EXPECT_EQ(Ask(Qt::ImCursorPosition).toInt(), 5);
    EXPECT_EQ(Ask(Qt::ImAnchorPosition).toInt(), 2);
    EXPECT_EQ(AskText(Qt::ImCurrentSelection), u" zw");
    EXPECT_EQ(AskText(Qt::ImTextBeforeCursor), u"\U0001F600 zw");
    EXPECT_EQ(AskText(Qt::ImTextAfterCursor), u"eite");
}

TEST_F(InputMethods, SurroundingTextMayBeginWithWhatLooksLikeAMark)
{
    for (const char16_t mark : {u'\xFEFF', u'\xFFFE'}) {
        const std::u16string line = mark + std::u16string(u"ab");
        Start(line, 3, 3);
        EXPECT_EQ(Ask(Qt::ImSurroundingText).toString().toStdU16String(), line);
    }
}

TEST_F(InputMethods, AnAnchorOnAnotherLineIsClampedToTheLine)
{
    Start(u"one\ntwo\nthree", 0, 6);
    EXPECT_EQ(Ask(Qt::ImAnchorPosition).toInt(), 0);
    EXPECT_EQ(Ask(Qt::ImCursorPosition).toInt(), 2);
    Start(u"one\ntwo\nthree", 12, 6);
    EXPECT_EQ(Ask(Qt::ImAnchorPosition).toInt(), 3);
}

TEST_F(InputMethods, OfALongLineOnlyThePlaceOfTheCaretIsShown)
{
    std::u16string line(50 * 1024 * 1024, u'x');
    const std::u16string around = u"\u00e9\U0001F600|\u4e2d";
    line.replace(30'000'000, around.size(), around);
    m_engine.SetText(line);
    // Unlike a selection it is not scrolled to, for which the stock engine lays out the line.
    m_engine.Send(msg::SetCurrentPos, 30'000'003);
    const std::u16string shown = AskText(Qt::ImSurroundingText);
    EXPECT_LT(shown.size(), 10'000u);
    const auto caret = static_cast<std::size_t>(Ask(Qt::ImCursorPosition).toInt());
    EXPECT_EQ(shown.substr(caret - 3, 5), around);
    EXPECT_EQ(Ask(Qt::ImAnchorPosition).toInt(), 0);
    EXPECT_LT(AskText(Qt::ImCurrentSelection).size(), 10'000u);
}

TEST_F(InputMethods, AReadOnlyTextIsNotEnabled)
{
    Start(u"text", 0, 0);
    EXPECT_TRUE(Ask(Qt::ImEnabled).toBool());
    EXPECT_TRUE(Ask(Qt::ImHints).toInt() & Qt::ImhMultiLine);
    m_engine.Send(msg::SetReadOnly, 1);
    EXPECT_FALSE(Ask(Qt::ImEnabled).toBool());
}

TEST_F(InputMethods, TheCursorRectangleStandsWhereTheCaretStands)
{
    Start(u"abc\ndef", 6, 6);
    EXPECT_EQ(AskCaret(), CaretOfTheText());
    EXPECT_EQ(Ask(Qt::ImCursorRectangle).toRect().height(), m_engine.Send(msg::TextHeight, 1));
    Compose(u"wide");
    EXPECT_GT(AskCaret().x(), CaretOfTheText().x());
}

TEST_F(InputMethods, TheFontIsThatOfTheText)
{
    m_engine.Send(msg::StyleSetFont, 0, u"DejaVu Sans Mono");
    m_engine.Send(msg::StyleSetSize, 0, LPARAM{17});
    Start(u"text", 0, 0);
    const auto font = Ask(Qt::ImFont).value<QFont>();
    EXPECT_EQ(font.family(), "DejaVu Sans Mono");
    EXPECT_EQ(font.pointSize(), 17);
}

TEST_F(InputMethods, TheFontIsThatOfAStyleWithAHighNumber)
{
    constexpr int kStyle = 200;
    m_engine.SetText(u"text");
    m_engine.Send(msg::StyleSetSize, kStyle, LPARAM{30});
    m_engine.Send(msg::StartStyling, 0, LPARAM{0xFF});
    m_engine.Send(msg::SetStyling, 4, LPARAM{kStyle});
    EXPECT_EQ(Ask(Qt::ImFont).value<QFont>().pointSize(), 30);
}

TEST_F(InputMethods, ACompositionIsShownAndTakenAway)
{
    Start(u"abc", 3, 3);
    m_engine.Send(msg::SetCaretPeriod, 0);
    const QImage before = m_engine.Window()->grab().toImage();
    Compose(u"\u306b\u307b\u3093");
    EXPECT_NE(m_engine.Window()->grab().toImage(), before);
    Compose(u"");
    EXPECT_EQ(m_engine.Window()->grab().toImage(), before);
}

TEST_F(InputMethods, ACompositionTouchesNeitherTextNorUndoNorSavePoint)
{
    Start(u"abcdef", 1, 3);
    for (const auto* preedit : {u"n", u"ni", u"\u306b", u""}) {
        Compose(preedit);
        EXPECT_EQ(m_engine.Text(), u"abcdef");
        EXPECT_EQ(m_engine.Send(msg::CanUndo), 0);
        EXPECT_EQ(m_engine.Send(msg::GetModify), 0);
    }
    EXPECT_EQ(m_engine.Send(msg::GetAnchor), 1);
    EXPECT_EQ(m_engine.Send(msg::GetCurrentPos), 3);
    EXPECT_TRUE(m_engine.Parent().Of(notify::Modified).empty());
    EXPECT_TRUE(m_engine.Parent().Of(notify::SavePointLeft).empty());
}

TEST_F(InputMethods, ACommitReplacesTheSelectionAsOneStep)
{
    Start(u"abcdef", 1, 3);
    Compose(u"\u306b");
    Commit(u"\u65e5\u672c\U0001F600a\u0301");
    EXPECT_EQ(m_engine.Text(), u"a\u65e5\u672c\U0001F600a\u0301def");
    EXPECT_EQ(m_engine.Send(msg::GetCurrentPos), 7);
    EXPECT_EQ(UndoneText(), u"abcdef");
    EXPECT_EQ(m_engine.Send(msg::CanUndo), 0);
}

TEST_F(InputMethods, ACommitIsToldAsInsertionsAndCharacters)
{
    Start(u"", 0, 0);
    Commit(u"\u65e5\U0001F600");
    const auto changes = m_engine.Parent().Of(notify::Modified);
    const auto characters = m_engine.Parent().Of(notify::CharAdded);
    ASSERT_EQ(changes.size(), 2u);
    ASSERT_EQ(characters.size(), 2u);
    EXPECT_EQ(changes[0].text + changes[1].text, u"\u65e5\U0001F600");
    EXPECT_EQ(characters[0].record.ch, 0x65e5);
    EXPECT_EQ(characters[1].record.ch, 0x1F600);
}

TEST_F(InputMethods, ACommitMayReplaceTextBesideTheCaret)
{
    Start(u"\U0001F600 nihon!", 8, 8);
    Commit(u"\u65e5\u672c", -5, 5);
    EXPECT_EQ(m_engine.Text(), u"\U0001F600 \u65e5\u672c!");
    EXPECT_EQ(m_engine.Send(msg::GetCurrentPos), 5);
    EXPECT_EQ(UndoneText(), u"\U0001F600 nihon!");
}

TEST_F(InputMethods, AReplacedRangeMayReachOutOfTheText)
{
    Start(u"abc", 1, 1);
    Commit(u"x", -100, 1000);
    EXPECT_EQ(m_engine.Text(), u"x");
}

TEST_F(InputMethods, LosingTheFocusGivesTheCompositionUp)
{
    Start(u"abc", 3, 3);
    m_engine.Send(msg::SetCaretPeriod, 0);
    const QImage before = m_engine.Window()->grab().toImage();
    Compose(u"abandoned");
    QFocusEvent event(QEvent::FocusOut);
    QApplication::sendEvent(m_engine.Window(), &event);
    EXPECT_EQ(m_engine.Text(), u"abc");
    EXPECT_EQ(m_engine.Window()->grab().toImage(), before);
}

TEST_F(InputMethods, AClickGivesTheCompositionUp)
{
    Start(u"abc", 3, 3);
    Compose(u"abandoned");
    QTest::mouseClick(Viewport(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(m_engine.Text(), u"abc");
    EXPECT_EQ(AskCaret(), CaretOfTheText());
}

TEST_F(InputMethods, AnUndoDuringACompositionUndoesTheTextOnly)
{
    Start(u"abc", 3, 3);
    Commit(u"d");
    Compose(u"e");
    EXPECT_EQ(UndoneText(), u"abc");
    Commit(u"f");
    EXPECT_EQ(m_engine.Text(), u"abcf");
}

TEST_F(InputMethods, AReadOnlyTextTakesNothing)
{
    Start(u"abc", 3, 3);
    Compose(u"d");
    m_engine.Send(msg::SetReadOnly, 1);
    Commit(u"d", -1, 1);
    EXPECT_EQ(m_engine.Text(), u"abc");
    EXPECT_EQ(m_engine.Parent().Of(notify::ModifyAttemptReadOnly).size(), 1u);
}

TEST_F(InputMethods, AKeyThatGivesAnAstralCharacterTypesIt)
{
    Start(u"ab", 1, 1);
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromStdU16String(u"\U0001F600"));
    QApplication::sendEvent(m_engine.Window(), &key);
    EXPECT_EQ(m_engine.Text(), u"a\U0001F600b");
    EXPECT_EQ(m_engine.Parent().Of(notify::CharAdded).size(), 1u);
}
