// SPDX-License-Identifier: GPL-3.0-or-later
// Completion, templates and macros of the workbench.
#include "completion/popup/LiveIndex.h"
#include "editing/language/EditorCompletion.h"
#include "editing/operations/Macro.h"
#include "host/completion/MacroFile.h"
#include "host/completion/TemplateForm.h"
#include "host/completion/TemplateStore.h"
#include "tests/host/WorkbenchTest.h"
#include "tests/platform/file/FullDisk.h"

#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <memory>

namespace {

class Completion : public WorkbenchTest
{
protected:
    void Show(const QByteArray& script)
    {
        Open("a.sql", QByteArray(script).replace("|", ""));
        m_window.SetLanguage(3);
        Editor().GotoPos(long(script.indexOf('|')), 1);
        QApplication::setActiveWindow(&m_window);
        Editor().SetFocus();
        QApplication::processEvents();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(Editor().GetSafeHwnd(), key, modifiers);
        QApplication::processEvents();
        QApplication::processEvents();
    }
    void Keys(const char* letters)
    {
        QTest::keyClicks(Editor().GetSafeHwnd(), QString::fromLatin1(letters));
        QApplication::processEvents();
        QApplication::processEvents();
    }
    bool IsOpen() { return (*Frame().View()->Completion())->IsOpen(); }
    QStringList Rows() const
    {
        QStringList rows;
        for (const auto* view : Editor().GetSafeHwnd()->findChildren<QListView*>()) {
            for (int row = 0; row < view->model()->rowCount(); ++row)
                rows << view->model()->index(row, 0).data().toString();
        }
        return rows;
    }

    // The form of a template gets the answers; a null one cancels it. Keeps what it asks for.
    void Answer(QStringList answers)
    {
        m_answers = std::move(answers);
        m_clock.setInterval(0);
        QObject::connect(&m_clock, &QTimer::timeout, &m_window, [this] {
            QWidget* form = QApplication::activeModalWidget();
            if (!form || m_asked++ > 0)
                return;
            m_names = NamesOf(*form);
            m_textMeanwhile = Text();
            for (const QString& answer : std::as_const(m_answers)) {
                auto* edit = qobject_cast<QLineEdit*>(form->focusWidget());
                ASSERT_TRUE(edit);
                edit->setText(answer);
                QTest::keyClick(edit, answer.isNull() ? Qt::Key_Escape : Qt::Key_Return);
            }
        });
        m_clock.start();
    }
    static QStringList NamesOf(const QWidget& form)
    {
        QStringList names;
        for (const auto* edit : form.findChildren<QLineEdit*>())
            names << edit->accessibleName();
        return names;
    }

    QStringList m_answers;
    QStringList m_names;
    QString m_textMeanwhile;
    int m_asked = 0;
    QTimer m_clock;
};

} // namespace

TEST_F(Completion, OpensByItsCommandAndFollowsTheScript)
{
    Show("create table t1 (alpha int, beta int)\nGO\nselect x.| from t1 x");
    Trigger("completeWord");
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Rows(), QStringList({QStringLiteral("alpha"), QStringLiteral("beta")}));
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Text().endsWith(QLatin1String("select x.beta from t1 x")));
}

TEST_F(Completion, OpensByTheKeyOfTheEditorsTable)
{
    Show("select customer_name, cus|");
    Press(Qt::Key_Space, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(IsOpen());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
}

TEST_F(Completion, OpensWhileTypingUnlessTheLanguageSaysNo)
{
    Show("select customer_name from t where |");
    Keys("cus");
    EXPECT_TRUE(IsOpen());
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Text().endsWith(QLatin1String("where customer_name")));
}

