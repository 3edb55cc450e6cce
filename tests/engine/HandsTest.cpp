// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does with keyboard, mouse, menu and clipboard, and what the parent hears of it.
#include "control/EngineLooks.h"
#include "tests/engine/EngineFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>

namespace msg = engine::message;

namespace {

class Hands : public testing::Test
{
protected:
    Hands()
    {
        QApplication::clipboard()->clear();
        m_engine.Window()->resize(600, 400);
        m_engine.Send(msg::StyleSetFont, 0, u"DejaVu Sans Mono"); // columns of one width
    }

    void Start(const std::u16string& text, long anchor = 0, long caret = 0)
    {
        m_engine.SetText(text);
        m_engine.Send(msg::EmptyUndoBuffer);
        Select(anchor, caret);
        m_engine.Parent().heard.clear();
    }

    void Select(long anchor, long caret) const
    {
        m_engine.Send(msg::SetSel, static_cast<WPARAM>(anchor), caret);
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(m_engine.Window(), key, modifiers);
    }

    QWidget* Viewport() const
    {
        return qobject_cast<QAbstractScrollArea*>(m_engine.Window())->viewport();
    }

    QPoint PointOf(long position) const
    {
        return {static_cast<int>(m_engine.Send(msg::PointXFromPosition, 0, LPARAM{position})) + 1,
                static_cast<int>(m_engine.Send(msg::PointYFromPosition, 0, LPARAM{position})) + 3};
    }

    // As a keyboard sends it, with the character that the key would type alone.
    bool PressWithText(int key, Qt::KeyboardModifiers held, const QString& text) const
    {
        QKeyEvent press(QEvent::KeyPress, key, held, text);
        QApplication::sendEvent(m_engine.Window(), &press);
        return press.isAccepted();
    }

    void Mouse(QEvent::Type type, long position, Qt::KeyboardModifiers held) const
    {
        const QPointF at = PointOf(position);
        QMouseEvent event(type, at, Viewport()->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, held);
        QApplication::sendEvent(Viewport(), &event);
    }

    void Drag(long from, long to, Qt::KeyboardModifiers held) const
    {
        Mouse(QEvent::MouseButtonPress, from, held);
        Mouse(QEvent::MouseMove, to, held);
        Mouse(QEvent::MouseButtonRelease, to, held);
    }

    bool Drop(const QMimeData& data, long position, Qt::DropAction action) const
    {
        const QPoint at = PointOf(position);
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Viewport(), &enter);
        QDragMoveEvent move(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Viewport(), &move);
        QDropEvent drop(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(action);
        QApplication::sendEvent(Viewport(), &drop);
        return drop.isAccepted();
    }

    static std::u16string Clipboard() { return QApplication::clipboard()->text().toStdU16String(); }
    static void SetClipboard(const std::u16string& text)
    {
        QApplication::clipboard()->setText(QString::fromStdU16String(text));
    }

    long Caret() const { return m_engine.Send(msg::GetCurrentPos); }

    // The codes of what changes the text, in order.
    std::vector<UINT> Changes()
    {
        std::vector<UINT> codes;
        for (const Heard& each : m_engine.Parent().heard) {
            const UINT code = each.record.nmhdr.code;
            if (code == notify::Modified || code == notify::CharAdded)
                codes.push_back(code);
        }
        return codes;
    }

    EngineUnderTest m_engine;
};

using Codes = std::vector<UINT>;

} // namespace

TEST_F(Hands, ATypedCharacterIsToldOnceAsChangeThenAsCharacter)
{
    Start(u"\u00e9", 1, 1);
    QTest::keyClicks(m_engine.Window(), "ab");
    EXPECT_EQ(m_engine.Text(), u"\u00e9ab");
    EXPECT_EQ(Changes(),
              (Codes{notify::Modified, notify::CharAdded, notify::Modified, notify::CharAdded}));
    EXPECT_EQ(m_engine.Parent().Of(notify::Modified)[1].record.position, 2);
}

TEST_F(Hands, CutCopyAndPasteKeepEveryCharacter)
{
    Start(u"a\U0001F600\u00e9\u4e2db", 1, 5);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), u"\U0001F600\u00e9\u4e2d");
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(m_engine.Text(), u"ab");
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_engine.Text(), u"a\U0001F600\u00e9\u4e2d\U0001F600\u00e9\u4e2db");
    EXPECT_EQ(Changes(), Codes(3, notify::Modified));
}

