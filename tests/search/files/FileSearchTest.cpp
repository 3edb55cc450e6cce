// SPDX-License-Identifier: GPL-3.0-or-later
// A search through files, and what it makes of odd ones.
#include "search/files/FileSearch.h"
#include "platform/windows/Questions.h"
#include "search/files/ExpressionFault.h"
#include "tests/search/FindFixture.h"
#include "tests/search/files/FileSearchFixture.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <iostream>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

bool operator==(const FileMatch& match, const std::array<long, 3>& place)
{
    return match.line == place[0] && match.column == place[1] && match.length == place[2];
}

} // namespace

TEST_F(FileSearches, TellPlacesInUnitsAndTheTextOfTheLine)
{
    const QString path = Write("a.sql", "one\r\n\xC3\xA4\xF0\x9F\x98\x80two two\rtwo\n");
    const Collector found = Search(For("two"));
    ASSERT_EQ(found.files.size(), 1u);
    const std::vector<FileMatch>& matches = found.files.at(path).matches;
    ASSERT_EQ(matches.size(), 3u);
    EXPECT_TRUE((matches[0] == std::array<long, 3>{1, 3, 3}));
    EXPECT_TRUE((matches[1] == std::array<long, 3>{1, 7, 3}));
    EXPECT_TRUE((matches[2] == std::array<long, 3>{2, 0, 3}));
    EXPECT_EQ(matches[0].text, QString::fromUtf8("\xC3\xA4\xF0\x9F\x98\x80two two"));
    EXPECT_EQ(found.totals.matches, 3);
    EXPECT_EQ(found.totals.files, 1);
}

TEST_F(FileSearches, FindWhatIsLongerThanAPieceOfTheFile)
{
    QByteArray text("x\n");
    text +=
        QByteArray(3900000, ' ') + "<" + QByteArray(700000, 'a') + ">" + QByteArray(9000000, ' ');
    text += "<" + QByteArray(5000000, 'b') + ">";
    const QString path = Write("long.sql", text);
    FileSearchRequest request = For("<[^>]*a>");
    request.regExp = true;
    Collector found = Search(request);
    ASSERT_EQ(found.totals.matches, 1);
    EXPECT_EQ(found.files.at(path).matches[0].length, 700002);
    request.text = "<b+";
    found = Search(request);
    ASSERT_EQ(found.totals.matches, 1);
    EXPECT_EQ(found.files.at(path).matches[0].length, 5000001);
}

TEST_F(FileSearches, SayWhatIsWrongWithAnExpression)
{
    Write("a.sql", "(a");
    FileSearchRequest request = For("\\(a");
    request.regExp = true;
    const Collector found = Search(request);
    const std::pair<FileNote, QString> fault{FileNote::NoExpression,
                                             "The expression is not complete."};
    EXPECT_THAT(found.notes, ElementsAre(fault));
    EXPECT_EQ(found.totals.matches, 0);
    EXPECT_EQ(ExpressionFault("a\\(b\\)[0-9]+"), "");
    EXPECT_EQ(ExpressionFault("a(b)\\d{2,}", true), "");
    EXPECT_EQ(ExpressionFault("a(b", true), "The expression is not complete.");
    EXPECT_EQ(ExpressionFault("ab)c", true), "The expression cannot be read from character 3 on.");
    EXPECT_EQ(ExpressionFault(QString::fromUtf8("\u00e4b\\9c")),
              "The expression cannot be read from character 3 on.");
}

TEST_F(FileSearches, TellWhatAMatchWouldBecome)
{
    const QString path = Write("a.sql", "ab cb\n");
    FileSearchRequest request = For("\\([a-z]\\)b");
    request.regExp = true;
    request.replaces = true;
    request.replacement = "b\\1";
    const std::vector<FileMatch> matches = Search(request).files.at(path).matches;
    ASSERT_EQ(matches.size(), 2u);
    EXPECT_EQ(matches[0].replacement, "ba");
    EXPECT_EQ(matches[1].replacement, "bc");
    EXPECT_EQ(MatchesIn("ab cb\n", request), matches);
}

