// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/UnreadBytes.h"

#include "encoding/FileEncodeConverter.h"
#include "platform/text/SystemCodePage.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class UnreadBytesOfAFile : public testing::Test
{
protected:
    UnreadBytes In(const QByteArray& bytes, int encoding) const
    {
        QFile file(m_folder.filePath("a.sql"));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        return FindUnreadBytes(file.fileName(), encoding);
    }

    QTemporaryDir m_folder;
};

using Converter = FileEncodeConverter;

} // namespace

TEST_F(UnreadBytesOfAFile, AreThoseOfAnotherCodePageInUtf8)
{
    const UnreadBytes unread = In("gr\xF6\xDF"
                                  "er \xC3\xA9",
                                  Converter::encUTF8);
    EXPECT_EQ(unread.count, 2);
    EXPECT_EQ(unread.first, 2);
}

TEST_F(UnreadBytesOfAFile, AreAllBytesOfAnOverlongForm)
{
    EXPECT_EQ(In("\xC0\xAF", Converter::encUTF8).count, 2);
    EXPECT_EQ(In("\xED\xA0\x80", Converter::encUTF8).count, 3) << "a surrogate";
}

TEST_F(UnreadBytesOfAFile, AreTheBeginningOfACharacterAtTheEnd)
{
    const UnreadBytes unread = In("ab\xF0\x9F\x98", Converter::encUTF8);
    EXPECT_EQ(unread.count, 3);
    EXPECT_EQ(unread.first, 2);
}

TEST_F(UnreadBytesOfAFile, AreNoneInGoodUtf8WhereverItIsDivided)
{
    const QByteArray emoji("\xF0\x9F\x98\x80");
    for (int shift = 0; shift < 4; ++shift)
        EXPECT_FALSE(In(QByteArray(shift, 'a') + emoji.repeated(600'000), Converter::encUTF8));
    EXPECT_FALSE(In("\xEF\xBF\xBD", Converter::encUTF8)) << "U+FFFD itself is a character";
}

TEST_F(UnreadBytesOfAFile, AreFoundFarBehindTheFirstBlock)
{
    const UnreadBytes unread = In(QByteArray(3'000'000, 'a') + '\xE4' + 'a', Converter::encUTF8);
    EXPECT_EQ(unread.count, 1);
    EXPECT_EQ(unread.first, 3'000'000);
}

TEST_F(UnreadBytesOfAFile, AreLoneHalvesInUtf16)
{
    const QByteArray text("a\0\x3D\xD8\x00\xDEz\0\x00\xDC", 10);
    const UnreadBytes little = In(text, Converter::encUTF16LE);
    EXPECT_EQ(little.count, 2);
    EXPECT_EQ(little.first, 8);
    EXPECT_EQ(In(QByteArray("\xD8\x3D\0a", 4), Converter::encUTF16BE).count, 2);
}

TEST_F(UnreadBytesOfAFile, AreNumbersBeyondTheLastCharacterInUtf32)
{
    const QByteArray text("a\0\0\0\0\0\x11\0", 8);
    const UnreadBytes unread = In(text, Converter::encUTF32LE);
    EXPECT_EQ(unread.count, 4);
    EXPECT_EQ(unread.first, 4);
}

TEST_F(UnreadBytesOfAFile, AreNoneInACodePageThatHasThemAll)
{
    QByteArray all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_FALSE(In(all, Converter::encANSI));
}

TEST_F(UnreadBytesOfAFile, AreTheHolesOfTheSystemsCodePage)
{
    const int before = platform::GetSystemCodePage();
    platform::SetSystemCodePage(932);
    const UnreadBytes unread = In("\x82\xA0 \xFC\xFC z", Converter::encANSI);
    platform::SetSystemCodePage(before);
    EXPECT_EQ(unread.first, 3);
    EXPECT_EQ(unread.count, 2);
}

TEST_F(UnreadBytesOfAFile, AreNoneWhereThereIsNoFile)
{
    EXPECT_FALSE(FindUnreadBytes(m_folder.filePath("missing.sql"), Converter::encUTF8));
}
