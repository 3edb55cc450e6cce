// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/LossCheck.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "tests/RandomSeed.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr int kAnsi = FileEncodeConverter::encANSI;

class LossTest : public testing::Test
{
protected:
    void Put(const std::u16string& text) { editor.control().SetText(text.c_str(), 1); }
    std::optional<LostCharacter> Lost(int encoding = kAnsi)
    {
        return FindLostCharacter(editor.control(), encoding);
    }

    // The first place at which a file that was saved in the code page differs from the text.
    long LostInAFile(const std::u16string& text)
    {
        const QString path = folder.filePath("saved.sql");
        EXPECT_TRUE(editor.control().SaveFile(Units(path).c_str(), FileEncodeConverter::encANSI,
                                              false, false));
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_EQ(size_t(bytes.size()), text.size()); // one byte for a unit
        for (size_t i = 0; i < text.size(); ++i) {
            if (bytes[qsizetype(i)] == '?' && text[i] != u'?')
                return long(i);
        }
        return -1;
    }

    static std::u16string Units(const QString& text) { return text.toStdU16String(); }

    QTemporaryDir folder;
    ZNCoreEditorWidget editor;
};

} // namespace

TEST_F(LossTest, FindsTheFirstCharacterThatTheCodePageLacks)
{
    Put(u"select 1 -- caf\u00E9 \u20AC?\r\n\tselect '\u0151\u0171'\r\n");
    const auto lost = Lost();
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->character, U'\u0151');
    EXPECT_EQ(lost->line, 2);
    EXPECT_EQ(lost->position, 30);
    EXPECT_EQ(lost->column, editor.control().GetColumn(30, 1) + 1);
    EXPECT_GT(lost->column, 10); // the tab is wide
}

TEST_F(LossTest, FindsNothingInATextThatTheCodePageHas)
{
    EXPECT_FALSE(Lost());
    Put(u"plain ? text");
    EXPECT_FALSE(Lost());
    Put(u"\u00E4\u00F6\u00FC\u00DF \u20AC \u2013 \u0081\u009D ???");
    EXPECT_FALSE(Lost());
}

TEST_F(LossTest, FindsNothingForUnicode)
{
    Put(u"\u0151\U0001F600");
    for (const int encoding : {2, 4, 6, 8, 10, 11})
        EXPECT_FALSE(Lost(encoding)) << encoding;
}

TEST_F(LossTest, TakesAPairForOneCharacter)
{
    Put(u"a\U0001F600");
    const auto lost = Lost();
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->character, U'\U0001F600');
    EXPECT_EQ(lost->position, 1);
}

TEST_F(LossTest, FindsACharacterFarFromTheStart)
{
    std::u16string text;
    while (text.size() < 3 * 128 * 1024)
        text += u"select 'caf\u00E9?' from t;\n";
    const long clean = long(text.size());
    Put(text + u"\uE000");
    ASSERT_TRUE(Lost());
    EXPECT_EQ(Lost()->position, clean);
    EXPECT_EQ(Lost()->character, U'\uE000');
    text[128 * 1024 - 1] = u'\xD83D'; // over the seam of two pieces
    text[128 * 1024] = u'\xDE00';
    Put(text);
    ASSERT_TRUE(Lost());
    EXPECT_EQ(Lost()->position, 128 * 1024 - 1);
    EXPECT_EQ(Lost()->character, U'\U0001F600');
}

TEST_F(LossTest, AgreesWithWhatASaveWrites)
{
    const unsigned int seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (int i = 0; i < 300; ++i) {
        std::u16string text;
        for (auto count = random() % 60; count > 0; --count) {
            if (random() % 30 == 0)
                text += u"\U0001F600";
            else if (random() % 30 == 0)
                text += random() % 2 ? u"\n" : u"?";
            else if (random() % 40 == 0)
                text += static_cast<char16_t>(1 + random() % 0xD7FF);
            else
                text += static_cast<char16_t>(1 + random() % 0xFF);
        }
        Put(text);
        const auto lost = Lost();
        EXPECT_EQ(lost ? lost->position : -1, LostInAFile(text)) << i;
    }
}

TEST(LostCharacters, AreShownIfTheyHaveAForm)
{
    EXPECT_EQ(DescribeCharacter(U'\u0151'), QStringLiteral("“ő” (U+0151)"));
    EXPECT_EQ(DescribeCharacter(U'\U0001F600'), QStringLiteral("“😀” (U+1F600)"));
    EXPECT_EQ(DescribeCharacter(U'\u200B'), "U+200B");
    EXPECT_EQ(DescribeCharacter(U'\u0301'), "U+0301");
    EXPECT_EQ(DescribeCharacter(U'\u202E'), "U+202E"); // would turn the sentence round
}

TEST(LostCharacters, AreAskedAboutWithTheirPlaceAndAWayOut)
{
    const QString question =
        LossQuestion("100%4.sql", "windows-1252",
                     {.character = U'\u0151', .position = 31, .line = 2, .column = 13});
    EXPECT_TRUE(question.contains("100%4.sql"));
    EXPECT_TRUE(question.contains("windows-1252"));
    EXPECT_TRUE(question.contains("U+0151"));
    EXPECT_TRUE(question.contains("line 2, column 13"));
    EXPECT_TRUE(question.contains("UTF-8"));
}
