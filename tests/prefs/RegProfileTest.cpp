// SPDX-License-Identifier: GPL-3.0-or-later
// What dialogs remember: every kind of value, and what stands when the store refuses.
#include "prefs/RegProfile.h"
#include "platform/system/Registry.h"
#include "platform/system/SpecialFolders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr const char16_t* kSearch = u"Preferences\\Search";

class ConfigIn : public ISpecialFolders
{
public:
    explicit ConfigIn(QString folder) : m_folder(std::move(folder)) { SetSpecialFolders(this); }
    ~ConfigIn() override { SetSpecialFolders(nullptr); }
    QString Config() const override { return m_folder; }

private:
    QString m_folder;
};

// A registry that a test opens and closes; it holds one value of each kind.
class ScriptedRegistry : public IRegistry
{
public:
    ScriptedRegistry() { SetRegistry(this); }
    ~ScriptedRegistry() override { SetRegistry(nullptr); }

    bool OpenKey(const QString& key) override
    {
        opened << key;
        return opens;
    }
    std::optional<RegistryValue> Read(const QString&, const QString&) override { return value; }
    bool Write(const QString&, const QString&, const RegistryValue&) override { return writes; }
    bool DeleteKey(const QString&) override { return writes; }
    bool DeleteValue(const QString&, const QString&) override { return writes; }

    QStringList opened;
    bool opens = true;
    bool writes = true;
    std::optional<RegistryValue> value;
};

class RegProfile : public testing::Test
{
protected:
    RegProfile() : m_config(m_folder.path()) {}

    QString Path() const
    {
        return m_folder.filePath(QStringLiteral("Marrowfield/ZNCoreEditor.ini"));
    }

    QByteArray File() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void PutFile(const QByteArray& bytes) const
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("Marrowfield")));
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    std::u16string Text(const char16_t* section, const char16_t* entry)
    {
        return m_profile.GetProfileString(section, entry, m_buffer, u"(absent)");
    }

    // The bytes, or a text that tells that there are none.
    std::string Bytes(const char16_t* section, const char16_t* entry)
    {
        unsigned char* data = nullptr;
        unsigned int size = 99;
        if (!m_profile.GetProfileBinary(section, entry, &data, &size)) {
            EXPECT_EQ(data, nullptr);
            EXPECT_EQ(size, 0u);
            return "(absent)";
        }
        const std::unique_ptr<unsigned char[]> owner(data);
        return std::string(data, data + size);
    }

    bool FailsToWrite(const char16_t* section, const char16_t* entry, const std::string& bytes)
    {
        return m_profile.WriteProfileBinary(section, entry,
                                            reinterpret_cast<const unsigned char*>(bytes.data()),
                                            static_cast<unsigned int>(bytes.size()));
    }

    QTemporaryDir m_folder;
    ConfigIn m_config;
    char16_t m_buffer[CRegProfile::kBufferUnits] = {};
    CRegProfile m_profile;
};

} // namespace

TEST_F(RegProfile, StandsBelowTheSettingsFolderOfTheHost)
{
    ScriptedRegistry registry;
    const QString usual = SettingsFolderName();
    SetSettingsFolderName(QStringLiteral("Mine"));
    CRegProfile().WriteProfileInt(kSearch, u"Entry", 1);
    SetSettingsFolderName(usual);
    EXPECT_EQ(registry.opened.last(), QStringLiteral("Mine\\ZNCoreEditor\\Preferences\\Search"));
}

TEST_F(RegProfile, KeepsNumbersOfTheWholeRange)
{
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"WholeWord", 7), 7);
    for (const int number : {0, 1, -1, INT_MAX, INT_MIN}) {
        EXPECT_TRUE(m_profile.WriteProfileInt(kSearch, u"WholeWord", number));
        EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"WholeWord", 7), number);
    }
}

TEST_F(RegProfile, KeepsTextsAndTheirTerminator)
{
    for (const std::u16string text :
         {u"", u"select", u"dword:5", u"a, \"b\"\n", u"\u00e9\U0001F600"}) {
        EXPECT_TRUE(m_profile.WriteProfileString(kSearch, u"FindCombo", text.c_str()));
        EXPECT_EQ(m_profile.GetProfileString(kSearch, u"FindCombo", m_buffer, nullptr), m_buffer);
        EXPECT_EQ(std::u16string(m_buffer), text);
    }
}

