// SPDX-License-Identifier: GPL-3.0-or-later
// What a search through files makes of bytes that it looks at before it converts them.
#include "platform/text/SystemCodePage.h"
#include "search/files/ReadFileText.h"
#include "tests/search/files/FileSearchFixture.h"

#include <gmock/gmock.h>

namespace {

class CodePageOfTest
{
public:
    explicit CodePageOfTest(int page) { platform::SetSystemCodePage(page); }
    ~CodePageOfTest() { platform::SetSystemCodePage(1252); }
};

class FileBytes : public FileSearches
{};

} // namespace

TEST_F(FileBytes, ThatLookLikeTheTextAreNotItInACodePageOfTwoBytes)
{
    const CodePageOfTest japanese(932);
    Write("a.sql", "x \x83\x41 \x83\x42"); // two letters whose second bytes are A and B
    const QString path = Write("b.sql", "x \x83\x41 B");
    const Collector found = Search(For("B"));
    EXPECT_EQ(Names(found), QStringList("b.sql"));
    EXPECT_EQ(found.files.at(path).matches[0].column, 4);
    EXPECT_EQ(found.files.at(path).matches[0].text, QString::fromUtf8("x \u30a2 B"));
}

TEST_F(FileBytes, OfACodePageWithALongSAreAMatchWithoutCase)
{
    const CodePageOfTest chinese(54936);
    Write("a.sql", "x \x81\x30\x97\x37it"); // U+017F and it
    FileSearchRequest request = For("sit");
    EXPECT_EQ(Search(request).totals.matches, 1);
    request.matchCase = true;
    EXPECT_EQ(Search(request).totals.matches, 0);
}

TEST_F(FileBytes, OfASinglePageBecomeItsLetters)
{
    const CodePageOfTest greek(1253);
    const QString path = Write("a.sql", "select '\xE1\xE2 abcdefghijklmnop \x80' from t;");
    Collector found = Search(For("from"));
    ASSERT_EQ(found.totals.matches, 1);
    EXPECT_EQ(found.files.at(path).matches[0].column, 31);
    EXPECT_EQ(found.files.at(path).matches[0].text,
              QString::fromUtf8("select '\u03b1\u03b2 abcdefghijklmnop \u20ac' from t;"));
    found = Search(For(QString::fromUtf8("\u0391\u03b2 A")));
    EXPECT_EQ(found.totals.matches, 1);
}

TEST_F(FileBytes, AreOfTheCodePageThatTheSearchNames)
{
    const QString path = Write("a.sql", "select '\xCF\xF0' from t;");
    FileSearchRequest request = For(QString::fromUtf8("\u041F\u0440"));
    EXPECT_EQ(Search(request).totals.matches, 0);
    request.codePage = 1251;
    EXPECT_EQ(Search(request).totals.matches, 1);
    EXPECT_EQ(ReadFileText(path, 100, 1251), QString::fromUtf8("select '\u041F\u0440' from t;"));
    Write("b.sql", "x \x83\x41 \x83\x42"); // in 932 two letters whose second bytes are A and B
    request = For("A");
    request.codePage = 932;
    EXPECT_EQ(Search(request).totals.matches, 0);
}

// Scripts that were joined with their marks have one more at the start.
TEST_F(FileBytes, OfASecondMarkAreACharacterOfTheText)
{
    const QString path = Write("a.sql", "\xEF\xBB\xBF\xEF\xBB\xBFone");
    EXPECT_EQ(ReadFileText(path, 100), QChar(0xFEFF) + QStringLiteral("one"));
    EXPECT_EQ(Search(For("one")).files.at(path).matches[0].column, 1);
}

TEST_F(FileBytes, OfAMarkAreInALongReplacement)
{
    FileSearchRequest request = For("one");
    request.regExp = true;
    request.replaces = true;
    request.replacement = QChar(0xFEFF) + QString(600, u'x');
    EXPECT_EQ(MatchesIn("one", request)[0].replacement, request.replacement);
}

