// SPDX-License-Identifier: GPL-3.0-or-later
// Load and save through the real engine.
#include "tests/RandomSeed.h"
#include "tests/control/ControlFixture.h"
#include "tests/platform/file/FullDisk.h"

#include <QDir>

#include <csignal>
#include <iostream>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Encoding = FileEncodeConverter::encodingType;

constexpr Encoding kEncodings[] = {
    FileEncodeConverter::encANSI, FileEncodeConverter::encUTF16LE, FileEncodeConverter::encUTF16BE,
    FileEncodeConverter::encUTF8, FileEncodeConverter::encUTF32LE, FileEncodeConverter::encUTF32BE,
};

const std::string kTwoBytes = "\xC3\xA9";

class Files : public ControlTest
{
protected:
    std::u16string Text()
    {
        std::u16string text(static_cast<std::size_t>(control.GetLength(1)), u'\0');
        control.GetText(static_cast<int>(text.size()) + 1, text.data(), 1);
        return text;
    }

    bool Open(const std::string& bytes, Encoding encoding = kDetect)
    {
        return control.OpenFile(WriteFile("in.sql", bytes).c_str(), encoding);
    }

    bool Save(bool commit = true) { return control.SaveFile(PathOf("out.sql").c_str(), commit); }
};

TEST_F(Files, ALoadedTextIsUnmodifiedWithTheCaretInFront)
{
    control.SetText(u"before", 1);
    EXPECT_TRUE(Open("select 1\nfrom t\n"));
    EXPECT_EQ(Text(), u"select 1\nfrom t\n");
    EXPECT_EQ(control.GetModify(1), 0);
    EXPECT_FALSE(control.GetModified());
    EXPECT_EQ(control.GetCurrentPos(1), 0);
    EXPECT_EQ(control.GetAnchor(1), 0);
    EXPECT_EQ(control.GetUndoCollection(1), 1);
    EXPECT_EQ(control.GetIsReconcilerEnabled(), 1);
    EXPECT_EQ(control.GetEOLMode(1), 3);
}

TEST_F(Files, TheMajorityOfLineEndsSetsTheMode)
{
    Open("a\r\nb\r\nc\n");
    EXPECT_EQ(control.GetEOLMode(1), 1);
    Open("a\rb\rc\n");
    EXPECT_EQ(control.GetEOLMode(1), 2);
    EXPECT_EQ(Text(), u"a\rb\rc\n");
    Open("no line end");
    EXPECT_EQ(control.GetEOLMode(1), 2);
}

TEST_F(Files, TenCrLfLineEndsDecide)
{
    std::u16string text;
    for (int i = 0; i < 1000; ++i)
        text += u"x\r\n";
    control.SetText(text.c_str(), 1);
    int cr = -1;
    int lf = -1;
    int crlf = -1;
    control.CountLineEnds(cr, lf, crlf, 200);
    EXPECT_EQ(cr, 0);
    EXPECT_EQ(lf, 0);
    EXPECT_EQ(crlf, 10);
}

TEST_F(Files, AnEmptyFileLeavesAnEmptyText)
{
    control.SetText(u"before", 1);
    control.SetEOLMode(2, 1);
    EXPECT_TRUE(Open(""));
    EXPECT_EQ(Text(), u"");
    EXPECT_EQ(control.GetEOLMode(1), 2);
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encANSI);
    EXPECT_TRUE(Save());
    EXPECT_EQ(ReadFile("out.sql"), "");
}

TEST_F(Files, OneBlockWithAMarkComesBackWithIt)
{
    const std::string bytes = "\xEF\xBB\xBF" + std::string(8189, 'a');
    EXPECT_TRUE(Open(bytes));
    EXPECT_EQ(control.GetLength(1), 8189);
    EXPECT_TRUE(control.GetWriteEncodingSig());
    EXPECT_TRUE(Save());
    EXPECT_EQ(ReadFile("out.sql"), bytes);
}

TEST_F(Files, ACharacterOverTheFirstSeamLosesAByteInOpenFileAlone)
{
    const std::string bytes = std::string(8191, 'a') + kTwoBytes + std::string(50, 'b');
    const std::u16string whole = std::u16string(8191, u'a') + u"\u00e9" + std::u16string(50, u'b');
    EXPECT_TRUE(Open(bytes, FileEncodeConverter::encUTF8));
    EXPECT_EQ(Text(), whole.substr(0, whole.size() - 1));
    control.ReplaceTextWithFile(PathOf("in.sql").c_str(), FileEncodeConverter::encUTF8);
    EXPECT_EQ(Text(), whole);
    control.SetCarefulFiles(true);
    EXPECT_TRUE(Open(bytes));
    EXPECT_EQ(Text(), whole);
    EXPECT_FALSE(control.WasCutShort());
}

