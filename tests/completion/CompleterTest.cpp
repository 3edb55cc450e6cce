// SPDX-License-Identifier: GPL-3.0-or-later
// The list of proposals in an editor, by the keys that a person presses.
#include "completion/popup/Completer.h"
#include "completion/popup/LiveIndex.h"
#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QListView>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <functional>

using completion::Proposal;
using completion::ProposalKind;
using completion::ProposalQuery;

namespace {

constexpr int kTransactSql = 3;

class CompleterTest : public testing::Test
{
protected:
    CompleterTest()
    {
        m_editor.resize(500, 300);
        m_editor.setLanguage(kTransactSql);
        m_editor.show();
        QApplication::setActiveWindow(&m_editor);
        Window().setFocus();
        QApplication::processEvents();
    }

    QWidget& Window() { return *m_editor.control().GetSafeHwnd(); }

    // Where the bar stands, the caret does.
    void Show(QString text)
    {
        const auto caret = text.indexOf(u'|');
        m_editor.setText(text.remove(caret, 1));
        m_editor.control().GotoPos(static_cast<long>(caret), 1);
        QApplication::processEvents();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Window(), key, modifiers);
        QApplication::processEvents();
    }
    void Type(const char* letters)
    {
        QTest::keyClicks(&Window(), QString::fromLatin1(letters));
        QApplication::processEvents();
        QApplication::processEvents();
    }

    bool IsOpen() { return m_editor.completer()->IsOpen(); }
    QListView* List() const
    {
        auto* list = m_editor.findChild<QFrame*>(QStringLiteral("proposals"));
        return list ? list->findChild<QListView*>() : nullptr;
    }
    QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; List() && row < List()->model()->rowCount(); ++row)
            rows << List()->model()->index(row, 0).data().toString();
        return rows;
    }
    QString Tip() const
    {
        auto* tip = m_editor.findChild<QLabel*>(QStringLiteral("callTip"));
        return tip && tip->isVisible() ? tip->text() : QString();
    }

    ZNCoreEditorWidget m_editor;
};

// A host's, with tables that stand in no text.
class HostSource final : public completion::ProposalSource
{
public:
    void Propose(const ProposalQuery& query, std::vector<Proposal>& proposals) override
    {
        m_asked = query.typed;
        m_table = query.table;
        m_tables = query.tables;
        proposals.push_back({ProposalKind::Table,
                             QStringLiteral("warehouse"),
                             QStringLiteral("on the server"),
                             {},
                             -1});
    }
    QString m_asked;
    QString m_table;
    QStringList m_tables;
};

// The compiler of a host may be as strict.
#pragma GCC diagnostic push
#pragma GCC diagnostic error "-Wmissing-field-initializers"

// A host's that asks a server: what it has comes later.
class LateSource final : public completion::ProposalSource
{
public:
    explicit LateSource(completion::Completer& completer) : m_completer(completer)
    {
        completer.AddSource(*this);
    }
    ~LateSource() override { m_completer.RemoveSource(*this); }
    LateSource(const LateSource&) = delete;
    LateSource& operator=(const LateSource&) = delete;

    void Propose(const ProposalQuery& query, std::vector<Proposal>& proposals) override
    {
        if (!m_isThere)
            return;
        if (!query.table.isEmpty())
            proposals.push_back({ProposalKind::Column, QStringLiteral("zz_id"), query.table});
        else if (query.qualifier.isEmpty())
            proposals.push_back({ProposalKind::Table, QStringLiteral("zz_customers"), QString()});
    }
    void Answer()
    {
        m_isThere = true;
        m_completer.Refresh();
    }

private:
    completion::Completer& m_completer;
    bool m_isThere = false;
};

#pragma GCC diagnostic pop

} // namespace

