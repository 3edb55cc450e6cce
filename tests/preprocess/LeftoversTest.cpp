// SPDX-License-Identifier: GPL-3.0-or-later
// What a run of the pre-processor leaves behind without a word.
#include "preprocess/Leftovers.h"
#include "tests/preprocess/PreprocessFixture.h"

namespace {

class Leftovers : public PreprocessTest
{
protected:
    // "place: sentence", by the text that it is about.
    std::vector<std::string> Of(const QString& script)
    {
        Expand(script);
        const QString text = control.GetText();
        std::vector<std::string> lines;
        for (const Leftover& found : FindLeftovers(control))
            lines.push_back(
                (text.mid(found.start, found.end - found.start) + ": " + found.text).toStdString());
        return lines;
    }
};

using Lines = std::vector<std::string>;

TEST_F(Leftovers, AreNoneWhereEveryVariableHasAValue)
{
    EXPECT_EQ(Of("#define &&A 1 -- note\n#define &&B 2&&A\nselect &&A, '&&B' -- &&C\n"), Lines());
}

TEST_F(Leftovers, AreNamesThatNothingDefines)
{
    EXPECT_EQ(Of("#define &&A 1\nselect '&&B', &&A"), Lines{"&&B: Nothing defines &&B."});
}

TEST_F(Leftovers, AreUsesAboveADefinition)
{
    EXPECT_EQ(Of("select &&A\n#define &&A 1\nselect &&A"),
              Lines(2, "&&A: &&A is used above its definition, which then does not count."));
}

TEST_F(Leftovers, AreNoOperators)
{
    EXPECT_EQ(Of("select a && b, '&&', &&-1"), Lines());
}

TEST_F(Leftovers, AreDefinitionsWithoutAVariable)
{
    EXPECT_EQ(Of("  #define X 1 -- &&\n-- #define Y 1\n'\n#define Z 1\n'"),
              Lines{"#define X 1: This defines nothing: the name of a variable begins with &&."});
}

TEST_F(Leftovers, AreDefinitionsThatEndTheReplacing)
{
    EXPECT_EQ(Of("#define &&A 1\n#define &&B\nselect &&A, &&C"),
              Lines{"#define &&B: This is not of the form #define &&NAME VALUE, and nothing below "
                    "is replaced."});
}

TEST_F(Leftovers, AreDefinitionsThatWaitForAValue)
{
    EXPECT_EQ(Of("#define &&A 1\n#define &&B x&&Z\n#define &&C &&A more\n"),
              (Lines{"#define &&B x&&Z: &&B is not defined: its value needs &&Z, which has none.",
                     "#define &&C &&A more: &&C is not defined: in its value nothing may follow a "
                     "variable."}));
}

TEST_F(Leftovers, AreFoundInIncludedText)
{
    Write("part.sql", "select &&B\n");
    EXPECT_EQ(Of("#include part.sql\n"), Lines{"&&B: Nothing defines &&B."});
    EXPECT_EQ(Map().Locate(1).path, folder.filePath("part.sql"));
}

} // namespace
