// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Encodings.h"

#include "control/ZNCoreEditorControl.h"

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
    EXPECT_EQ(EncodingName(1251, true), QStringLiteral("windows-1251"));
}

TEST(EncodingChoices, FallBackToUtf8AndSayThatTheyDoNotKnow)
{
    EXPECT_EQ(EncodingChoices()[size_t(IndexOfEncoding(77, false))].encoding, 6);
    EXPECT_EQ(EncodingName(-1, false), QStringLiteral("Unknown encoding"));
}

// Each of them has to be one that the library converts.
TEST(EncodingChoices, AreWhatAControlIsSetToAndSays)
{
    CZNCoreEditorControl control;
    for (const EncodingChoice& choice : EncodingChoices()) {
        SetEncodingOf(control, choice.encoding);
        EXPECT_EQ(EncodingOf(control), choice.encoding) << choice.name;
        EXPECT_TRUE(IsEncoding(choice.encoding)) << choice.name;
    }
    EXPECT_FALSE(IsEncoding(3));
    EXPECT_FALSE(IsEncoding(1200));
}

TEST(EncodingChoices, SayWhatIsWrittenInACodePage)
{
    EXPECT_EQ(EncodingTitle(EncodingChoices()[size_t(IndexOfEncoding(866, false))]),
              QStringLiteral("IBM866 (Cyrillic)"));
    EXPECT_EQ(EncodingTitle(EncodingChoices()[size_t(IndexOfEncoding(6, false))]),
              QStringLiteral("UTF-8"));
}

TEST(LineEndNames, FollowTheModesOfTheControl)
{
    EXPECT_EQ(LineEndName(1), QStringLiteral("CR LF"));
    EXPECT_EQ(LineEndName(2), QStringLiteral("CR"));
    EXPECT_EQ(LineEndName(3), QStringLiteral("LF"));
    EXPECT_TRUE(LineEndName(0).isEmpty());
}
