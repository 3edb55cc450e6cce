// SPDX-License-Identifier: GPL-3.0-or-later
// The macro: what is recorded, and what playing it does.
#include "ViewFixture.h"

#include "control/Selections.h"
#include "docview/dialogs/InputBox.h"
#include "editing/operations/Macro.h"
#include "platform/services/LongWork.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace {

constexpr UINT kRecord = 53938;
constexpr UINT kPlay = 53989;
constexpr UINT kRepeat = 53939;

class Macro : public ViewTest
{
protected:
    Macro() { Put(QString(), 0, 0); }
    ~Macro() override
    {
        if (IsMacroRecording())
            view->OnCmdMsg(kRecord, nullptr);
        FreeMacro();
    }

    static void Type(OpenView& into, const QString& text)
    {
        for (const QChar unit : text) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString(unit));
            QApplication::sendEvent(into.GetCoreEditorControlRef().GetSafeHwnd(), &press);
        }
    }
    void Run(UINT id) { EXPECT_TRUE(view->OnCmdMsg(id, nullptr)); }
    void Record(const QString& text)
    {
        Run(kRecord);
        Type(*view, text);
        Run(kRecord);
    }
    QString Text() { return Control().GetText(); }

    // Answers the next box with the value, or cancels it.
    static void AnswerNext(const QString& value, UINT button = IDOK)
    {
        QTimer::singleShot(0, [value, button] {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_TRUE(box);
            qobject_cast<QLineEdit*>(GetDlgItem(box, CInputBox::kValue))->setText(value);
            SendMessage(box, WM_COMMAND, button, 0);
        });
    }
};

TEST_F(Macro, RepeatsWhatWasTypedInOneUndoStep)
{
    Record(QStringLiteral("aé漢"));
    Control().ClearAll(1);
    Control().EmptyUndoBuffer(1);
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("aé漢"));
    Control().Undo(1);
    EXPECT_EQ(Text(), QString());
}

TEST_F(Macro, OfAThousandStepsIsOneUndoStep)
{
    Record(QString(1000, u'x'));
    Control().EmptyUndoBuffer(1);
    Run(kPlay);
    EXPECT_EQ(Text().size(), 2000);
    Control().Undo(1);
    EXPECT_EQ(Text().size(), 1000);
    EXPECT_FALSE(Control().CanUndo(1));
}

TEST_F(Macro, RepeatsCommandsOfTheEngine)
{
    Put(QStringLiteral("one\ntwo\nthree\n"), 0, 0);
    Run(kRecord);
    Control().LineDown(1);
    Control().LineCut(1);
    Run(kRecord);
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("one\nthree\n"));
}

TEST_F(Macro, RepeatsGestures)
{
    constexpr UINT kDeleteLines = 54209;
    constexpr UINT kMoveLinesDown = 54206;
    Put(QStringLiteral("one\ntwo\nthree\nfour\nfive\n"), 0, 0);
    Run(kRecord);
    EXPECT_TRUE(Control().OnCmdMsg(kDeleteLines, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(Control().OnCmdMsg(kMoveLinesDown, CN_COMMAND, nullptr, nullptr));
    Run(kRecord);
    ASSERT_EQ(Text(), QStringLiteral("three\ntwo\nfour\nfive\n"));
    ASSERT_NE(GetMacroHead(), nullptr);
    EXPECT_EQ(GetMacroHead()->m_message, int(kDeleteLines));
    ASSERT_NE(GetMacroHead()->m_next, nullptr);
    EXPECT_EQ(GetMacroHead()->m_next->m_message, int(kMoveLinesDown));
    EXPECT_EQ(GetMacroHead()->m_next->m_next, nullptr) << "and nothing of what they send";
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("three\nfive\nfour\n"));
    Control().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("three\ntwo\nfour\nfive\n"));
}