// Whichever came first to the editor: its gestures look at Enter, too.
TEST_F(CompleterTest, TakesEnterBeforeTheGesturesOfTheEditor)
{
    Show(QStringLiteral("sel|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Escape);
    m_editor.setScheme(QStringLiteral("Light")); // behind completion
    m_editor.control().SetAutoIndent(1);
    Show(QStringLiteral("select customer_name from t;\n    cus|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Return);
    EXPECT_EQ(m_editor.text(), QStringLiteral("select customer_name from t;\n    customer_name"));
}

TEST_F(CompleterTest, OpensOnControlAndSpaceAndPutsTheChosenWordIn)
{
    Show(QStringLiteral("select customer_name from t; select cus|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Rows().first(), QStringLiteral("customer_name"));
    Press(Qt::Key_Return);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(m_editor.text(), QStringLiteral("select customer_name from t; select customer_name"));
    m_editor.control().Undo(1);
    EXPECT_EQ(m_editor.text(), QStringLiteral("select customer_name from t; select cus"));
}

TEST_F(CompleterTest, PutsAQuotedNameInBeforeTheQuoteThatIsThere)
{
    for (const char* script : {"create table [Or ders] (a int); select * from [or|]",
                               "create table [Or ders] (a int); select * from [Or |ders] o",
                               "create table [Or ders] (a int); select * from [or|"}) {
        const QString text = QString::fromLatin1(script);
        Show(text);
        Press(Qt::Key_Space, Qt::ControlModifier);
        Press(Qt::Key_Return);
        EXPECT_EQ(m_editor.text().section(u';', 1),
                  QStringLiteral(" select * from [Or ders]") + text.section(u']', 2))
            << script;
        EXPECT_TRUE(m_editor.text().left(m_editor.cursorPosition()).endsWith(u']')) << script;
    }
}

TEST_F(CompleterTest, FiltersAsOneTypesAndChoosesByTab)
{
    Show(QStringLiteral("create table t1 (alpha int, alder int); select x.al| from t1 x"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Rows(), QStringList({QStringLiteral("alpha"), QStringLiteral("alder")}));
    Type("p");
    EXPECT_EQ(Rows(), QStringList({QStringLiteral("alpha")}));
    Press(Qt::Key_Tab);
    EXPECT_TRUE(m_editor.text().endsWith(QLatin1String("select x.alpha from t1 x")))
        << m_editor.text().toStdString();
}

TEST_F(CompleterTest, IsAsHighAsItsRows)
{
    Show(QStringLiteral("create table t1 (alpha int, alder int); select x.al| from t1 x"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_EQ(Rows().size(), 2);
    const QModelIndex last = List()->model()->index(1, 0);
    EXPECT_NEAR(List()->visualRect(last).bottom(), List()->viewport()->height(), 2);
}

TEST_F(CompleterTest, LeavesKeysToTheEditorThatItDoesNotNeed)
{
    Show(QStringLiteral("alpha alpine al|"));
    Press(Qt::Key_Return);
    EXPECT_EQ(m_editor.control().GetLineCount(1), 2);
    m_editor.control().Undo(1);
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Home);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(m_editor.control().GetCurrentPos(1), 0);
    Press(Qt::Key_End);
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(m_editor.text(), QStringLiteral("alpha alpine al"));
}

TEST_F(CompleterTest, OpensWhileTypingOnlyIfItIsToldTo)
{
    Show(QStringLiteral("select customer_name from t; select |"));
    Type("cust");
    EXPECT_FALSE(IsOpen());
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("select customer_name from t; select |"));
    Type("cu");
    EXPECT_FALSE(IsOpen());
    Type("s");
    EXPECT_TRUE(IsOpen());
}

TEST_F(CompleterTest, LeavesEnterToTheEditorInAListThatTypingOpened)
{
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("select customer_name from t; select |"));
    Type("cus");
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Return);
    EXPECT_TRUE(m_editor.text().endsWith(QLatin1String("select cus\n")) ||
                m_editor.text().endsWith(QLatin1String("select cus\r\n")))
        << m_editor.text().toStdString();
    m_editor.control().Undo(1);
    QApplication::processEvents();
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Down);
    ASSERT_TRUE(IsOpen());
}

TEST_F(CompleterTest, TellsWhichKeyTakesARowOfAListThatTypingOpened)
{
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("select customer_name from t; select |"));
    Type("cus");
    ASSERT_TRUE(IsOpen());
    const auto* keys = List()->parentWidget()->findChild<QLabel*>();
    EXPECT_TRUE(keys->isVisible());
    EXPECT_EQ(keys->text(), QStringLiteral("Tab takes the first row"));
    EXPECT_GE(keys->height(), keys->sizeHint().height());
    EXPECT_GE(List()->height(), List()->sizeHintForRow(0));
    Press(Qt::Key_Down);
    EXPECT_EQ(keys->text(), QStringLiteral("Tab or Enter takes the row"));
    Press(Qt::Key_Escape);
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(keys->isHidden());
}

TEST_F(CompleterTest, StaysAwayFromNamesThatAreGivenFromCommentsAndFromStrings)
{
    m_editor.setCompletesWhileTyping(true);
    for (const char* text : {"select customer from t; create table |", "select customer -- |",
                             "select customer, '|"}) {
        Show(QString::fromLatin1(text));
        Type("cust");
        EXPECT_FALSE(IsOpen()) << text;
    }
}

TEST_F(CompleterTest, OpensBehindThePointOfAnAlias)
{
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("create table t1 (alpha int, beta int)\nselect x| from t1 x"));
    Type(".");
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Rows(), QStringList({QStringLiteral("alpha"), QStringLiteral("beta")}));
    Press(Qt::Key_Tab);
    EXPECT_TRUE(m_editor.text().endsWith(QLatin1String("select x.alpha from t1 x")));
}

TEST_F(CompleterTest, ClosesWhereTheTextChangesUnderIt)
{
    Show(QStringLiteral("alpha alpine al|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    m_editor.setText(QStringLiteral("other"));
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_FALSE(IsOpen());
    Press(Qt::Key_Return);
    EXPECT_EQ(m_editor.control().GetLineCount(1), 2);
}

TEST_F(CompleterTest, GoesWithAnEditorThatIsDeletedWhileItIsOpen)
{
    auto* editor = new ZNCoreEditorWidget;
    editor->setText(QStringLiteral("alpha al"));
    editor->control().GotoPos(8, 1);
    editor->show();
    editor->completer()->Open();
    EXPECT_TRUE(editor->completer()->IsOpen());
    delete editor;
    QApplication::processEvents();
}

TEST_F(CompleterTest, ChangesNothingInATextThatIsReadOnly)
{
    Show(QStringLiteral("alpha al|"));
    m_editor.control().SetReadOnly(true, 1);
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_FALSE(IsOpen());
    m_editor.control().SetReadOnly(false, 1);
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    m_editor.control().SetReadOnly(true, 1);
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_editor.text(), QStringLiteral("alpha al"));
}

TEST_F(CompleterTest, AsksTheSourcesOfTheHost)
{
    HostSource source;
    m_editor.completer()->AddSource(source);
    Show(QStringLiteral("select * from ware|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(source.m_asked, QStringLiteral("ware"));
    EXPECT_EQ(Rows(), QStringList({QStringLiteral("warehouse")}));
    EXPECT_EQ(List()->model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("warehouse, table, on the server"));
    m_editor.completer()->RemoveSource(source);
    EXPECT_FALSE(IsOpen());
}

// Which table a name before a point means, so that a source need not read the statement.
TEST_F(CompleterTest, OpensTheListOnceALateSourceAnswersWhatWasTyped)
{
    m_editor.setCompletesWhileTyping(true);
    const struct
    {
        const char* script;
        const char* typed;
        const char* row;
    } cases[] = {{"select * from |", "zz_c", "zz_customers"},
                 {"select c| from customers c", ".", "zz_id"}};
    for (const auto& each : cases) {
        LateSource source(*m_editor.completer());
        Show(QString::fromLatin1(each.script));
        Type(each.typed);
        EXPECT_FALSE(IsOpen()) << each.script;
        source.Answer();
        ASSERT_TRUE(IsOpen()) << each.script;
        EXPECT_EQ(Rows().first(), QString::fromLatin1(each.row));
        EXPECT_FALSE(List()->currentIndex().isValid()); // Enter stays the editor's
    }
}

TEST_F(CompleterTest, OpensTheListOnceALateSourceAnswersWhatSomebodyAskedFor)
{
    LateSource source(*m_editor.completer());
    Show(QStringLiteral("select * from zz_c|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_FALSE(IsOpen());
    m_editor.resize(480, 300); // as where a host tells what it waits for
    source.Answer();
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Return); // takes the first row, as in each list that was asked for
    EXPECT_EQ(m_editor.text(), QStringLiteral("select * from zz_customers"));
}

TEST_F(CompleterTest, LeavesTheListClosedWhereALateAnswerIsNoLongerWanted)
{
    const struct
    {
        const char* name;
        std::function<void()> act;
    } cases[] = {
        {"nothing was asked", [this] { Show(QStringLiteral("select 1, zz_c|")); }},
        {"the caret went", [this] { Press(Qt::Key_Left); }},
        {"the caret went and came back",
         [this] {
             QTest::mouseClick(&Window(), Qt::LeftButton);
             m_editor.setCursorPosition(m_editor.length());
             QApplication::processEvents();
         }},
        {"something is selected", [this] { m_editor.selectAll(); }},
        {"Escape", [this] { Press(Qt::Key_Escape); }},
        {"another word",
         [this] {
             m_editor.setText(QStringLiteral("select * from zz_b"));
             m_editor.setCursorPosition(18);
         }},
        {"read-only", [this] { m_editor.setReadOnly(true); }},
        {"no focus", [this] { Window().clearFocus(); }},
        {"closed", [this] { m_editor.completer()->Close(); }},
    };
    for (const auto& each : cases) {
        m_editor.setReadOnly(false);
        Window().setFocus();
        LateSource source(*m_editor.completer());
        Show(QStringLiteral("select * from zz_c|"));
        Press(Qt::Key_Space, Qt::ControlModifier);
        each.act();
        source.Answer();
        EXPECT_FALSE(IsOpen()) << each.name;
    }
}

TEST_F(CompleterTest, TellsTheSourcesOfTheHostTheTablesOfTheStatement)
{
    HostSource source;
    m_editor.completer()->AddSource(source);
    const struct
    {
        const char* text;
        const char* table;
        const char* tables; // with commas
    } cases[] = {
        {"select c.| from customers c join dbo.[orders] as o on 1 = 1", "customers",
         "customers,orders"},
        {"select O.| from customers c, dbo.[orders] o", "orders", "customers,orders"},
        {"select dbo.customers.| from dbo.customers", "customers", "customers"},
        {"select x.| from customers c", "", "customers"},
        {"select q.| from (select 1 as one) q, customers", "", "customers"},
        {"select * from a where exists (select | from b)", "", "b,a"},
        {"select | ; select 2 from elsewhere", "", ""},
    };
    for (const auto& [text, table, tables] : cases) {
        Show(QString::fromLatin1(text));
        m_editor.completer()->Open();
        EXPECT_EQ(source.m_table, QString::fromLatin1(table)) << text;
        EXPECT_EQ(source.m_tables.join(u','), QString::fromLatin1(tables)) << text;
    }
    m_editor.completer()->RemoveSource(source);
}

TEST_F(CompleterTest, ReplacesTheRestOfAWordThatItBrings)
{
    Show(QStringLiteral("customer_name cus|_name"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_editor.text(), QStringLiteral("customer_name customer_name"));
}

// A caret elsewhere keeps what stands around it.
TEST_F(CompleterTest, TakesNothingAtACaretWithOtherLettersBesideIt)
{
    struct Row
    {
        const char* script; // the bar is the main caret, the dollar the other one
        const char* after;
    };
    constexpr Row kRows[] = {
        {"select customer; x\n$;\nselect CUS|", "select customer; x\n;\nselect customer"},
        {"select zebra_x; x\nzeb$;yz;\nselect zeb|_x",
         "select zebra_x; x\nzeb;yz;\nselect zebra_x"},
        {"select customer; cus$ select cus|", "select customer; customer select customer"},
        {"select customer; CUS$ select CUS|", "select customer; customer select customer"},
    };
    for (const auto& [script, after] : kRows) {
        QString text = QString::fromLatin1(script);
        const auto other = text.indexOf(u'$');
        text.remove(other, 1);
        Show(text);
        const auto caret = static_cast<int>(text.indexOf(u'|'));
        const engine::SelectionEnds ends[] = {{int(other), int(other)}, {caret, caret}};
        m_editor.control().Call(engine::kSetSelections, 2, reinterpret_cast<LPARAM>(ends), 1);
        Press(Qt::Key_Space, Qt::ControlModifier);
        ASSERT_TRUE(IsOpen()) << script;
        Press(Qt::Key_Return);
        EXPECT_EQ(m_editor.text(), QString::fromLatin1(after)) << script;
    }
}

TEST_F(CompleterTest, PutsWhatIsChosenInAtSeveralCarets)
{
    Show(QStringLiteral("customer_name\nCUS|\nCUS\n"));
    auto* viewport = qobject_cast<QAbstractScrollArea*>(&Window())->viewport();
    const QPoint second(m_editor.control().PointXFromPosition(21, 1) + 2,
                        m_editor.control().PointYFromPosition(21, 1) + 2);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, second);
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_editor.text().toStdString(), "customer_name\ncustomer_name\ncustomer_name\n");
    m_editor.control().Undo(1);
    EXPECT_EQ(m_editor.text(), QStringLiteral("customer_name\nCUS\nCUS\n"));
}

// Another editor may show the text on.
TEST_F(CompleterTest, LeavesNoStepOpenWhereItsEditorGoesMeanwhile)
{
    for (const char* script : {"customer_name cus|", "customer_name CUS|"}) { // which is deleted
        Show(QString::fromLatin1(script));
        const QPointer<ZNCoreEditorWidget> gone(new ZNCoreEditorWidget);
        gone->control().SetDocPointer(m_editor.control().GetDocPointer(1), 1);
        gone->setLanguage(kTransactSql);
        gone->show();
        gone->control().GotoPos(17, 1);
        gone->completer()->Open();
        ASSERT_TRUE(gone->completer()->IsOpen());
        QObject::connect(gone, &ZNCoreEditorWidget::textChanged, &m_editor,
                         [gone] { delete gone; });
        QTest::keyClick(gone->control().GetSafeHwnd(), Qt::Key_Return);
        EXPECT_FALSE(gone);
        m_editor.control().InsertText(0, u"a", 1);
        m_editor.control().InsertText(0, u"b", 1);
        m_editor.undo();
        EXPECT_EQ(m_editor.text().left(2), QStringLiteral("ac")) << script;
    }
}

TEST_F(CompleterTest, ReadsTheOtherScriptsAndProposesTheirTables)
{
    ZNCoreEditorWidget beside;
    beside.setLanguage(kTransactSql);
    beside.setText(QStringLiteral("create table sales_order (id int, amount money)"));
    m_editor.completer()->SetOtherScripts([&beside] {
        return std::vector<completion::OtherScript>{
            {beside.findChild<completion::LiveIndex*>(), QStringLiteral("schema.sql")}};
    });
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("select o.| from sales_order o"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        Press(Qt::Key_Space, Qt::ControlModifier);
        return Rows() == QStringList({QStringLiteral("id"), QStringLiteral("amount")});
    })) << Rows().join(u' ').toStdString();
    Show(QStringLiteral("select * from |"));
    Type("sal");
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Rows().join(u' ').toStdString(), "sales_order");
    EXPECT_EQ(List()->model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("sales_order, table, schema.sql"));
    m_editor.completer()->SetOtherScripts({});
}

TEST_F(CompleterTest, ReadsTheOtherScriptsOneByOneTheShortestFirst)
{
    ZNCoreEditorWidget dump;
    ZNCoreEditorWidget schema;
    dump.setLanguage(kTransactSql);
    schema.setLanguage(kTransactSql);
    dump.setText(QStringLiteral("insert into t values (1);\n").repeated(20000));
    schema.setText(QStringLiteral("create table t (id int)"));
    auto* first = schema.findChild<completion::LiveIndex*>();
    auto* second = dump.findChild<completion::LiveIndex*>();
    m_editor.completer()->SetOtherScripts([=] {
        return std::vector<completion::OtherScript>{{second, QString()}, {first, QString()}};
    });
    bool wasAlone = false;
    QObject::connect(first, &completion::LiveIndex::Finished, &m_editor,
                     [&] { wasAlone = second->Known() == nullptr; });
    Show(QStringLiteral("select * from |"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([=] { return first->IsDone() && second->IsDone(); }));
    EXPECT_TRUE(wasAlone);
    m_editor.completer()->SetOtherScripts({});
}

TEST_F(CompleterTest, OpensTheListOnceTheOtherScriptHasWhatWasTyped)
{
    m_editor.setCompletesWhileTyping(true);
    for (const int anchor : {-1, 0, 3}) { // -1: the caret stays
        const bool stays = anchor < 0;
        ZNCoreEditorWidget beside;
        beside.setLanguage(kTransactSql);
        beside.setText(QStringLiteral("insert into t values (1);\n").repeated(20000) +
                       QStringLiteral("create table zz_order (id int)"));
        auto* index = beside.findChild<completion::LiveIndex*>();
        m_editor.completer()->SetOtherScripts([index] {
            return std::vector<completion::OtherScript>{{index, QString()}};
        });
        Show(QStringLiteral("select * from |"));
        Type("zz_");
        if (!stays)
            m_editor.control().SetSel(anchor, anchor > 0 ? m_editor.cursorPosition() : 0, 1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return index->IsDone() && IsOpen() == stays; }));
        EXPECT_EQ(Rows(), QStringList(QStringLiteral("zz_order"))); // a closed list keeps its rows
        m_editor.completer()->SetOtherScripts({});
    }
}

