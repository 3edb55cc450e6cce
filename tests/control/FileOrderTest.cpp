// SPDX-License-Identifier: GPL-3.0-or-later
// The order of messages around a load and a save, and what stands after each failure.
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

#include <new>

namespace {

using recording::AnswerTo;
using recording::Messages;
using recording::Sentences;
using Strings = std::vector<std::string>;

// The text that went in by AddTextNoProcess and ReplaceTargetNoProcess.
std::u16string Entered()
{
    std::u16string text;
    for (const recording::Message& message : Messages()) {
        if (message.number == engine::message::AddTextNoProcess ||
            message.number == engine::message::ReplaceTargetNoProcess)
            text += message.text;
    }
    return text;
}

std::size_t CountOf(UINT number)
{
    return static_cast<std::size_t>(
        std::ranges::count(Messages(), number, &recording::Message::number));
}

// Gives the engine a text of the given lines, line ends included.
void HoldLines(std::vector<std::u16string> lines)
{
    AnswerTo(engine::message::GetLineCount,
             [count = lines.size()](WPARAM, LPARAM) { return static_cast<LRESULT>(count); });
    AnswerTo(engine::message::LineLength,
             [lines](WPARAM line, LPARAM) { return static_cast<LRESULT>(lines.at(line).size()); });
    AnswerTo(engine::message::GetLine, [lines](WPARAM line, LPARAM buffer) {
        const std::u16string& text = lines.at(line);
        text.copy(reinterpret_cast<char16_t*>(buffer), text.size());
        return static_cast<LRESULT>(text.size());
    });
}

class FileOrder : public ControlTest
{
protected:
    FileOrder() { recording::Forget(); }

    bool Open(const std::string& bytes)
    {
        return control.OpenFile(WriteFile("file.sql", bytes).c_str(), kDetect);
    }

    void SetMode(int mode)
    {
        AnswerTo(engine::message::GetEOLMode, [mode](WPARAM, LPARAM) { return mode; });
    }

    static void RunOutOfMemory()
    {
        AnswerTo(engine::message::AddTextNoProcess,
                 [](WPARAM, LPARAM) -> LRESULT { throw std::bad_alloc(); });
        AnswerTo(engine::message::ReplaceTargetNoProcess,
                 [](WPARAM, LPARAM) -> LRESULT { throw std::bad_alloc(); });
    }
};

TEST_F(FileOrder, ALoadRestsTheAnalysisAndTheUndoHistory)
{
    EXPECT_TRUE(Open("select 1"));
    EXPECT_EQ(Sentences(), (Strings{"ClearAll", "SetUndoCollection 0", "SetDoingReplaceAll 1",
                                    "SetEnableReconciler 0", "AddTextNoProcess(select 1)",
                                    "SetEnableReconciler 1", "SetDoingReplaceAll 0", "GetLineCount",
                                    "SetSel 0 0", "SetUndoCollection 1", "SetSavePoint"}));
    for (const recording::Message& message : Messages())
        EXPECT_TRUE(message.direct);
    EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("file.sql"));
}

TEST_F(FileOrder, AutoSaveStopsBeforeALoadAndResumesBehindIt)
{
    control.m_bAutoSaveOn = true;
    control.m_nAutoSaveMinutes = 5;
    EXPECT_TRUE(Open("x"));
    EXPECT_EQ(control.autoSaveCalls, (Strings{"clean up", "set 1 5"}));
}

TEST_F(FileOrder, AMissingFileChangesNothing)
{
    EXPECT_FALSE(control.OpenFile(PathOf("missing").c_str(), kDetect));
    EXPECT_FALSE(control.OpenFile(u"", kDetect));
    EXPECT_FALSE(control.OpenFile(nullptr, kDetect));
    EXPECT_TRUE(Messages().empty());
    EXPECT_TRUE(control.autoSaveCalls.empty());
    EXPECT_TRUE(control.GetFileName().isEmpty());
}

