// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of long lines, which are made in parts: each part is coloured as it is in one walk
// over the whole line, and an edit is followed from near its place to near its place.
#include "engine/colours/SqlStyler.h"
#include "engine/window/EngineWindow.h"
#include "tests/RandomSeed.h"
#include "tests/engine/SqlUnderTest.h"

#include <QString>

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace msg = engine::message;
using Sci = QsciScintillaBase;

namespace {

struct Dialect
{
    int lexer;
    const char16_t* name; // of those that share a number
};

constexpr Dialect kDialects[] = {
    {2, u""},  {3, u""},       {4, u""},           {5, u""},      {9, u""},          {9, u"sql"},
    {9, u"x"}, {9, u"sqlite"}, {9, u"postgresql"}, {9, u"mysql"}, {9, u"interbase"}, {10, u""},
    {14, u""}, {15, u""},      {16, u""},          {17, u""},     {18, u""},
};

constexpr const char16_t* kWords[] = {u"select from begin end if create as prompt rem", u"int date",
                                      u"sys.objects", u"error", u"count"};

Sci& Stock(const SqlUnderTest& sql)
{
    return *static_cast<engine::EngineWindow*>(sql.Window());
}

void Prepare(const SqlUnderTest& sql, const char16_t* dialect)
{
    sql.SetProperty(u"sql.dialect", dialect);
    sql.FoldAlso();
    for (int set = 0; set < static_cast<int>(std::size(kWords)); ++set)
        sql.SetWords(set, kWords[set]);
}

std::string Bytes(const SqlUnderTest& sql)
{
    return QString::fromStdU16String(sql.Text()).toStdString();
}

// The alikes that stand for a style in a long line as that style.
std::string StylesOf(const SqlUnderTest& sql)
{
    constexpr long kAlike = 0x7F;
    std::string styles;
    const long length = Stock(sql).SendScintilla(Sci::SCI_GETLENGTH);
    for (long i = 0; i < length; ++i)
        styles += static_cast<char>(
            'A' + (Stock(sql).SendScintilla(Sci::SCI_GETSTYLEAT, static_cast<unsigned long>(i)) &
                   kAlike));
    return styles;
}

// Each line in one walk.
std::string PlainStyles(const Dialect& dialect, const std::string& text)
{
    namespace analysis = engine::analysis;
    const analysis::SqlDialect* rules =
        dialect.lexer == 9 ? analysis::DialectByName(QString::fromUtf16(dialect.name).toStdString())
                           : nullptr;
    if (!rules)
        rules = analysis::DialectOfLexer(dialect.lexer);
    engine::SqlVocabulary vocabulary;
    for (int set = 0; set < static_cast<int>(std::size(kWords)); ++set)
        vocabulary.SetWords(set, QString::fromUtf16(kWords[set]).toStdString());
    vocabulary.Prepare();
    engine::SqlStyler styler(dialect.lexer, {rules, analysis::SeparatorOf(*rules)}, vocabulary, {});
    std::vector<char> styles;
    styler.Start(std::string_view(text), 0, {}, styles);
    for (std::size_t at = 0; at < text.size();) {
        at = std::min(text.find_first_of("\r\n", at), text.size());
        at += text.compare(at, 2, "\r\n") == 0 ? 2 : at < text.size() ? 1 : 0;
        const auto next = static_cast<long>(at);
        EXPECT_TRUE(styler.Part(next, next));
    }
    std::string letters(styles.begin(), styles.end());
    for (char& letter : letters)
        letter = static_cast<char>(letter + 'A');
    return letters;
}

std::u16string Repeated(std::u16string_view piece, std::size_t times)
{
    std::u16string text;
    while (times-- > 0)
        text += piece;
    return text;
}

// ----- Random long lines

constexpr const char16_t* kPieces[] = {
    u"'",
    u"\"",
    u"`",
    u"[",
    u"]",
    u"/*",
    u"*/",
    u"/**",
    u"-- ",
    u"--",
    u"$$",
    u"$t$",
    u" as $$",
    u" do $t$ ",
    u"q'[",
    u"]'",
    u"E'",
    u"\\",
    u";",
    u"(",
    u")",
    u" GO ",
    u" / ",
    u"/*! ",
    u"//",
    u"#",
    u"begin ",
    u"end ",
    u"case when x then ",
    u"DELIMITER $$ ",
    u"delimiter 'x y' ",
    u"\\gset ",
    u"\\g ",
    u"\\; ",
    u"\\echo 'a ",
    u"\\! ",
    u" set x -",
    u"copy t from stdin;",
    u"create java source ",
    u"#include ",
    u"U&'",
    u"X'",
    u"SET TERM ^ ; ",
    u"SET TERM ;^ ",
    u"^",
    u"--#SET TERMINATOR @ ",
    u"@",
    u"@@",
    u".error",
    u" int",
    u" date ",
    u"sys.objects",
    u"count(",
    u"select 1 ",
    u"rem ",
    u"prompt ",
    u"x",
    u"1",
    u".5",
    u" ",
    u"\u00e9",
    u"\u4e2d",
    u"\U0001F600",
    u"a b, c.d ",
    u"= ",
    u"\\d ",
    u"then ",
    u"loop ",
};
constexpr const char16_t* kLineEnds[] = {u"\n", u"\r\n", u"\r"};
constexpr const char16_t* kFillers[] = {u"x",      u"*", u"'",   u"/",       u" ",   u"]", u"-",
                                        u"\u4e2d", u"1", u"a, ", u"f(a) + ", u"'' ", u"^", u"\\'"};

class LongLines
{
public:
    LongLines(const Dialect& dialect, unsigned seed)
        : m_dialect(dialect), m_random(seed), m_edited(dialect.lexer), m_fresh(dialect.lexer)
    {
        Prepare(m_edited, dialect.name);
        Prepare(m_fresh, dialect.name);
        std::u16string text;
        while (text.size() < 12000)
            text += Piece();
        m_edited.SetText(text);
    }