TEST_F(CompleterTest, FillsAnOpenListOnceAnotherScriptIsRead)
{
    ZNCoreEditorWidget beside;
    beside.setLanguage(kTransactSql);
    beside.setText(QStringLiteral("create table sales_order (id int)"));
    m_editor.completer()->SetOtherScripts([&beside] {
        return std::vector<completion::OtherScript>{
            {beside.findChild<completion::LiveIndex*>(), QStringLiteral("schema.sql")}};
    });
    Show(QStringLiteral("create table sales_old (id int); select * from sa|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return Rows().mid(0, 2) ==
               QStringList({QStringLiteral("sales_old"), QStringLiteral("sales_order")});
    })) << Rows().join(u' ').toStdString();
    m_editor.completer()->SetOtherScripts({});
}

// Time alone tells: what is read in one go is not read before keys have rested.
TEST_F(CompleterTest, PutsOffTheOtherScriptsWhileSomebodyTypes)
{
    constexpr qint64 kLeast = 35; // milliseconds, of 40 and what a timer may be early by
    ZNCoreEditorWidget beside;
    beside.setLanguage(kTransactSql);
    beside.setText(QStringLiteral("create table t (id int)"));
    auto* index = beside.findChild<completion::LiveIndex*>();
    m_editor.completer()->SetOtherScripts([=] {
        return std::vector<completion::OtherScript>{{index, QString()}};
    });
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("select 1 -- |"));
    QElapsedTimer since;
    qint64 waited = -1;
    QObject::connect(index, &completion::LiveIndex::Finished, &m_editor,
                     [&] { waited = since.elapsed(); });
    since.start();
    Type("x");
    EXPECT_TRUE(QTest::qWaitFor([&] { return waited >= 0; }));
    EXPECT_GE(waited, kLeast);
    m_editor.completer()->SetOtherScripts({});
}

