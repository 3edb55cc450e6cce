// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/services/OptionsServer.h"

#include "platform/system/SpecialFolders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string_view>

namespace {

constexpr int kKey = 12345; // nobody's

// A folder for settings of the test's own.
class ConfigIn final : public ISpecialFolders
{
public:
    explicit ConfigIn(QString path) : m_path(std::move(path)) { SetSpecialFolders(this); }
    ~ConfigIn() override { SetSpecialFolders(nullptr); }
    QString Config() const override { return m_path; }

private:
    QString m_path;
};

TEST(OptionsServer, KeepsWhatWasSet)
{
    {
        CZNOptionsServer server;
        server.SetInt(kKey, -7);
        server.SetString(kKey + 1, QStringLiteral("a, \"b\" %1 \u00e9"));
        LOGFONT font;
        font.lfHeight = -13;
        font.lfWeight = FW_BOLD;
        font.lfItalic = 1;
        constexpr std::u16string_view kFace = u"A, face";
        kFace.copy(font.lfFaceName, kFace.size());
        server.SetLOGFONT(kKey + 2, &font);
    }
    CZNOptionsServer later;
    EXPECT_EQ(later.GetInt(kKey), -7);
    EXPECT_TRUE(later.GetBool(kKey));
    EXPECT_EQ(later.GetString(kKey + 1), QStringLiteral("a, \"b\" %1 \u00e9"));
    LOGFONT font;
    ASSERT_TRUE(later.GetLOGFONT(kKey + 2, &font));
    EXPECT_EQ(font.lfHeight, -13);
    EXPECT_EQ(font.lfWeight, FW_BOLD);
    EXPECT_EQ(font.lfItalic, 1);
    EXPECT_EQ(font.lfUnderline, 0);
    EXPECT_EQ(std::u16string_view(font.lfFaceName), u"A, face");
}

TEST(OptionsServer, KeepsInForceWhatCannotBeWrittenAndTellsIt)
{
    const QTemporaryDir folder;
    const ConfigIn config(folder.filePath(QStringLiteral("config")));
    CZNOptionsServer server;
    server.SetInt(kKey, 1);
    EXPECT_TRUE(server.WasStored());
    const QString path = folder.filePath(QStringLiteral("config/Marrowfield/ZNCoreEditor.ini"));
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path)); // a folder in its place
    server.SetInt(kKey, 2);
    EXPECT_FALSE(server.WasStored());
    EXPECT_TRUE(server.WasStored()); // told once
    EXPECT_EQ(server.GetInt(kKey), 2);
    EXPECT_EQ(CZNOptionsServer().GetInt(kKey), 0);
}

TEST(OptionsServer, SeesWhatOthersWrite)
{
    const QTemporaryDir folder;
    const ConfigIn config(folder.filePath(QStringLiteral("config")));
    CZNOptionsServer server;
    CZNOptionsServer other;
    EXPECT_EQ(server.GetInt(kKey), 0);
    other.SetInt(kKey, 5);
    EXPECT_EQ(server.GetInt(kKey), 5);
}

TEST(OptionsServer, KnowsNothingOfAKeyThatNobodySet)
{
    CZNOptionsServer server;
    EXPECT_EQ(server.GetInt(kKey + 10), 0);
    EXPECT_FALSE(server.GetBool(kKey + 10));
    EXPECT_EQ(server.GetString(kKey + 10), QString());
    LOGFONT font;
    font.lfHeight = 3;
    EXPECT_FALSE(server.GetLOGFONT(kKey + 10, &font));
    EXPECT_EQ(font.lfHeight, 3);
}

TEST(OptionsServer, HasDefaultsForWhatAnEditorNeeds)
{
    CZNOptionsServer server;
    EXPECT_EQ(server.GetInt(option::TabWidth), 4);
    EXPECT_EQ(server.GetInt(option::LineNumbers), 1);
    LOGFONT font;
    ASSERT_TRUE(server.GetLOGFONT(option::EditorFont, &font));
    EXPECT_LT(font.lfHeight, 0);
    EXPECT_NE(font.lfFaceName[0], u'\0');
}

TEST(OptionsServer, CutsAFaceThatIsTooLong)
{
    CZNOptionsServer server;
    server.SetString(kKey + 3, QStringLiteral("1,2,0,0,0,0,") + QString(200, u'f'));
    LOGFONT font;
    ASSERT_TRUE(server.GetLOGFONT(kKey + 3, &font));
    EXPECT_EQ(std::u16string_view(font.lfFaceName).size(), 31u);
}

TEST(OptionsServer, IsReplacedByAHost)
{
    class Host final : public CZNOptionsServer
    {
    public:
        int GetInt(int key) override { return key + 1; }
    } host;
    SetOptionsServer(&host);
    EXPECT_EQ(CZNOptionsServer::GetObjectW(), &host);
    EXPECT_EQ(CZNOptionsServer::GetObjectW()->GetInt(4), 5);
    EXPECT_TRUE(CZNOptionsServer::GetObjectW()->GetBool(4));
    SetOptionsServer(nullptr);
    EXPECT_NE(CZNOptionsServer::GetObjectW(), &host);
    ASSERT_NE(CZNOptionsServer::GetObjectW(), nullptr);
}

} // namespace