TEST_F(Hands, APasteTakesTheLineEndsOfTheText)
{
    const std::u16string mixed = u"a\nb\r\nc\rd";
    for (const auto& [mode, expected] :
         {std::pair{1, u"a\r\nb\r\nc\r\nd"}, {2, u"a\rb\rc\rd"}, {3, u"a\nb\nc\nd"}}) {
        Start(u"");
        m_engine.Send(msg::SetEOLMode, static_cast<WPARAM>(mode));
        SetClipboard(mixed);
        m_engine.Send(msg::Paste);
        EXPECT_EQ(m_engine.Text(), expected) << mode;
    }
}

TEST_F(Hands, ACopyMayGiveItsLineEnds)
{
    Start(u"a\nb\r\nc\rd", 0, 8);
    for (const auto& [mode, expected] : {std::pair{1, u"a\r\nb\r\nc\r\nd"},
                                         {2, u"a\rb\rc\rd"},
                                         {3, u"a\nb\nc\nd"},
                                         {0, u"a\nb\r\nc\rd"},
                                         {9, u"a\nb\r\nc\rd"}}) {
        m_engine.Send(msg::Copy, 0, LPARAM{mode});
        EXPECT_EQ(Clipboard(), expected) << mode;
    }
}

TEST_F(Hands, AnEmptySelectionCopiesNothing)
{
    Start(u"abc", 1, 1);
    SetClipboard(u"kept");
    Press(Qt::Key_C, Qt::ControlModifier);
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), u"kept");
    EXPECT_EQ(m_engine.Text(), u"abc");
}

TEST_F(Hands, AReadOnlyTextTellsOfTheAttempt)
{
    Start(u"abc", 1, 2);
    SetClipboard(u"x");
    m_engine.Send(msg::SetReadOnly, 1);
    for (const auto& attempt : std::vector<std::function<void()>>{
             [this] { Press(Qt::Key_V, Qt::ControlModifier); }, [this] { Press(Qt::Key_A); },
             [this] { Press(Qt::Key_Return); }, [this] { Press(Qt::Key_Delete); },
             [this] { m_engine.Send(msg::Paste); }}) {
        m_engine.Parent().heard.clear();
        attempt();
        EXPECT_FALSE(m_engine.Parent().Of(notify::ModifyAttemptReadOnly).empty());
        EXPECT_EQ(m_engine.Text(), u"abc");
    }
}

TEST_F(Hands, ARectangleIsCopiedAndPastedAsARectangle)
{
    Start(u"ab\u00e9\ncd\u00fc\n\u4e2d\u4e2d");
    Press(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_engine.Send(msg::SelectionIsRectangle), 1);
    m_engine.Send(msg::Cut);
    EXPECT_EQ(m_engine.Text(), u"b\u00e9\nd\u00fc\n\u4e2d\u4e2d");
    m_engine.Send(msg::GotoPos, 2);
    m_engine.Send(msg::Paste);
    EXPECT_EQ(m_engine.Text(), u"b\u00e9a\nd\u00fcc\n\u4e2d\u4e2d");
}

TEST_F(Hands, AKeyThatNoCommandTakesTypesNothingWithControlOrAlt)
{
    Start(u"ab", 1, 1);
    EXPECT_FALSE(PressWithText(Qt::Key_1, Qt::AltModifier, "1"));
    EXPECT_FALSE(PressWithText(Qt::Key_Semicolon, Qt::ControlModifier, ";"));
    EXPECT_FALSE(PressWithText(Qt::Key_K, Qt::ControlModifier | Qt::AltModifier, "k"));
    EXPECT_FALSE(PressWithText(Qt::Key_K, Qt::MetaModifier, "k"));
    EXPECT_FALSE(
        PressWithText(Qt::Key_X, Qt::AltModifier, QString::fromStdU16String(u"\U0001F600")));
    EXPECT_EQ(m_engine.Text(), u"ab");
    EXPECT_TRUE(Changes().empty());
}

TEST_F(Hands, AKeyOfAltGrTypes)
{
    Start(u"");
    EXPECT_TRUE(PressWithText(Qt::Key_At, Qt::NoModifier, "@"));
    EXPECT_TRUE(PressWithText(Qt::Key_BraceLeft, Qt::GroupSwitchModifier, "{"));
    EXPECT_TRUE(PressWithText(Qt::Key_A, Qt::ShiftModifier, "A"));
    EXPECT_EQ(m_engine.Text(), u"@{A");
}

TEST_F(Hands, ACommandOfTheKeyboardRunsWhateverItsKeyWouldType)
{
    Start(u"abc");
    EXPECT_TRUE(PressWithText(Qt::Key_A, Qt::ControlModifier, "\x01"));
    EXPECT_TRUE(PressWithText(Qt::Key_X, Qt::ControlModifier, "x"));
    EXPECT_EQ(m_engine.Text(), u"");
}