TEST_F(FileOrder, AFolderInPlaceOfAFileCostsOnlyTheAutosaveCopy)
{
    EXPECT_FALSE(control.OpenFile(folder.path().toStdU16String().c_str(), kDetect));
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(control.autoSaveCalls, (Strings{"clean up"}));
    EXPECT_TRUE(control.GetFileName().isEmpty());
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(FileOrder, ADeviceThatNeverEndsIsRefused)
{
    EXPECT_FALSE(control.OpenFile(u"/dev/zero", kDetect));
    EXPECT_TRUE(Messages().empty());
}

TEST_F(FileOrder, AnEmptyFileIsAnAnsiTextWithoutAMark)
{
    control.SetEncoding(6);
    EXPECT_TRUE(Open(""));
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encANSI);
    EXPECT_FALSE(control.GetWriteEncodingSig());
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_EQ(CountOf(engine::message::AddTextNoProcess), 0u);
    EXPECT_EQ(CountOf(engine::message::SetEOLMode), 0u);
    EXPECT_FALSE(control.WasCutShort());
}

TEST_F(FileOrder, EveryEncodingIsRecordedAsFound)
{
    const std::pair<std::string, int> files[] = {
        {"plain", 0},
        {std::string("\xFF\xFEx\0", 4), 2},
        {std::string("\xFE\xFF\0x", 4), 4},
        {"\xEF\xBB\xBFx", 6},
        {std::string("\xFF\xFE\0\0x\0\0\0", 8), 8},
        {std::string("\0\0\xFE\xFF\0\0\0x", 8), 10},
        {"-- coding: utf-8\nx", 10},
    };
    for (const auto& [bytes, encoding] : files) {
        EXPECT_TRUE(Open(bytes));
        EXPECT_EQ(control.GetEncoding(), encoding);
        EXPECT_EQ(control.GetWriteEncodingSig(), encoding != 0 && bytes[0] != '-');
    }
}

TEST_F(FileOrder, ACookieIsRecordedAsUtf8WithCare)
{
    control.SetCarefulFiles(true);
    EXPECT_TRUE(Open("-- coding: utf-8\nx"));
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF8);
    EXPECT_FALSE(control.GetWriteEncodingSig());
}

TEST_F(FileOrder, AnOddByteBehindUtf16IsToldAndLeftOut)
{
    EXPECT_TRUE(Open(std::string("\xFF\xFE"
                                 "a\0b\0c",
                                 7)));
    EXPECT_EQ(Entered(), u"ab");
    EXPECT_EQ(questions.asked, QStringList{kTruncated});
    EXPECT_TRUE(control.WasCutShort());
}

TEST_F(FileOrder, AnAnsiTextEndsAtItsNul)
{
    for (const bool careful : {false, true}) {
        recording::Forget();
        questions.asked.clear();
        control.SetCarefulFiles(careful);
        const std::u16string path = WriteFile("nul.sql", std::string("abc\0def", 7));
        EXPECT_TRUE(control.OpenFile(path.c_str(), FileEncodeConverter::encANSI));
        EXPECT_EQ(Entered(), u"abc");
        EXPECT_EQ(questions.asked, QStringList{kTruncated});
        EXPECT_TRUE(control.WasCutShort());
    }
}

TEST_F(FileOrder, AFirstBlockThatDoesNotConvertGivesNoTextAndAMessage)
{
    const std::u16string path = WriteFile("bad.sql", "\x80\x80\x80");
    EXPECT_TRUE(control.OpenFile(path.c_str(), FileEncodeConverter::encUTF8));
    EXPECT_EQ(Entered(), u"");
    EXPECT_EQ(questions.asked, QStringList{kTruncated});
    EXPECT_EQ(control.GetFileName().toStdU16String(), path);
    EXPECT_EQ(Messages().back().number, UINT(engine::message::SetSavePoint));
}

TEST_F(FileOrder, ABadByteInTheMiddleEndsTheText)
{
    const std::u16string path = WriteFile("bad.sql", "good\x80 rest");
    EXPECT_TRUE(control.OpenFile(path.c_str(), FileEncodeConverter::encUTF8));
    EXPECT_EQ(Entered(), u"good");
    EXPECT_EQ(questions.asked, QStringList{kTruncated});
    EXPECT_TRUE(control.WasCutShort());
    EXPECT_TRUE(control.OpenFile(WriteFile("good.sql", "good").c_str(), kDetect));
    EXPECT_FALSE(control.WasCutShort());
}

TEST_F(FileOrder, RunningOutOfMemoryIsToldAndTheLoadGoesOn)
{
    RunOutOfMemory();
    EXPECT_TRUE(Open("select 1"));
    EXPECT_EQ(questions.asked, (QStringList{kNoMemory, kTruncated}));
    EXPECT_EQ(Sentences().back(), "SetSavePoint");
    EXPECT_EQ(CountOf(engine::message::SetEnableReconciler), 2u);
    EXPECT_TRUE(control.WasCutShort());
}

