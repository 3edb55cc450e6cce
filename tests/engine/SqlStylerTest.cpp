// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of SQL: what each lexer number takes for what, and that an edit changes what it must
// and no more.
#include "engine/colours/SqlVocabulary.h"
#include "engine/window/EngineWindow.h"
#include "tests/RandomSeed.h"
#include "tests/engine/SqlUnderTest.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <random>
#include <set>

namespace msg = engine::message;

namespace {

constexpr int kSqlLexers[] = {2, 3, 4, 5, 9, 10, 14, 15, 16, 17, 18};

std::string Letters(int lexer, const std::u16string& text)
{
    const SqlUnderTest sql(lexer, text);
    sql.Style();
    return sql.Letters();
}

} // namespace

// ----- The table of comment and string styles

struct StyleRow
{
    std::vector<int> lexers;
    std::set<int> comments;
    std::set<int> strings;
};

const StyleRow kStyleTable[] = {
    {{9}, {1, 2, 3}, {6, 7}},
    {{2, 3, 4, 5, 10, 14, 15, 16, 17, 18}, {1, 2}, {4, 8}},
};

TEST(SqlStyles, CommentsAndStringsHaveTheStylesOfTheTable)
{
    const std::pair<const char16_t*, bool> kSamples[] = {
        {u"/* x */", true},  {u"-- x", true},    {u"/** x */", true},
        {u"'x'", false},     {u"N'x'", false},   {u"\"x\"", false},
        {u"'it''s'", false}, {u"'a\nb'", false}, {u"/* a\nb */", true},
    };
    std::size_t numbers = 0;
    for (const StyleRow& row : kStyleTable) {
        for (const int lexer : row.lexers) {
            ++numbers;
            for (const auto& [sample, isComment] : kSamples) {
                const SqlUnderTest sql(lexer, sample);
                sql.Style();
                for (const int style : sql.Styles())
                    EXPECT_EQ((isComment ? row.comments : row.strings).count(style), 1u)
                        << lexer << " " << QString::fromUtf16(sample).toStdString() << " " << style;
            }
        }
    }
    EXPECT_EQ(numbers, std::size(kSqlLexers));
}

TEST(SqlStyles, CodeHasNoneOfTheCommentAndStringStyles)
{
    for (const StyleRow& row : kStyleTable) {
        for (const int lexer : row.lexers) {
            const SqlUnderTest sql(lexer, u"select a.b, 12 + 1.5e3 from t where (x <> 4) ;\n");
            sql.SetWords(0, u"select from where");
            sql.Style();
            for (const int style : sql.Styles()) {
                EXPECT_EQ(row.comments.count(style), 0u) << lexer;
                EXPECT_EQ(row.strings.count(style), 0u) << lexer;
            }
        }
    }
}

TEST(SqlStyles, EveryNumberIsTheHostsOwnToTheHost)
{
    for (const int lexer : kSqlLexers) {
        const SqlUnderTest sql(lexer);
        EXPECT_EQ(sql.Send(msg::GetLexer), lexer);
    }
}

// ----- What the dialects take for what

struct DialectRow
{
    int lexer;
    const char16_t* text;
    const char* letters;
};

TEST(SqlStyles, EachDialectHasItsOwnForms)
{
    // clang-format off
    const DialectRow kRows[] = {
        // MySQL: # comments, backticks, backslashes, -- only before a blank
        {14, u"a # c\nb",          "i ccc\ni"},
        {14, u"`a b` 'it\\'s' x",  "QQQQQ sssssss i"},
        {14, u"\"a\\\"b\" x",      "ssssss i"},
        {14, u"1--1 -- c",         "noon cccc"},
        // and a directive of the pre-processor's is no comment
        {14, u"#include a.sql",    "kkkkkkkk      "},
        {14, u" #define &&A it's\n#x", " kkkkkkk         \ncc"},
        {14, u"x #include a\n#Define &&A 1\n#includes", "i cccccccccc\nccccccccccccc\nccccccccc"},
        // Oracle: quoting strings
        {5,  u"q'[it's]' x",       "sssssssss i"},
        {5,  u"nq'{a'b}' x",       "sssssssss i"},
        {5,  u"/* /* */ x",        "CCCCCCCC i"},
        // Transact-SQL and its kin: brackets, nested comments
        {3,  u"[a b] \"c\" N'd'",  "QQQQQ qqq ssss"},
        {3,  u"/* /* */ */ x",     "CCCCCCCCCCC i"},
        {16, u"@a #t @@b",         "vv ii vvv"},
        {17, u"[]]] x",            "QQQQ i"},
        {2,  u"\"c\" [d]",         "sss QQQ"},
        {18, u"// c",              "cccc"},
        // DB2
        {4,  u"/* /* */ */ :v",    "CCCCCCCCCCC vv"},
        {10, u"\"a\" 'b'",         "qqq sss"},
        // InterBase
        {15, u"q'(it's)' :v",      "sssssssss vv"},
        // Generic: whatever means nothing else
        {9,  u"`a` $$it's$$ E'\\'' q'[x']'", "QQQ ssssssss sssss sssssss"},
        {9,  u"/** d */ /**/ /* c */", "DDDDDDDD CCCC CCCCCCC"},
    };
    // clang-format on
    for (const DialectRow& row : kRows)
        EXPECT_EQ(Letters(row.lexer, row.text), row.letters)
            << row.lexer << " " << QString::fromUtf16(row.text).toStdString();
}