TEST_F(Completion, ClosesWhenAnotherPaneChangesTheText)
{
    Show("customer_name cus|");
    Trigger("splitBelow");
    Trigger("completeWord");
    ASSERT_TRUE(IsOpen());
    ScriptView* front = Frame().View();
    for (CView* view : Script().GetViews()) {
        auto* other = dynamic_cast<ScriptView*>(view);
        if (other && other != front)
            other->GetCoreEditorControlRef().InsertText(0, u"-- first\n", 1);
    }
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_FALSE((*front->Completion())->IsOpen());
}

TEST_F(Completion, KnowsNamesThroughWhicheverPaneIsLeft)
{
    Show("create table alpha (id int)|");
    Trigger("splitBelow");
    EXPECT_EQ(Script().Names().CreatedInAll().size(), 1U);
    Trigger("splitBelow"); // one pane again
    Editor().InsertText(0, u"create table beta (id int)\n", 1);
    EXPECT_EQ(Script().Names().CreatedInAll().size(), 2U);
}

TEST_F(Completion, KnowsTheTextOfAFileThatWasReadAgain)
{
    Show("create table alpha (id int)|");
    EXPECT_EQ(Script().Names().CreatedInAll().size(), 1U);
    Write("a.sql", "create view beta_ as select");
    ASSERT_TRUE(Script().Reopen(-1));
    const auto names = Script().Names().CreatedInAll();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_EQ(names[0].name, QStringLiteral("beta_"));
    EXPECT_EQ(names[0].start, 12);
}

TEST(FunctionsOfAServerThatIsUnknown, AreTheStandardsAndNoOthers)
{
    const completion::Signatures sql = zncoreeditor::SignaturesOfLanguage(2);
    EXPECT_EQ(sql.Of(QStringLiteral("SUBSTRING")).text,
              QStringLiteral("substring(text FROM start FOR length)"));
    EXPECT_FALSE(sql.Of(QStringLiteral("coalesce")).text.isEmpty());
    EXPECT_TRUE(sql.Of(QStringLiteral("getdate")).text.isEmpty());
    EXPECT_FALSE(
        zncoreeditor::SignaturesOfLanguage(3).Of(QStringLiteral("getdate")).text.isEmpty());
}

TEST_F(Completion, PutsATemplateInBehindItsShortNameAndTab)
{
    Show("del|");
    Answer({QStringLiteral("orders"), QStringLiteral("id = 1")});
    Press(Qt::Key_Tab);
    EXPECT_EQ(Text(), QStringLiteral("DELETE FROM orders\nWHERE id = 1;\n"));
    Editor().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("del"));
}

TEST_F(Completion, InsertsNothingIfATemplatesQuestionsAreCancelled)
{
    Show("del|");
    Answer({QStringLiteral("orders"), QString()});
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_names, QStringList({QStringLiteral("Table"), QStringLiteral("Condition")}));
    EXPECT_EQ(m_textMeanwhile, QStringLiteral("del"));
    EXPECT_EQ(Text(), QStringLiteral("del"));
    EXPECT_FALSE(Editor().CanUndo(1));
}

TEST(TemplateForm, AsksOnceForWhatATemplateHasTwice)
{
    ASSERT_EQ(TemplateForm::NamesIn({QStringLiteral("^#a#^ ^#b c#^^!"), QStringLiteral("^#a#^")}),
              QStringList({QStringLiteral("a"), QStringLiteral("b c")}));
    const completion::CodeTemplate made{"x", "y", {"^#a#^ ^! ^#b#^", "<^#a#^>"}};
    TemplateForm form(made, {QStringLiteral("a"), QStringLiteral("b")}, nullptr);
    const auto edits = form.findChildren<QLineEdit*>();
    ASSERT_EQ(edits.size(), 2);
    edits[0]->setText(QStringLiteral("^#b#^"));
    EXPECT_EQ(form.Filled(made.lines), QStringList({"^#b#^ ^! ", "<^#b#^>"}));
}

