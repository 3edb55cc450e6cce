// SPDX-License-Identifier: GPL-3.0-or-later
// Definitions and variables over the engine's own styling.
#include "search/FindReplaceManager.h"
#include "tests/preprocess/PreprocessFixture.h"

namespace {

struct ScriptRow
{
    const char* what; // becomes the test's name
    const char* script;
    const char* expanded;
};

void PrintTo(const ScriptRow& row, std::ostream* out)
{
    *out << row.script;
}

// clang-format off
constexpr ScriptRow kScripts[] = {
    {"KeepTheFirstOfTwoDefinitions",
     "#define &&A 1\n#define &&A 2\n&&A",
     "--#define &&A 1\n--#define &&A 2\n1"},
    {"AreBlockedByAUseAbove",
     "select &&A\n#define &&A 1\nselect &&A",
     "select &&A\n--#define &&A 1\nselect &&A"},
    {"AreBlockedForEveryPrefixOfAUseAbove",
     "&&ABC\n#define &&AB 1\n#define &&ABCD 2\n&&AB &&ABCD",
     "&&ABC\n--#define &&AB 1\n--#define &&ABCD 2\n&&AB 2"},
    {"PassOverCommentsButNotStrings",
     "#define &&A 1\n-- &&A\n/* &&A */ '&&A' \"&&A\"",
     "--#define &&A 1\n-- &&A\n/* &&A */ '1' \"1\""},
    {"ReplaceTheLongestNameThatIsDefined",
     "#define &&AB x\n#define &&A y\n&&ABC &&A1 &&B",
     "--#define &&AB x\n--#define &&A y\nxC y1 &&B"},
    {"TakeAPrefixBeforeAReference",
     "#define &&A 3\n#define &&B 12&&A\n&&B",
     "--#define &&A 3\n--#define &&B 123\n123"},
    {"TakeAReferenceAlone",
     "#define &&A 3\n#define &&B &&A\n&&B",
     "--#define &&A 3\n--#define &&B 3\n3"},
    {"MissASecondReferenceThatASingleCharacterPullsNear",
     "#define &&A 1\n#define &&B 2\n#define &&C &&A&&B\n&&C",
     "--#define &&A 1\n--#define &&B 2\n#define &&C 1&&B\n&&C"},
    {"FindASecondReferenceBehindTwoCharacters",
     "#define &&A 12\n#define &&B 2\n#define &&C &&A&&B\n&&C",
     "--#define &&A 12\n--#define &&B 2\n--#define &&C 122\n122"},
    {"TakeTheTextBehindAReferenceForItsName",
     "#define &&A 1\n#define &&B &&A more\n&&B",
     "--#define &&A 1\n#define &&B &&A more\n&&B"},
    {"TreatASigilWithoutANameAsUnknown",
     "#define &&A 1\n#define &&B x&&\n#define &&C &&\n&&B&&A",
     "--#define &&A 1\n#define &&B x&&\n#define &&C &&\n&&B1"},
    {"EndThePassWhenTheyAreMalformed",
     "#define &&A 1\n&&A\n#define X a&&b\n&&A",
     "--#define &&A 1\n1\n#define X a&&b\n&&A"},
    {"TakeTwoBlanksForAnEmptyValue",
     "#define &&A 1\n#define &&B  \n&&A &&B",
     "--#define &&A 1\n--#define &&B  \n1 &&B"},
    {"LeaveATrailingCommentOutOfTheValue",
     "#define &&A value -- note\n[&&A]",
     "--#define &&A value -- note\n[value]"},
    {"TellTheCaseOfTheWordAndOfNames",
     "#DEFINE &&A 1\n#define &&b 2\n&&A &&B &&b",
     "#DEFINE &&A 1\n--#define &&b 2\n&&A &&B 2"},
    {"MayBeIndented",
     " \t#define &&A 1\n&&A",
     "-- \t#define &&A 1\n1"},
    {"ResolveTheSecondOfTwoLinesThatDifferByCase",
     "#define &&x 5\n#define &&A &&Q\n#define &&a &&q\n&&a",
     "--#define &&x 5\n#define &&A &&Q\n#define &&a &&q\n&&a"},
};
// clang-format on

class Definitions : public PreprocessTest, public testing::WithParamInterface<ScriptRow>
{};

TEST_P(Definitions, Expand)
{
    EXPECT_EQ(Expand(GetParam().script), GetParam().expanded);
}

INSTANTIATE_TEST_SUITE_P(Tell, Definitions, testing::ValuesIn(kScripts),
                         [](const auto& row) { return row.param.what; });

using Defines = PreprocessTest;

TEST_F(Defines, ReplaceUsesBelowAndCommentTheLineOut)
{
    EXPECT_EQ(Expand("#define &&A 1\nselect &&A"), "--#define &&A 1\nselect 1");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
    EXPECT_FALSE(control.HasPreprocessorErrors());
}

TEST_F(Defines, AreReplacedWithTheOptionsThatTheLastSearchLeft)
{
    CFindReplaceManager& finder = *zncoreeditor::GetFindReplaceManager();
    finder.SetTransform(true);
    EXPECT_EQ(Expand("#define &&A x\\ty\n&&A &&A"), "--#define &&A x\\ty\nx\ty x\ty");
    finder.SetTransform(false);
    finder.SetRegExp(true);
    EXPECT_EQ(Expand("#define &&A .*$\n&&A &&A"), "--#define &&A .*$\n.*$ .*$");
    finder.SetRegExp(false);
}

TEST_F(Defines, DoNotCountInAString)
{
    EXPECT_EQ(Expand("'\n#define &&A 1\n'\n&&A"), "'\n#define &&A 1\n'\n&&A");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, EndThePassInALanguageWithoutALineComment)
{
    control.Reset();
    g_sharedEditor.ForgetLanguage();
    EXPECT_EQ(Expand("#define &&A 1\nselect &&A"), "#define &&A 1\nselect &&A");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, EndThePassWithoutAValue)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B\n&&A"), "--#define &&A 1\n#define &&B\n&&A");
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B \n&&A"), "--#define &&A 1\n#define &&B \n&&A");
}