TEST_F(CompleterTest, ReadsNoOtherScriptsForKeysThatOpenNoList)
{
    ZNCoreEditorWidget beside;
    ZNCoreEditorWidget probe;
    for (ZNCoreEditorWidget* each : {&beside, &probe}) {
        each->setLanguage(kTransactSql);
        each->setText(QStringLiteral("create table t (id int)"));
    }
    auto* index = beside.findChild<completion::LiveIndex*>();
    auto* read = probe.findChild<completion::LiveIndex*>();
    m_editor.completer()->SetOtherScripts([=] {
        return std::vector<completion::OtherScript>{{index, QString()}};
    });
    Show(QStringLiteral("select 1|"));
    index->Defer(); // of what is not read at all
    for (const bool opens : {false, true}) {
        m_editor.setCompletesWhileTyping(opens);
        if (opens)
            Press(Qt::Key_Left);
        else
            Type("x");
        // Begun later, and put off as long, it comes later.
        read->Start();
        read->Defer();
        QSignalSpy finished(read, &completion::LiveIndex::Finished);
        ASSERT_TRUE(finished.wait());
        EXPECT_EQ(index->Known(), nullptr) << opens;
    }
    m_editor.completer()->SetOtherScripts({});
}

TEST_F(CompleterTest, LeavesScriptsInNoSqlAlone)
{
    ZNCoreEditorWidget other;
    ZNCoreEditorWidget sql;
    other.setLanguageName(QStringLiteral("C++"));
    ASSERT_NE(other.language(), kTransactSql);
    other.setText(QStringLiteral("zz_c"));
    sql.setLanguage(kTransactSql);
    sql.setText(QStringLiteral("create table zz_sql (id int)"));
    auto* first = other.findChild<completion::LiveIndex*>();
    auto* second = sql.findChild<completion::LiveIndex*>();
    m_editor.completer()->SetOtherScripts([=] {
        return std::vector<completion::OtherScript>{{first, QString()}, {second, QString()}};
    });
    Show(QStringLiteral("select * from |"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([=] { return second->IsDone(); }));
    EXPECT_EQ(first->Known(), nullptr);
    m_editor.completer()->SetOtherScripts({});
}

TEST_F(CompleterTest, ReadsAllOtherScriptsThoughTheListIsClosed)
{
    ZNCoreEditorWidget one;
    ZNCoreEditorWidget two;
    std::vector<completion::OtherScript> others;
    for (ZNCoreEditorWidget* each : {&one, &two}) {
        each->setLanguage(kTransactSql);
        each->setText(QStringLiteral("create table t (id int)"));
        others.push_back({each->findChild<completion::LiveIndex*>(), QString()});
    }
    m_editor.completer()->SetOtherScripts([=] { return others; });
    Show(QStringLiteral("select * from |"));
    QTest::keyClick(&Window(), Qt::Key_Space, Qt::ControlModifier);
    m_editor.completer()->Close();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return others[0].index->IsDone() && others[1].index->IsDone(); }));
    EXPECT_FALSE(IsOpen());
    m_editor.completer()->SetOtherScripts({});
}

