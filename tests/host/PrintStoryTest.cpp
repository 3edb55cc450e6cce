// SPDX-License-Identifier: GPL-3.0-or-later
// Printing and panes by a person's keys.
#include "tests/host/WindowStory.h"

namespace {

class PrintStory : public WindowStory
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

    // One letter at the start in one pane, one at the end in the other; without a second pane both
    // stand at the start.
    void TypeInBothPanes()
    {
        Keys({"ctrl+End", "F6", "ctrl+Home"});
        Type("a");
        Keys({"F6"});
        Type("b");
        Keys({"ctrl+s"});
    }
};

} // namespace

TEST_F(PrintStory, AWindowIsDividedByKeysAndEachPaneHasItsCaret)
{
    Keys({"ctrl+backslash"});
    ASSERT_NO_FATAL_FAILURE(TypeInBothPanes());
    EXPECT_TRUE(Eventually([this] { return Read() == "aselect 1;\nselect 2;\nb"; }))
        << Read().toStdString();
}

TEST_F(PrintStory, APdfIsWrittenFromTheMenuAndCanBeSearched)
{
    Keys({"alt+f", "f"});
    ASSERT_NO_FATAL_FAILURE(FocusOn("^Save"));
    Keys({"Return"});
    const QString pdf = m_folder.filePath(QStringLiteral("story.pdf"));
    ASSERT_TRUE(Eventually([&] { return QFile::exists(pdf); }));
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_TRUE(reader.readAllStandardOutput().contains("select 2;"));
}

TEST_F(PrintStory, ALongJobShowsItsPagesAndIsStoppedByAKey)
{
    WriteFromOutside(QByteArray("select 1 from a_table_of_some_name;\n").repeated(200000));
    LeaveAndComeBack();
    ASSERT_NO_FATAL_FAILURE(Answer("alt+y"));
    Keys({"alt+f", "f"});
    ASSERT_NO_FATAL_FAILURE(FocusOn("^Save"));
    Keys({"Return"});
    ASSERT_NO_FATAL_FAILURE(FocusOn("^Printing$"));
    Keys({"alt+s"});
    ASSERT_TRUE(Eventually([] { return Visible("^Printing$").isEmpty(); }));
    XDoTool({"windowfocus", "--sync", m_windowId});
    Keys({"ctrl+End"});
    Type("x");
    ASSERT_TRUE(Eventually([this] { return Title().contains(u'*'); })) << "it goes on";
    EXPECT_FALSE(QFile::exists(m_folder.filePath(QStringLiteral("story.pdf"))));
}