TEST(SqlStyles, ThePropertyChoosesTheDialectOfTheSharedNumber)
{
    const SqlUnderTest sql(9, u"/* /* */ x */ [a] $t$ ; $t$");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "CCCCCCCC i oo oio sssssssss");
    sql.SetProperty(u"sql.dialect", u"PostgreSQL");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "CCCCCCCCCCCCC oio sssssssss");
    sql.SetProperty(u"sql.dialect", u"sqlite");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "CCCCCCCC i oo QQQ iii o iii");
    sql.SetProperty(u"sql.dialect", u"unheard of");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "CCCCCCCC i oo oio sssssssss");
}

TEST(SqlStyles, BodiesOfRoutinesAreCode)
{
    const std::pair<const char16_t*, const char*> kSamples[] = {
        {u"as $$a '$' /**/ 12$$ 1", "ii ssi sss CCCC nnss n"},
        {u"DO\n-- x\n$a$ -- $$ '\n y $a$ 1", "ii\ncccc\nsss ccccccc\n i sss n"},
        {u"as $$ x $t$ y $$ '$$'", "ii ss i ssssssss ssss"}, // the first tag of the body ends it
        {u"as $a$ x /* $a$ 1 */", "ii sss i CCCsss n oo"},
        {u"as t $$x$$", "ii i sssss"},
        {u"is $$x$$", "ii sssss"},
        {u"as $$ x as $$$$ y $$ 1", "ii ss i ii sssssssss n"}, // nor does AS of the body open one
    };
    for (const auto& [text, letters] : kSamples)
        EXPECT_EQ(Letters(9, text), letters) << QString::fromUtf16(text).toStdString();
}

TEST(SqlStyles, ThePropertyHasNoEffectWithOtherNumbers)
{
    const SqlUnderTest sql(9, u"[a]");
    sql.SetProperty(u"sql.dialect", u"postgresql");
    sql.Send(msg::SetLexer, 3);
    sql.Style();
    EXPECT_EQ(sql.StyleAt(0), 16);
}

TEST(SqlStyles, LinesOfTheClientEndWithTheLine)
{
    const SqlUnderTest oracle(5, u"prompt it's\nrem don't\nselect 'a';\nexec p('b\nx");
    oracle.SetWords(0, u"prompt select exec rem");
    oracle.Style();
    EXPECT_EQ(oracle.Letters(), "kkkkkk     \nccccccccc\nkkkkkk ssso\nkkkk ioss\ni");
    const SqlUnderTest postgres(9, u"\\d it's\nx");
    postgres.SetProperty(u"sql.dialect", u"postgresql");
    postgres.Style();
    EXPECT_EQ(postgres.Letters(), "$$$$$$$\ni");
}

// ----- Words

TEST(SqlStyles, AClientsLineLeavesTheNextOneAlone)
{
    const std::pair<int, const char16_t*> kLines[] = {
        {5, u"col a heading 'x"}, {5, u"describe it's"},  {5, u"ho echo it's"},
        {5, u"! it's"},           {5, u"set x -\n it's"}, {5, u"pro it's -\n it's"},
        {5, u"@it's.sql"},        {14, u"source it's"},   {14, u"\\! it's"},
        {14, u"--it's"},          {14, u"tee it's"},      {14, u"delimiter ;"},
        {3, u":r it's"},          {3, u"!!echo it's"},    {3, u"quit"},
        {2, u":r it's"},          {4, u"echo it's"},      {4, u"! it's"},
        {4, u"? it's"},
    };
    for (const auto& [lexer, line] : kLines) {
        for (const auto* next : {u"'x' y", u"/* c */ 1"}) {
            const std::string letters = Letters(lexer, line + std::u16string(u"\n") + next);
            const std::string behind = letters.substr(letters.rfind('\n') + 1);
            EXPECT_EQ(behind, Letters(lexer, next)) << lexer << ": " << letters;
        }
    }
}

