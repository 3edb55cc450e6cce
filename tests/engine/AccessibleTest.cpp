// SPDX-License-Identifier: GPL-3.0-or-later
// An engine window as assistive technology sees it.
#include "engine/window/Accessible.h"
#include "engine/changes/AssistiveTechnology.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

class AccessibleText : public testing::Test
{
protected:
    AccessibleText()
        : m_face(dynamic_cast<engine::Accessible*>(
              QAccessible::queryAccessibleInterface(m_engine.Window())))
    {}

    std::u16string At(int offset, QAccessible::TextBoundaryType boundary)
    {
        return m_face->textAtOffset(offset, boundary, &m_start, &m_end).toStdU16String();
    }

    EngineUnderTest m_engine;
    engine::Accessible* m_face;
    int m_start = 0;
    int m_end = 0;
};

const std::u16string kText = u"\u00e9ins \U0001F600 zwei\r\ndrei a\u0301b\r\n";

struct Spoken
{
    QAccessible::Event type;
    int position;
    QString text;
};

std::vector<Spoken> s_spoken;

void Listen(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::TextInserted) {
        auto* inserted = static_cast<QAccessibleTextInsertEvent*>(event);
        s_spoken.push_back({event->type(), inserted->changePosition(), inserted->textInserted()});
    } else if (event->type() == QAccessible::TextRemoved) {
        auto* removed = static_cast<QAccessibleTextRemoveEvent*>(event);
        s_spoken.push_back({event->type(), removed->changePosition(), removed->textRemoved()});
    } else if (event->type() == QAccessible::TextCaretMoved) {
        auto* moved = static_cast<QAccessibleTextCursorEvent*>(event);
        s_spoken.push_back({event->type(), moved->cursorPosition(), {}});
    } else if (event->type() == QAccessible::TextSelectionChanged) {
        auto* selected = static_cast<QAccessibleTextSelectionEvent*>(event);
        s_spoken.push_back(
            {event->type(), selected->selectionStart(), QString::number(selected->selectionEnd())});
    }
}

// Assistive technology that listens for as long as it lives.
bool Yes()
{
    return true;
}

bool No()
{
    return false;
}

struct Listening
{
    explicit Listening(bool listens)
    {
        s_spoken.clear();
        engine::g_assistiveTechnology = {listens ? Yes : No, Listen};
    }
    ~Listening() { engine::g_assistiveTechnology = {}; }
};

} // namespace

TEST_F(AccessibleText, IsOurOwnAndAnEditableText)
{
    ASSERT_NE(m_face, nullptr);
    EXPECT_EQ(m_face->role(), QAccessible::EditableText);
    EXPECT_EQ(m_face->text(QAccessible::Name), "Text editor");
    EXPECT_TRUE(m_face->state().editable);
    EXPECT_TRUE(m_face->state().multiLine);
    m_engine.Send(msg::SetReadOnly, 1);
    EXPECT_TRUE(m_face->state().readOnly);
    EXPECT_FALSE(m_face->state().editable);
}

TEST_F(AccessibleText, GivesAnyRangeInUnits)
{
    m_engine.SetText(kText);
    EXPECT_EQ(m_face->characterCount(), static_cast<int>(kText.size()));
    EXPECT_EQ(m_face->text(5, 9).toStdU16String(), kText.substr(5, 4));
    EXPECT_EQ(m_face->text(0, -1).toStdU16String(), kText);
    EXPECT_EQ(m_face->text(9, 5), "");
    EXPECT_EQ(m_face->text(-7, 4).toStdU16String(), kText.substr(0, 4));
}

TEST_F(AccessibleText, GivesACharacterThatLooksLikeAMark)
{
    for (const char16_t mark : {u'\xFEFF', u'\xFFFE'}) {
        const std::u16string text = mark + std::u16string(u"ab");
        m_engine.SetText(text);
        EXPECT_EQ(m_face->text(0, 3).toStdU16String(), text);
    }
}

