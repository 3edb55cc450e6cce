// SPDX-License-Identifier: GPL-3.0-or-later
// Code that a host inserts, and the words that are looked for to complete one.
#include "ViewFixture.h"

#include "control/Completion.h"
#include "docview/dialogs/InputBox.h"
#include "docview/text/CodeWords.h"
#include "platform/base/Units.h"

#include <QClipboard>
#include <QLineEdit>
#include <QTimer>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Template : public ViewTest
{
protected:
    void Insert(QStringList lines) { view->InsertStringArray(lines); }
    QString Text() { return Control().GetText(); }

    // Answers the boxes that come, in their order; a null answer cancels. Keeps their prompts.
    void Answer(QStringList answers)
    {
        if (answers.isEmpty())
            return;
        QTimer::singleShot(0, &desk, [this, answers]() mutable {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_TRUE(box);
            EXPECT_EQ(box->windowTitle(), QStringLiteral("Enter Input Param"));
            prompts << GetDlgItem(box, CInputBox::kPrompt)->property("text").toString();
            const QString answer = answers.takeFirst();
            qobject_cast<QLineEdit*>(GetDlgItem(box, CInputBox::kValue))->setText(answer);
            Answer(answers);
            SendMessage(box, WM_COMMAND, answer.isNull() ? IDCANCEL : IDOK, 0);
        });
    }

    QStringList prompts;
};

TEST_F(Template, OfOneLineGetsNoLineEnd)
{
    Put(QStringLiteral("ab"), 1, 1);
    Insert({QStringLiteral("xyz")});
    EXPECT_EQ(Text(), QStringLiteral("axyzb"));
    EXPECT_EQ(Control().GetCurrentPos(1), 4);
}

TEST_F(Template, OfTwoLinesEndsInALineFeedBelowTheCaretsColumn)
{
    Put(QStringLiteral("a\tb"), 3, 3);
    Control().SetEOLMode(1, 1);
    Insert({QStringLiteral("x"), QStringLiteral("y"), QString()});
    EXPECT_EQ(Text(), QStringLiteral("a\tbx\n \t y\n"));
    EXPECT_EQ(Control().GetCurrentPos(1), 10);
}

TEST_F(Template, WrapsTheSelectionAtItsMarkerInOneUndoStep)
{
    Put(QStringLiteral("one two three"), 4, 7);
    Insert({QStringLiteral("begin ^! end ^!")});
    EXPECT_EQ(Text(), QStringLiteral("one begin two end ^! three"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("two"));
    EXPECT_EQ(Control().GetCurrentPos(1), 13);
    Control().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("one two three"));
}

TEST_F(Template, PutsTheSelectionBehindItselfWithoutAMarker)
{
    Put(QStringLiteral("one two"), 0, 3);
    Insert({QStringLiteral("-- ")});
    EXPECT_EQ(Text(), QStringLiteral("-- one two"));
}

TEST_F(Template, AsksForItsValuesFromLeftToRight)
{
    Put(QString(), 0, 0);
    Answer({QStringLiteral("t"), QStringLiteral("c")});
    Insert({QStringLiteral("select ^#column#^ from ^#table#^;")});
    EXPECT_EQ(Text(), QStringLiteral("select t from c;"));
    EXPECT_EQ(prompts, QStringList({QStringLiteral("column"), QStringLiteral("table")}));
}

TEST_F(Template, ExpandsTheMarkersOfAValue)
{
    Put(QString(), 0, 0);
    Answer({QStringLiteral("<^#inner#^>"), QStringLiteral("v")});
    Insert({QStringLiteral("a^#outer#^b")});
    EXPECT_EQ(Text(), QStringLiteral("a<v>b"));
    EXPECT_EQ(prompts, QStringList({QStringLiteral("outer"), QStringLiteral("inner")}));
}

TEST_F(Template, DropsTheLineWhoseQuestionIsCancelled)
{
    Put(QString(), 0, 0);
    Answer({QStringLiteral("v"), QString()});
    Insert({QStringLiteral("one"), QStringLiteral("^#a#^ ^#b#^ ^#c#^"), QStringLiteral("three")});
    EXPECT_EQ(Text(), QStringLiteral("one\n\nthree\n"));
    EXPECT_EQ(prompts.size(), 2) << "the third marker is not asked for";
}