TEST_F(Hands, DraggingWithAltSelectsAColumn)
{
    Start(u"abcd\n\u00e9fgh\nijkl");
    Drag(1, 13, Qt::AltModifier);
    EXPECT_EQ(m_engine.Send(msg::SelectionIsRectangle), 1);
    Press(Qt::Key_X);
    EXPECT_EQ(m_engine.Text(), u"axd\n\u00e9xh\nixl");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(m_engine.Text(), u"ad\n\u00e9h\nil");
}

TEST_F(Hands, AColumnOfNoWidthTypesAndPastesInEveryLine)
{
    Start(u"ab\ncd\nef");
    Press(Qt::Key_Right);
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    QTest::keyClicks(m_engine.Window(), "xy");
    EXPECT_EQ(m_engine.Text(), u"axyb\ncxyd\nexyf");
    SetClipboard(u"12");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_engine.Text(), u"axy12b\ncxy12d\nexy12f");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(m_engine.Text(), u"axy1b\ncxy1d\nexy1f");
}

TEST_F(Hands, AColumnReachesOverShortLines)
{
    Start(u"abc\n\ndef");
    Press(Qt::Key_End);
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_X);
    EXPECT_EQ(m_engine.Text(), u"abcx\n   x\ndefx");
}

TEST_F(Hands, AClickWithControlAddsACaretAndEscapeTakesItAway)
{
    Start(u"ab cd ef", 1, 1);
    for (const long place : {4, 7}) {
        Mouse(QEvent::MouseButtonPress, place, Qt::ControlModifier);
        Mouse(QEvent::MouseButtonRelease, place, Qt::ControlModifier);
    }
    Press(Qt::Key_X);
    EXPECT_EQ(m_engine.Text(), u"axb cxd exf");
    Mouse(QEvent::MouseButtonPress, 6, Qt::ControlModifier);
    Mouse(QEvent::MouseButtonRelease, 6, Qt::ControlModifier);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(m_engine.Text(), u"ab cxd ef");
    Press(Qt::Key_Escape);
    Press(Qt::Key_Y);
    EXPECT_EQ(m_engine.Text().size(), 10u);
}

TEST_F(Hands, AClickWithControlAddsACaretToThoseOfAColumn)
{
    Start(u"ab\ncd\nef gh");
    Press(Qt::Key_Right);
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    Mouse(QEvent::MouseButtonPress, 10, Qt::ControlModifier);
    Mouse(QEvent::MouseButtonRelease, 10, Qt::ControlModifier);
    QTest::keyClicks(m_engine.Window(), "xy");
    EXPECT_EQ(m_engine.Text(), u"axyb\ncxyd\nef gxyh");
}

TEST_F(Hands, OfSeveralSelectionsTheTextOfTheLastOneIsGiven)
{
    Start(u"ab\u00e9cd");
    Drag(0, 4, {});
    Drag(1, 3, Qt::ControlModifier);
    Drag(4, 5, Qt::ControlModifier);
    char16_t text[] = u"....";
    EXPECT_EQ(m_engine.Send(msg::GetSelText, 0, text), 2);
    EXPECT_EQ(std::u16string(text), u"d");
    EXPECT_EQ(text[2], u'.');
}

TEST_F(Hands, CaretKeysMoveOverWholeCharacters)
{
    Start(u"\U0001F600x\ny");
    Press(Qt::Key_Right);
    EXPECT_EQ(Caret(), 2);
    Press(Qt::Key_End);
    EXPECT_EQ(Caret(), 3);
    Press(Qt::Key_Home);
    EXPECT_EQ(Caret(), 0);
    Press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Caret(), 5);
    EXPECT_EQ(m_engine.Send(msg::GetAnchor), 0);
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Caret(), 0);
}

TEST_F(Hands, WordKeysTakeLettersOfEveryScript)
{
    Start(u"\u00e4\u00f6\u00fc \u0416\u0434\u0438 x_1");
    std::vector<long> places;
    for (int i = 0; i < 3; ++i) {
        Press(Qt::Key_Right, Qt::ControlModifier);
        places.push_back(Caret());
    }
    EXPECT_EQ(places, (std::vector<long>{4, 8, 11}));
    Press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionStart), 8);
}