TEST_F(Completion, ProposesTheTablesOfTheOtherScripts)
{
    Open("schema.sql", "create table sales_order (id int, amount int);");
    Open("query.sql", "select o. from sales_order o");
    Editor().GotoPos(9, 1);
    const auto rows = [this] {
        Trigger("completeWord");
        return Rows();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return rows() == QStringList({QStringLiteral("id"), QStringLiteral("amount")});
    })) << Rows().join(u' ').toStdString();
    Editor().SetText(u"select * from ", 1);
    Editor().GotoPos(14, 1);
    Keys("sal");
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Rows().join(u' ').toStdString(), "sales_order");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Text(), QStringLiteral("select * from sales_order"));
}

TEST_F(Completion, LeavesTabToTheEditorBehindAnyOtherWord)
{
    Show("delx|");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Text().startsWith(QLatin1String("delx")));
    EXPECT_GT(Text().size(), 4);
    EXPECT_TRUE(Text().trimmed() == QLatin1String("delx")) << Text().toStdString();
}

TEST_F(Completion, PutsATemplateInFromItsList)
{
    Show("|");
    Trigger("insertTemplate");
    auto* list = m_window.findChild<QDialog*>(QStringLiteral("templateList"));
    ASSERT_TRUE(list);
    auto* words = list->findChild<QLineEdit*>();
    words->setText(QStringLiteral("procedure with"));
    EXPECT_EQ(list->findChild<QListWidget*>()->count(), 1);
    Answer({QStringLiteral("dbo.pay"), QStringLiteral("@id int")});
    QTest::keyClick(words, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_TRUE(Text().startsWith(QLatin1String("CREATE OR ALTER PROCEDURE dbo.pay\n    @id int")))
        << Text().toStdString();
}

TEST_F(Completion, PutsATemplateInPlaceOfTheWordThatBeginsItsName)
{
    Show("  de|");
    Trigger("insertTemplate");
    auto* list = m_window.findChild<QDialog*>(QStringLiteral("templateList"));
    ASSERT_TRUE(list);
    auto* words = list->findChild<QLineEdit*>();
    EXPECT_EQ(words->text(), QStringLiteral("de"));
    words->setText(QStringLiteral("del"));
    EXPECT_EQ(list->findChild<QPlainTextEdit*>()->toPlainText(),
              QStringLiteral("DELETE FROM Table\nWHERE Condition;"));
    Answer({QStringLiteral("orders"), QStringLiteral("id = 1")});
    QTest::keyClick(words, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Text().toStdString(), "  DELETE FROM orders\n  WHERE id = 1;\n");
    Editor().Undo(1);
    EXPECT_EQ(Text().toStdString(), "  de");
}

TEST_F(Completion, ListsAllTemplatesBehindAWordThatBeginsNone)
{
    Show("qqzx|");
    Trigger("insertTemplate");
    auto* list = m_window.findChild<QDialog*>(QStringLiteral("templateList"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->findChild<QLineEdit*>()->text(), QString());
    EXPECT_GT(list->findChild<QListWidget*>()->count(), 5);
    list->close();
}

TEST_F(Completion, ListsTemplatesInsideTheWindow)
{
    Show("|");
    for (const QRect place : {QRect(300, 200, 400, 300), QRect(500, 300, 600, 700)}) {
        m_window.setGeometry(place); // of a screen of 800 by 800
        QApplication::processEvents();
        Trigger("insertTemplate");
        auto* list = m_window.findChild<QDialog*>(QStringLiteral("templateList"));
        ASSERT_TRUE(list);
        EXPECT_TRUE(m_window.geometry().contains(list->geometry()));
        EXPECT_TRUE(m_window.screen()->geometry().contains(list->geometry()));
        EXPECT_GE(list->width(), 280);
        list->close();
        Disposal::Run();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Completion, OpensAFileOfTemplatesOfOnesOwn)
{
    Show("|");
    Trigger("editTemplates");
    EXPECT_TRUE(Text().startsWith(QLatin1String("templates 1")));
    Editor().SetText(u"templates 1\n== mine: My own\nMINE ^!\n", 1);
    Trigger("save");
    const auto& templates = TemplateStore::Global().Of(3);
    ASSERT_EQ(templates.size(), 1U);
    EXPECT_EQ(templates[0].shortName, QStringLiteral("mine"));
    QFile::remove(TemplateStore::OwnFile(3));
}

TEST_F(Completion, ShowsThatAMacroIsRecorded)
{
    Show("|");
    EXPECT_EQ(Status("recording"), QString());
    Trigger("recordMacro");
    EXPECT_EQ(Status("recording"), QStringLiteral("REC"));
    EXPECT_FALSE(Action("playMacro").isEnabled());
    Keys("ab");
    Trigger("recordMacro");
    EXPECT_EQ(Status("recording"), QString());
    Trigger("playMacro");
    EXPECT_EQ(Text(), QStringLiteral("abab"));
    FreeMacro();
}

TEST_F(Completion, RepeatsInAMacroWhatWasChosenFromTheList)
{
    Show("customer_name\n|");
    Trigger("recordMacro");
    Keys("CUS");
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Tab);
    Keys(" ");
    Trigger("recordMacro");
    ASSERT_EQ(Text(), QStringLiteral("customer_name\ncustomer_name "));
    Trigger("playMacro");
    EXPECT_EQ(Text(), QStringLiteral("customer_name\ncustomer_name customer_name "));
    FreeMacro();
}

TEST_F(Completion, SaysThatAMacroIsRecordedUntilItIsStoppedWhateverIsClosed)
{
    Show("|");
    Trigger("recordMacro");
    Keys("ab");
    Editor().SetSavePoint(1);
    Trigger("close");
    Open("b.sql", "c");
    EXPECT_EQ(Status("recording"), QStringLiteral("REC"));
    Trigger("recordMacro");
    EXPECT_EQ(Status("recording"), QString());
    Trigger("playMacro");
    EXPECT_EQ(Text(), QStringLiteral("abc"));
    FreeMacro();
}

TEST_F(Completion, RecordsNothingBehindTheEndOfAMacroThatWasGivenInAnotherScript)
{
    Show("|");
    Trigger("recordMacro");
    Keys("ab");
    Trigger("new");
    Trigger("recordMacro");
    m_window.ShowTab(0);
    Keys("c");
    Trigger("playMacro");
    EXPECT_EQ(Text(), QStringLiteral("abcab"));
    Trigger("playMacro");
    EXPECT_EQ(Text(), QStringLiteral("abcabab"));
    FreeMacro();
}

TEST_F(Completion, ClosesItsListWhenTheFileIsReadAgain)
{
    Show("customer_name cus|");
    Trigger("completeWord");
    ASSERT_TRUE(IsOpen());
    Write("a.sql", "x");
    ASSERT_TRUE(Script().Reopen(-1));
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_FALSE(IsOpen());
    Press(Qt::Key_Tab);
    EXPECT_FALSE(Text().contains(QLatin1String("customer_name")));
}

TEST_F(Completion, PlaysAMacroOfAThousandStepsAsOneChange)
{
    Show("|");
    for (int i = 0; i < 1000; ++i)
        AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(u"x"));
    m_window.UpdateAll();
    Trigger("playMacro");
    EXPECT_EQ(Text(), QString(1000, u'x'));
    Editor().Undo(1);
    EXPECT_EQ(Text(), QString());
    FreeMacro();
}

TEST_F(Completion, SavesAMacroAndLoadsIt)
{
    Show("|");
    for (const char16_t* text : {u"a", u"b"})
        AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(text));
    m_window.UpdateAll();
    m_prompts.file = PathOf("mine");
    Trigger("saveMacro");
    EXPECT_EQ(Read("mine.znmacro").toStdString(), "macro 1\ntype a\ntype b\n");
    FreeMacro();
    m_prompts.file = PathOf("mine.znmacro");
    Trigger("loadMacro");
    EXPECT_EQ(m_window.statusBar()->currentMessage(),
              QStringLiteral("Macro loaded: mine.znmacro. Ctrl+Shift+P plays it."));
    Trigger("playMacro");
    EXPECT_EQ(Text().toStdString(), "ab");
    EXPECT_EQ(m_prompts.told.join('|').toStdString(), "");
    FreeMacro();
}