TEST(SqlStyles, DataAndForeignSourceAreStrings)
{
    EXPECT_EQ(Letters(5, u"create java source a as\n// it's\n/\n1"),
              "iiiiii iiii iiiiiisssss\nsssssss\no\nn");
    EXPECT_EQ(Letters(5, u"U&'x'"), "iosss");
    EXPECT_EQ(Letters(9, u"U&\"&x\" \"&&x\""), "qqqqqq qqqqq");
    EXPECT_EQ(Letters(4, u"U&'x' x'0' b"), "sssss ssss i");
    EXPECT_EQ(Letters(14, u"b'1' x'0' u&'x'"), "ssss ssss iosss");
}

TEST(SqlStyles, EachKeywordSetHasItsStyle)
{
    // clang-format off
    const char* kDialectLetters = "ktT fpo";
    const char* kGenericLetters = "ktd$fTgK";
    // clang-format on
    const char16_t* kWords[] = {u"wa", u"wb", u"wc", u"wd", u"we", u"wf", u"wg", u"wh"};
    for (const int lexer : kSqlLexers) {
        const SqlUnderTest sql(lexer, u"wa;wb;wc;wd;we;wf;wg;wh;WA;Wb");
        for (int set = 0; set < 8; ++set)
            sql.SetWords(set, kWords[set]);
        sql.Style();
        const std::string letters = sql.Letters();
        const char* expected = lexer == 9 ? kGenericLetters : kDialectLetters;
        for (std::size_t set = 0; set < (lexer == 9 ? 8u : 7u); ++set) {
            const char letter = expected[set] == ' ' ? 'i' : expected[set];
            EXPECT_EQ(letters.substr(3 * set, 2), std::string(2, letter)) << lexer << " " << set;
        }
        EXPECT_EQ(letters.substr(24, 5), std::string("kkott")) << lexer;
    }
}

TEST(SqlStyles, AWordOfSeveralSetsIsWhatItsPlaceMakesLikely)
{
    const SqlUnderTest sql(3, u"left left(a) a left @v left date b date ( a.for a.fn");
    sql.SetWords(0, u"left date for");
    sql.SetWords(1, u"left date");
    sql.SetWords(4, u"left fn");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "kkkk ffffoio i_tttt vv_tttt kkkk i_tttt o ioiii ioff");
}

TEST(SqlStyles, BlanksBeforeADataTypeAreOfItsStyleAndCommentsAreNot)
{
    const SqlUnderTest sql(3);
    sql.SetWords(1, u"int");
    for (const std::size_t blanks : {1, 511, 512, 513, 2000, 5000}) {
        sql.SetText(u"a" + std::u16string(blanks, u' ') + u"int " + std::u16string(9000, u'x'));
        sql.Style();
        EXPECT_EQ(sql.Letters().substr(0, blanks + 4), "i" + std::string(blanks, '_') + "ttt");
    }
    sql.SetText(u"a /* b */int, c /* d */ int");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "i CCCCCCCttto i CCCCCCC_ttt");
}

TEST(SqlStyles, AWordMayHavePoints)
{
    const SqlUnderTest sql(3, u"sys.objects SYS.Objects.x sys.other x.sys.objects sys.");
    sql.SetWords(2, u"sys.objects");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "TTTTTTTTTTT iiioiiiiiiioi iiioiiiii ioiiioiiiiiii iiio");
}

TEST(SqlStyles, GlobalVariablesAreWordsBehindTwoAts)
{
    const SqlUnderTest sql(14, u"@@error @@other error @@global.error t.error");
    sql.SetWords(3, u"error");
    sql.Style();
    EXPECT_EQ(sql.Letters(), "ggggggg vvvvvvv iiiii vvvvvvvvoggggg ioiiiii");
}

TEST(SqlStyles, WordsOfTheLanguageBeforeAreForgotten)
{
    const SqlUnderTest sql(3, u"abc");
    sql.SetWords(0, u"abc");
    sql.Send(msg::SetLexer, 14);
    sql.Style();
    EXPECT_EQ(sql.Letters(), "iii");
}