TEST_F(Macro, TypesInEachLineOfTheColumnThatIsSelected)
{
    const auto select = [this](int anchor, int caret) {
        const engine::ColumnCorners corners = {{anchor, caret}};
        Control().Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    };
    Put(QStringLiteral("one\ntwo\nten\nsix\n"), 0, 0);
    select(1, 6); // a letter of two lines
    Record(QStringLiteral("xé"));
    ASSERT_EQ(Text(), QStringLiteral("oxée\ntxéo\nten\nsix\n"));
    select(11, 17); // two letters of the others
    Control().EmptyUndoBuffer(1);
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("oxée\ntxéo\ntxé\nsxé\n"));
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("oxée\ntxéo\ntxéxé\nsxéxé\n")) << "the column is there still";
    Control().Undo(1);
    Control().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("oxée\ntxéo\nten\nsix\n"));
}

TEST_F(Macro, GoesOnBehindAGesture)
{
    Put(QStringLiteral("one\ntwo\nthree\n"), 0, 0);
    Run(kRecord);
    EXPECT_TRUE(Control().OnCmdMsg(54209, CN_COMMAND, nullptr, nullptr));
    Type(*view, QStringLiteral("x"));
    Run(kRecord);
    EXPECT_TRUE(Control().OnCmdMsg(54209, CN_COMMAND, nullptr, nullptr)) << "which is not recorded";
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("x"));
}

TEST_F(Macro, KeepsNoTextButASingleCharacter)
{
    Run(kRecord);
    Control().ReplaceSel(u"long", 1);
    Control().ReplaceSel(u"c", 1);
    Run(kRecord);
    Control().ClearAll(1);
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("c"));
}

TEST_F(Macro, IsGoneWhenANewRecordingBegins)
{
    Record(QStringLiteral("a"));
    EXPECT_TRUE(view->CanPlay());
    Run(kRecord);
    EXPECT_EQ(GetMacroHead(), nullptr);
    Run(kRecord);
    EXPECT_FALSE(view->CanPlay());
}

TEST_F(Macro, DoesNotPlayWhileItIsRecorded)
{
    Run(kRecord);
    Type(*view, QStringLiteral("a"));
    EXPECT_NE(GetMacroHead(), nullptr);
    EXPECT_FALSE(view->CanPlay());
    EXPECT_TRUE(view->IsRecording());
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("a"));
}

TEST_F(Macro, PlaysInAViewOfAnotherDocument)
{
    Record(QStringLiteral("ab"));
    auto* other = static_cast<OpenDoc*>(viewed.OpenDocumentFile(QString(), false));
    auto* there = static_cast<OpenView*>(other->GetViews().front());
    EXPECT_TRUE(there->OnCmdMsg(kPlay, nullptr));
    EXPECT_EQ(there->GetCoreEditorControlRef().GetText(), QStringLiteral("ab"));
}

// The recording is ended for the engine of the view where the command is given.
TEST_F(Macro, PlaysOnceInTheViewWhoseRecordingWasEndedInAnother)
{
    Run(kRecord);
    Type(*view, QStringLiteral("ab"));
    auto* other = static_cast<OpenDoc*>(viewed.OpenDocumentFile(QString(), false));
    EXPECT_TRUE(static_cast<OpenView*>(other->GetViews().front())->OnCmdMsg(kRecord, nullptr));
    for (const char* text : {"abab", "ababab"}) {
        Run(kPlay);
        EXPECT_EQ(Text(), text);
    }
}

TEST_F(Macro, ShowsInItsLabelWhatTheCommandDoes)
{
    EXPECT_EQ(Probe(kRecord, *view).text, QStringLiteral("Record Macro\tCtrl+Shift+R"));
    Run(kRecord);
    const Probe recording(kRecord, *view);
    EXPECT_EQ(recording.text, QStringLiteral("Stop Record\tCtrl+Shift+R"));
    EXPECT_EQ(recording.enabled, -1) << "whether it is possible is not said";
    EXPECT_EQ(Probe(kPlay, *view).enabled, 0);
    EXPECT_EQ(Probe(kRepeat, *view).enabled, 0);
    Type(*view, QStringLiteral("a"));
    Run(kRecord);
    EXPECT_EQ(Probe(kPlay, *view).enabled, 1);
    EXPECT_EQ(Probe(kRepeat, *view).enabled, 1);
}