TEST_F(Completion, AsksBeforeAMacroIsSavedOverAnother)
{
    Show("|");
    AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(u"a"));
    m_window.UpdateAll();
    Write("mine.znmacro", "before");
    m_prompts.file = PathOf("mine");
    Trigger("saveMacro");
    EXPECT_EQ(m_prompts.asked.size(), 1);
    EXPECT_EQ(Read("mine.znmacro"), QByteArray("before"));
    FreeMacro();
}

TEST_F(Completion, KeepsTheMacroThatWasSavedBeforeWhereTheDiskIsFull)
{
    Show("|");
    AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(u"a"));
    m_window.UpdateAll();
    m_prompts.file = Write("a.znmacro", "before");
    {
        const FullDisk full(0);
        Trigger("saveMacro");
    }
    EXPECT_EQ(Read("a.znmacro"), QByteArray("before"));
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].startsWith("The macro was not saved to " + m_prompts.file));
    FreeMacro();
}

TEST_F(Completion, SaysWhyAMacroIsNotLoadedAndKeepsTheOneBefore)
{
    Show("|");
    AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(u"x"));
    m_prompts.file = Write("a%2%1.znmacro", "macro 1\ntype a\nrun\n");
    Trigger("loadMacro");
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_EQ(m_prompts.told[0].toStdString(),
              m_prompts.file.toStdString() + " is not a macro that can be played: line 3 is no "
                                             "command that is recorded.");
    m_prompts.file = Write("a.znmacro", "begin\n");
    Trigger("loadMacro");
    m_prompts.file = PathOf("none.znmacro");
    Trigger("loadMacro");
    ASSERT_EQ(m_prompts.told.size(), 3);
    EXPECT_EQ(m_prompts.told[1].toStdString(),
              PathOf("a.znmacro").toStdString() + " is not a macro.");
    EXPECT_TRUE(
        m_prompts.told[2].startsWith(PathOf("none.znmacro") + " cannot be read. No such file"));
    Trigger("playMacro");
    EXPECT_EQ(Text(), QStringLiteral("x"));
    FreeMacro();
}

