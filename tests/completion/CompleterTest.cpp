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
#include <QLabel>
#include <QListView>
#include <QPointer>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

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

} // namespace

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

TEST_F(CompleterTest, TypesOverNothing)
{
    Show(QStringLiteral("customer_name cus| = 1"));
    m_editor.control().SetOvertype(1, 1);
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Tab);
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
