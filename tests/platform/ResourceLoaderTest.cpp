// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/services/ResourceLoader.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class ResourceLoaders : public testing::Test
{
protected:
    QString Write(const char* xml) const
    {
        const QString path = folder.filePath(QStringLiteral("strings.xml"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(xml);
        return path;
    }

    QTemporaryDir folder;
};

TEST_F(ResourceLoaders, GiveTextsByNumber)
{
    const CZNBaseResourceLoader loader(Write("<strings><string id=\"28178\">a &lt; b</string>"
                                             "<string id=\"7\">\xC3\xA9</string></strings>"));
    EXPECT_EQ(loader.LoadString(28178), QStringLiteral("a < b"));
    EXPECT_EQ(loader.LoadString(7), QStringLiteral("\u00e9"));
    EXPECT_EQ(loader.LoadString(8), QString());
}

TEST_F(ResourceLoaders, PutValuesInPlaceOfMarks)
{
    const CZNBaseResourceLoader loader(
        Write("<strings><string id=\"1\">%2 and %1, %3 %% %0 %</string></strings>"));
    EXPECT_EQ(loader.FormatString(1, {QStringLiteral("a%2"), QStringLiteral("b")}),
              QStringLiteral("b and a%2, %3 %% %0 %"));
    EXPECT_EQ(loader.FormatString(2, {QStringLiteral("a")}), QString());
}

TEST_F(ResourceLoaders, AreEmptyWithoutAFile)
{
    EXPECT_EQ(CZNBaseResourceLoader(QStringLiteral("/no/such/file")).LoadString(1), QString());
}

TEST_F(ResourceLoaders, KeepWhatStandsBeforeAFault)
{
    const CZNBaseResourceLoader loader(
        Write("<strings><string id=\"1\">one</string><string id=\"2\">tw"));
    EXPECT_EQ(loader.LoadString(1), QStringLiteral("one"));
}

} // namespace