TEST(SqlStyles, NewWordsColourTheTextThatIsShown)
{
    const SqlUnderTest sql(3, u"abc def");
    sql.Style();
    sql.SetWords(0, u"def");
    sql.StyleRest();
    EXPECT_EQ(sql.Letters(), "iii kkk");
}

TEST(SqlVocabulary, FindsEveryWordAmongThousands)
{
    engine::SqlVocabulary vocabulary;
    std::string words;
    for (int i = 0; i < 5000; ++i)
        words += "w" + std::to_string(i * 7) + (i % 2 ? " " : "\n");
    EXPECT_TRUE(vocabulary.SetWords(5, words));
    EXPECT_FALSE(vocabulary.SetWords(5, words));
    EXPECT_FALSE(vocabulary.SetWords(8, words));
    vocabulary.Prepare();
    for (int i = 0; i < 35000; ++i)
        EXPECT_EQ(vocabulary.Find("W" + std::to_string(i)).sets, i % 7 == 0 ? 1U << 5 : 0U) << i;
    EXPECT_EQ(vocabulary.Find(std::string(200, 'w')).sets, 0);
    EXPECT_EQ(vocabulary.Find("BEGIN").shape, engine::analysis::SqlWord::Begin);
    vocabulary.Clear();
    vocabulary.Prepare();
    EXPECT_EQ(vocabulary.Find("w7").sets, 0);
}

// ----- Characters of several bytes

TEST(SqlStyles, NoCharacterIsOfTwoStyles)
{
    const std::u16string pieces[] = {u"\u00e9",   u"\u4e2d", u"\U0001F600", u"'",  u"q'\u00e9",
                                     u"$\u00e9$", u"@",      u"#",          u"--", u"\\"};
    std::mt19937 random(RandomSeed());
    for (int round = 0; round < 200; ++round) {
        std::u16string text;
        for (int i = 0; i < 20; ++i)
            text += pieces[random() % std::size(pieces)];
        for (const int lexer : {9, 14, 5}) {
            const SqlUnderTest sql(lexer, text);
            sql.Style();
            auto& window = *static_cast<engine::EngineWindow*>(sql.Window());
            const QByteArray bytes = QString::fromStdU16String(text).toUtf8();
            for (qsizetype i = 1; i < bytes.size(); ++i) {
                const bool goesOn = (static_cast<unsigned char>(bytes[i]) & 0xC0U) == 0x80;
                const auto at = [&window](qsizetype byte) {
                    return window.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT,
                                                static_cast<unsigned long>(byte));
                };
                if (!goesOn)
                    continue;
                EXPECT_EQ(at(i), at(i - 1)) << lexer << " " << bytes.toStdString();
            }
        }
    }
}

// ----- After an edit