    void EditOften(int times)
    {
        for (int i = 0; i < times && !testing::Test::HasFatalFailure(); ++i) {
            for (unsigned edits = Pick(4); edits-- > 0;)
                Edit();
            StyleSome();
            if (i % 8 == 0)
                Compare();
            if (Length() > 40000)
                m_edited.Erase(Pick(2) ? 0 : 15000, 25000);
        }
    }

private:
    unsigned Pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }
    template <std::size_t Count>
    std::u16string OneOf(const char16_t* const (&texts)[Count])
    {
        return texts[Pick(Count)];
    }
    long Length() const { return static_cast<long>(m_edited.Send(msg::GetLength)); }

    std::u16string Piece()
    {
        if (Pick(60) == 0)
            return OneOf(kLineEnds);
        if (Pick(12) != 0)
            return OneOf(kPieces);
        return Repeated(OneOf(kFillers), Pick(4) ? 40 : 900 + Pick(1500));
    }

    // Mostly where the one before was, as a person types and a script is expanded.
    void Edit()
    {
        if (Pick(3) == 0)
            m_place = static_cast<long>(Pick(static_cast<unsigned>(Length()) + 1));
        m_place = std::min(m_place + static_cast<long>(Pick(80)), Length());
        if (Pick(10) == 0)
            m_edited.Send(Pick(2) ? msg::Undo : msg::Redo);
        else if (Pick(2))
            m_edited.Insert(m_place, Piece());
        else
            m_edited.Erase(m_place,
                           std::min(Length(), m_place + 1 + long(Pick(Pick(9) ? 20 : 3000))));
        m_place = std::min(m_place, Length());
    }

    void StyleSome()
    {
        const long from = m_edited.Send(msg::GetEndStyled);
        switch (Pick(4)) {
        case 0:
            return;
        case 1:
            m_edited.StyleRest();
            return;
        default:
            m_edited.Send(msg::Colorize, static_cast<WPARAM>(from),
                          std::min(Length(), from + long(Pick(Pick(2) ? 200 : 6000))));
        }
    }

    void Compare()
    {
        m_edited.StyleRest();
        m_fresh.SetText(m_edited.Text());
        m_fresh.Style();
        const std::string styles = StylesOf(m_edited);
        const std::string text = Bytes(m_edited);
        ASSERT_EQ(styles, StylesOf(m_fresh)) << text;
        ASSERT_EQ(styles, PlainStyles(m_dialect, text)) << text;
        ASSERT_EQ(m_edited.Levels(), m_fresh.Levels()) << m_edited.Folds();
    }

