// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/LineEdits.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <random>

namespace {

QString Apply(QString text, const std::vector<LineEdit>& edits)
{
    for (const LineEdit& edit : edits)
        text.replace(edit.start, edit.length, edit.text);
    return text;
}

} // namespace

TEST(LinesThatDiffer, AreReplacedAndNoOthers)
{
    const auto edits = LineEdits(u"a\nb\nc\nd\n", u"a\nB\nc\nd\ne\n");
    const std::vector<LineEdit> expected = {{8, 0, QStringLiteral("e\n")},
                                            {2, 1, QStringLiteral("B")}};
    EXPECT_EQ(edits, expected);
}

TEST(LinesThatDiffer, AreNoneOfEqualTexts)
{
    EXPECT_TRUE(LineEdits(u"a\nb", u"a\nb").empty());
    EXPECT_TRUE(LineEdits(u"", u"").empty());
}

TEST(LinesThatDiffer, MakeTheOtherTextWhateverTheLineEndsAre)
{
    std::mt19937 random(7);
    const QStringList lines = {"a\n", "b\r\n", "c\r", "\n", "d", ""};
    const auto text = [&] {
        QString made;
        for (int i = 0; i < 12; ++i)
            made += lines[qsizetype(random() % 6)];
        return made;
    };
    for (int round = 0; round < 500; ++round) {
        const QString from = text();
        const QString to = text();
        EXPECT_EQ(Apply(from, LineEdits(from, to)), to) << from.toStdString();
    }
}
