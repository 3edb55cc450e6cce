// SPDX-License-Identifier: GPL-3.0-or-later
// A control's own code page: what its files are read and written in, beside others in another one.
#include "control/LeftCopies.h"
#include "control/LossCheck.h"
#include "control/UnreadBytes.h"
#include "platform/base/Units.h"
#include "tests/control/AutosaveFixture.h"

#include <QFileInfo>

namespace {

constexpr int kCyrillic = 1251;
constexpr int kJapanese = 932;
const QByteArray kPrivet("select '\xCF\xF0\xE8\xE2\xE5\xF2';\n"); // in 1251
const std::u16string kPrivetText = u"select '\u041F\u0440\u0438\u0432\u0435\u0442';\n";

class FileCodePages : public AutosaveTest
{
protected:
    FileCodePages()
    {
        control().SetCarefulFiles(true);
        control().SetOffersCopies(false);
    }

    QString Origin() const
    {
        return ApplicationProfile().GetString(
            QStringLiteral("BackupOrigins"), QFileInfo(control().m_strAutoSaveFile).fileName(), {});
    }

    void SaveAs(const char* name)
    {
        ASSERT_TRUE(control().SaveFile(PathOf(name).toStdU16String().c_str(), true));
    }
};

} // namespace

TEST_F(FileCodePages, AreThoseThatAFileIsReadAndSavedIn)
{
    ASSERT_TRUE(control().SetFileCodePage(kCyrillic));
    ASSERT_TRUE(Open(kPrivet));
    EXPECT_EQ(editor.Text(), kPrivetText);
    EXPECT_EQ(control().GetEncoding(), FileEncodeConverter::encANSI);
    control().AppendText(1, u"\u042F", 1);
    SaveAs("doc.sql");
    EXPECT_EQ(Read(PathOf("doc.sql")), kPrivet + "\xDF");
}

TEST_F(FileCodePages, MayHaveCharactersOfTwoBytesOverTheSeamOfABlock)
{
    ASSERT_TRUE(control().SetFileCodePage(kJapanese));
    const QByteArray file = QByteArray(8191, 'x') + "\x93\xFA\x96\x7B";
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(editor.Text(), std::u16string(8191, u'x') + u"\u65E5\u672C");
    SaveAs("doc.sql");
    EXPECT_EQ(Read(PathOf("doc.sql")), file);
}

TEST_F(FileCodePages, AreEachControlsOwn)
{
    Editor other;
    ASSERT_TRUE(control().SetFileCodePage(kCyrillic));
    ASSERT_TRUE(Open(kPrivet));
    ASSERT_TRUE(other.control->OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect));
    EXPECT_EQ(other.Text().substr(8, 2), u"\u00CF\u00F0") << "in windows-1252";
    EXPECT_EQ(editor.Text(), kPrivetText);
}

TEST_F(FileCodePages, AreRefusedIfTheyAreNotKnown)
{
    ASSERT_TRUE(control().SetFileCodePage(kCyrillic));
    for (const int unknown : {4711, -1, 1200})
        EXPECT_FALSE(control().SetFileCodePage(unknown)) << unknown;
    EXPECT_EQ(control().GetFileCodePage(), kCyrillic);
    EXPECT_TRUE(control().SetFileCodePage(0));
}

TEST_F(FileCodePages, PlayNoPartInUnicode)
{
    ASSERT_TRUE(control().SetFileCodePage(kJapanese));
    const QByteArray file("select '\xC3\xA9';\n");
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(editor.Text(), u"select '\u00E9';\n");
    SaveAs("doc.sql");
    EXPECT_EQ(Read(PathOf("doc.sql")), file);
}

TEST_F(FileCodePages, AreThoseOfTheCopyThatACrashLeaves)
{
    ASSERT_TRUE(control().SetFileCodePage(kCyrillic));
    control().setAutoSaveOn(true);
    ASSERT_TRUE(Open(kPrivet));
    editor.Type(u"\u042F");
    editor.Tick();
    const QByteArray copied = Read(OnlyCopy());
    EXPECT_EQ(copied, "\xDF" + kPrivet);
    const QString origin = Origin();
    editor.Close();
    const QString copy = Plant("~ZN1.tmp", copied);
    ApplicationProfile().WriteString(QStringLiteral("BackupOrigins"), QStringLiteral("~ZN1.tmp"),
                                     Units(origin));
    Editor next;
    next.control->SetCarefulFiles(true);
    next.control->SetOffersCopies(false);
    {
        const LeftCopies left;
        ASSERT_EQ(left.All().size(), 1U);
        EXPECT_EQ(left.All()[0].codePage, kCyrillic);
        EXPECT_EQ(left.All()[0].isOfThisFile, true);
    }
    ASSERT_TRUE(next.control->RecoverCopy(copy, kDetect));
    EXPECT_EQ(next.Text(), u"\u042F" + kPrivetText);
    EXPECT_EQ(next.control->GetFileCodePage(), kCyrillic);
}

TEST_F(FileCodePages, DecideWhatASaveWouldLose)
{
    ASSERT_TRUE(control().SetFileCodePage(kCyrillic));
    ASSERT_TRUE(Open(kPrivet));
    EXPECT_FALSE(FindLostCharacter(control(), FileEncodeConverter::encANSI));
    const auto lost = FindLostCharacter(control(), FileEncodeConverter::encANSI, 1252);
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->character, U'\u041F');
    control().AppendText(1, u"\u00E9", 1); // which 1252 has
    EXPECT_EQ(FindLostCharacter(control(), FileEncodeConverter::encANSI)->character, U'\u00E9');
}

TEST_F(FileCodePages, DecideWhichBytesAreNoText)
{
    Write(PathOf("a.sql"), "\x82\xA0 \xFC\xFC z");
    EXPECT_EQ(FindUnreadBytes(PathOf("a.sql"), FileEncodeConverter::encANSI, kJapanese).first, 3);
    EXPECT_FALSE(FindUnreadBytes(PathOf("a.sql"), FileEncodeConverter::encANSI));
}