TEST_F(FileOrder, ReadingAtTheCaretTakesTheModeOfTheEngine)
{
    SetMode(1);
    const std::u16string path = WriteFile("a.sql", "a\nb\rc\r");
    control.ReadInFileContents(std::fopen(QString::fromStdU16String(path).toLocal8Bit(), "rb"),
                               kDetect, true);
    EXPECT_EQ(Sentences(), (Strings{"GetEOLMode", "SetDoingReplaceAll 1", "SetEnableReconciler 0",
                                    "AddTextNoProcess(a\r\nb\r\nc)", "AddTextNoProcess(\r\n)",
                                    "SetEnableReconciler 1", "SetDoingReplaceAll 0"}));
}

TEST_F(FileOrder, ReadingWithoutAModeKeepsTheLineEndsOfTheFile)
{
    SetMode(0);
    const std::u16string path = WriteFile("a.sql", "a\nb\rc\r");
    control.ReadInFileContents(std::fopen(QString::fromStdU16String(path).toLocal8Bit(), "rb"),
                               kDetect, true);
    EXPECT_EQ(Entered(), u"a\nb\rc\r");
    EXPECT_EQ(Sentences().back(), "GetLineCount");
    recording::Forget();
    control.ReadInFileContents(nullptr, kDetect, true);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(FileOrder, ACrLfOverASeamIsOneLineEnd)
{
    SetMode(3);
    const std::u16string path = WriteFile("a.sql", std::string(8191, 'a') + "\r\nb");
    control.ReadInFileContents(std::fopen(QString::fromStdU16String(path).toLocal8Bit(), "rb"),
                               kDetect, true);
    EXPECT_EQ(Entered(), std::u16string(8191, u'a') + u"\nb");
}

TEST_F(FileOrder, ReplacingTheTextKeepsUndoNameAndSavePoint)
{
    control.m_strFileName = QStringLiteral("name");
    SetMode(3);
    control.ReplaceTextWithFile(WriteFile("a.sql", "a\r\nb\r").c_str(), kDetect);
    EXPECT_EQ(
        Sentences(),
        (Strings{"BeginUndoAction", "SelectAll", "TargetFromSelection", "SetEnableReconciler 0",
                 "GetEOLMode", "ReplaceTargetNoProcess(a\nb)", "DocumentEnd",
                 "AddTextNoProcess(\n)", "EndUndoAction", "SetEnableReconciler 1"}));
    EXPECT_EQ(control.GetFileName(), QStringLiteral("name"));
    EXPECT_TRUE(control.autoSaveCalls.empty());
}

TEST_F(FileOrder, ReplacingByLaterBlocksAddsThem)
{
    control.ReplaceTextWithFile(WriteFile("a.sql", std::string(10000, 'a')).c_str(), kDetect);
    EXPECT_EQ(CountOf(engine::message::ReplaceTargetNoProcess), 1u);
    EXPECT_EQ(CountOf(engine::message::AddTextNoProcess), 1u);
    EXPECT_EQ(Entered(), std::u16string(10000, u'a'));
    EXPECT_EQ(Sentences().back(), "GetLineCount"); // no mode: the line ends are looked at
}

TEST_F(FileOrder, ReplacingByAMissingFileSaysNothing)
{
    control.ReplaceTextWithFile(PathOf("missing").c_str(), kDetect);
    control.ReplaceTextWithFile(folder.path().toStdU16String().c_str(), kDetect);
    EXPECT_TRUE(Messages().empty());
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(FileOrder, ReplacingByAnEmptyFileLeavesTheText)
{
    control.ReplaceTextWithFile(WriteFile("a.sql", "").c_str(), kDetect);
    EXPECT_EQ(CountOf(engine::message::ReplaceTargetNoProcess), 0u);
    EXPECT_EQ(CountOf(engine::message::ClearAll), 0u);
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(FileOrder, ReplacingKeepsAUnicodeEncodingAndItsMark)
{
    control.SetEncoding(FileEncodeConverter::encUTF16LE);
    control.SetWriteEncodingSig(false);
    control.ReplaceTextWithFile(WriteFile("a.sql", "\xEF\xBB\xBFx").c_str(), kDetect);
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF16LE);
    EXPECT_FALSE(control.GetWriteEncodingSig());
}

TEST_F(FileOrder, ReplacingAnAnsiTextTakesAUnicodeEncodingAndAddsTheMark)
{
    control.SetEncoding(FileEncodeConverter::encANSI);
    control.SetWriteEncodingSig(false);
    control.ReplaceTextWithFile(WriteFile("a.sql", "\xEF\xBB\xBFx").c_str(), kDetect);
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF8);
    EXPECT_TRUE(control.GetWriteEncodingSig());
    control.SetEncoding(FileEncodeConverter::encANSI);
    control.ReplaceTextWithFile(WriteFile("a.sql", "plain").c_str(), kDetect);
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encANSI);
    EXPECT_TRUE(control.GetWriteEncodingSig());
}

