// SPDX-License-Identifier: GPL-3.0-or-later
// Finding and replacing by the keys of the dialogs, in one text and in files; and what a click with
// Control held opens.
#include "tests/host/WindowStory.h"

namespace {

class FindStory : public WindowStory
{
protected:
    // The keys go to the window of that name.
    void FocusOn(const QString& title)
    {
        QString window;
        ASSERT_TRUE(Eventually([&] {
            window = Visible(title);
            return !window.isEmpty();
        })) << title.toStdString();
        XDoTool({"windowfocus", "--sync", window});
    }
    void WriteBeside(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray ReadBeside(const QString& name) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void FindInFiles(const QString& text)
    {
        Keys({"ctrl+shift+f"});
        ASSERT_NO_FATAL_FAILURE(FocusOn("^Find In Files$"));
        Keys({"ctrl+a"});
        Type(text);
        Keys({"alt+y", "Tab", "ctrl+a"});
        Type("*.sql");
        Keys({"alt+o", "ctrl+a"});
        Type(m_folder.path());
        Keys({"Return"});
        ASSERT_TRUE(Eventually([] { return Visible("^Find In Files$").isEmpty(); }));
        XDoTool({"windowfocus", "--sync", m_windowId});
    }
};

} // namespace

TEST_F(FindStory, TheFindDialogSelectsTheMatchThatIsTypedOver)
{
    Keys({"ctrl+Home", "ctrl+alt+f"});
    ASSERT_NO_FATAL_FAILURE(FocusOn("^Find$"));
    Keys({"ctrl+a"});
    Type("2");
    Keys({"Return", "Escape"});
    ASSERT_TRUE(Eventually([] { return Visible("^Find$").isEmpty(); }));
    XDoTool({"windowfocus", "--sync", m_windowId});
    Type("two");
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "select 1;\nselect two;\n"; }))
        << Read().toStdString();
}

TEST_F(FindStory, TheReplaceDialogReplacesAllByItsKeys)
{
    Keys({"ctrl+Home", "ctrl+alt+r"});
    ASSERT_NO_FATAL_FAILURE(FocusOn("^Find & Replace$"));
    Keys({"ctrl+a"});
    Type("select");
    Keys({"alt+p", "ctrl+a"});
    Type("values");
    Keys({"alt+a"});
    ASSERT_NO_FATAL_FAILURE(FocusOn("^znworkbench$"));
    Keys({"Return"});
    ASSERT_TRUE(Eventually([] { return Visible("^znworkbench$").isEmpty(); }));
    ASSERT_NO_FATAL_FAILURE(FocusOn("^Find & Replace$"));
    Keys({"Escape"});
    XDoTool({"windowfocus", "--sync", m_windowId});
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "values 1;\nvalues 2;\n"; }))
        << Read().toStdString();
}

TEST_F(FindStory, FindInFilesLeadsToTheMatchInAnotherFile)
{
    WriteBeside("other.sql", "zero\nthe needle\n");
    ASSERT_NO_FATAL_FAILURE(FindInFiles("needle"));
    ASSERT_TRUE(Eventually([this] {
        Keys({"F4"});
        return Title().contains("other.sql");
    })) << Title().toStdString();
    Type("thread");
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return ReadBeside("other.sql") == "zero\nthe thread\n"; }))
        << ReadBeside("other.sql").toStdString();
}

TEST_F(FindStory, ReplacesInTheFilesFoundByKeys)
{
    WriteBeside("other.sql", "the needle\n");
    ASSERT_NO_FATAL_FAILURE(FindInFiles("needle"));
    ASSERT_TRUE(Eventually([this] {
        Keys({"F4"});
        return Title().contains("other.sql");
    })) << Title().toStdString();
    Keys({"alt+p"});
    Type("thread");
    Keys({"Return"});
    ASSERT_TRUE(Eventually([this] {
        Keys({"alt+r"});
        return Title().contains(u'*');
    })) << Title().toStdString();
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return ReadBeside("other.sql") == "the thread\n"; }))
        << ReadBeside("other.sql").toStdString();
}

TEST_F(FindStory, AClickWithControlOpensTheFileThatItHits)
{
    WriteBeside("other.sql", "here\n");
    Keys({"ctrl+a"});
    for (int line = 0; line < 40; ++line)
        Keys({"Return"});
    Keys({"ctrl+a"});
    Type("other.sql other.sql other.sql other.sql other.sql other.sql other.sql");
    Keys({"Return", "ctrl+Home"});
    XDoTool({"keydown", "ctrl"});
    for (int y = 60; y < 200 && !Title().contains("other.sql"); y += 6)
        Click(400, y);
    XDoTool({"keyup", "ctrl"});
    EXPECT_TRUE(Eventually([this] { return Title().contains("other.sql"); }))
        << Title().toStdString();
}
