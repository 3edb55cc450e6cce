// SPDX-License-Identifier: GPL-3.0-or-later
// What the editing commands put into the text and on the clipboard, and what makes a word.
#include "tests/engine/effects/EffectsFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace msg = engine::message;

namespace {

class Editing : public Effects
{
protected:
    Editing() { QApplication::clipboard()->setText(QStringLiteral("before")); }

    static std::u16string Clipboard() { return QApplication::clipboard()->text().toStdU16String(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(m_engine.Window(), key, held);
    }
};

// As a key is told to AssignCmdKey and ClearCmdKey.
constexpr int kControl = 2;

constexpr WPARAM KeyOf(int key, int held)
{
    return static_cast<WPARAM>(key | (held << 16));
}

} // namespace

TEST_F(Editing, ALineEndIsThatOfTheMode)
{
    const std::u16string ends[] = {u"\r\n", u"\r", u"\n"};
    for (WPARAM mode = 1; mode <= 3; ++mode) {
        m_engine.Send(msg::SetEOLMode, mode);
        Place(u"ab[c|d");
        m_engine.Send(msg::NewLine);
        EXPECT_EQ(Placed(), u"ab" + ends[mode - 1] + u"|d");
    }
}

TEST_F(Editing, AFormFeedIsACharacter)
{
    Place(u"a|b");
    m_engine.Send(msg::FormFeed);
    EXPECT_EQ(Placed(), u"a\f|b");
}

TEST_F(Editing, OvertypingIsSwitchedOnAndOff)
{
    Place(u"|abc");
    m_engine.Send(msg::EditToggleOvertype);
    Type("X");
    EXPECT_EQ(Placed(), u"X|bc");
    m_engine.Send(msg::EditToggleOvertype);
    Type("Y");
    EXPECT_EQ(Placed(), u"XY|bc");
}

TEST_F(Editing, ALineIsCopiedWithItsEnd)
{
    Place(u"one\nt|wo\r\nthree");
    m_engine.Send(msg::LineCopy);
    EXPECT_EQ(Clipboard(), u"two\r\n");
    EXPECT_EQ(Placed(), u"one\nt|wo\r\nthree");
}

TEST_F(Editing, ARangeIsCopiedWithoutTheSelection)
{
    Place(u"a\U0001F600b[cd|e");
    m_engine.Send(msg::CopyRange, 1, LPARAM{4});
    EXPECT_EQ(Clipboard(), u"\U0001F600b");
    EXPECT_EQ(Placed(), u"a\U0001F600b[cd|e");
    m_engine.Send(msg::CopyRange, 6, LPARAM{4}); // a range that runs backwards holds nothing
    EXPECT_EQ(Clipboard(), u"");
}

TEST_F(Editing, ATextOfTheHostIsCopied)
{
    m_engine.Send(msg::CopyText, 3, u"\u4e2d\u00e9xyz");
    EXPECT_EQ(Clipboard(), u"\u4e2d\u00e9x");
}

TEST_F(Editing, APasteIsPossibleWhereTheTextMayChange)
{
    Place(u"a|");
    EXPECT_EQ(m_engine.Send(msg::CanPaste), 1);
    m_engine.Send(msg::SetReadOnly, 1);
    EXPECT_EQ(m_engine.Send(msg::CanPaste), 0);
    m_engine.Send(msg::Paste);
    EXPECT_EQ(m_engine.Text(), u"a");
}

TEST_F(Editing, AKeyDoesWhatItIsAssigned)
{
    Place(u"a|b");
    m_engine.Send(msg::AssignCmdKey, KeyOf('J', kControl), LPARAM{msg::FormFeed});
    Press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(Placed(), u"a\f|b");
    m_engine.Send(msg::ClearCmdKey, KeyOf('J', kControl));
    Press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(Placed(), u"a\f|b");
}

TEST_F(Editing, NoKeyMovesTheCaretOnceAllAreCleared)
{
    Place(u"a|b");
    Press(Qt::Key_Home);
    ASSERT_EQ(Placed(), u"|ab");
    m_engine.Send(msg::ClearAllCmdKeys);
    Press(Qt::Key_End);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Placed(), u"|ab");
    Type("x");
    EXPECT_EQ(Placed(), u"x|ab");
}