    Dialect m_dialect;
    std::mt19937 m_random;
    SqlUnderTest m_edited;
    SqlUnderTest m_fresh;
    long m_place = 0;
};

} // namespace

class StylesOfLongLines : public testing::TestWithParam<Dialect>
{};

TEST_P(StylesOfLongLines, AreThoseOfAFreshTextAfterEdits)
{
    const unsigned seed = RandomSeed();
    for (unsigned round = 0; round < 3; ++round) {
        SCOPED_TRACE(seed + round);
        LongLines(GetParam(), seed + round).EditOften(160);
    }
}

INSTANTIATE_TEST_SUITE_P(InEveryDialect, StylesOfLongLines, testing::ValuesIn(kDialects));

// ----- What stands close in front of an edit

namespace {

struct Row
{
    const char16_t* before; // a place of the line stands behind this
    std::u16string between;
    const char16_t* edit;
    bool isFirst = false; // on its line, behind a comment and in front of blanks
};

} // namespace

TEST_P(StylesOfLongLines, FollowWhatIsDecidedByTheTextBehind)
{
    const Row kRows[] = {
        {u"-", u"", u"- "},
        {u"/", u"", u"*"},
        {u"/", u"*", u"!"},
        {u"count", u"", u"("},
        {u"N", u"", u"'x'"},
        {u"q", u"'", u"[x' ]'"},
        {u"sys", u".ob", u"jects"},
        {u"sys", u".objects", u"x"},
        {u"1", u".", u"5"},
        {u"@@global", u".", u"error"},
        {u"a ", u"i", u"nt"},
        {u"a", Repeated(u" ", 1500), u"int"},
        {u"$", u"t", u"$"},
        {u"'a'", u"", u"'b"},
        {u"x", u"", u"y"},
        {u"go", Repeated(u" ", 900), u"x", true},
        {u"go", u" --", u"x", true},
        {u"delimiter", u" $", u"$ a$$", true},
        {u"set term", u" ^ ", u"; a^", true},
        {u"rem", u"", u" x", true},
    };
    const Dialect dialect = GetParam();
    SqlUnderTest sql(dialect.lexer);
    Prepare(sql, dialect.name);
    for (const Row& row : kRows) {
        const std::u16string before = row.before;
        for (std::size_t end = 2044; end <= 2050; ++end) {
            const std::size_t pad = end - before.size();
            const std::u16string front =
                row.isFirst ? u"/*" + Repeated(u"x", pad - 4) + u"*/" : Repeated(u",", pad);
            sql.SetText(front + before + row.between +
                        Repeated(row.isFirst ? u" " : u" , a", row.isFirst ? 3000 : 1000));
            sql.Style();
            sql.Insert(static_cast<long>(end + row.between.size()), row.edit);
            sql.StyleRest();
            ASSERT_EQ(StylesOf(sql), PlainStyles(dialect, Bytes(sql)))
                << QString::fromStdU16String(before + row.between + row.edit).toStdString() << end;
        }
    }
}

// ----- What is styled again

TEST(LongLines, AreStyledAgainToAPlaceThatIsAsBefore)
{
    const SqlUnderTest sql(14, u"select " + Repeated(u"a, ", 100000));
    const auto end = [&sql] { return static_cast<long>(sql.Send(msg::GetEndStyled)); };
    const auto styleTo = [&sql, end](long position) {
        sql.Send(msg::Colorize, static_cast<WPARAM>(end()), LPARAM{position});
    };
    sql.Style();
    sql.Insert(150000, u"x");
    EXPECT_EQ(end(), 150000);
    styleTo(150010);
    EXPECT_EQ(end(), sql.Send(msg::GetLength));
    // A string that is never closed is styled as far as it is asked for, and so is its end.
    sql.Insert(150000, u"'");
    styleTo(150010);
    EXPECT_LT(end(), 152000);
    EXPECT_EQ(sql.StyleAt(150010), 4);
    sql.Erase(150000, 150001);
    styleTo(153000);
    EXPECT_EQ(end(), sql.Send(msg::GetLength));
    EXPECT_EQ(sql.StyleAt(150000), 6);
}
