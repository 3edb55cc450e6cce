// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that find: which dialog they open, and what they say.
#include "editing/FindDialogs.h"
#include "search/FindReplaceManager.h"
#include "tests/editing/EditingFixture.h"

#include "editing/language/Library.h"
#include "platform/windows/Questions.h"

#include <QDialog>

namespace {

// The dialogs as they are asked for.
class AskedDialogs final : public IFindDialogs
{
public:
    AskedDialogs() { SetFindDialogs(this); }
    ~AskedDialogs() override { SetFindDialogs(nullptr); }

    void Serve(CZNCoreEditorControlEx&) override {}
    void Forget(CZNCoreEditorControlEx&) override {}
    bool ShowFind(CZNCoreEditorControlEx& control, const QString& given, bool isNew) override
    {
        return Note(QStringLiteral("find"), control, given, isNew);
    }
    bool ShowReplace(CZNCoreEditorControlEx& control, const QString& given, bool isNew) override
    {
        return Note(QStringLiteral("replace"), control, given, isNew);
    }

    QString which;
    QString text;
    CZNCoreEditorControlEx* served = nullptr;
    bool forcedNew = false;
    bool exist = true;

private:
    bool Note(const QString& name, CZNCoreEditorControlEx& control, const QString& given,
              bool isNew)
    {
        which = name;
        text = given;
        served = &control;
        forcedNew = isNew;
        return exist;
    }
};

class Messages final : public IUserQuestions
{
public:
    Messages() { SetUserQuestions(this); }
    ~Messages() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND, const QString& text, Buttons) override
    {
        told << text;
        return Answer::Ok;
    }

    QStringList told;
};

class FindCommands : public EditingTest
{
protected:
    void Run(UINT id) { EXPECT_TRUE(control.OnCmdMsg(id, nullptr)); }

    AskedDialogs dialogs;
    Messages messages;
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
};

TEST_F(FindCommands, OpenTheDialogWithWhatIsSelected)
{
    Put(u"one [two]| three");
    Run(57636);
    EXPECT_EQ(dialogs.which, QStringLiteral("find"));
    EXPECT_EQ(dialogs.text, QStringLiteral("two"));
    EXPECT_EQ(dialogs.served, &control);
    EXPECT_FALSE(dialogs.forcedNew);
    Run(57641);
    EXPECT_EQ(dialogs.which, QStringLiteral("replace"));
}

TEST_F(FindCommands, SayThatThereIsNoDialog)
{
    dialogs.exist = false;
    Run(57636);
    Run(57641);
    EXPECT_EQ(messages.told, QStringList({QStringLiteral("Cannot create Find dialog!"),
                                          QStringLiteral("Cannot create Find & Replace dialog!")}));
}

TEST_F(FindCommands, RepeatOpensTheDialogIfNothingWasLookedFor)
{
    Put(u"one two| three");
    manager.SetFind(QString());
    Run(57640);
    EXPECT_EQ(dialogs.which, QStringLiteral("find"));
}

TEST_F(FindCommands, RepeatSelectsTheNextMatch)
{
    Put(u"ab| xx ab");
    manager.SetFind(QStringLiteral("ab"));
    manager.SetDown(false);
    manager.SetWrap(false);
    Run(57640);
    EXPECT_EQ(Marked(), u"ab xx [ab]|");
    EXPECT_TRUE(manager.GetDown());
    EXPECT_TRUE(manager.GetWrap());
    EXPECT_TRUE(messages.told.isEmpty());
}

TEST_F(FindCommands, RepeatTellsOfAMatchBeforeTheCaretAndLeavesTheSelection)
{
    Put(u"ab x|x");
    manager.SetFind(QStringLiteral("ab"));
    Run(57640);
    EXPECT_EQ(messages.told,
              QStringList(QStringLiteral("Search has finished searching the whole document")));
    EXPECT_EQ(Marked(), u"ab x|x");
    EXPECT_EQ(control.GetTargetStart(1), 0);
    EXPECT_EQ(control.GetTargetEnd(1), 2);
}

TEST_F(FindCommands, RepeatTellsWhatIsNotThere)
{
    Put(u"ab x|x");
    manager.SetFind(QStringLiteral("50%1"));
    Run(57640);
    EXPECT_EQ(messages.told, QStringList(QStringLiteral("Could not find the string '50%1'.")));
}

class FindRule : public FindCommands
{
protected:
    bool IsPossible(UINT id)
    {
        struct Probe final : CCmdUI
        {
            using CCmdUI::CCmdUI;
            void Enable(bool on) override { enabled = on; }
            void SetCheck(int) override {}
            void SetRadio(bool) override {}
            void SetText(const QString&) override {}
            bool enabled = true;
        } probe(id);
        control.OnCmdMsg(id, &probe);
        return probe.enabled;
    }
};

TEST_F(FindRule, NeedsMoreThanTwoCharacters)
{
    for (const auto& [text, isPossible] :
         {std::pair(u"", false), {u"ab", false}, {u"abc|", true}}) {
        Put(text);
        EXPECT_EQ(IsPossible(57636), isPossible);
        EXPECT_EQ(IsPossible(57640), isPossible);
        EXPECT_EQ(IsPossible(53905), isPossible);
        EXPECT_TRUE(IsPossible(57641)) << "Replace asks whether the text may be changed";
    }
    control.SetReadOnly(1, 1);
    EXPECT_FALSE(IsPossible(57641));
}

TEST_F(FindCommands, GoToAsksForALineOfAllLines)
{
    static int asked[2];
    SetGotoDialog([](HWND, int line, int count) {
        asked[0] = line;
        asked[1] = count;
    });
    Put(u"a\nb|\nc");
    Run(54049);
    SetGotoDialog(nullptr);
    EXPECT_EQ(asked[0], 1);
    EXPECT_EQ(asked[1], 3);
    EXPECT_FALSE(control.HasCommand(53905)) << "the number of its rule has no handler";
}

// A control in a dialog asks for a find dialog that is not the main window's.
TEST(FindCommandsInADialog, AskForANewFindDialog)
{
    AskedDialogs dialogs;
    QDialog dialog;
    CZNCoreEditorControlEx control;
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, &dialog));
    control.OnSearchFind();
    EXPECT_EQ(dialogs.which, QStringLiteral("find"));
    EXPECT_TRUE(dialogs.forcedNew);
    control.DestroyWindow();
}

} // namespace
