// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/UnsavedDialog.h"
#include "tests/host/WorkbenchTest.h"

#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace {

class UnsavedDialogs : public testing::Test
{
protected:
    UnsavedDialogs() : m_dialog(nullptr, {"a.sql", "<b>.sql", "c.sql"}) { m_dialog.show(); }

    QListWidget& List() { return *m_dialog.findChild<QListWidget*>(); }

    QPushButton& Button(const QString& text)
    {
        for (QPushButton* button : m_dialog.findChildren<QPushButton*>()) {
            if (button->text() == text)
                return *button;
        }
        ADD_FAILURE() << text.toStdString();
        std::abort();
    }

    UnsavedDialog m_dialog;
};

class QuittingWorkbench : public WorkbenchTest
{
protected:
    QuittingWorkbench()
    {
        for (const char* name : {"a.sql", "b.sql", "c.sql"}) {
            Open(name, "before");
            Type(u"x");
        }
    }
};

} // namespace

TEST_F(UnsavedDialogs, SaveAllUnlessATickIsTakenAway)
{
    EXPECT_EQ(m_dialog.Choices(), QList<bool>({true, true, true}));
    EXPECT_EQ(List().item(1)->text(), QStringLiteral("<b>.sql"));
    List().setFocus();
    List().setCurrentRow(1);
    QTest::keyClick(&List(), Qt::Key_Space);
    EXPECT_EQ(m_dialog.Choices(), QList<bool>({true, false, true}));
    QTest::keyClick(&m_dialog, Qt::Key_Return);
    EXPECT_EQ(m_dialog.result(), QDialog::Accepted);
}

TEST_F(UnsavedDialogs, DiscardAllByTheirOwnButtonAlone)
{
    for (int i = 0; i < 3; ++i)
        List().item(i)->setCheckState(Qt::Unchecked);
    EXPECT_FALSE(Button("&Save").isEnabled());
    List().item(0)->setCheckState(Qt::Checked);
    EXPECT_TRUE(Button("&Save").isEnabled());
    Button("&Discard All").click();
    EXPECT_EQ(m_dialog.result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog.Choices(), QList<bool>({false, false, false}));
}

TEST_F(UnsavedDialogs, AreLeftByEscape)
{
    m_dialog.setResult(QDialog::Accepted);
    QTest::keyClick(&m_dialog, Qt::Key_Escape);
    EXPECT_EQ(m_dialog.result(), QDialog::Rejected);
}

TEST_F(QuittingWorkbench, AsksOnceAboutAllAndSavesWhatIsTicked)
{
    m_prompts.loseChanges = LoseChanges::Save;
    m_prompts.notToSave = QStringList{"b.sql"};
    EXPECT_EQ(m_app.SaveAllModified(), 1);
    EXPECT_EQ(m_prompts.asked, QStringList({"a.sql", "b.sql", "c.sql"}));
    EXPECT_EQ(Read("a.sql"), QByteArray("xbefore"));
    EXPECT_EQ(Read("b.sql"), QByteArray("before"));
    EXPECT_EQ(Read("c.sql"), QByteArray("xbefore"));
}

TEST_F(QuittingWorkbench, StaysWithAllItsTextWhereThePersonThinksBetterOfIt)
{
    m_prompts.loseChanges = LoseChanges::Cancel;
    EXPECT_EQ(m_app.SaveAllModified(), 0);
    EXPECT_EQ(m_app.Scripts().size(), 3U);
    for (ScriptDoc* script : m_app.Scripts())
        EXPECT_TRUE(script->IsModified());
}

TEST_F(QuittingWorkbench, StaysWhereOneCannotBeSavedAndLosesNoneOfTheOthers)
{
    m_prompts.loseChanges = LoseChanges::Save;
    m_prompts.notToSave = QStringList{"a.sql"};
    ASSERT_TRUE(QFile::remove(PathOf("c.sql")));
    ASSERT_TRUE(QDir().mkdir(PathOf("c.sql"))); // a folder has its name
    EXPECT_EQ(m_app.SaveAllModified(), 0);
    EXPECT_EQ(m_app.Scripts().size(), 3U);
    EXPECT_TRUE(m_app.Scripts()[0]->IsModified());
}