TEST_F(FileSearches, FindInWhateverEncodingAnEditorWouldDetect)
{
    const QString text = QStringLiteral("select 'stra\u00dfe' from t;\n");
    Write("utf8.sql", text.toUtf8());
    Write("latin.sql", text.toLatin1());
    QByteArray wide("\xFF\xFE", 2);
    wide.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    Write("utf16.sql", wide);
    const Collector found = Search(For(QStringLiteral("stra\u00dfe")));
    EXPECT_EQ(Names(found), QStringList({"latin.sql", "utf16.sql", "utf8.sql"}));
    for (const auto& [path, file] : found.files)
        EXPECT_EQ(file.matches[0].column, 8) << path.toStdString();
}

TEST_F(FileSearches, LookAtTheTypesAndFoldersTheyAreTold)
{
    Write("a.sql", "x");
    Write("b.TXT", "x");
    Write("c.log", "x");
    Write("sub/d.sql", "x");
    FileSearchRequest request = For("x");
    request.types = "*.sql; *.txt";
    EXPECT_EQ(Names(Search(request)), QStringList({"a.sql", "b.TXT", "sub/d.sql"}));
    request.subFolders = false;
    EXPECT_EQ(Names(Search(request)), QStringList({"a.sql", "b.TXT"}));
    request.types = "*.*";
    EXPECT_EQ(Names(Search(request)).size(), 3);
}

TEST_F(FileSearches, CountWithoutDescribing)
{
    const QString path = Write("a.sql", "x x x");
    FileSearchRequest request = For("x");
    request.countOnly = true;
    const Collector found = Search(request);
    EXPECT_EQ(found.files.at(path).count, 3);
    EXPECT_THAT(found.files.at(path).matches, IsEmpty());
}

TEST_F(FileSearches, TakeOpenTextsInThePlaceOfTheirFiles)
{
    const QString path = Write("a.sql", "on disk");
    FileSearchRequest request = For("edited");
    request.open = {{path, "as edited"}, {"", "edited, too"}};
    Collector found = Search(request);
    EXPECT_EQ(Names(found), QStringList("a.sql"));
    EXPECT_TRUE(found.files.at(path).isOpen);
    request.openOnly = true;
    found = Search(request);
    EXPECT_EQ(found.files.size(), 2u);
}

TEST_F(FileSearches, SkipWhatIsNoTextAndSaySo)
{
    Write("a.bin", QByteArray("\x7F"
                              "ELF\0\0\0\0x x\0 x",
                              13));
    mkfifo(QFile::encodeName(folder.filePath("b.fifo")).constData(), 0600);
    QFile::link("/dev/zero", folder.filePath("c.zero"));
    QFile::link(folder.path(), folder.filePath("loop"));
    const Collector found = Search(For("x"));
    EXPECT_THAT(found.files, IsEmpty());
    EXPECT_THAT(found.notes,
                UnorderedElementsAre(std::pair(FileNote::Binary, folder.filePath("a.bin")),
                                     std::pair(FileNote::NotAFile, folder.filePath("b.fifo")),
                                     std::pair(FileNote::NotAFile, folder.filePath("c.zero")),
                                     std::pair(FileNote::Loop, folder.filePath("loop"))));
    EXPECT_EQ(found.totals.skipped, 4);
}

TEST_F(FileSearches, SayWhatTheyCouldNotRead)
{
    FileSearchRequest request = For("x");
    request.folders = {folder.filePath("none")};
    QFile::link(folder.filePath("gone"), folder.filePath("dangling.sql"));
    request.folders += folder.path();
    const Collector found = Search(request);
    EXPECT_EQ(found.totals.failures, 2);
}

TEST_F(FileSearches, TellThatAFileShrinksWhileItIsRead)
{
    for (const QByteArray line : {"needle in plain text\n", "needle in W\xF6rtern\n"}) {
        const QString path = Write("a.sql", line.repeated(1000000));
        Collector collector;
        collector.onFound = [&] { QFile::resize(path, 3000000); };
        CFileSearch search(For("needle"), collector);
        search.Start();
        search.Wait();
        EXPECT_THAT(collector.notes, ElementsAre(std::pair(FileNote::Unreadable, path)));
        EXPECT_GT(collector.totals.matches, 10000);
        EXPECT_LT(collector.totals.matches, 500000);
        EXPECT_EQ(collector.totals.files, 0);
    }
}