TEST_F(Hands, DownKeepsTheColumnThatAJumpWentTo)
{
    const engine::Looks looks;
    m_engine.Send(engine::kSetLooks, 0, &looks);
    for (const auto& [message, value] :
         {std::pair{msg::GotoLine, 1L}, std::pair{msg::GotoPos, 14L}}) {
        Start(u"a longer line\nx\nanother line\nlast\n");
        m_engine.Send(msg::GotoPos, 5);
        Press(Qt::Key_End); // which aims at its column
        m_engine.Send(message, static_cast<WPARAM>(value));
        Press(Qt::Key_Down);
        EXPECT_EQ(Caret(), 16) << "the start of the third line";
    }
    m_engine.Send(msg::SetSel, 20, 20);
    Press(Qt::Key_Up);
    EXPECT_EQ(Caret(), 15) << "behind the letter of a line that is shorter";
    Press(Qt::Key_Up);
    EXPECT_EQ(Caret(), 4);
}

TEST_F(Hands, TheRightButtonTakesTheCaretAlongUnlessItIsOnWhatIsSelected)
{
    const engine::Looks looks;
    m_engine.Send(engine::kSetLooks, 0, &looks);
    Start(u"first line\nsecond line\nthird line\n", 12, 18);
    auto& area = *qobject_cast<QAbstractScrollArea*>(m_engine.Window());
    area.grab();
    const auto press = [&](long position) {
        const QPoint at(static_cast<int>(m_engine.Send(msg::PointXFromPosition, 0,
                                                       static_cast<LPARAM>(position))) +
                            1,
                        static_cast<int>(m_engine.Send(msg::PointYFromPosition, 0,
                                                       static_cast<LPARAM>(position))) +
                            3);
        QTest::mouseClick(area.viewport(), Qt::RightButton, Qt::NoModifier, at);
    };
    press(14);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionStart), 12);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionEnd), 18);
    press(25);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionStart), 25);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionEnd), 25);
}

TEST_F(Hands, PageKeysMoveByWhatIsOnTheScreen)
{
    std::u16string lines;
    for (int i = 0; i < 200; ++i)
        lines += u"\u00e9\n";
    Start(lines);
    m_engine.Window()->grab(); // a window that was never shown is laid out first
    Press(Qt::Key_PageDown);
    const LRESULT line = m_engine.Send(msg::LineFromPosition, static_cast<WPARAM>(Caret()));
    EXPECT_GT(line, 3);
    EXPECT_LE(line, m_engine.Send(msg::LinesOnScreen));
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Caret(), 0);
}

TEST_F(Hands, TabIndentsTheSelectedLinesAndBack)
{
    Start(u"\u00e9\nb\nc", 0, 4);
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_engine.Text(), u"\t\u00e9\n\tb\nc");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(m_engine.Text(), u"\u00e9\nb\nc");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_engine.Text(), u"\t\u00e9\n\tb\nc");
}

TEST_F(Hands, InsertTogglesOvertype)
{
    Start(u"\U0001F600b");
    Press(Qt::Key_Insert);
    EXPECT_EQ(m_engine.Send(msg::GetOvertype), 1);
    Press(Qt::Key_X);
    EXPECT_EQ(m_engine.Text(), u"xb");
}

TEST_F(Hands, BackspaceTakesAWholeCharacter)
{
    Start(u"a\U0001F600", 3, 3);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(m_engine.Text(), u"a");
    EXPECT_EQ(m_engine.Parent().Of(notify::Modified)[0].text, u"\U0001F600");
}

TEST_F(Hands, TheWheelZoomsWithControl)
{
    Start(u"text");
    QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, 120), Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Viewport(), &turn);
    EXPECT_GT(m_engine.Send(msg::GetZoom), 0);
    EXPECT_EQ(m_engine.Parent().Of(notify::Zoom).size(), 1u);
}

TEST_F(Hands, AClickSetsTheCaretAndADoubleClickTakesTheWord)
{
    Start(u"\u00e9 w\u00f6rd x");
    QTest::mouseClick(Viewport(), Qt::LeftButton, {}, PointOf(4));
    EXPECT_EQ(Caret(), 4);
    QTest::mouseDClick(Viewport(), Qt::LeftButton, {}, PointOf(4));
    QTest::mouseRelease(Viewport(), Qt::LeftButton, {}, PointOf(4));
    EXPECT_EQ(m_engine.Send(msg::GetSelectionStart), 2);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionEnd), 6);
    EXPECT_EQ(m_engine.Parent().Of(notify::DoubleClick).size(), 1u);
}

TEST_F(Hands, DroppedTextComesInWhereItFalls)
{
    Start(u"\u00e9bc");
    QMimeData data;
    data.setText(QString::fromStdU16String(u"\U0001F600\n"));
    EXPECT_TRUE(Drop(data, 2, Qt::CopyAction));
    EXPECT_EQ(m_engine.Text(), u"\u00e9b\U0001F600\nc");
    EXPECT_EQ(Changes(), Codes{notify::Modified});
}