TEST_F(AccessibleText, GivesLinesWordsAndCharacters)
{
    m_engine.SetText(kText);
    EXPECT_EQ(At(9, QAccessible::LineBoundary), u"\u00e9ins \U0001F600 zwei\r\n");
    EXPECT_EQ(m_end, 14);
    EXPECT_EQ(At(9, QAccessible::WordBoundary), u"zwei");
    EXPECT_EQ(m_start, 8);
    EXPECT_EQ(At(5, QAccessible::CharBoundary), u"\U0001F600");
    EXPECT_EQ(At(19, QAccessible::CharBoundary), u"a\u0301");
    EXPECT_EQ(At(-1, QAccessible::LineBoundary), u"");
}

TEST_F(AccessibleText, GivesWhatStandsBeforeAndBehind)
{
    m_engine.SetText(kText);
    EXPECT_EQ(
        m_face->textBeforeOffset(15, QAccessible::LineBoundary, &m_start, &m_end).toStdU16String(),
        kText.substr(0, 14));
    EXPECT_EQ(
        m_face->textAfterOffset(2, QAccessible::LineBoundary, &m_start, &m_end).toStdU16String(),
        kText.substr(14));
    EXPECT_EQ(m_face->textBeforeOffset(0, QAccessible::CharBoundary, &m_start, &m_end), "");
}

TEST_F(AccessibleText, MovesTheCaretAndTheSelection)
{
    m_engine.SetText(kText);
    m_face->setCursorPosition(7);
    EXPECT_EQ(m_face->cursorPosition(), 7);
    EXPECT_EQ(m_face->selectionCount(), 0);
    m_face->setSelection(0, 8, 12);
    EXPECT_EQ(m_face->selectionCount(), 1);
    m_face->selection(0, &m_start, &m_end);
    EXPECT_EQ(m_start, 8);
    EXPECT_EQ(m_end, 12);
    m_face->removeSelection(0);
    EXPECT_EQ(m_face->selectionCount(), 0);
}

TEST_F(AccessibleText, FindsACharacterByItsRectangle)
{
    m_engine.SetText(kText);
    for (const int offset : {0, 3, 8, 14, 16}) {
        const QRect place = m_face->characterRect(offset);
        EXPECT_TRUE(place.isValid());
        EXPECT_EQ(m_face->offsetAtPoint({place.left() + 1, place.center().y()}), offset);
    }
    EXPECT_EQ(m_face->offsetAtPoint({-5000, -5000}), -1);
}

TEST_F(AccessibleText, TellsTheStyleAndHowFarItGoes)
{
    m_engine.Send(msg::StyleSetBold, 5, LPARAM{1});
    m_engine.Send(msg::StyleSetFore, 5, LPARAM{0x0000FF});
    m_engine.SetText(kText);
    m_engine.Send(msg::StartStyling, 5, LPARAM{0xFF});
    m_engine.Send(msg::SetStyling, 3, LPARAM{5});
    const QString attributes = m_face->attributes(7, &m_start, &m_end);
    EXPECT_TRUE(attributes.contains("font-weight:bold"));
    EXPECT_TRUE(attributes.contains(";color:rgb(255,0,0)"));
    EXPECT_EQ(m_start, 5);
    EXPECT_EQ(m_end, 8);
}

TEST_F(AccessibleText, EditsTheText)
{
    m_engine.SetText(kText);
    m_face->insertText(5, "x\u00fc");
    EXPECT_EQ(m_engine.Range(0, 9), u"\u00e9ins x\u00fc\U0001F600");
    m_face->replaceText(5, 9, "_");
    EXPECT_EQ(m_engine.Range(0, 7), u"\u00e9ins _ ");
    m_face->deleteText(4, -1);
    EXPECT_EQ(m_engine.Text(), u"\u00e9ins");
}