TEST_F(FileBytes, OfALargeFileAreReadAgainForTheFirstMatch)
{
    QByteArray text = QByteArray("\xC3\xA9 line\r\n").repeated(300000);
    text += "here\r\n";
    const QString path = Write("a.sql", text);
    const Collector found = Search(For("here"));
    ASSERT_EQ(found.totals.matches, 1);
    EXPECT_EQ(found.files.at(path).matches[0].line, 300000);
    EXPECT_EQ(found.totals.bytes, text.size());
    EXPECT_EQ(Search(For("nowhere")).totals.bytes, text.size());
}

TEST_F(FileBytes, HaveAMatchOverTheSeamOfWhatIsReadAtATime)
{
    for (const int at : {1024 * 1024, 1024 * 1024 + 256 * 1024}) {
        for (int before = 0; before <= 6; ++before) {
            QByteArray text(2 * 1024 * 1024, ' ');
            text.replace(at + 40 - before, 6, "needle");
            text.replace(at - before, 6, "needle");
            Write("a.sql", text);
            EXPECT_EQ(Search(For("needle")).totals.matches, 2) << at << " less " << before;
        }
    }
}

TEST_F(FileBytes, OfALongLineAreOneMatchUpToTheLastOneThatFits)
{
    QByteArray text(6 * 1024 * 1024, ' ');
    for (const int at : {100, 3 * 1024 * 1024, 6 * 1024 * 1024 - 2})
        text.replace(at, 2, "ab");
    const QString path = Write("a.sql", "ab\n" + text + "\nab");
    FileSearchRequest request = For("ab.*ab");
    request.regExp = true;
    const Collector found = Search(request);
    ASSERT_EQ(found.totals.matches, 1);
    EXPECT_EQ(found.files.at(path).matches[0].column, 100);
    EXPECT_EQ(found.files.at(path).matches[0].length, text.size() - 100);
}

// More of each than a byte can count, wherever the counting begins in them.
TEST_F(FileBytes, OfManyLinesAndWideCharactersAreAllCounted)
{
    for (int before = 0; before < 16; ++before) {
        const QByteArray lines(10000, '\n');
        const QByteArray wide = QByteArray("\xF0\x9F\x98\x80").repeated(10000);
        const QString path =
            Write("a.sql", "\xEF\xBB\xBF" + QByteArray(before, 'x') + lines + wide + "here");
        const Collector found = Search(For("here"));
        ASSERT_EQ(found.totals.matches, 1);
        EXPECT_EQ(found.files.at(path).matches[0].line, 10000);
        EXPECT_EQ(found.files.at(path).matches[0].column, 20000);
    }
}

TEST_F(FileBytes, OfTheCodePageAreTextOverManyPieces)
{
    QByteArray text = QByteArray("W\xF6rter, W\xF6rter\n").repeated(200000);
    const QString path = Write("a.sql", text);
    const Collector found = Search(For(QStringLiteral("w\u00f6rter")));
    EXPECT_EQ(found.totals.matches, 400000);
    EXPECT_EQ(found.files.at(path).matches.back().line, 199999);
    EXPECT_EQ(found.files.at(path).matches.back().column, 8);
}

TEST_F(FileBytes, AreSearchedByExpressionsOnSeveralThreadsAtOnce)
{
    const QByteArray text = QByteArray("aaab xy_id\naab ab_id(b)\n").repeated(500);
    for (int i = 0; i < 200; ++i)
        Write(QString::number(i) + ".sql", text);
    FileSearchRequest request = For("\\(a+\\)+b\\( [a-z]+\\)+_i\\(d\\)");
    request.regExp = true;
    request.threads = 8;
    const Collector found = Search(request);
    EXPECT_EQ(found.totals.matches, 200 * 1000);
    EXPECT_THAT(found.notes, testing::IsEmpty());
}