TEST_F(RegProfile, GivesTheFallbackItselfForAnAbsentText)
{
    const char16_t* fallback = u"fallback";
    EXPECT_EQ(m_profile.GetProfileString(kSearch, u"FindCombo", m_buffer, fallback), fallback);
    EXPECT_EQ(m_profile.GetProfileString(kSearch, u"FindCombo", m_buffer, nullptr), nullptr);
}

TEST_F(RegProfile, GivesTheFirst1023UnitsOfALongerText)
{
    for (const std::size_t length : {1022u, 1023u, 1024u, 5000u}) {
        const std::u16string text = u'a' + std::u16string(length - 1, u'b');
        EXPECT_TRUE(m_profile.WriteProfileString(kSearch, u"FindCombo", text.c_str()));
        EXPECT_EQ(Text(kSearch, u"FindCombo"), text.substr(0, 1023));
    }
}

TEST_F(RegProfile, KeepsBytesAndTheirNumber)
{
    EXPECT_EQ(Bytes(kSearch, u"Window"), "(absent)");
    for (const std::string& bytes :
         {std::string(), std::string("\0\xFF\n", 3), std::string(9, 'x')}) {
        EXPECT_FALSE(FailsToWrite(kSearch, u"Window", bytes));
        EXPECT_EQ(Bytes(kSearch, u"Window"), bytes);
    }
}

TEST_F(RegProfile, TellsAFailedWriteOfBytesByTrue)
{
    ScriptedRegistry registry;
    EXPECT_FALSE(FailsToWrite(kSearch, u"Window", "x"));
    registry.writes = false;
    EXPECT_TRUE(FailsToWrite(kSearch, u"Window", "x"));
    EXPECT_FALSE(m_profile.WriteProfileInt(kSearch, u"WholeWord", 1));
    EXPECT_FALSE(m_profile.WriteProfileString(kSearch, u"FindCombo", u"x"));
    registry.opens = false;
    EXPECT_TRUE(FailsToWrite(kSearch, u"Window", "x"));
}

TEST_F(RegProfile, TakesAValueOfAnotherKindForAbsent)
{
    m_profile.WriteProfileInt(kSearch, u"number", 5);
    m_profile.WriteProfileString(kSearch, u"text", u"5");
    FailsToWrite(kSearch, u"bytes", "5");
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"text", 7), 7);
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"bytes", 7), 7);
    EXPECT_EQ(Text(kSearch, u"number"), u"(absent)");
    EXPECT_EQ(Text(kSearch, u"bytes"), u"(absent)");
    EXPECT_EQ(Bytes(kSearch, u"number"), "(absent)");
    EXPECT_EQ(Bytes(kSearch, u"text"), "(absent)");
}

TEST_F(RegProfile, WritesUnderTheLibrarysKey)
{
    m_profile.WriteProfileString(kSearch, u"FindCombo", u"x");
    m_profile.WriteProfileInt(u"", u"top", 16);
    EXPECT_TRUE(File().contains("[Preferences]\nSearch\\FindCombo=sz:x\n")) << File().toStdString();
    EXPECT_TRUE(File().contains("top=dword:10\n")) << File().toStdString();
}

TEST_F(RegProfile, DeletesAValueAndLeavesTheKeyOfThatName)
{
    m_profile.WriteProfileInt(u"Preferences", u"Search", 1);
    m_profile.WriteProfileInt(kSearch, u"WholeWord", 2);
    EXPECT_TRUE(m_profile.DeleteProfileValue(u"Preferences", u"Search"));
    EXPECT_FALSE(m_profile.DeleteProfileValue(u"Preferences", u"Search"));
    EXPECT_EQ(m_profile.GetProfileInt(u"Preferences", u"Search", 7), 7);
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"WholeWord", 7), 2);
}

TEST_F(RegProfile, DeletesAKeyAndLeavesTheValueOfThatName)
{
    m_profile.WriteProfileInt(u"Preferences", u"Search", 1);
    m_profile.WriteProfileInt(kSearch, u"WholeWord", 2);
    EXPECT_TRUE(m_profile.DeleteProfileKey(u"Preferences", u"Search"));
    EXPECT_FALSE(m_profile.DeleteProfileKey(u"Preferences", u"Search"));
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"WholeWord", 7), 7);
    EXPECT_EQ(m_profile.GetProfileInt(u"Preferences", u"Search", 7), 1);
}

