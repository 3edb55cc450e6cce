// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of Backspace and Delete over letters of any length make the undo steps that they make over
// ASCII, which are the stock engine's.
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QString>

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace msg = engine::message;

namespace {

const QString kLetters[] = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                            QStringLiteral("d"), QStringLiteral("e")};
const QString kLong[] = {QStringLiteral("\u4e2d"), QStringLiteral("\u00e9"),
                         QStringLiteral("\u6587"), QStringLiteral("x"),
                         QStringLiteral("\U0001F600")};

class Keyboard
{
public:
    explicit Keyboard(bool isLong) : m_isLong(isLong) { m_engine.Window()->resize(600, 400); }

    // Letters are those of ASCII, or stand for others.
    QString Written(QString text) const
    {
        for (std::size_t i = 0; m_isLong && i < std::size(kLetters); ++i)
            text.replace(kLetters[i], kLong[i]);
        return text;
    }

    void Start(const QString& text, long caret)
    {
        const QString written = Written(text);
        m_engine.SetText(written.toStdU16String());
        m_engine.Send(msg::EmptyUndoBuffer);
        m_engine.Send(msg::GotoPos, static_cast<WPARAM>(Written(text.left(caret)).size()));
        m_engine.Send(msg::SetSavePoint);
    }

    void Press(int key, const QString& text = {}, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, Written(text));
            QApplication::sendEvent(m_engine.Window(), &press);
        }
    }

    EngineUnderTest& Engine() { return m_engine; }

    // With the letters of ASCII, and whether it is as it was saved.
    std::string State() const
    {
        QString text = QString::fromStdU16String(m_engine.Text());
        for (std::size_t i = 0; m_isLong && i < std::size(kLetters); ++i)
            text.replace(kLong[i], kLetters[i]);
        return text.toStdString() + (m_engine.Send(msg::GetModify) ? "*" : "");
    }

    // The texts between the steps, back to the first and on to the last.
    std::vector<std::string> Steps() const
    {
        std::vector<std::string> states = {State()};
        for (const UINT step : {UINT{msg::Undo}, UINT{msg::Redo}}) {
            while (m_engine.Send(step == msg::Undo ? msg::CanUndo : msg::CanRedo)) {
                m_engine.Send(step);
                states.push_back(State());
            }
        }
        return states;
    }

private:
    bool m_isLong;
    EngineUnderTest m_engine;
};

void Act(Keyboard& keyboard, unsigned action, const QString& letter)
{
    EngineUnderTest& engine = keyboard.Engine();
    const std::u16string pasted = keyboard.Written(letter + letter).toStdU16String();
    switch (action) {
    case 0:
        keyboard.Press(Qt::Key_A, letter);
        return;
    case 1:
        keyboard.Press(Qt::Key_Left);
        return;
    case 2:
        keyboard.Press(Qt::Key_Right);
        return;
    case 3:
        engine.Send(msg::SetSavePoint);
        return;
    case 4:
        engine.Send(msg::ReplaceSel, 0, pasted.c_str());
        return;
    case 5:
        engine.Send(msg::BeginUndoAction);
        engine.Insert(0, pasted);
        engine.Insert(0, pasted);
        engine.Send(msg::EndUndoAction);
        return;
    case 6:
        keyboard.Press(Qt::Key_Return, QStringLiteral("\r"));
        return;
    case 7:
        engine.Insert(0, pasted);
        return;
    case 8:
    case 9:
    case 10:
        keyboard.Press(Qt::Key_Delete);
        return;
    default:
        keyboard.Press(Qt::Key_Backspace);
        return;
    }
}

} // namespace

TEST(EraseRuns, OverLongCharactersAreOneStep)
{
    Keyboard keyboard(true);
    keyboard.Start(QStringLiteral("xabceeaacd"), 10);
    keyboard.Press(Qt::Key_Backspace, {}, 9);
    EXPECT_EQ(keyboard.State(), "d*"); // the d stands for an x
    keyboard.Engine().Send(msg::Undo);
    EXPECT_EQ(keyboard.State(), "dabceeaacd");
    EXPECT_EQ(keyboard.Engine().Send(msg::CanUndo), 0);
    keyboard.Engine().Send(msg::Redo);
    EXPECT_EQ(keyboard.State(), "d*");
}