TEST_F(Hands, DroppedFilesAreToldAndDoNotComeIn)
{
    Start(u"abc");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/tmp/\u00e9 1.sql"), QUrl::fromLocalFile("/tmp/2.sql")});
    EXPECT_TRUE(Drop(data, 1, Qt::CopyAction));
    EXPECT_EQ(m_engine.Text(), u"abc");
    const auto told = m_engine.Parent().Of(notify::UriDropped);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(QUrl(QString::fromStdU16String(told[0].text)).toLocalFile().toStdU16String(),
              u"/tmp/\u00e9 1.sql");
}

TEST_F(Hands, TheCaretOfADragGoesWithIt)
{
    Start(u"abc");
    const auto picture = [this] { return m_engine.Window()->grab().toImage(); };
    m_engine.Send(msg::SetCaretPeriod, 0);
    m_engine.Send(msg::SetText, 0, u"aXbc");
    m_engine.Send(msg::GotoPos, 4);
    const QImage before = picture();
    m_engine.Send(msg::SetText, 0, u"abc");
    QMimeData data;
    data.setText("X");
    Drop(data, 1, Qt::CopyAction);
    ASSERT_EQ(m_engine.Text(), u"aXbc");
    m_engine.Send(msg::GotoPos, 4);
    EXPECT_EQ(picture(), before);
}

TEST_F(Hands, AReadOnlyTextTakesNoDrop)
{
    Start(u"abc");
    m_engine.Send(msg::SetReadOnly, 1);
    QMimeData data;
    data.setText("x");
    Drop(data, 1, Qt::CopyAction);
    EXPECT_EQ(m_engine.Text(), u"abc");
}

namespace {

QMenu* OpenMenu()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* menu = qobject_cast<QMenu*>(widget);
        if (menu && menu->isVisible())
            return menu;
    }
    return nullptr;
}

QAction* EntryOf(const QMenu& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

TEST_F(Hands, TheMenuActsAndTheParentHearsOfIt)
{
    Start(u"abc", 0, 2);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(Viewport(), &event);
    QMenu* menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(EntryOf(*menu, "Undo")->isEnabled());
    EntryOf(*menu, "Cut")->trigger();
    menu->close();
    QApplication::processEvents();
    EXPECT_EQ(m_engine.Text(), u"c");
    EXPECT_EQ(Changes(), Codes{notify::Modified});
    EXPECT_EQ(Clipboard(), u"ab");
}

TEST_F(Hands, WithoutAMenuOfItsOwnNoneOpens)
{
    m_engine.Send(msg::UsePopUp, 0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(Viewport(), &event);
    EXPECT_EQ(OpenMenu(), nullptr);
}

TEST_F(Hands, EveryNotificationCarriesTheIdentifierOfItsWindow)
{
    Start(u"ab");
    QTest::keyClicks(m_engine.Window(), "c");
    m_engine.Send(msg::SetSavePoint);
    ASSERT_GE(m_engine.Parent().heard.size(), 3u);
    for (const Heard& each : m_engine.Parent().heard) {
        EXPECT_EQ(each.id, EngineUnderTest::kId);
        EXPECT_EQ(each.record.nmhdr.idFrom, EngineUnderTest::kId);
    }
}

TEST_F(Hands, ATurnWithControlOrShiftIsFirstTheParents)
{
    const auto turn = [this](Qt::KeyboardModifier held, int delta) {
        QWheelEvent event({5, 5}, {5, 5}, {}, {0, delta}, Qt::NoButton, held, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(Viewport(), &event);
    };
    Start(u"a");
    m_engine.Parent().takesTurns = true;
    turn(Qt::ControlModifier, 240);
    turn(Qt::ShiftModifier, -120);
    turn(Qt::NoModifier, -120);
    EXPECT_EQ(m_engine.Parent().turns,
              (std::vector<std::pair<UINT, int>>{
                  {MK_CONTROL, 120}, {MK_CONTROL, 120}, {MK_SHIFT, -120}}));
    EXPECT_EQ(m_engine.Send(msg::GetZoom), 0);
    m_engine.Parent().takesTurns = false;
    turn(Qt::ControlModifier, 60);
    EXPECT_EQ(m_engine.Send(msg::GetZoom), 0);
    turn(Qt::ControlModifier, 60);
    EXPECT_EQ(m_engine.Send(msg::GetZoom), 1);
}