TEST_F(CompleterTest, ReadsAScriptAnewWhoseLanguageHasChanged)
{
    ZNCoreEditorWidget beside;
    beside.setLanguage(kTransactSql);
    beside.setText(QStringLiteral("create table t (id int)"));
    auto* index = beside.findChild<completion::LiveIndex*>();
    index->Start();
    ASSERT_TRUE(QTest::qWaitFor([=] { return index->IsDone(); }));
    beside.setLanguageName(QStringLiteral("PostgreSQL"));
    ASSERT_TRUE(index->Known());
    EXPECT_FALSE(index->IsDone());
    EXPECT_TRUE(QTest::qWaitFor([=] { return index->IsDone(); }));
}

TEST_F(CompleterTest, TypesOverNothing)
{
    Show(QStringLiteral("customer_name cus| = 1"));
    m_editor.setOverwriteMode(true);
    QApplication::processEvents();
    const QSignalSpy modes(&m_editor, &ZNCoreEditorWidget::overwriteModeChanged);
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(modes.count(), 0);
    EXPECT_EQ(m_editor.text(), QStringLiteral("customer_name customer_name = 1"));
    EXPECT_TRUE(m_editor.control().GetOvertype(1));
}

TEST_F(CompleterTest, TakesWholeCharactersAway)
{
    Show(QStringLiteral("\"n\U0001F600 x\" \"N\U0001F600|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_EQ(Rows(), QStringList(QStringLiteral("\"n\U0001F600 x\"")));
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_editor.text(), QStringLiteral("\"n\U0001F600 x\" \"n\U0001F600 x\""));
}

