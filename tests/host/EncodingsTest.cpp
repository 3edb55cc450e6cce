// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Encodings.h"

#include <gtest/gtest.h>

#include <set>

TEST(EncodingChoices, AreEachThereOnceUnderANameOfTheirOwn)
{
    std::set<std::pair<int, bool>> pairs;
    std::set<QString> names;
    for (const EncodingChoice& choice : EncodingChoices()) {
        pairs.emplace(choice.encoding, choice.mark);
        names.insert(QLatin1String(choice.name));
    }
    EXPECT_EQ(pairs.size(), EncodingChoices().size());
    EXPECT_EQ(names.size(), EncodingChoices().size());
}

TEST(EncodingChoices, HaveEveryUnicodeEncodingWithAndWithoutMark)
{
    for (const int encoding : {2, 4, 6, 8, 10}) {
        for (const bool mark : {false, true}) {
            const EncodingChoice& choice =
                EncodingChoices()[size_t(IndexOfEncoding(encoding, mark))];
            EXPECT_EQ(choice.encoding, encoding);
            EXPECT_EQ(choice.mark, mark);
            EXPECT_EQ(EncodingName(encoding, mark), QLatin1String(choice.name));
        }
    }
}

TEST(EncodingChoices, KnowNoMarkForACodePage)
{
    EXPECT_EQ(EncodingName(0, false), QStringLiteral("windows-1252"));
    EXPECT_EQ(EncodingName(0, true), QStringLiteral("windows-1252"));
}

TEST(EncodingChoices, FallBackToUtf8AndSayThatTheyDoNotKnow)
{
    EXPECT_EQ(EncodingChoices()[size_t(IndexOfEncoding(77, false))].encoding, 6);
    EXPECT_EQ(EncodingName(-1, false), QStringLiteral("Unknown encoding"));
}

TEST(LineEndNames, FollowTheModesOfTheControl)
{
    EXPECT_EQ(LineEndName(1), QStringLiteral("CR LF"));
    EXPECT_EQ(LineEndName(2), QStringLiteral("CR"));
    EXPECT_EQ(LineEndName(3), QStringLiteral("LF"));
    EXPECT_TRUE(LineEndName(0).isEmpty());
}
