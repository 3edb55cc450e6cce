// SPDX-License-Identifier: GPL-3.0-or-later
// Random scripts with includes, beside the plain reference.
#include "tests/RandomSeed.h"
#include "tests/preprocess/PreprocessFixture.h"
#include "tests/reference/PlainPreprocessor.h"
#include "tests/reference/PlainStyles.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <random>
#include <span>

namespace {

constexpr const char* kPieces[] = {
    "#define ", "#define &&A ", "#define &&AB ", "\n#define &&B ", "\n#define &&LONGNAME ", "&&A",
    "&&AB", "&&ABC", "&&B", "&&LONGNAME", "&&LONGNAME", "&&", "&", "1", "12", "x", " ", "  ", "\n",
    "\n", "\n", "--", "/*", "*/", "'", "\"", "#include ", "#include a", "\n#include b\n",
    "\n#include \"c\" \n", "\n#include d\n", "\n#include none\n", "#", "\t", "value",
    "\n#define &&B &&A\n", "\n#define &&AB x&&B\n", "\n#define &&A &&LONGNAME&&B\n",
    // Uses beside what a lexer may read together with their values.
    "x &&A, ", "x (&&AB) ", "'x &&B ", "-x &&LONGNAME ", "x.&&A.y ", "x '&&A' ", "x=\"&&B\",",
    "x '&&AB', ", "'&&A'", "/**/&&A ", "&&A.q",
    // What tells strings, comments and a client program's lines.
    "q'", "q'[", "N'", "e'\\'", "$t$", "$$", " as $$", "\n", "\nrem ", "\nprompt ", "\nGO\n", ";",
    "\ndelimiter ", "\nset term ", "\n--#set terminator ", "\nbegin ", " end;\n", "]", "[", "`",
    "\n#define &&A q\n", "\n#define &&B rem\n", "\n#define &&A begin\n", "\n#define &&AB x, /* y\n",
    "\n#define &&B it's\n",
    // What no pass has to look at again.
    "\nselect column, other, one more from table\nwhere column = 1 and other = 2 or column = 3\n",
    "\nselect column, other, one more from table\nwhere column = 1 and other = 2 or column = 3\n"};

// With what a lexer may take for something else than a name.
constexpr const char* kValues[] = {"value", "1",    "12",   "q",   "n",    "rem",
                                   "begin", "end",  "case", "x y", "it's", "a\"b",
                                   "/* c",  "c */", "\\",   "$t$", "]",    "x, y"};

// Without the client programs' words, which the reference that reads the text by itself is not
// told.
// clang-format off
constexpr const char* kPlainPieces[] = {
    "#define ", "#define &&A ", "\n#define &&AB ", "\n#define &&B ", "\n  #define &&LONGNAME ",
    "&&A", "&&AB", "&&B", "&&LONGNAME", "&&", "&", "1", "12", "x", " ", "  ", "\n", "\n", "\n",
    "-- ", "--", "//", "/*", "*/", "'", "\"", "`", "[", "]", "# ", "#", "#include ", "#include a",
    "\n#include b\n", "\n\t#INCLUDE \"c\" \n", "\n#include d\n", "\n#include none\n",
    "\n/* */ #include a\n", "\nx #include a\n", "\n#includes\n", "\n#defined &&A 1\n",
    "\n#define &&B &&A\n", "\n#define &&AB x&&B\n", "x &&A, ", "x (&&AB) ", "'x &&B ",
    "x '&&A' ", "x=\"&&B\",", "/**/&&A ", "q'", "q'[", "]'", "N'", "nq'(", "e'\\'", "$t$", "$$", " as $$", "do\n$t$",
    "\n#define &&A q\n", "\n#define &&AB x, /* y\n", "\n#define &&B it's\n"};
// clang-format on

constexpr const char* kPlainValues[] = {"value", "1",    "q",    "n",    "x y",
                                        "it's",  "z\"b", "/* x", "x */", "$t$"};

constexpr int kRounds = 60;

class RandomScripts : public PreprocessTest
{
protected:
    std::string Seed() // and how to come by it again
    {
        const unsigned seed = RandomSeed();
        m_random.seed(seed);
        return "repeat with ZN_TEST_SEED=" + std::to_string(seed);
    }

    std::string Piece() { return m_pieces[m_random() % m_pieces.size()]; }

