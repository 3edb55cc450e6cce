// SPDX-License-Identifier: GPL-3.0-or-later
// Files that hold what their text in the window does not.
#include "tests/host/WorkbenchTest.h"

namespace {

class ReadLosses : public WorkbenchTest
{
protected:
    void OpenIn(int encoding, const QString& name)
    {
        m_prompts.whatToOpen = OpenChoice{PathOf(name), encoding};
        Trigger("openAs");
        QApplication::processEvents();
    }
};

constexpr int kUtf8 = 6;
const QByteArray kLatin1 = "-- \xDC"
                           "bersicht\nselect 'gr\xF6\xDF"
                           "er';\n";

} // namespace

TEST_F(ReadLosses, AreToldWhenAFileIsOpenedInAnEncodingThatItIsNot)
{
    Write("latin1.sql", kLatin1);
    OpenIn(kUtf8, "latin1.sql");
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("“latin1.sql” has bytes that are no UTF-8: 3, the "
                                           "first in line 1"))
        << m_prompts.told[0].toStdString();
    EXPECT_TRUE(m_prompts.told[0].contains("Open with Encoding"));
    EXPECT_EQ(m_window.TabCount(), 1);
}

TEST_F(ReadLosses, AreAskedAboutBeforeTheFileIsWrittenOver)
{
    Write("latin1.sql", kLatin1);
    OpenIn(kUtf8, "latin1.sql");
    Type(u"x");
    EXPECT_FALSE(Script().DoFileSave());
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains("bytes that are none: 3"));
    EXPECT_EQ(Read("latin1.sql"), kLatin1);
    m_prompts.confirm = true;
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_TRUE(Read("latin1.sql").startsWith("x-- \xEF\xBF\xBD"));
    Type(u"y");
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(m_prompts.asked.size(), 2) << "the file is what the window shows from then on";
}

TEST_F(ReadLosses, AreNoneOfASaveToAnotherFile)
{
    Write("latin1.sql", kLatin1);
    OpenIn(kUtf8, "latin1.sql");
    m_prompts.saveTarget = SaveTarget{PathOf("copy.sql"), kUtf8, false};
    EXPECT_TRUE(Script().SaveAs());
    EXPECT_TRUE(m_prompts.asked.isEmpty());
    EXPECT_EQ(Read("latin1.sql"), kLatin1);
}

TEST_F(ReadLosses, EndWithTheRightEncoding)
{
    Write("latin1.sql", kLatin1);
    OpenIn(kUtf8, "latin1.sql");
    OpenIn(0, "latin1.sql");
    EXPECT_EQ(m_prompts.told.size(), 1);
    Type(u"x");
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(Read("latin1.sql"), "x" + kLatin1);
}

TEST_F(ReadLosses, AreToldOfAFileWhoseFirstBlockAloneIsUtf8)
{
    Open("long.sql",
         "-- \xC3\xA9\n" + QByteArray("select 1;\n").repeated(2000) + "-- \xF6n ends here\n");
    QApplication::processEvents();
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("no UTF-8: 1, the first in line 2,002"))
        << m_prompts.told[0].toStdString();
}

TEST_F(ReadLosses, NameTheFileAndTheByteThatItWasCutShortAt)
{
    const QByteArray bytes("select 1;\0\0 -- nul.", 19);
    Open("nul.sql", bytes);
    QApplication::processEvents();
    EXPECT_EQ(Text(), "select 1;");
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("“nul.sql”"));
    EXPECT_TRUE(m_prompts.told[0].contains("byte 10 of the file is a NUL"));
    EXPECT_TRUE(m_prompts.told[0].contains("The file itself is as it was"));
}

TEST_F(ReadLosses, OfAHiddenTabAreToldWhenItIsSeen)
{
    Open("a.sql", "a");
    const QString nul = Write("nul.sql", QByteArray("b\0c", 3));
    ASSERT_TRUE(m_app.OpenDocumentFile(nul));
    m_window.ShowTab(0); // before the window had the time to show it
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_TRUE(m_prompts.told.isEmpty()) << m_prompts.told.value(0).toStdString();
    m_window.ShowTab(1);
    QApplication::processEvents();
    QApplication::processEvents();
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("“nul.sql”"));
    m_window.ShowTab(0);
    m_window.ShowTab(1);
    QApplication::processEvents();
    EXPECT_EQ(m_prompts.told.size(), 1) << "once";
}