TEST(EraseRuns, EndAtWhatIsTypedBehindThem)
{
    Keyboard keyboard(true);
    keyboard.Start(QStringLiteral("aaaa"), 4);
    keyboard.Press(Qt::Key_Backspace, {}, 2);
    keyboard.Press(Qt::Key_A, QStringLiteral("c"));
    keyboard.Press(Qt::Key_Backspace, {}, 2);
    const std::vector<std::string> steps = {"a*", "aac*", "aa*", "aaaa", "aa*", "aac*", "a*"};
    EXPECT_EQ(keyboard.Steps(), steps);
}

TEST(EraseRuns, GoOnBehindAMoveToWhatIsBesideThem)
{
    Keyboard keyboard(true);
    keyboard.Start(QStringLiteral("aacc"), 4);
    keyboard.Press(Qt::Key_Backspace);
    keyboard.Press(Qt::Key_Left);
    keyboard.Press(Qt::Key_Delete);
    const std::vector<std::string> steps = {"aa*", "aacc", "aa*"};
    EXPECT_EQ(keyboard.Steps(), steps);
}

TEST(EraseRuns, EndAtASavePoint)
{
    Keyboard keyboard(true);
    keyboard.Start(QStringLiteral("aaaa"), 4);
    keyboard.Press(Qt::Key_Backspace, {}, 2);
    keyboard.Engine().Send(msg::SetSavePoint);
    keyboard.Press(Qt::Key_Backspace);
    const std::vector<std::string> steps = {"a*", "aa", "aaaa*", "aa", "a*"};
    EXPECT_EQ(keyboard.Steps(), steps);
}

TEST(EraseRuns, EndAtAnEditInAnotherWindowOfTheText)
{
    Keyboard keyboard(true);
    keyboard.Start(QStringLiteral("aaaa"), 4);
    EngineUnderTest other;
    other.Send(msg::SetDocPointer, 0, keyboard.Engine().Send(msg::GetDocPointer));
    keyboard.Press(Qt::Key_Backspace, {}, 2);
    other.Send(msg::SetSel, 0, LPARAM{0});
    other.Send(msg::ReplaceSel, 0, u"d");
    keyboard.Press(Qt::Key_Backspace);
    EXPECT_EQ(keyboard.Engine().Text(), u"d\u4e2d");
    other.Send(msg::Undo);
    EXPECT_EQ(keyboard.Engine().Text(), u"d\u4e2d\u4e2d");
    other.Send(msg::Undo);
    EXPECT_EQ(keyboard.Engine().Text(), u"\u4e2d\u4e2d");
    other.Send(msg::Undo);
    EXPECT_EQ(keyboard.Engine().Text(), u"\u4e2d\u4e2d\u4e2d\u4e2d");
}

TEST(EraseRuns, MakeTheStepsThatTheyMakeOverAscii)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    Keyboard ascii(false);
    Keyboard other(true);
    for (int round = 0; round < 60; ++round) {
        QString text;
        for (unsigned i = 0; i < 40; ++i)
            text += random() % 12 == 0 ? QStringLiteral("\n") : kLetters[random() % 5];
        for (Keyboard* keyboard : {&ascii, &other})
            keyboard->Start(text, 25);
        std::string acts;
        for (int i = 0; i < 40; ++i) {
            const unsigned action = random() % 24;
            const QString letter = kLetters[random() % 4]; // the longest is not one key's
            acts += std::to_string(action) + " ";
            Act(ascii, action, letter);
            Act(other, action, letter);
            ASSERT_EQ(other.State(), ascii.State()) << acts;
        }
        ASSERT_EQ(other.Steps(), ascii.Steps()) << "seed " << seed << ": " << acts;
    }
}