TEST_F(Defines, WithoutASigilStayAndSetNoFlag)
{
    EXPECT_EQ(Expand("#define X 1\nX"), "#define X 1\nX");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, DoNothingToAScriptWithout)
{
    EXPECT_EQ(Expand("select &&A && 1"), "select &&A && 1");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, CountACharacterByItsLowByte)
{
    // U+0141 counts as "A", which makes another word of it; U+0121 counts as "!".
    EXPECT_EQ(Expand(QString::fromUtf16(u"#define &&A 1\n&&A\u0141 &&A\u0121")),
              QString::fromUtf16(u"--#define &&A 1\n1\u0141 1\u0121").toStdString());
}

TEST_F(Defines, ReplaceASecondUseThatAShorterValueUncovers)
{
    // The range of a replacement grows by what it shrinks, over a comment too.
    EXPECT_EQ(Expand("#define &&LONGNAME 1\n&&LONGNAME--&&LONGNAME"),
              "--#define &&LONGNAME 1\n1--1");
    EXPECT_EQ(Expand("#define &&LONGERNAME 1\n&&LONGERNAME&&LONGERNAME"),
              "--#define &&LONGERNAME 1\n11");
}

TEST_F(Defines, MayOpenABlockInWhichAClientsLineIsNone)
{
    // The line of a remark is a comment where a statement may start, and not within a block.
    Bind("PL/SQL");
    EXPECT_EQ(Expand("#define &&A x\nnull; &&A ;\nrem it's &&A"),
              "--#define &&A x\nnull; x ;\nrem it's &&A");
    EXPECT_EQ(Expand("#define &&A begin\nnull; &&A ;\nrem it's &&A"),
              "--#define &&A begin\nnull; begin ;\nrem it's begin");
}

TEST_F(Defines, MayBeginAClientsLineBehindAComment)
{
    Bind("PL/SQL");
    EXPECT_EQ(Expand("#define &&A rem\n/* */ &&A , &&A"), "--#define &&A rem\n/* */ rem , &&A");
}

} // namespace