TEST_F(FileOrder, ReplacingOutOfMemoryIsToldOnce)
{
    RunOutOfMemory();
    control.ReplaceTextWithFile(WriteFile("a.sql", "text").c_str(), kDetect);
    EXPECT_EQ(questions.asked, QStringList{kNoMemory});
    EXPECT_EQ(CountOf(engine::message::SetEnableReconciler), 2u);
    EXPECT_TRUE(control.WasCutShort());
}

TEST_F(FileOrder, ReplacingByACutFileIsRememberedWithoutAWord)
{
    control.ReplaceTextWithFile(WriteFile("a.sql", "good\x80").c_str(),
                                FileEncodeConverter::encUTF8);
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_TRUE(control.WasCutShort());
}

TEST_F(FileOrder, ALongFileAsksForItsStorageAtOnce)
{
    const std::size_t size = 3 << 20;
    EXPECT_TRUE(Open(std::string(size, 'a')));
    EXPECT_EQ(CountOf(engine::message::Allocate), 1u);
    EXPECT_EQ(Entered().size(), size);
}

TEST_F(FileOrder, ACommittedSaveMovesTheSavePoint)
{
    HoldLines({u"a\n", u"b"});
    control.SetEncoding(FileEncodeConverter::encUTF8);
    EXPECT_TRUE(
        control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF16BE, true, true));
    EXPECT_EQ(Sentences(), (Strings{"GetLineCount", "LineLength 0", "GetLine 0", "LineLength 1",
                                    "GetLine 1", "SetSavePoint"}));
    EXPECT_EQ(ReadFile("out"), std::string("\xFE\xFF\0a\0\n\0b", 8));
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF16BE);
    EXPECT_TRUE(control.GetWriteEncodingSig());
    EXPECT_EQ(control.GetFileName().toStdU16String(), PathOf("out"));
    EXPECT_EQ(control.autoSaveCalls, (Strings{"clean up", "set 0 1"}));
}

TEST_F(FileOrder, AnExportChangesNothing)
{
    HoldLines({u"a\n", u"b"});
    control.SetModified(true);
    control.SetWriteEncodingSig(false);
    EXPECT_TRUE(control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF8, false, true));
    EXPECT_EQ(ReadFile("out"), "\xEF\xBB\xBF"
                               "a\nb");
    EXPECT_TRUE(control.GetModified());
    EXPECT_TRUE(control.GetFileName().isEmpty());
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF16LE);
    EXPECT_FALSE(control.GetWriteEncodingSig());
    EXPECT_EQ(CountOf(engine::message::SetSavePoint), 0u);
    EXPECT_TRUE(control.autoSaveCalls.empty());
}

TEST_F(FileOrder, APlainSaveTakesTheRecordedEncodingAndMark)
{
    HoldLines({u"\u00e9"});
    const std::pair<int, std::string> files[] = {
        {0, "\xE9"},
        {2, "\xFF\xFE\xE9" + std::string(1, '\0')},
        {4, "\xFE\xFF" + std::string(1, '\0') + "\xE9"},
        {6, "\xEF\xBB\xBF\xC3\xA9"},
        {8, std::string("\xFF\xFE\0\0\xE9\0\0\0", 8)},
        {10, std::string("\0\0\xFE\xFF\0\0\0\xE9", 8)},
        {11, "\xC3\xA9"},
        {3, ""},
    };
    for (const auto& [encoding, bytes] : files) {
        control.SetEncoding(encoding);
        control.SetWriteEncodingSig(true);
        EXPECT_TRUE(control.SaveFile(PathOf("out").c_str(), true));
        EXPECT_EQ(ReadFile("out"), bytes) << encoding;
        EXPECT_EQ(control.GetEncoding(), encoding);
    }
}