    std::string Script(unsigned most)
    {
        std::string script;
        for (unsigned pieces = m_random() % most; pieces > 0; --pieces)
            script += Piece();
        return script;
    }

    // In every other script, since most that are put together at random end their pass soon.
    std::string Definitions()
    {
        std::string lines;
        for (const char* name : {"A", "B", "AB", "LONGNAME"}) {
            if (m_random() % 2)
                lines += std::string("#define &&") + name + ' ' +
                         m_values[m_random() % m_values.size()] + '\n';
        }
        return m_random() % 2 ? lines : std::string();
    }

    // Of a text that was just put in, so that nothing is left of another.
    std::vector<int> Styles(const std::u16string& text)
    {
        m_styler.SetText(text.c_str(), 1);
        m_styler.Colorize(0, -1, 1);
        std::vector<int> styles(text.size() + 1);
        for (std::size_t at = 0; at < text.size(); ++at)
            styles[at] = m_styler.GetStyleAt(static_cast<long>(at), 1);
        return styles;
    }

    // The numbers that stand for comments and strings in every language of SQL.
    std::vector<int> PlainStyles(const std::string& language, const std::u16string& text) const
    {
        const int string = control.GetLexer(1) == 9 ? 7 : 4;
        std::vector<int> styles;
        for (const reference::Stretch stretch : reference::StretchesOf(language, text))
            styles.push_back(stretch == reference::Stretch::Comment  ? 2
                             : stretch == reference::Stretch::String ? string
                                                                     : 0);
        styles.push_back(0);
        return styles;
    }

    reference::PlainPreprocessor Reference(const reference::PlainPreprocessor::Styles& styles)
    {
        reference::PlainPreprocessor::Files files;
        for (const char* name : {"a", "b", "c", "d"}) {
            // Neither end of a file may join the line ends around it.
            const std::string text = "f" + Script(12);
            Write(name, QByteArray::fromStdString(text));
            files[QString(name).toStdU16String()] = std::u16string(text.begin(), text.end());
        }
        std::u16string wordCharacters;
        for (char16_t unit = 1; unit < 0x80; ++unit) {
            if (control.IsWordChar(unit))
                wordCharacters += unit;
        }
        return {control.GetLexer(1), control.GetSingleLineComment(0).toStdU16String(),
                wordCharacters, styles, files};
    }

    // Most of it in one line, as long as some kilobytes.
    std::string LongLine()
    {
        std::string line;
        while (line.size() < 6000) {
            const std::string piece = Piece();
            const bool endsLine = piece.find('\n') != std::string::npos;
            if (!endsLine || m_random() % 100 == 0)
                line += piece;
            if (m_random() % 40 == 0)
                line += std::string(m_random() % 1500, " x,*'"[m_random() % 5]);
        }
        return line;
    }

    void Compare(reference::PlainPreprocessor& reference, const QString& script)
    {
        reference.Run(script.toStdU16String());
        const QString expanded = QString::fromStdString(Expand(script));
        ASSERT_EQ(expanded.toStdString(), QString::fromStdU16String(reference.text).toStdString());
        EXPECT_EQ(control.GetIncludeOrDefineDirectivesFound(), reference.found);
        std::vector<int> lines;
        for (const auto& [line, name] : reference.failedNames)
            lines.push_back(line);
        std::vector<int> told;
        for (const auto& [line, message] : Errors())
            told.push_back(line);
        EXPECT_EQ(told, lines);
        CompareLines(reference);
        ExpectOriginal(script);
    }

    // Unit for unit, and the modified flag is what it is just then.
    void ExpectOriginal(const QString& script)
    {
        const bool modified = m_random() % 2;
        control.SetModified(modified);
        control.SetOriginalScript();
        EXPECT_TRUE(control.GetText() == script);
        EXPECT_EQ(control.GetModified(), modified);
    }

    // Where the first unit of each line, if it is no marker's, came from.
    void CompareLines(const reference::PlainPreprocessor& reference)
    {
        for (int line = 0; line < control.GetLineCount(1); ++line) {
            auto at = static_cast<std::size_t>(control.PositionFromLine(line, 1));
            const auto end = static_cast<std::size_t>(control.GetLineEndPosition(line, 1));
            while (at < end && reference.origins[at].file < 0)
                ++at;
            if (at >= end)
                continue;
            const reference::Origin origin = reference.origins[at];
            const QString name =
                QString::fromStdU16String(reference.fileOf[static_cast<std::size_t>(origin.file)]);
            const SourceLine expected{name.isEmpty() ? name : folder.filePath(name), origin.line};
            ASSERT_EQ(Map().Locate(line), expected) << "line " << line;
        }
    }