TEST_F(Files, AMarkMakesReplaceTextWithFileLoseTheSeamToo)
{
    const std::string bytes =
        "\xEF\xBB\xBF" + std::string(8188, 'a') + kTwoBytes + std::string(50, 'b');
    const std::u16string whole = std::u16string(8188, u'a') + u"\u00e9" + std::u16string(50, u'b');
    WriteFile("in.sql", bytes);
    control.ReplaceTextWithFile(PathOf("in.sql").c_str(), kDetect);
    EXPECT_NE(Text(), whole);
    control.SetCarefulFiles(true);
    control.ReplaceTextWithFile(PathOf("in.sql").c_str(), kDetect);
    EXPECT_EQ(Text(), whole);
}

TEST_F(Files, ACookieFileIsSavedAsUtf32ByDefault)
{
    EXPECT_TRUE(Open("-- coding: utf-8\n" + kTwoBytes));
    EXPECT_EQ(Text(), u"-- coding: utf-8\n\u00e9");
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF8); // content beats the cookie
    EXPECT_TRUE(Open("-- coding: utf-8\nx"));
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF32BE);
    EXPECT_TRUE(Save());
    EXPECT_EQ(ReadFile("out.sql").substr(0, 8), std::string("\0\0\0-\0\0\0-", 8));
    control.SetCarefulFiles(true);
    EXPECT_TRUE(Open("-- coding: utf-8\nx"));
    EXPECT_TRUE(Save());
    EXPECT_EQ(ReadFile("out.sql"), "-- coding: utf-8\nx");
}