TEST_F(CompleterTest, ClosesWhenWhatWasTypedIsUndone)
{
    Show(QStringLiteral("alpha alpine |"));
    Type("al");
    Press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(IsOpen());
    m_editor.control().Undo(1);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_EQ(m_editor.text(), QStringLiteral("alpha alpine "));
    EXPECT_FALSE(IsOpen());
}

TEST_F(CompleterTest, HasItsRowsForAssistiveTechnology)
{
    Show(QStringLiteral("alpha alpine alp|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Down);
    const QAccessibleInterface* list = QAccessible::queryAccessibleInterface(List());
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Proposals"));
    ASSERT_GE(list->childCount(), 2);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), QStringLiteral("alpine, word"));
    EXPECT_FALSE(list->child(0)->state().selected);
    EXPECT_TRUE(list->child(1)->state().selected);
}

TEST_F(CompleterTest, StaysClosedBehindAWordThatWasChosen)
{
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("customer_name customer_names |"));
    Type("cus");
    ASSERT_TRUE(IsOpen());
    Press(Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(m_editor.text(), QStringLiteral("customer_name customer_names customer_name"));
    EXPECT_FALSE(IsOpen());
}

TEST_F(CompleterTest, ShowsWhatARoutineOfTheScriptTakes)
{
    m_editor.setCompletesWhileTyping(true);
    Show(QStringLiteral("create function total(@id int, @tax money) returns int as select 1\nGO\n"
                        "select total|"));
    Type("(");
    EXPECT_EQ(Tip(), QStringLiteral("total(<b>@id int</b>, @tax money)"));
    Type("1, ");
    EXPECT_EQ(Tip(), QStringLiteral("total(@id int, <b>@tax money</b>)"));
    Type("2)");
    EXPECT_EQ(Tip(), QString());
}

TEST_F(CompleterTest, KnowsATextOfAThousandLettersWithoutABlank)
{
    Show(QString(1000, u'a') + QStringLiteral(" alpha a|"));
    Press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(Rows().contains(QStringLiteral("alpha")));
    EXPECT_FALSE(Rows().contains(QString(1000, u'a')));
}