TEST_F(Editing, ATextIsAsLongAsItsUnits)
{
    m_engine.SetText(u"\u00e9\U0001F600\u4e2d\r\n");
    EXPECT_EQ(m_engine.Send(msg::GetTextLength), 6);
    m_engine.SetText(u"");
    EXPECT_EQ(m_engine.Send(msg::GetTextLength), 0);
}

TEST_F(Editing, ALineBeginsBehindItsIndentation)
{
    m_engine.SetText(u"\u00e9\n \t x\n   \n");
    EXPECT_EQ(m_engine.Send(msg::GetLineIndentPosition, 0), 0);
    EXPECT_EQ(m_engine.Send(msg::GetLineIndentPosition, 1), 5);
    EXPECT_EQ(m_engine.Send(msg::GetLineIndentPosition, 2), 10); // nothing but indentation
}

TEST_F(Editing, TabIndentsOrIsACharacter)
{
    m_engine.Send(msg::SetUseTabs, 0);
    m_engine.Send(msg::SetIndent, 3);
    m_engine.Send(msg::SetTabWidth, 8);
    m_engine.Send(msg::SetTabIndents, 1);
    EXPECT_EQ(m_engine.Send(msg::GetTabIndents), 1);
    Place(u"|x");
    m_engine.Send(msg::Tab);
    EXPECT_EQ(m_engine.Text(), u"   x");
    m_engine.Send(msg::SetTabIndents, 0);
    EXPECT_EQ(m_engine.Send(msg::GetTabIndents), 0);
    Place(u"|x");
    m_engine.Send(msg::Tab);
    EXPECT_EQ(m_engine.Text(), u"        x");
}

TEST_F(Editing, BackspaceTakesAnIndentationOrACharacter)
{
    m_engine.Send(msg::SetUseTabs, 0);
    m_engine.Send(msg::SetIndent, 4);
    m_engine.Send(msg::SetBackSpaceUnIndents, 1);
    EXPECT_EQ(m_engine.Send(msg::GetBackSpaceUnIndents), 1);
    Place(u"        |x");
    m_engine.Send(msg::DeleteBack);
    EXPECT_EQ(Placed(), u"    |x");
    m_engine.Send(msg::SetBackSpaceUnIndents, 0);
    EXPECT_EQ(m_engine.Send(msg::GetBackSpaceUnIndents), 0);
    m_engine.Send(msg::DeleteBack);
    EXPECT_EQ(Placed(), u"   |x");
}

TEST_F(Editing, AWordHasABeginningAndAnEnd)
{
    m_engine.SetText(u"x n\u00e4me, y");
    for (const WPARAM inside : {2, 4, 6}) {
        EXPECT_EQ(m_engine.Send(msg::WordStartPosition, inside, 1), 2) << inside;
        EXPECT_EQ(m_engine.Send(msg::WordEndPosition, inside, 1), 6) << inside;
    }
    // Of signs only where these count too.
    EXPECT_EQ(m_engine.Send(msg::WordEndPosition, 6, 1), 6);
    EXPECT_EQ(m_engine.Send(msg::WordEndPosition, 6, LPARAM{0}), 7);
    EXPECT_EQ(m_engine.Send(msg::WordStartPosition, 7, 1), 7);
    EXPECT_EQ(m_engine.Send(msg::WordStartPosition, 7, LPARAM{0}), 6);
}

TEST_F(Editing, WordsAreMadeOfTheCharactersThatAreSet)
{
    m_engine.SetText(u"a-b c");
    m_engine.Send(msg::SetWordChars, 0, u"ab-");
    EXPECT_EQ(m_engine.Send(msg::WordEndPosition, 0, 1), 3);
    EXPECT_EQ(m_engine.Send(msg::WordEndPosition, 4, 1), 4);
    m_engine.Send(msg::SetCharsDefault);
    EXPECT_EQ(m_engine.Send(msg::WordEndPosition, 0, 1), 1);
    EXPECT_EQ(m_engine.Send(msg::WordEndPosition, 4, 1), 5);
}

TEST_F(Editing, WhatCountsAsASpaceIsPassedOver)
{
    Place(u"|a..b");
    m_engine.Send(msg::WordRight);
    EXPECT_EQ(Placed(), u"a|..b");
    m_engine.Send(msg::SetWhitespaceChars, 0, u" .");
    Place(u"|a..b");
    m_engine.Send(msg::WordRight);
    EXPECT_EQ(Placed(), u"a..|b");
    m_engine.Send(msg::SetCharsDefault);
    Place(u"|a..b");
    m_engine.Send(msg::WordRight);
    EXPECT_EQ(Placed(), u"a|..b");
}

