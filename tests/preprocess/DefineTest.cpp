// Definitions and variables over the engine's own styling.
#include "tests/preprocess/PreprocessFixture.h"

namespace {

using Defines = PreprocessTest;

TEST_F(Defines, ReplaceUsesBelowAndCommentTheLineOut)
{
    EXPECT_EQ(Expand("#define &&A 1\nselect &&A"), "--#define &&A 1\nselect 1");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
    EXPECT_FALSE(control.HasPreprocessorErrors());
}

TEST_F(Defines, KeepTheFirstOfTwoDefinitions)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&A 2\n&&A"), "--#define &&A 1\n--#define &&A 2\n1");
}

TEST_F(Defines, AreBlockedByAUseAbove)
{
    EXPECT_EQ(Expand("select &&A\n#define &&A 1\nselect &&A"),
              "select &&A\n--#define &&A 1\nselect &&A");
}

TEST_F(Defines, AreBlockedForEveryPrefixOfAUseAbove)
{
    EXPECT_EQ(Expand("&&ABC\n#define &&AB 1\n#define &&ABCD 2\n&&AB &&ABCD"),
              "&&ABC\n--#define &&AB 1\n--#define &&ABCD 2\n&&AB 2");
}

TEST_F(Defines, PassOverCommentsButNotStrings)
{
    EXPECT_EQ(Expand("#define &&A 1\n-- &&A\n/* &&A */ '&&A' \"&&A\""),
              "--#define &&A 1\n-- &&A\n/* &&A */ '1' \"1\"");
}

TEST_F(Defines, DoNotCountInAString)
{
    EXPECT_EQ(Expand("'\n#define &&A 1\n'\n&&A"), "'\n#define &&A 1\n'\n&&A");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, ReplaceTheLongestNameThatIsDefined)
{
    EXPECT_EQ(Expand("#define &&AB x\n#define &&A y\n&&ABC &&A1 &&B"),
              "--#define &&AB x\n--#define &&A y\nxC y1 &&B");
}

TEST_F(Defines, TakeAPrefixBeforeAReference)
{
    EXPECT_EQ(Expand("#define &&A 3\n#define &&B 12&&A\n&&B"),
              "--#define &&A 3\n--#define &&B 123\n123");
}

TEST_F(Defines, TakeAReferenceAlone)
{
    EXPECT_EQ(Expand("#define &&A 3\n#define &&B &&A\n&&B"), "--#define &&A 3\n--#define &&B 3\n3");
}

TEST_F(Defines, MissASecondReferenceThatASingleCharacterPullsNear)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B 2\n#define &&C &&A&&B\n&&C"),
              "--#define &&A 1\n--#define &&B 2\n#define &&C 1&&B\n&&C");
}

TEST_F(Defines, FindASecondReferenceBehindTwoCharacters)
{
    EXPECT_EQ(Expand("#define &&A 12\n#define &&B 2\n#define &&C &&A&&B\n&&C"),
              "--#define &&A 12\n--#define &&B 2\n--#define &&C 122\n122");
}

TEST_F(Defines, TakeTheTextBehindAReferenceForItsName)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B &&A more\n&&B"),
              "--#define &&A 1\n#define &&B &&A more\n&&B");
}

TEST_F(Defines, TreatASigilWithoutANameAsUnknown)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B x&&\n#define &&C &&\n&&B&&A"),
              "--#define &&A 1\n#define &&B x&&\n#define &&C &&\n&&B1");
}

TEST_F(Defines, EndThePassInALanguageWithoutALineComment)
{
    control.Reset();
    g_sharedEditor.ForgetLanguage();
    EXPECT_EQ(Expand("#define &&A 1\nselect &&A"), "#define &&A 1\nselect &&A");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, EndThePassWhenTheyAreMalformed)
{
    EXPECT_EQ(Expand("#define &&A 1\n&&A\n#define X a&&b\n&&A"),
              "--#define &&A 1\n1\n#define X a&&b\n&&A");
}

TEST_F(Defines, EndThePassWithoutAValue)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B\n&&A"), "--#define &&A 1\n#define &&B\n&&A");
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B \n&&A"), "--#define &&A 1\n#define &&B \n&&A");
}

TEST_F(Defines, TakeTwoBlanksForAnEmptyValue)
{
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B  \n&&A &&B"),
              "--#define &&A 1\n--#define &&B  \n1 &&B");
}

TEST_F(Defines, WithoutASigilStayAndSetNoFlag)
{
    EXPECT_EQ(Expand("#define X 1\nX"), "#define X 1\nX");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, LeaveATrailingCommentOutOfTheValue)
{
    EXPECT_EQ(Expand("#define &&A value -- note\n[&&A]"), "--#define &&A value -- note\n[value]");
}

TEST_F(Defines, DoNothingToAScriptWithout)
{
    EXPECT_EQ(Expand("select &&A && 1"), "select &&A && 1");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Defines, TellTheCaseOfTheWordAndOfNames)
{
    EXPECT_EQ(Expand("#DEFINE &&A 1\n#define &&b 2\n&&A &&B &&b"),
              "#DEFINE &&A 1\n--#define &&b 2\n&&A &&B 2");
}

TEST_F(Defines, MayBeIndented)
{
    EXPECT_EQ(Expand(" \t#define &&A 1\n&&A"), "-- \t#define &&A 1\n1");
}

TEST_F(Defines, ResolveTheSecondOfTwoLinesThatDifferByCase)
{
    EXPECT_EQ(Expand("#define &&x 5\n#define &&A &&Q\n#define &&a &&q\n&&a"),
              "--#define &&x 5\n#define &&A &&Q\n#define &&a &&q\n&&a");
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

} // namespace