    void Run(const QString& language, int lexer, int rounds)
    {
        Bind(language);
        control.SetEOLMode(3, 1); // LF
        ASSERT_EQ(control.GetLexer(1), lexer);
        m_styler.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 400, 300}, &m_parent));
        m_styler.SetLexer(lexer, 1);
        std::array<char16_t, 32> dialect{};
        ASSERT_LT(control.GetProperty(u"sql.dialect", nullptr, 1), int(dialect.size()));
        control.GetProperty(u"sql.dialect", dialect.data(), 1);
        m_styler.SetProperty(u"sql.dialect", dialect.data(), 1);
        CompareRounds([this](const std::u16string& text) { return Styles(text); }, rounds);
    }

    void CompareRounds(const reference::PlainPreprocessor::Styles& styles, int rounds)
    {
        SCOPED_TRACE(Seed());
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            reference::PlainPreprocessor reference = Reference(styles);
            const std::string body = round % 6 == 5 ? LongLine() : Script(80);
            const QString script = QString::fromStdString("\n" + Definitions() + body);
            SCOPED_TRACE(script.toStdString());
            Compare(reference, script);
        }
    }

    std::mt19937 m_random;
    std::span<const char* const> m_pieces = kPieces;
    std::span<const char* const> m_values = kValues;
    QWidget m_parent;
    CZNCoreEditorControl m_styler;
};

// Long enough for a file of their own, in characters of every length.
TEST_F(RandomScripts, ComeBackFromTheirBackup)
{
    constexpr int kMostInMemory = 1024 * 1024;
    SCOPED_TRACE(Seed());
    Bind("Transact-SQL");
    Reference({}); // for its files
    int found = 0;
    for (int round = 0; round < 4; ++round) {
        QString script = QString::fromStdString("\n" + Definitions() + Script(80));
        const QString filler = QString::fromUtf16(u" x \u00e4 \u4e2d \xD83D\xDE00,\r\n");
        script += filler.repeated(kMostInMemory / filler.size() + 1);
        script += QString::fromStdString(Script(80));
        SetScript(script);
        Expand();
        found += control.GetIncludeOrDefineDirectivesFound();
        ExpectOriginal(script);
    }
    EXPECT_GT(found, 0);
}

class RandomScriptsOf : public RandomScripts,
                        public testing::WithParamInterface<std::pair<const char*, int>>
{};

TEST_P(RandomScriptsOf, ADialectExpandAsTheReferenceDoesThatReadsTheTextItself)
{
    const std::string language = GetParam().first;
    // Where the client has a say in what it is.
    const std::string clients = language == "PostgreSQL" ? "\\" : language == "MySQL" ? "--" : "?";
    std::vector<const char*> pieces;
    std::copy_if(
        std::begin(kPlainPieces), std::end(kPlainPieces), std::back_inserter(pieces),
        [&](const std::string& piece) { return piece.find(clients) == std::string::npos; });
    m_pieces = pieces;
    m_values = kPlainValues;
    Bind(GetParam().first);
    control.SetEOLMode(3, 1); // LF
    CompareRounds([&](const std::u16string& text) { return PlainStyles(language, text); }, kRounds);
}

// Client programs' words included: what is styled step by step is styled as the whole text is.
TEST_P(RandomScriptsOf, ADialectExpandAsIfEachStepWereStyledAfresh)
{
    Run(GetParam().first, GetParam().second, kRounds / 2);
}

INSTANTIATE_TEST_SUITE_P(
    Sql, RandomScriptsOf,
    testing::Values(std::pair("SQL", 9), std::pair("Transact-SQL", 3), std::pair("PL/SQL", 5),
                    std::pair("MySQL", 14), std::pair("PostgreSQL", 9), std::pair("SQLite", 9),
                    std::pair("DB2", 4), std::pair("Sybase ASE", 2), std::pair("Sybase IQ", 18),
                    std::pair("InterBase/Firebird", 15), std::pair("Azure SQL", 17)));

TEST_F(RandomScripts, ExpandInALanguageWithoutStylesAsTheReferenceDoes)
{
    Run("C++", 6, kRounds);
}

} // namespace