namespace {

constexpr const char16_t* kPieces[] = {
    u"'",
    u"\"",
    u"`",
    u"[",
    u"]",
    u"/*",
    u"*/",
    u"--",
    u"\n",
    u"\r\n",
    u"\r",
    u"$$",
    u"$t$",
    u" as $$",
    u" do $t$ ",
    u" as $$ declare x int; begin\n",
    u"; for r in\n",
    u" end; $$\n",
    u"q'[",
    u"]'",
    u"E'",
    u"\\",
    u";\n",
    u"(",
    u")",
    u"\nGO\n",
    u"\nGO 5\n",
    u"\n/\n",
    u" go ",
    u"\n/* x */ GO\n",
    u"begin\n",
    u"begin tran\n",
    u"end\n",
    u"end;\n",
    u"end if;\n",
    u"end loop;\n",
    u"case when x then ",
    u"end case\n",
    u"create procedure p as\n",
    u"create or replace function f return int is\n",
    u"declare\n",
    u"if x then\n",
    u"loop\n",
    u"is\n",
    u"use db1\n",
    u"DELIMITER $$\n",
    u"\ndelimiter ;\n",
    u"SET TERM ^ ;",
    u"^",
    u"--#SET TERMINATOR @\n",
    u"@",
    u"select 1",
    u"\nselect a from b\n",
    u"\nprompt it's\n",
    u"x",
    u"1",
    u" ",
    u"\n\n",
    u"\u00e9",
    u"\U0001F600",
    u"\n\n\n",
    u"/**",
    u"\nrepeat\n",
    u"until x end repeat;\n",
};

// Scripts of some runs have a separator now and then, so that the first one comes and goes.
bool IsSeparator(const std::u16string& piece)
{
    return piece.find(u"GO") != piece.npos || piece == u" go " || piece == u"\n/\n";
}

std::u16string Piece(std::mt19937& random, bool fewSeparators)
{
    if (random() % 100 == 0)
        return std::u16string(600, u"x*'/ ]-"[random() % 7]);
    std::u16string piece = kPieces[random() % std::size(kPieces)];
    return fewSeparators && IsSeparator(piece) && random() % 8 != 0 ? u";\n" : piece;
}

void EditOnce(const SqlUnderTest& sql, std::mt19937& random, bool fewSeparators)
{
    const long length = sql.Send(msg::GetLength);
    const long position = static_cast<long>(random() % static_cast<unsigned long>(length + 1));
    switch (random() % 8) {
    case 0:
    case 1:
    case 2:
        sql.Erase(position, std::min(length, position + static_cast<long>(random() % 12)));
        return;
    case 3:
        sql.Send(random() % 2 ? msg::Undo : msg::Redo);
        return;
    default:
        sql.Insert(position, Piece(random, fewSeparators));
        return;
    }
}

// Some of the text, or all of it, or nothing yet.
void StyleSome(const SqlUnderTest& sql, std::mt19937& random)
{
    const long lines = sql.Send(msg::GetLineCount);
    switch (random() % 4) {
    case 0:
        return;
    case 1: {
        // The engine styles up to the line behind the one that is asked for.
        const auto line = static_cast<WPARAM>(random() % static_cast<unsigned long>(lines));
        sql.Send(msg::GetLastChild, line, LPARAM{0xFFF});
        return;
    }
    default:
        sql.StyleRest();
        return;
    }
}

void EditAndCompare(int lexer, const char16_t* dialect, unsigned seed, int edits)
{
    std::mt19937 random(seed);
    const SqlUnderTest edited(lexer);
    const SqlUnderTest fresh(lexer);
    for (const SqlUnderTest* sql : {&edited, &fresh}) {
        sql->SetProperty(u"sql.dialect", dialect);
        sql->SetProperty(u"fold.compact", seed % 2 ? u"1" : u"0");
        sql->FoldAlso();
        sql->SetWords(0, u"select from begin end if create as prompt");
        sql->SetWords(1, u"int");
    }
    const bool fewSeparators = seed % 4 < 2;
    for (int i = 0; i < 40; ++i)
        edited.Insert(0, Piece(random, fewSeparators));
    for (int edit = 0; edit < edits; ++edit) {
        for (unsigned i = random() % 3; i-- > 0;)
            EditOnce(edited, random, fewSeparators);
        StyleSome(edited, random);
        if (edit % 4 != 0)
            continue;
        edited.StyleRest();
        fresh.SetText(edited.Text());
        fresh.Style();
        ASSERT_EQ(edited.Letters(), fresh.Letters())
            << "lexer " << lexer << " seed " << seed << " edit " << edit << "\n"
            << QString::fromStdU16String(edited.Text()).toStdString();
        ASSERT_EQ(edited.Levels(), fresh.Levels())
            << "lexer " << lexer << " seed " << seed << " edit " << edit;
        if (edited.Send(msg::GetLength) > 3000)
            edited.Erase(0, 2500);
    }
}

} // namespace

class StylesAfterEdits : public testing::TestWithParam<int>
{};

TEST_P(StylesAfterEdits, AreThoseOfAFreshText)
{
    const unsigned seed = RandomSeed();
    for (unsigned round = 0; round < 3; ++round)
        EditAndCompare(GetParam(), u"sql", seed + round, 400);
}

INSTANTIATE_TEST_SUITE_P(OfEveryLexer, StylesAfterEdits, testing::ValuesIn(kSqlLexers));

TEST(StylesAfterEdits, AreThoseOfAFreshTextInTheDialectsWithoutANumber)
{
    const unsigned seed = RandomSeed();
    EditAndCompare(9, u"postgresql", seed, 800);
    EditAndCompare(9, u"sqlite", seed, 800);
}

// ----- What is styled again