TEST_F(Template, DropsALineWhoseMarkerIsNotClosed)
{
    EXPECT_EQ(view->GetInputValues(u"a ^#b"), QString());
    EXPECT_EQ(view->GetInputValues(u"a #^ b"), QStringLiteral("a #^ b"));
}

// The end of the marker in front of its start: the prompt is empty, and the markers stay.
TEST_F(Template, AsksAgainForMarkersInTheWrongOrder)
{
    Answer({QStringLiteral("v"), QString()});
    EXPECT_EQ(view->GetInputValues(u"#^ ^#"), QString());
    EXPECT_EQ(prompts, QStringList({QString(), QString()}));
}

TEST_F(Template, OfOneEmptyLineInsertsNothing)
{
    Put(QStringLiteral("ab"), 1, 1);
    QStringList lines{QString()};
    view->InsertStringArray(lines);
    EXPECT_TRUE(lines.isEmpty());
    EXPECT_EQ(Text(), QStringLiteral("ab"));
    EXPECT_EQ(Control().GetCurrentPos(1), 1);
}

TEST_F(Template, IndentsByNoMoreThanTheLineBufferHolds)
{
    Put(QString(1500, u'x'), 1500, 1500);
    Insert({QStringLiteral("a"), QStringLiteral("b")});
    const QString second = Text().section(u'\n', 1, 1);
    EXPECT_TRUE(second.endsWith(u'b'));
    EXPECT_LE(second.size(), 1001);
    EXPECT_EQ(second.trimmed(), QStringLiteral("b"));
}