TEST_F(RegProfile, TellsNamesApartThatLookLikePaths)
{
    const std::u16string names[] = {u"a", u"A", u"a/b", u"a%2Fb", u"", u"a\\b", u"%"};
    int number = 0;
    for (const std::u16string& name : names)
        EXPECT_TRUE(m_profile.WriteProfileInt(kSearch, name.c_str(), ++number));
    number = 0;
    for (const std::u16string& name : names)
        EXPECT_EQ(m_profile.GetProfileInt(kSearch, name.c_str(), 99), ++number);
}

TEST_F(RegProfile, TriesAgainToOpenTheKeyThatItCouldNot)
{
    ScriptedRegistry registry;
    registry.opens = false;
    registry.value.emplace(std::uint32_t(5));
    CRegProfile profile;
    EXPECT_EQ(profile.GetProfileInt(kSearch, u"WholeWord", 7), 7);
    registry.opens = true;
    registry.opened.clear();
    EXPECT_EQ(profile.GetProfileInt(kSearch, u"WholeWord", 7), 5);
    const QString base = QStringLiteral("Marrowfield\\ZNCoreEditor");
    EXPECT_EQ(registry.opened, QStringList({base, base + QStringLiteral("\\Preferences\\Search")}));
    registry.opened.clear();
    profile.GetProfileInt(kSearch, u"WholeWord", 7);
    EXPECT_EQ(registry.opened.size(), 1);
}

TEST_F(RegProfile, ReadsAroundWhatIsBrokenInTheFile)
{
    PutFile("[[\nnonsense\n[Preferences]\nSearch\\good=dword:5\nSearch\\far=dword:123456789\n"
            "Search\\odd=dword:zz\nSearch\\half=hex:0\nSearch\\none=5\nSearch\\list=a, b\n");
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"good", 7), 5);
    for (const char16_t* entry : {u"far", u"odd", u"none", u"list"})
        EXPECT_EQ(m_profile.GetProfileInt(kSearch, entry, 7), 7);
    EXPECT_EQ(Bytes(kSearch, u"half"), "(absent)");
    EXPECT_TRUE(m_profile.WriteProfileInt(kSearch, u"odd", 6));
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"odd", 7), 6);
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"good", 7), 5);
}

TEST_F(RegProfile, StandsByItsDefaultsWhereNothingCanBeWritten)
{
    ASSERT_TRUE(QDir().mkpath(Path()));
    EXPECT_FALSE(m_profile.WriteProfileInt(kSearch, u"WholeWord", 1));
    EXPECT_FALSE(m_profile.WriteProfileString(kSearch, u"FindCombo", u"x"));
    EXPECT_TRUE(FailsToWrite(kSearch, u"Window", "x"));
    EXPECT_EQ(m_profile.GetProfileInt(kSearch, u"WholeWord", 7), 7);
    EXPECT_FALSE(m_profile.DeleteProfileValue(kSearch, u"WholeWord"));
    EXPECT_FALSE(m_profile.DeleteProfileKey(u"Preferences", u"Search"));
}

TEST_F(RegProfile, LosesNothingWhenTwoProcessesWriteAtOnce)
{
    constexpr int kEntries = 40;
    const auto write = [this](const QString& section) {
        for (int i = 0; i < kEntries; ++i) {
            const std::u16string entry = QString::number(i).toStdU16String();
            if (!m_profile.WriteProfileInt(section.toStdU16String().c_str(), entry.c_str(), i))
                return false;
        }
        return true;
    };
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(write(QStringLiteral("child")) ? 0 : 1);
    EXPECT_TRUE(write(QStringLiteral("parent")));
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    for (int i = 0; i < kEntries; ++i) {
        const std::u16string entry = QString::number(i).toStdU16String();
        EXPECT_EQ(m_profile.GetProfileInt(u"child", entry.c_str(), -1), i);
        EXPECT_EQ(m_profile.GetProfileInt(u"parent", entry.c_str(), -1), i);
    }
}