TEST_F(AccessibleText, NoAnswerReadsMoreFurtherOn)
{
    std::u16string text;
    for (int i = 0; i < 100'000; ++i)
        text += u"select '\u00e9\U0001F600' from t;\r\n";
    m_engine.SetText(text);
    const auto cost = [this](int offset) {
        const long before = m_face->BytesRead();
        for (const auto boundary : {QAccessible::CharBoundary, QAccessible::WordBoundary,
                                    QAccessible::SentenceBoundary, QAccessible::LineBoundary}) {
            At(offset, boundary);
            m_face->textAfterOffset(offset, boundary, &m_start, &m_end);
        }
        m_face->attributes(offset, &m_start, &m_end);
        return m_face->BytesRead() - before;
    };
    const auto perLine = static_cast<int>(text.size() / 100'000);
    const long atStart = cost(perLine * 2 + 3);
    EXPECT_GT(atStart, 0);
    EXPECT_EQ(cost(perLine * 99'000 + 3), atStart);
}

TEST_F(AccessibleText, OfALongLineLittleIsRead)
{
    m_engine.SetText(std::u16string(5'000'000, u'x'));
    At(2'500'000, QAccessible::WordBoundary);
    EXPECT_LT(m_face->BytesRead(), 20'000);
}

TEST_F(AccessibleText, TellsChangesAndCaretWhileSomebodyListens)
{
    m_engine.SetText(kText);
    const Listening listening(true);
    m_engine.Send(msg::SetSel, 5, 7);
    m_engine.Send(msg::ReplaceSel, 0, u"\u4e2d");
    m_engine.Window()->grab();
    ASSERT_GE(s_spoken.size(), 3u);
    EXPECT_EQ(s_spoken[0].type, QAccessible::TextRemoved);
    EXPECT_EQ(s_spoken[0].position, 5);
    EXPECT_EQ(s_spoken[0].text.toStdU16String(), u"\U0001F600");
    EXPECT_EQ(s_spoken[1].text.toStdU16String(), u"\u4e2d");
    EXPECT_EQ(s_spoken.back().type, QAccessible::TextCaretMoved);
    EXPECT_EQ(s_spoken.back().position, 6);
}

TEST_F(AccessibleText, TellsTheCaretBehindEachLetterThatIsTyped)
{
    m_engine.SetText(kText);
    m_engine.Send(msg::GotoPos, 3);
    m_engine.Window()->grab();
    const Listening listening(true);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QApplication::sendEvent(m_engine.Window(), &key);
    m_engine.Window()->grab();
    ASSERT_EQ(s_spoken.size(), 2u);
    EXPECT_EQ(s_spoken[0].type, QAccessible::TextInserted);
    EXPECT_EQ(s_spoken[1].type, QAccessible::TextCaretMoved);
    EXPECT_EQ(s_spoken[1].position, 4);
}

TEST_F(AccessibleText, TellsWhatIsSelectedAndThatNothingIsAnyMore)
{
    m_engine.SetText(kText);
    m_engine.Window()->grab();
    const Listening listening(true);
    m_engine.Send(msg::SetSel, 5, 7);
    m_engine.Window()->grab();
    ASSERT_EQ(s_spoken.size(), 2u);
    EXPECT_EQ(s_spoken[0].position, 7);
    EXPECT_EQ(s_spoken[1].type, QAccessible::TextSelectionChanged);
    EXPECT_EQ(s_spoken[1].position, 5);
    EXPECT_EQ(s_spoken[1].text, QStringLiteral("7"));
    m_engine.Send(msg::SetSel, 7, 7);
    m_engine.Window()->grab();
    ASSERT_EQ(s_spoken.size(), 3u) << "the caret is where it was";
    EXPECT_EQ(s_spoken[2].type, QAccessible::TextSelectionChanged);
    EXPECT_EQ(s_spoken[2].text, QStringLiteral("7"));
}

TEST_F(AccessibleText, TellsNothingWhileNobodyListens)
{
    const Listening listening(false);
    m_engine.SetText(kText);
    m_engine.Send(msg::GotoPos, 3);
    m_engine.Window()->grab();
    EXPECT_TRUE(s_spoken.empty());
}
