// SPDX-License-Identifier: GPL-3.0-or-later
// What the sample scripts are divided into, line by line, beside what it should be.
#include "tests/SourceTree.h"
#include "tests/engine/analysis/ScriptUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace engine::analysis {
namespace {

const std::string kFolder = InSourceTree("samples/");
const std::string kGolden = InSourceTree("tests/golden/analysis/");

struct SampleScript
{
    friend std::ostream& operator<<(std::ostream& out, const SampleScript& sample)
    {
        return out << sample.path;
    }

    const char* path;
    const char* dialect;
};

std::string PathOf(const SampleScript& sample)
{
    return std::string(kFolder) + sample.path + ".sql";
}

std::string NameOf(const SampleScript& sample)
{
    const std::string path = sample.path;
    return path.substr(path.find('/') + 1);
}

std::string ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    const std::string text = bytes.str();
    return text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text;
}

// A line for each statement: its lines, its batch's lines, its catalog, its first and last words.
std::string Description(ScriptUnderTest& script)
{
    const std::string& text = script.Text();
    const char lineEnd = text.find('\n') == std::string::npos ? '\r' : '\n';
    const auto lineOf = [&](long position) {
        return 1 + std::count(text.begin(), text.begin() + position, lineEnd);
    };
    std::ostringstream out;
    script.Analysis().ForEachStatement(
        script.Spans(), {0, static_cast<long>(text.size())}, [&](const Span& span) {
            const Span batch = script.Analysis().BatchAt(script.Spans(), span.start);
            std::string words = script.TextOf(span);
            std::replace_if(
                words.begin(), words.end(), [](char c) { return c < ' '; }, ' ');
            out << lineOf(span.start) << '-' << lineOf(span.end) << " of " << lineOf(batch.start)
                << '-' << lineOf(batch.end) << " in " << script.CatalogAt(span.start) << ": "
                << words.substr(0, 28) << " ... "
                << words.substr(words.size() - std::min<std::size_t>(8, words.size())) << '\n';
        });
    return out.str();
}

} // namespace

class SampleScripts : public testing::TestWithParam<SampleScript>
{};

TEST_P(SampleScripts, AreDividedAsTheirGoldenFileSays)
{
    const std::string text = ReadAll(PathOf(GetParam()));
    ASSERT_FALSE(text.empty());
    ScriptUnderTest script(GetParam().dialect, text);
    const std::string golden = std::string(kGolden) + NameOf(GetParam());
    const std::string found = Description(script);
    if (found != ReadAll(golden + ".out"))
        std::ofstream(testing::TempDir() + NameOf(GetParam()) + ".out.new") << found;
    EXPECT_EQ(found, ReadAll(golden + ".out"));
}

TEST_P(SampleScripts, AreDividedTheSameInAnyStretches)
{
    const std::string text = ReadAll(PathOf(GetParam()));
    ScriptUnderTest script(GetParam().dialect, text);
    const std::string whole = script.Everything();
    for (const long stretch : {1, 2, 3, 7, 40, 333}) {
        script.SetStretch(stretch);
        EXPECT_EQ(script.Everything(), whole) << stretch;
    }
}

// Typed in from front to back, and taken away from the back.
TEST_P(SampleScripts, AreDividedTheSameWhenTheyAreTyped)
{
    const std::string text = ReadAll(PathOf(GetParam()));
    ScriptUnderTest script(GetParam().dialect, "");
    script.SetStretch(100);
    for (std::size_t i = 0; i < text.size(); ++i) {
        script.Insert(static_cast<long>(i), std::string(1, text[i]));
        script.StatementAt(static_cast<long>(i));
        if (i % 97 == 0) {
            ASSERT_EQ(script.Everything(), script.Fresh().Everything()) << i;
        }
    }
    while (!script.Text().empty()) {
        script.Erase(static_cast<long>(script.Text().size()) - 1, 1);
        if (script.Text().size() % 97 == 0) {
            ASSERT_EQ(script.Everything(), script.Fresh().Everything()) << script.Text().size();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Dialects, SampleScripts,
    testing::Values(SampleScript{"dialects/ase", "ase"}, SampleScript{"dialects/db2", "db2"},
                    SampleScript{"dialects/interbase", "interbase"},
                    SampleScript{"dialects/iq", "iq"}, SampleScript{"dialects/mysql", "mysql"},
                    SampleScript{"dialects/postgresql", "postgresql"},
                    SampleScript{"dialects/sqlite", "sqlite"}, SampleScript{"package", "oracle"},
                    SampleScript{"procedures", "transact-sql"}),
    [](const auto& sample) { return NameOf(sample.param); });

} // namespace engine::analysis