TEST(StylesAfterEdits, AreMadeToTheFirstLineThatStartsAsBefore)
{
    std::u16string text;
    for (int i = 0; i < 5000; ++i)
        text += u"select a from b;\n";
    SqlUnderTest sql(14, text);
    sql.Style();
    sql.Send(msg::SetModEventMask, modification::ChangeStyle);
    auto& window = *static_cast<engine::EngineWindow*>(sql.Window());
    using Sci = QsciScintillaBase;
    const auto end = [&window] { return window.SendScintilla(Sci::SCI_GETENDSTYLED); };
    sql.Insert(0, u"x");
    EXPECT_EQ(end(), 0);
    sql.Parent().heard.clear();
    sql.Send(msg::GetLastChild, 40, LPARAM{0xFFF});
    EXPECT_EQ(end(), sql.Send(msg::GetLength));
    EXPECT_EQ(sql.Parent().Of(notify::Modified).size(), 1u);
    // A comment that is never closed is styled as far as it is asked for, and so is its end.
    sql.Insert(0, u"/*");
    sql.Send(msg::GetLastChild, 40, LPARAM{0xFFF});
    EXPECT_LT(end(), 200 * 17);
    EXPECT_EQ(sql.StyleAt(40 * 17 + 6), 1);
    sql.Erase(0, 2);
    sql.Send(msg::GetLastChild, 40, LPARAM{0xFFF});
    sql.Send(msg::GetLastChild, 400, LPARAM{0xFFF});
    EXPECT_EQ(end(), sql.Send(msg::GetLength));
    EXPECT_EQ(sql.StyleAt(40 * 17 + 6), 6);
}

TEST(StylesAfterEdits, StylesOfTheHostsOwnGoWhenColoursAreAskedFor)
{
    const SqlUnderTest sql(14, u"a\nb\nc\nd\n");
    sql.Style();
    sql.Insert(0, u"x");
    sql.Send(msg::ClearDocumentStyle);
    sql.StyleRest();
    EXPECT_EQ(sql.Letters(), "  \n \n \n \n");
    sql.Insert(0, u"y");
    sql.StyleRest();
    EXPECT_EQ(sql.Letters(), "iii\ni\ni\ni\n");
    sql.Erase(0, 1);
    sql.Send(msg::StartStyling, 2, LPARAM{0xFF});
    sql.Send(msg::SetStyling, 3, LPARAM{4});
    EXPECT_EQ(sql.Letters()[3], 's');
    sql.Style();
    EXPECT_EQ(sql.Letters(), "ii\ni\ni\ni\n");
}

// ----- Two windows

TEST(SharedLanguage, BelongsToTheDocument)
{
    const SqlUnderTest first(14, u"abc # c\n");
    const SqlUnderTest second(3);
    second.Send(msg::SetDocPointer, 0, first.Send(msg::GetDocPointer));
    EXPECT_EQ(second.Send(msg::GetLexer), 14);
    second.SetWords(0, u"abc");
    second.Style();
    EXPECT_EQ(first.Letters(), "kkk ccc\n");
    second.Send(msg::SetLexer, 3);
    EXPECT_EQ(first.Send(msg::GetLexer), 3);
    first.StyleRest();
    EXPECT_EQ(first.StyleAt(0), 6);
    second.Send(msg::SetDocPointer, 0, LPARAM{0});
    EXPECT_EQ(second.Send(msg::GetLexer), 0);
}

TEST(SharedLanguage, IsFollowedThroughEditsInBothWindows)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    const SqlUnderTest first(14, u"select 1;\n");
    const SqlUnderTest second(14);
    const SqlUnderTest fresh(14);
    second.Send(msg::SetDocPointer, 0, first.Send(msg::GetDocPointer));
    for (const SqlUnderTest* sql : {&first, &fresh})
        sql->FoldAlso();
    for (int edit = 0; edit < 500; ++edit) {
        EditOnce(edit % 2 ? first : second, random, false);
        StyleSome(edit % 3 ? first : second, random);
        if (edit % 5 != 0)
            continue;
        second.StyleRest();
        fresh.SetText(first.Text());
        fresh.Style();
        ASSERT_EQ(first.Letters(), fresh.Letters()) << "seed " << seed << " edit " << edit;
        ASSERT_EQ(first.Levels(), fresh.Levels()) << "seed " << seed << " edit " << edit;
    }
}

// ----- Any size

TEST(SqlStyles, OneLongLineIsStyledInOneWalk)
{
    const SqlUnderTest sql(5, u"select " + std::u16string(300000, u'(') + u" q'[" +
                                  std::u16string(300000, u'\'') + u"]' x");
    sql.FoldAlso();
    sql.Style();
    EXPECT_EQ(sql.StyleAt(400000), 4);
    EXPECT_EQ(sql.StyleAt(sql.Send(msg::GetLength) - 1), 6);
}