TEST_F(FileSearches, SearchAFileThatGrowsWhileItIsRead)
{
    const QString path = Write("a.sql", QByteArray("needle\n").repeated(300000));
    Collector collector;
    collector.onFound = [&, isGrown = false]() mutable {
        QFile file(path);
        if (!std::exchange(isGrown, true) && file.open(QFile::Append))
            file.write(QByteArray("needle\n").repeated(100000));
    };
    CFileSearch search(For("needle"), collector);
    search.Start();
    search.Wait();
    EXPECT_THAT(collector.notes, IsEmpty());
    EXPECT_EQ(collector.totals.matches, 400000);
}

TEST_F(FileSearches, SearchFilesWhoseNamesAreNotText)
{
    const QByteArray name = QFile::encodeName(folder.path()) + "/\xFF\xFE.sql";
    std::FILE* file = std::fopen(name.constData(), "w");
    ASSERT_TRUE(file);
    std::fputs("x", file);
    std::fclose(file);
    const Collector found = Search(For("x"));
    ASSERT_EQ(found.files.size(), 1u);
    EXPECT_EQ(found.files.begin()->second.name, name);
    unlink(name.constData());
}

TEST_F(FileSearches, FindOverTheSeamsOfPieces)
{
    QByteArray text(3 * 1024 * 1024, 'a');
    for (int at = 1024 * 1024 - 70; at < 1024 * 1024 + 70; at += 10)
        text.replace(at, 6, "needle");
    text.replace(1024 * 1024 - 64 * 1024 - 3, 6, "needle");
    text[500] = '\n';
    const QString path = Write("a.sql", text);
    const Collector found = Search(For("needle"));
    const std::vector<FileMatch>& matches = found.files.at(path).matches;
    QList<qsizetype> expected;
    for (qsizetype at = text.indexOf("needle"); at != -1; at = text.indexOf("needle", at + 6))
        expected += at;
    ASSERT_EQ(matches.size(), static_cast<std::size_t>(expected.size()));
    for (std::size_t i = 0; i < matches.size(); ++i) {
        EXPECT_EQ(matches[i].column, expected[static_cast<qsizetype>(i)] - 501);
        EXPECT_EQ(matches[i].line, 1);
    }
}

TEST_F(FileSearches, GoOnWithTheConversionWhereAFileTurnsOutNotToBeAscii)
{
    QByteArray text(2 * 1024 * 1024, 'a');
    text.replace(10, 6, "needle");
    text.append("\xE4 needle");
    const QString path = Write("a.sql", text);
    const Collector found = Search(For("needle"));
    ASSERT_EQ(found.files.at(path).matches.size(), 2u);
    EXPECT_EQ(found.files.at(path).matches[1].column, 2 * 1024 * 1024 + 2);
}

TEST_F(FileSearches, StopAtOnce)
{
    for (int i = 0; i < 200; ++i)
        Write(QString::number(i) + ".sql", QByteArray(10000, 'x'));
    Collector collector;
    CFileSearch search(For("x"), collector);
    collector.stopsAt = &search;
    search.Start();
    search.Wait();
    EXPECT_TRUE(collector.totals.isStopped);
    EXPECT_LE(collector.files.size(), 4u);
}

TEST_F(FileSearches, StopAnExpressionThatRunsAway)
{
    Write("a.sql", QByteArray(5000, 'a') + "b");
    FileSearchRequest request = For("(a+)+(a+)+(a+)+c");
    request.regExp = true;
    Collector collector;
    CFileSearch search(request, collector);
    QElapsedTimer time;
    time.start();
    search.Start();
    search.Stop();
    search.Wait();
    EXPECT_LT(time.elapsed(), 1500);
}

TEST_F(FileSearches, FindHundredsOfThousandsInOneLine)
{
    const QString path = Write("a.sql", QByteArray(300000, 'x'));
    const Collector found = Search(For("x"));
    ASSERT_EQ(found.files.at(path).matches.size(), 300000u);
    EXPECT_EQ(found.files.at(path).matches.back().column, 299999);
}

