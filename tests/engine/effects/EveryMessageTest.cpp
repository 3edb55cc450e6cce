// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the tests' sources, all of which are to be built: a message of the table that stands in
// none of them, but for walks that send everything and tests that write down what is sent, has no
// test of what it does.
#include "tests/SourceTree.h"

#include "control/EngineMessages.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

bool TestsEffects(const fs::path& path)
{
    constexpr std::string_view kOthers[] = {"WalkTest.cpp", "OrderTest.cpp", "WrapperTest.cpp"};
    const std::string name = path.filename().string();
    return (name.ends_with(".cpp") || name.ends_with(".h")) &&
           path.parent_path().filename() != "fuzz" &&
           std::none_of(std::begin(kOthers), std::end(kOthers),
                        [&](std::string_view other) { return name.ends_with(other); });
}

// What is sent by its name, or called as an operation.
void AddNames(const fs::path& path, std::set<std::string>& names)
{
    static const std::regex called(R"((?:msg::|message::|\.|->)(\w+))");
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        line.resize(std::min(line.find("//"), line.size()));
        for (auto at = std::sregex_iterator(line.begin(), line.end(), called);
             at != std::sregex_iterator(); ++at)
            names.insert((*at)[1]);
    }
}

} // namespace

TEST(EveryMessage, StandsInATestOfWhatItDoes)
{
    std::set<std::string> named;
    for (const auto& entry : fs::recursive_directory_iterator(InSourceTree("tests"))) {
        if (TestsEffects(entry.path()))
            AddNames(entry.path(), named);
    }
    ASSERT_GT(named.size(), std::size(engine::kMessageRows)) << "the sources are not there";
    std::vector<std::string> missing;
    for (const engine::MessageRow& row : engine::kMessageRows) {
        if (!named.contains(row.name))
            missing.emplace_back(row.name);
    }
    EXPECT_THAT(missing, testing::IsEmpty());
}

TEST(EveryTest, IsBuilt)
{
    std::set<fs::path> built;
    std::vector<fs::path> missing;
    const auto entries = [] { return fs::recursive_directory_iterator(InSourceTree("tests")); };
    for (const auto& entry : entries()) {
        std::ifstream list(entry.path());
        for (std::string word; entry.path().filename() == "CMakeLists.txt" && list >> word;)
            built.insert(fs::path(word.substr(0, word.find(')'))).filename());
    }
    for (const auto& entry : entries()) {
        const fs::path name = entry.path().filename();
        if (name.string().ends_with("Test.cpp") && !built.contains(name))
            missing.push_back(name);
    }
    EXPECT_GT(built.size(), 100u);
    EXPECT_THAT(missing, testing::IsEmpty());
}
