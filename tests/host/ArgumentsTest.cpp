// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/Arguments.h"

#include <gtest/gtest.h>

namespace {

Arguments Parse(const QStringList& words)
{
    return ParseArguments(QStringList{QStringLiteral("znworkbench")} + words);
}

} // namespace

TEST(CommandLine, IsFilesUnlessAnOptionSaysOtherwise)
{
    const Arguments arguments = Parse({"a.sql", "b c.sql"});
    EXPECT_EQ(arguments.files, (QStringList{"a.sql", "b c.sql"}));
    EXPECT_TRUE(arguments.error.isEmpty());
    EXPECT_TRUE(arguments.screenshot.isEmpty());
    EXPECT_TRUE(arguments.help.isEmpty());
}

TEST(CommandLine, TakesThePictureBesideTheFiles)
{
    const Arguments arguments = Parse({"--screenshot", "out.png", "a.sql"});
    EXPECT_EQ(arguments.screenshot, QStringLiteral("out.png"));
    EXPECT_EQ(arguments.files, QStringList{"a.sql"});
}

TEST(CommandLine, AsksForAWindowOfItsOwn)
{
    EXPECT_FALSE(Parse({"a.sql"}).newWindow);
    EXPECT_TRUE(Parse({"-n", "a.sql"}).newWindow);
    EXPECT_TRUE(Parse({"--new-window"}).newWindow);
}

TEST(CommandLine, TakesWhatStandsBehindTwoDashesForFiles)
{
    EXPECT_EQ(Parse({"--", "--help"}).files, QStringList{"--help"});
    EXPECT_TRUE(Parse({"--", "--help"}).help.isEmpty());
}

TEST(CommandLine, RefusesAnOptionItDoesNotKnow)
{
    EXPECT_TRUE(Parse({"--sreenshot", "x"}).error.contains(QStringLiteral("sreenshot")));
}

TEST(CommandLine, RefusesAPictureWithoutAName)
{
    EXPECT_FALSE(Parse({"--screenshot"}).error.isEmpty());
    EXPECT_FALSE(Parse({"--screenshot="}).error.isEmpty());
}

TEST(CommandLine, TellsItsOptionsWhenAskedForHelp)
{
    EXPECT_TRUE(Parse({"--help"}).help.contains(QStringLiteral("--screenshot")));
    EXPECT_TRUE(Parse({"-h"}).help.contains(QStringLiteral("--screenshot")));
    EXPECT_TRUE(Parse({"-h"}).help.contains(QStringLiteral("[FILE[:LINE[:COLUMN]]...]")));
}

TEST(CommandLine, TellsTheVersion)
{
    EXPECT_EQ(Parse({"--version"}).help, QStringLiteral("znworkbench " ZN_VERSION));
}