// A file that ends within a character, as it is read, is told by the editor in a box.
class SilentQuestions final : public IUserQuestions
{
public:
    SilentQuestions() { SetUserQuestions(this); }
    ~SilentQuestions() override { SetUserQuestions(nullptr); }
    Answer Ask(HWND, const QString&, Buttons) override { return Answer::Yes; }
};

// What the manager finds in an editor that has the file open.
class FileSearchAgainstEditor : public FindTest
{
protected:
    std::vector<std::array<long, 3>> Expected(const QString& path)
    {
        const SilentQuestions questions;
        control.SetCarefulFiles(true);
        EXPECT_TRUE(control.OpenFile(Units(path), FileEncodeConverter::encUnknown));
        std::vector<std::array<long, 3>> places;
        int from = 0;
        while (from <= Length()) {
            const int pos = manager.FindInRange(&control, from, Length(), true);
            if (pos == -1)
                break;
            const long end = control.GetTargetEnd(1);
            const long line = control.LineFromPosition(pos, 1);
            places.push_back(
                {line, pos - control.PositionFromLine(static_cast<int>(line), 1), end - pos});
            from = static_cast<int>(end);
            if (end == pos)
                from = std::max(from + 1, static_cast<int>(control.PositionAfter(from, 1)));
        }
        return places;
    }
};

TEST_F(FileSearchAgainstEditor, FindsTheSameInRandomFiles)
{
    const unsigned seed = SeedOfTest();
    std::cout << "seed " << seed << '\n';
    RandomTexts random(seed);
    QTemporaryDir folder;
    const char16_t* const sought[] = {u"a",       u"ab",       u"\u00e9",  u"A",
                                      u"a.c",     u"^a",       u"b$",      u"[ab]+",
                                      u"\\w+",    u"a*",       u"\\s",     u"(a)\\1",
                                      u"\\<a",    u"c\\>",     u"^$",      u"\u00c9+",
                                      u"_a",      u".",        u"[ab]+ab", u"\\(b\\)*ab\\s",
                                      u"^ab+c*$", u"a?bb",     u"aab|bb",  u"bb[\\n\\r]*a",
                                      u"\\nab",   u"ab.*b\\cc"};
    for (int round = 0; round < 150; ++round) {
        const std::u16string text = random.Text(60, u"aaabbc  \u00e9\u00c9_\r\n\n;");
        const QString units(reinterpret_cast<const QChar*>(text.data()),
                            static_cast<qsizetype>(text.size()));
        QByteArray bytes;
        switch (random.Number(4)) {
        case 0:
            bytes = "\xEF\xBB\xBF" + units.toUtf8();
            break;
        case 1:
            bytes = units.toLatin1();
            break;
        case 2:
            bytes = QByteArray("\xFF\xFE", 2) +
                    QByteArray(reinterpret_cast<const char*>(units.utf16()), units.size() * 2);
            break;
        default:
            bytes = units.toUtf8();
            break;
        }
        const QString path = folder.filePath("a.sql");
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        file.close();

        manager.SetRegExp(random.Number(2) != 0);
        manager.SetMatchCase(random.Number(2) != 0);
        manager.SetWholeWord(random.Number(2) != 0);
        manager.SetFind(QString::fromUtf16(sought[random.Number(std::size(sought))]));
        FileSearchRequest request;
        request.text = manager.GetFind();
        request.regExp = manager.GetRegExp();
        request.matchCase = manager.GetMatchCase();
        request.wholeWord = manager.GetWholeWord();
        request.folders = {folder.path()};
        request.threads = 1;
        Collector found;
        CFileSearch search(request, found);
        search.Start();
        search.Wait();
        std::vector<std::array<long, 3>> places;
        for (const FileMatch& match : found.files[path].matches)
            places.push_back({match.line, match.column, match.length});
        ASSERT_EQ(places, Expected(path))
            << "round " << round << ", sought " << request.text.toStdString() << ", options "
            << request.regExp << request.matchCase << request.wholeWord << ", bytes "
            << bytes.toHex().toStdString();
    }
}