TEST(MacroFile, HoldsWhatWasTypedAndCommanded)
{
    FreeMacro();
    for (const char16_t* text : {u"a", u" ", u"\u00e9"})
        AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(text));
    AppendToMacro(2300, 0, 0);
    const QByteArray bytes = WriteMacro(GetMacroHead());
    EXPECT_EQ(bytes, QByteArray("macro 1\ntype a\ntype U+0020\ntype \xC3\xA9\nsend 2300\n"));
    const ReadMacroResult read = ReadMacro(bytes);
    EXPECT_EQ(read.badLine, -1);
    FreeMacro();
    SetMacroHead(read.head);
    EXPECT_EQ(WriteMacro(GetMacroHead()), bytes);
    FreeMacro();
}

TEST(MacroFile, SendsNothingThatNobodyRecords)
{
    for (const char* bytes : {"", "macro 2\n", "\x89PNG", "macro 1\nsend 2001\n",
                              "macro 1\nsend 2100\n", "macro 1\ntype ab\n", "macro 1\ntype U+\n",
                              "macro 1\ntype U+110000\n", "macro 1\nrun rm\n"}) {
        const ReadMacroResult read = ReadMacro(bytes);
        EXPECT_EQ(read.head, nullptr) << bytes;
        EXPECT_GE(read.badLine, 0) << bytes;
    }
}