TEST(InputBox, IsAsWideAsItsTitle)
{
    const QString title = QStringLiteral("A title of forty characters or some more");
    CInputBox box(QStringLiteral("Name"), QStringLiteral("x"), 0, title, nullptr);
    QTimer::singleShot(0, [&title] {
        QWidget* window = QApplication::activeModalWidget();
        EXPECT_GT(window->width(), window->fontMetrics().horizontalAdvance(title) + 100);
        SendMessage(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(box.DoModal(), IDOK);
}

TEST(InputBox, RefusesAnEmptyValueWhereOneIsNeeded)
{
    struct Told final : IUserQuestions
    {
        Told() { SetUserQuestions(this); }
        ~Told() override { SetUserQuestions(nullptr); }
        ::Answer Ask(HWND, const QString& text, Buttons) override
        {
            told << text;
            return ::Answer::Ok;
        }
        QStringList told;
    } messages;
    CInputBox box(QStringLiteral("Name"), QStringLiteral("old"), 0, QString(), nullptr);
    QTimer::singleShot(0, [] {
        QWidget* window = QApplication::activeModalWidget();
        EXPECT_EQ(window->windowTitle(), QStringLiteral("Input"));
        auto* value = qobject_cast<QLineEdit*>(GetDlgItem(window, CInputBox::kValue));
        EXPECT_EQ(value->text(), QStringLiteral("old"));
        value->clear();
        SendMessage(window, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(window->isVisible());
        value->setText(QStringLiteral("new"));
        SendMessage(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(box.DoModal(), static_cast<std::intptr_t>(IDOK));
    EXPECT_EQ(box.m_value, QStringLiteral("new"));
    EXPECT_EQ(messages.told, QStringList(QStringLiteral("Name Cannot be empty")));
}

TEST(CodeWords, AreDelimitedByTheLowByteOfAUnit)
{
    for (const char16_t unit : std::u16string(u"aZ09_é\u0080\u0101"))
        EXPECT_TRUE(codewords::IsWordUnit(unit)) << static_cast<int>(unit);
    for (const char16_t unit : std::u16string(u"\t\n\r !/:@[^`{~-\u0420\u2009\u0100"))
        EXPECT_FALSE(codewords::IsWordUnit(unit)) << static_cast<int>(unit);
    EXPECT_FALSE(codewords::IsWordUnit(u'\0'));
    EXPECT_EQ(codewords::WordStart(u"a.bc", 4), 2);
    EXPECT_EQ(codewords::WordStart(u"a.bc", 2), 2);
}

TEST(CodeWords, AreSortedByWhatFollowsTheSecondUnit)
{
    EXPECT_THAT(codewords::SortedOnce({"sez", "SEa", "sea", "sez", "seM"}),
                ElementsAre("SEa", "sea", "seM", "sez"));
}

// A view that keeps what it would show.
class ListingView final : public CZNCoreEditorView
{
public:
    void ShowCodeList(const AutoCompleteConfig& config, const std::vector<QString>& found) override
    {
        typed = config.typedLength;
        candidates = found;
    }
    QStringList Near(const QString& word)
    {
        QStringList list;
        GetWordsNear(Units(word), static_cast<int>(word.size()), list);
        return list;
    }

    int typed = -1;
    std::vector<QString> candidates;
};

class CodeList : public ViewTest
{
protected:
    CodeList()
    {
        CCreateContext context;
        listing->CreateViewIn(&desk, &context);
        EXPECT_TRUE(listing->GetCoreEditorControl()->GetSafeHwnd());
    }
    ~CodeList() override { listing->DestroyWindow(); }

    void PutThere(const QString& text, long caret, int language = 2)
    {
        CZNCoreEditorControlEx& control = listing->GetCoreEditorControlRef();
        control.InitializeLanguage(language, 0);
        control.SetText(Units(text), 1);
        control.SetSel(caret, caret, 1);
    }
    std::vector<QString> Ask()
    {
        listing->candidates.clear();
        EXPECT_TRUE(listing->OnCmdMsg(53952, nullptr));
        return listing->candidates;
    }

    ListingView* listing = new ListingView;
};

TEST_F(CodeList, TakesTheWordsOfTheTextWhateverTheirCase)
{
    PutThere(QStringLiteral("zzq zzqlower ZZQUPPER zzqlower azzq zzq"), 3);
    EXPECT_EQ(listing->Near(QStringLiteral("zzq")),
              QStringList({QStringLiteral("zzqlower"), QStringLiteral("ZZQUPPER")}));
    EXPECT_THAT(Ask(), ElementsAre("zzqlower", "ZZQUPPER"));
    EXPECT_EQ(listing->typed, 3);
}

TEST_F(CodeList, IsEmptyForAWordThatStandsAtTheCaretAlone)
{
    PutThere(QStringLiteral("select zzq"), 10);
    EXPECT_THAT(Ask(), IsEmpty());
    EXPECT_EQ(listing->typed, -1) << "nothing is handed over";
}

TEST_F(CodeList, TakesKeywordsInTheirOwnCaseAndTheTypedWordAmongThem)
{
    PutThere(QStringLiteral("select"), 6);
    EXPECT_THAT(Ask(), testing::Contains(QStringLiteral("select")));
    PutThere(QStringLiteral("SELECT"), 6);
    EXPECT_THAT(Ask(), IsEmpty());
}

TEST_F(CodeList, LooksOnlyAtWhatStandsBeforeTheCaret)
{
    PutThere(QStringLiteral("zzqabc zzqdef"), 3);
    EXPECT_THAT(Ask(), ElementsAre("zzqdef"));
    PutThere(QStringLiteral("a zzq"), 2);
    EXPECT_THAT(Ask(), IsEmpty());
    EXPECT_TRUE(listing->GetCoreEditorControlRef().AutoCGetIgnoreCase(1));
    EXPECT_FALSE(listing->GetCoreEditorControlRef().AutoCGetAutoHide(1));
}

TEST_F(CodeList, CutsWordsAfterSeventySevenUnits)
{
    PutThere(QStringLiteral("zzq ") + QStringLiteral("zzq") + QString(200, u'x'), 3);
    EXPECT_EQ(listing->Near(QStringLiteral("zzq")),
              QStringList(QStringLiteral("zzq") + QString(74, u'x')));
}

TEST_F(CodeList, FindsNothingInALineThatItsBufferDoesNotHold)
{
    PutThere(QString(1500, u' ') + QStringLiteral("zzq zzqx"), 1503);
    EXPECT_THAT(Ask(), IsEmpty());
    PutThere(QString(1000, u'x'), 1000);
    EXPECT_THAT(Ask(), IsEmpty());
}

} // namespace