TEST_F(FileOrder, AnEncodingThatIsNoneIsAFailureWithCare)
{
    HoldLines({u"text"});
    WriteFile("out", "old");
    control.SetCarefulFiles(true);
    control.SetEncoding(3);
    EXPECT_FALSE(control.SaveFile(PathOf("out").c_str(), true));
    EXPECT_EQ(ReadFile("out"), "old");
}

TEST_F(FileOrder, ATargetThatCannotBeOpenedCountsAsSaved)
{
    HoldLines({u"text"});
    EXPECT_TRUE(control.SaveFile(folder.path().toStdU16String().c_str(), true));
    EXPECT_TRUE(control.SaveFile(PathOf("missing/out").c_str(), true));
    EXPECT_EQ(CountOf(engine::message::SetSavePoint), 2u);
    EXPECT_EQ(CountOf(engine::message::GetLine), 0u);
}

TEST_F(FileOrder, ATargetThatCannotBeOpenedIsAFailureWithCare)
{
    HoldLines({u"text"});
    control.SetCarefulFiles(true);
    control.SetModified(true);
    EXPECT_FALSE(control.SaveFile(folder.path().toStdU16String().c_str(), true));
    EXPECT_FALSE(control.SaveFile(PathOf("missing/out").c_str(), true));
    EXPECT_TRUE(control.GetModified());
    EXPECT_TRUE(control.GetFileName().isEmpty());
    EXPECT_TRUE(control.autoSaveCalls.empty());
    EXPECT_EQ(CountOf(engine::message::SetSavePoint), 0u);
}

TEST_F(FileOrder, AFullDiskIsAFailureAndCostsTheAutosaveCopy)
{
    HoldLines({u"text"});
    EXPECT_FALSE(control.SaveFile(u"/dev/full", true));
    EXPECT_EQ(CountOf(engine::message::SetSavePoint), 0u);
    EXPECT_TRUE(control.GetFileName().isEmpty());
    EXPECT_EQ(control.autoSaveCalls, (Strings{"clean up", "set 0 1"}));
}

TEST_F(FileOrder, AFullDiskChangesNothingWithCare)
{
    HoldLines({u"text"});
    control.SetCarefulFiles(true);
    EXPECT_FALSE(control.SaveFile(u"/dev/full", true));
    EXPECT_EQ(CountOf(engine::message::SetSavePoint), 0u);
    EXPECT_TRUE(control.autoSaveCalls.empty());
}

TEST_F(FileOrder, ASaveWithCareCleansUpBehindTheWrite)
{
    HoldLines({u"text"});
    control.SetCarefulFiles(true);
    EXPECT_TRUE(control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF8, true, false));
    EXPECT_EQ(control.autoSaveCalls, (Strings{"clean up", "set 0 1"}));
    EXPECT_EQ(ReadFile("out"), "text");
    EXPECT_EQ(CountOf(engine::message::SetSavePoint), 1u);
}

TEST_F(FileOrder, ASaveOfTheWholeTextForgetsThatItWasCutShort)
{
    const std::u16string path = WriteFile("bad.sql", "good\x80 rest");
    control.OpenFile(path.c_str(), FileEncodeConverter::encUTF8);
    ASSERT_TRUE(control.WasCutShort());
    EXPECT_TRUE(control.SaveFile(PathOf("copy").c_str(), kDetect, false, false));
    EXPECT_TRUE(control.WasCutShort());
    EXPECT_TRUE(control.SaveFile(PathOf("copy").c_str(), true));
    EXPECT_FALSE(control.WasCutShort());
}

TEST_F(FileOrder, LinesWithoutTextAreSkipped)
{
    HoldLines({u"a\n", u"", u"b"});
    EXPECT_TRUE(
        control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF8, false, false));
    EXPECT_EQ(ReadFile("out"), "a\nb");
}

