// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/Styles.h"

#include <gtest/gtest.h>

#include <set>

namespace {

const std::set<int> kGeneric = {0, 9};
const std::set<int> kDialects = {2, 3, 4, 5, 10, 14, 15, 16, 17, 18};

TEST(Styles, OfCommentsDependOnTheLexer)
{
    for (int lexer = -1; lexer < 40; ++lexer) {
        const int last = kGeneric.contains(lexer) ? 3 : kDialects.contains(lexer) ? 2 : 0;
        for (int style = -2; style < 128; ++style)
            EXPECT_EQ(IsCommentStyle(lexer, style), style >= 1 && style <= last)
                << lexer << ' ' << style;
    }
}

TEST(Styles, OfStringsDependOnTheLexer)
{
    for (int lexer = -1; lexer < 40; ++lexer) {
        std::set<int> strings;
        if (kGeneric.contains(lexer))
            strings = {6, 7};
        if (kDialects.contains(lexer))
            strings = {4, 8};
        for (int style = -2; style < 128; ++style)
            EXPECT_EQ(IsStringStyle(lexer, style), strings.contains(style))
                << lexer << ' ' << style;
        EXPECT_EQ(TellsCommentsAndStrings(lexer), !strings.empty()) << lexer;
    }
}

} // namespace