TEST_F(Macro, IsRepeatedInOneUndoStep)
{
    Record(QStringLiteral("ab"));
    Control().EmptyUndoBuffer(1);
    AnswerNext(QStringLiteral("3"));
    Run(kRepeat);
    EXPECT_EQ(Text(), QStringLiteral("abababab"));
    Control().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("ab"));
}

TEST_F(Macro, IsRepeatedUntilTheHostStopsIt)
{
    class Stopper final : public ILongWork
    {
    public:
        Stopper() { SetLongWork(this); }
        ~Stopper() override { SetLongWork(nullptr); }
        bool GoesOn(HWND, const QString&, int) override { return ++asked < 5; }
        void Ends() override {}
        int Patience() const override { return 0; }

        int asked = 0;
    };
    Record(QStringLiteral("a"));
    const Stopper stopper;
    AnswerNext(QStringLiteral("1000000"));
    Run(kRepeat);
    EXPECT_EQ(Text(), QStringLiteral("aaaaa")) << "the one that was recorded, and four";
    Control().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("a"));
}

TEST_F(Macro, IsNotRepeatedForWhatIsNoNumberAboveZero)
{
    Record(QStringLiteral("ab"));
    for (const char* answer : {"0", "-2", "x"}) {
        AnswerNext(QLatin1String(answer));
        Run(kRepeat);
        EXPECT_EQ(Text(), QStringLiteral("ab")) << answer;
    }
    AnswerNext(QStringLiteral("5"), IDCANCEL);
    Run(kRepeat);
    EXPECT_EQ(Text(), QStringLiteral("ab"));
}

TEST_F(Macro, SurvivesTheViewThatRecordedIt)
{
    OpenView* further = FurtherView();
    EXPECT_TRUE(further->OnCmdMsg(kRecord, nullptr));
    Type(*further, QStringLiteral("a"));
    EXPECT_EQ(Text(), QString()) << "this view has an engine document of its own";
    further->GetParentFrame()->DestroyWindow();
    EXPECT_TRUE(IsMacroRecording());
    Run(kRecord);
    EXPECT_FALSE(IsMacroRecording());
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("a"));
}

TEST_F(Macro, LeavesAReadOnlyText)
{
    Record(QStringLiteral("ab"));
    Control().SetReadOnly(1, 1);
    Run(kPlay);
    EXPECT_EQ(Text(), QStringLiteral("ab"));
}

TEST_F(Macro, LeavesATextThatHasBeenEmptied)
{
    Put(QStringLiteral("one\ntwo\nthree\n"), 4, 4);
    Run(kRecord);
    Control().LineDown(1);
    Control().WordRight(1);
    Control().DeleteBack(1);
    Control().LineCut(1);
    Control().LineTranspose(1);
    Run(kRecord);
    Control().ClearAll(1);
    Run(kPlay);
    EXPECT_EQ(Text(), QString());
    EXPECT_EQ(Control().GetCurrentPos(1), 0);
}

TEST(MacroList, OfAMillionMessagesIsFreed)
{
    FreeMacro(); // the list is the process's
    for (int i = 0; i < 1000000; ++i)
        AppendToMacro(2013, static_cast<WPARAM>(i), 7);
    const MacroHolder* second = GetMacroHead()->m_next;
    EXPECT_EQ(second->m_message, 2013);
    EXPECT_EQ(second->m_wParam, 1u);
    EXPECT_EQ(second->m_lParam, 7);
    EXPECT_EQ(second->m_text[0], u'\0');
    FreeMacro();
    EXPECT_EQ(GetMacroHead(), nullptr);
}

} // namespace