TEST_F(FileOrder, ALineLongerThanTheBufferIsWrittenWhole)
{
    const std::u16string line(100'000, u'\u4e2d');
    HoldLines({u"a\n", line + u"\n", u"b"});
    EXPECT_TRUE(
        control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF16LE, false, false));
    EXPECT_EQ(ReadFile("out").size(), 2 * (100'000 + 4));
}

TEST_F(FileOrder, ALineOfFiftyMegabytesGoesInAndOut)
{
    control.SetCarefulFiles(true);
    std::string bytes;
    while (bytes.size() < 50u << 20)
        bytes += "insert into t values (1, '\xC3\xA9\xE4\xB8\xAD'), ";
    std::u16string text;
    AnswerTo(engine::message::AddTextNoProcess, [&](WPARAM length, LPARAM units) -> LRESULT {
        text.append(reinterpret_cast<const char16_t*>(units), length);
        return 0;
    });
    EXPECT_TRUE(Open(bytes));
    EXPECT_FALSE(control.WasCutShort());
    EXPECT_EQ(text, QString::fromUtf8(bytes.data(), bytes.size()).toStdU16String());
    HoldLines({text});
    EXPECT_TRUE(
        control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF8, false, false));
    EXPECT_TRUE(ReadFile("out") == bytes);
}

TEST_F(FileOrder, ALastCharacterTheConverterLeavesIsKeptWithCareOnly)
{
    HoldLines({u"a\n", u"b\xE000"});
    const int encodings[] = {0, 2, 4, 6, 11};
    for (const int encoding : encodings) {
        const auto type = static_cast<FileEncodeConverter::encodingType>(encoding);
        control.SetCarefulFiles(false);
        EXPECT_TRUE(control.SaveFile(PathOf("plain").c_str(), type, false, false));
        control.SetCarefulFiles(true);
        EXPECT_TRUE(control.SaveFile(PathOf("careful").c_str(), type, false, false));
        const std::string plain = ReadFile("plain");
        const std::string careful = ReadFile("careful");
        const std::string last = encoding == 0   ? "?"
                                 : encoding == 2 ? std::string("\0\xE0", 2)
                                 : encoding == 4 ? std::string("\xE0\0", 2)
                                                 : "\xEE\x80\x80";
        EXPECT_EQ(careful, plain + last) << encoding;
    }
}

// Lines as the engine would tell them: text of a line without its end, and the line end.
void HoldText(const std::u16string& text)
{
    std::vector<long> ends;
    for (std::size_t at = 0; at <= text.size(); ++at) {
        if (at == text.size() || text[at] == u'\n' || text[at] == u'\r') {
            ends.push_back(static_cast<long>(at));
            if (at + 1 < text.size() && text[at] == u'\r' && text[at + 1] == u'\n')
                ++at;
        }
    }
    AnswerTo(engine::message::GetLineCount,
             [count = ends.size()](WPARAM, LPARAM) { return static_cast<LRESULT>(count); });
    AnswerTo(engine::message::GetLineEndPosition,
             [ends](WPARAM line, LPARAM) { return ends.at(line); });
    AnswerTo(engine::message::GetLength,
             [size = text.size()](WPARAM, LPARAM) { return static_cast<LRESULT>(size); });
    AnswerTo(engine::message::GetCharAt,
             [text](WPARAM at, LPARAM) -> LRESULT { return at < text.size() ? text[at] : 0; });
}

class LineEndCounts : public FileOrder
{
protected:
    std::array<int, 3> Count(const std::u16string& text, int maxLines)
    {
        HoldText(text);
        std::array<int, 3> counts{-1, -1, -1};
        control.CountLineEnds(counts[0], counts[1], counts[2], maxLines);
        return counts;
    }
};

TEST_F(LineEndCounts, TenOfOneKindDecide)
{
    std::u16string text;
    for (int i = 0; i < 1000; ++i)
        text += u"x\r\n";
    EXPECT_EQ(Count(text, 200), (std::array<int, 3>{0, 0, 10}));
    EXPECT_EQ(CountOf(engine::message::GetLineEndPosition), 10u);
}

TEST_F(LineEndCounts, EveryKindIsToldFromTheOthers)
{
    EXPECT_EQ(Count(u"a\rb\nc\nd\r\ne\r\nf\r\ng", 0), (std::array<int, 3>{1, 2, 3}));
    EXPECT_EQ(Count(u"a\rb\nc\nd\r\n", 2), (std::array<int, 3>{1, 1, 0}));
}

TEST_F(LineEndCounts, AnEmptyFirstLineEndsTheCount)
{
    EXPECT_EQ(Count(u"\na\nb\n", 0), (std::array<int, 3>{0, 0, 0}));
    EXPECT_EQ(Count(u"", 0), (std::array<int, 3>{0, 0, 0}));
}

TEST_F(LineEndCounts, TheMajoritySetsTheMode)
{
    HoldText(u"a\r\nb\r\nc\n");
    control.DiscoverEOLSetting(200);
    EXPECT_EQ(Sentences().back(), "SetEOLMode 1");
    HoldText(u"a");
    control.DiscoverEOLSetting(200);
    EXPECT_EQ(CountOf(engine::message::SetEOLMode), 1u);
}

} // namespace