TEST_F(Files, ReplacingTheTextIsOneUndoAwayFromTheOld)
{
    control.SetText(u"old text", 1);
    control.EmptyUndoBuffer(1);
    control.ReplaceTextWithFile(WriteFile("in.sql", std::string(20'000, 'n')).c_str(), kDetect);
    EXPECT_EQ(control.GetLength(1), 20'000);
    control.Undo(1);
    EXPECT_EQ(Text(), u"old text");
    EXPECT_FALSE(control.CanUndo(1));
    control.Redo(1);
    EXPECT_EQ(control.GetLength(1), 20'000);
    EXPECT_FALSE(control.CanRedo(1));
}

TEST_F(Files, AReadOnlyTextKeepsItsNameOverTheOldTextUnlessCareIsTaken)
{
    control.SetText(u"old text", 1);
    control.SetReadOnly(1, 1);
    EXPECT_TRUE(Open("in the file"));
    EXPECT_EQ(Text(), u"old text");
    control.SetCarefulFiles(true);
    EXPECT_TRUE(Open("in the file"));
    EXPECT_EQ(Text(), u"in the file");
    EXPECT_EQ(control.GetReadOnly(1), 1);
    EXPECT_EQ(control.GetModify(1), 0);
}

TEST_F(Files, WithCareALoadBeginsANewHistory)
{
    control.SetCarefulFiles(true);
    EXPECT_TRUE(Open("one"));
    control.AppendText(1, u"x", 1);
    EXPECT_TRUE(Open("two"));
    EXPECT_FALSE(control.CanUndo(1));
    control.AppendText(1, u"y", 1);
    control.Undo(1);
    EXPECT_EQ(Text(), u"two");
    EXPECT_EQ(control.GetModify(1), 0);
}

TEST_F(Files, WithCareNothingIsOpenedOrSavedWithoutAWindow)
{
    CZNCoreEditorControl bare;
    bare.SetCarefulFiles(true);
    const std::u16string path = WriteFile("in.sql", "ten bytes.");
    EXPECT_FALSE(bare.OpenFile(path.c_str(), kDetect));
    EXPECT_FALSE(bare.SaveFile(path.c_str(), true));
    EXPECT_EQ(ReadFile("in.sql"), "ten bytes.");
}

TEST_F(Files, ReplacingByNothingLeavesTheText)
{
    control.SetText(u"old text", 1);
    control.ReplaceTextWithFile(PathOf("missing").c_str(), kDetect);
    control.ReplaceTextWithFile(WriteFile("empty", "").c_str(), kDetect);
    EXPECT_EQ(Text(), u"old text");
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(Files, AVanishedOrUnreadableFileLeavesTheText)
{
    control.SetText(u"old text", 1);
    EXPECT_FALSE(control.OpenFile(PathOf("missing").c_str(), kDetect));
    EXPECT_FALSE(control.OpenFile(folder.path().toStdU16String().c_str(), kDetect));
    EXPECT_EQ(Text(), u"old text");
}

TEST_F(Files, ACutFileIsUnmodifiedAndBearsItsName)
{
    EXPECT_TRUE(Open("good\x80 rest", FileEncodeConverter::encUTF8));
    EXPECT_EQ(Text(), u"good");
    EXPECT_EQ(control.GetModify(1), 0);
    EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("in.sql"));
    EXPECT_EQ(questions.asked, QStringList{kTruncated});
    EXPECT_TRUE(control.WasCutShort());
    EXPECT_TRUE(control.SaveFile(PathOf("in.sql").c_str(), true));
    EXPECT_EQ(ReadFile("in.sql"), "good");
}

TEST_F(Files, NulsOfUnicodeFilesComeBack)
{
    control.SetCarefulFiles(true);
    const std::string bytes("\xEF\xBB\xBF"
                            "a\0b\n\0\0c\n\0",
                            12);
    EXPECT_TRUE(Open(bytes));
    EXPECT_EQ(control.GetLength(1), 9);
    EXPECT_TRUE(Save());
    EXPECT_EQ(ReadFile("out.sql"), bytes);
}

TEST_F(Files, ALineOfFiftyMegabytesComesBack)
{
    control.SetCarefulFiles(true);
    std::string bytes;
    while (bytes.size() < 50u << 20)
        bytes += "insert into t values (1, '\xC3\xA9\xE4\xB8\xAD'), ";
    EXPECT_TRUE(Open(bytes, FileEncodeConverter::encUTF8));
    EXPECT_EQ(control.GetLineCount(1), 1);
    EXPECT_TRUE(Save());
    EXPECT_TRUE(ReadFile("out.sql") == bytes);
}

TEST_F(Files, UndoingBehindALoadIsSafe)
{
    control.SetText(std::u16string(50'000, u'x').c_str(), 1);
    control.AddText(5, u"hello", 1);
    control.SetSel(100, 200, 1);
    control.Clear(1);
    EXPECT_TRUE(Open("short"));
    for (int i = 0; i < 20; ++i)
        control.Undo(1);
    for (int i = 0; i < 40; ++i)
        control.Redo(1);
    control.SelectAll(1);
    control.Clear(1);
    EXPECT_EQ(control.GetLength(1), 0);
    control.AddText(4, u"text", 1);
    EXPECT_EQ(Text(), u"text");
}

TEST_F(Files, ACommittedSaveIsTheSavePoint)
{
    Open("text");
    control.AddText(1, u"a", 1);
    EXPECT_TRUE(control.GetModified());
    EXPECT_TRUE(Save(false));
    EXPECT_TRUE(control.GetModified());
    EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("in.sql"));
    EXPECT_TRUE(Save(true));
    EXPECT_FALSE(control.GetModified());
    EXPECT_EQ(control.GetModify(1), 0);
    EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("out.sql"));
}

TEST_F(Files, ASaveThatFailsKeepsTheTextAndItsFlag)
{
    for (const bool careful : {false, true}) {
        control.SetCarefulFiles(careful);
        Open("text");
        control.AddText(1, u"a", 1);
        EXPECT_FALSE(control.SaveFile(u"/dev/full", true));
        EXPECT_TRUE(control.GetModified());
        EXPECT_EQ(control.GetModify(1), 1);
        EXPECT_EQ(Text(), u"atext");
        EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("in.sql"));
    }
}

TEST_F(Files, ATargetThatIsAFolderCountsAsSavedWithoutCareOnly)
{
    Open("text");
    control.AddText(1, u"a", 1);
    control.SetCarefulFiles(true);
    EXPECT_FALSE(control.SaveFile(folder.path().toStdU16String().c_str(), true));
    EXPECT_TRUE(control.GetModified());
    control.SetCarefulFiles(false);
    EXPECT_TRUE(control.SaveFile(folder.path().toStdU16String().c_str(), true));
    EXPECT_FALSE(control.GetModified());
}

TEST_F(Files, ADiskThatFillsUpLeavesTheOldFileWithCare)
{
    control.SetCarefulFiles(true);
    Open(std::string(300'000, 'n'));
    WriteFile("out.sql", "old text");
    for (const rlim_t room : {0ul, 4096ul, 65'536ul, 299'999ul}) {
        bool saved = true;
        {
            const FullDisk full(room);
            saved = Save();
        }
        EXPECT_FALSE(saved) << room;
        EXPECT_EQ(ReadFile("out.sql"), "old text") << room;
        EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("in.sql"));
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    EXPECT_TRUE(Save());
    EXPECT_EQ(ReadFile("out.sql").size(), 300'000u);
}

TEST_F(Files, AKilledSaveLeavesTheOldFileOrTheNewOne)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    control.SetCarefulFiles(true);
    std::string lines;
    for (int i = 0; i < 40'000; ++i)
        lines += "select " + std::to_string(i) + ";\n";
    Open(lines);
    const std::string old(200'000, 'o');
    int killed = 0;
    int oldLeft = 0;
    for (int round = 0; round < 40; ++round) {
        WriteFile("out.sql", old);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            Save(false);
            for (;;)
                pause();
        }
        usleep(random() % 15'000);
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        killed += WIFSIGNALED(status) ? 1 : 0;
        const std::string found = ReadFile("out.sql");
        ASSERT_TRUE(found == old || found == lines) << found.size();
        oldLeft += found == old ? 1 : 0;
    }
    EXPECT_EQ(killed, 40);
    EXPECT_GT(oldLeft, 0); // some were killed before the end
}

// Texts that a code page, or every encoding, can hold.
std::u16string RandomText(std::mt19937& random, bool ansi, std::size_t units)
{
    constexpr std::u16string_view kAnsi[] = {u"a",  u"Z",      u" ",      u"\r\n",  u"\n",
                                             u"\r", u"\u00e9", u"\u20ac", u"\u201c"};
    constexpr std::u16string_view kAll[] = {
        u"a",      u"\r\n",   u"\n",     u"\u00e9", u"\u0416",     u"\u05d0",
        u"\u0639", u"\u0928", u"\u0e01", u"\u4e2d", u"\uac00",     u"\U0001F600",
        u"\xE000", u"\uFFFD", u"\u3042", u"\u0301", u"\U00020000", u"\uFFFC"};
    std::u16string text;
    while (text.size() < units)
        text += ansi ? kAnsi[random() % std::size(kAnsi)] : kAll[random() % std::size(kAll)];
    return text;
}

class EveryEncoding : public Files, public testing::WithParamInterface<Encoding>
{};

TEST_P(EveryEncoding, GivesTheSameBytesBackWithCare)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const Encoding encoding = GetParam();
    const bool ansi = encoding == FileEncodeConverter::encANSI;
    control.SetCarefulFiles(true);
    for (int block = 0; block <= 3; ++block) {
        for (int offset = -6; offset <= 6; ++offset) {
            // The bytes are those of an export of the text, cut to whole characters by it.
            const long bytesWanted = block * 8192L + offset;
            const long perUnit = ansi ? 1 : encoding == FileEncodeConverter::encUTF8 ? 2 : 3;
            const long units =
                std::max(0L, bytesWanted / perUnit) + static_cast<long>(random() % 7);
            const std::u16string text = RandomText(random, ansi, static_cast<std::size_t>(units));
            control.SetText(u"", 1);
            control.AddTextNoProcess(static_cast<int>(text.size()), text.c_str(), 1);
            const bool mark = random() % 2 == 0;
            ASSERT_TRUE(control.SaveFile(PathOf("first").c_str(), encoding, false, mark));
            const std::string bytes = ReadFile("first");
            ASSERT_TRUE(control.OpenFile(PathOf("first").c_str(), encoding));
            ASSERT_TRUE(Text() == text) << "units " << units;
            ASSERT_FALSE(control.WasCutShort());
            ASSERT_TRUE(Save());
            ASSERT_TRUE(ReadFile("out.sql") == bytes) << "bytes " << bytes.size();
        }
    }
}

// Exact lengths around every seam, with one long character sliding over it.
TEST_P(EveryEncoding, CarriesACharacterAtEveryPlaceAroundASeam)
{
    const Encoding encoding = GetParam();
    const bool ansi = encoding == FileEncodeConverter::encANSI;
    const std::u16string wide = ansi ? u"\u20ac" : u"\U0001F600\u4e2d\u00e9";
    control.SetCarefulFiles(true);
    for (const long units : {8192L, 4096L, 2048L, 16'384L}) {
        for (long place = units - 9; place <= units + 2; ++place) {
            const std::u16string text = std::u16string(static_cast<std::size_t>(place), u'a') +
                                        wide + std::u16string(9000, u'b') + wide;
            control.SetText(text.c_str(), 1);
            ASSERT_TRUE(control.SaveFile(PathOf("first").c_str(), encoding, false, place % 2));
            ASSERT_TRUE(control.OpenFile(PathOf("first").c_str(), encoding));
            ASSERT_TRUE(Text() == text) << place;
            ASSERT_TRUE(Save());
            ASSERT_TRUE(ReadFile("out.sql") == ReadFile("first")) << place;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Files, EveryEncoding, testing::ValuesIn(kEncodings),
                         [](const auto& tested) { return std::to_string(tested.param); });

} // namespace