TEST_F(Editing, ALineKeepsTheStateThatItWasGiven)
{
    m_engine.SetText(u"a\nb\nc\n");
    m_engine.Send(msg::SetLineState, 1, LPARAM{77});
    EXPECT_EQ(m_engine.Send(msg::GetLineState, 1), 77);
    EXPECT_EQ(m_engine.Send(msg::GetLineState, 0), 0);
    EXPECT_EQ(m_engine.Send(msg::GetMaxLineState), 2); // lines that have one
    m_engine.Send(msg::InsertText, 0, u"\n");
    EXPECT_EQ(m_engine.Send(msg::GetLineState, 2), 77);
    EXPECT_EQ(m_engine.Send(msg::GetLineState, 1), 0);
}

TEST_F(Editing, UpAndDownKeepTheColumnThatWasChosen)
{
    m_engine.SetText(u"abcdef\nabcdef");
    m_engine.Send(msg::GotoPos, 0);
    m_engine.Send(msg::ChooseCaretX);
    m_engine.Send(msg::GotoPos, 5);
    m_engine.Send(msg::LineDown);
    EXPECT_EQ(Placed(), u"abcdef\n|abcdef");
    m_engine.Send(msg::GotoPos, 5);
    m_engine.Send(msg::ChooseCaretX);
    m_engine.Send(msg::LineDown);
    EXPECT_EQ(Placed(), u"abcdef\nabcde|f");
}

TEST_F(Editing, AStickyCaretKeepsItsColumnWhileTextIsTyped)
{
    const auto columnAfter = [this](const char* typed) {
        Place(u"|\nabcdef");
        Type(typed);
        m_engine.Send(msg::LineDown);
        return m_engine.Send(msg::GetColumn, static_cast<WPARAM>(Caret()));
    };
    EXPECT_EQ(columnAfter("xyz"), 3);
    m_engine.Send(msg::SetCaretSticky, 1);
    EXPECT_EQ(m_engine.Send(msg::GetCaretSticky), 1);
    EXPECT_EQ(columnAfter("xyz"), 0);
    m_engine.Send(msg::SetCaretSticky, 2); // but for spaces
    EXPECT_EQ(m_engine.Send(msg::GetCaretSticky), 2);
    EXPECT_EQ(columnAfter("xyz"), 3);
    EXPECT_EQ(columnAfter("   "), 0);
    m_engine.Send(msg::SetCaretSticky, 0);
    m_engine.Send(msg::ToggleCaretSticky);
    EXPECT_EQ(columnAfter("xyz"), 0);
    m_engine.Send(msg::ToggleCaretSticky);
    EXPECT_EQ(columnAfter("xyz"), 3);
}

TEST_F(Editing, TheSelectionIsReplacedAsTheTarget)
{
    Place(u"a\U0001F600[bc|d");
    m_engine.Send(msg::TargetFromSelection);
    EXPECT_EQ(m_engine.Send(msg::GetTargetStart), 3);
    EXPECT_EQ(m_engine.Send(msg::GetTargetEnd), 5);
    m_engine.Send(msg::ReplaceTargetNoProcess, 1, u"X");
    EXPECT_EQ(m_engine.Text(), u"a\U0001F600Xd");
}

TEST_F(Editing, RoomMadeAheadHoldsTheSameText)
{
    Place(u"one|");
    m_engine.Send(msg::Allocate, 1000000);
    EXPECT_EQ(m_engine.Send(msg::GetLength), 3);
    Type(" two");
    EXPECT_EQ(Placed(), u"one two|");
    m_engine.Send(msg::Allocate, 1);
    EXPECT_EQ(m_engine.Text(), u"one two");
}

TEST_F(Editing, TheMessageThatIsNothingDoesNothing)
{
    Place(u"o[n|e");
    m_engine.Parent().heard.clear();
    EXPECT_EQ(m_engine.Send(msg::Null), 0);
    EXPECT_EQ(Placed(), u"o[n|e");
    EXPECT_TRUE(m_engine.Parent().heard.empty());
}
