// SPDX-License-Identifier: GPL-3.0-or-later
// The application profile over a file, and what other programs and accidents do to the file.
#include "platform/system/Profile.h"
#include "platform/system/SpecialFolders.h"
#include "tests/platform/file/FullDisk.h"
#include "tests/platform/file/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << text.toStdString();
}

namespace {

const QString kNone = QStringLiteral("none");

class ConfigIn : public ISpecialFolders
{
public:
    explicit ConfigIn(QString folder) : m_folder(std::move(folder)) { SetSpecialFolders(this); }
    ~ConfigIn() override { SetSpecialFolders(nullptr); }
    QString Config() const override { return m_folder; }
    QString AppName() const override { return QStringLiteral("bench"); }

private:
    QString m_folder;
};

class Profile : public testing::Test
{
protected:
    Profile() : m_config(m_folder.path()) {}

    static QString Get(const QString& section, const QString& entry)
    {
        return ApplicationProfile().GetString(section, entry, kNone);
    }

    static bool Set(const QString& section, const QString& entry, const QString& value)
    {
        return ApplicationProfile().WriteString(section, entry,
                                                reinterpret_cast<const char16_t*>(value.utf16()));
    }

    QString Path() const { return m_folder.filePath(QStringLiteral("bench/profile.ini")); }

    void PutFile(const QByteArray& bytes) const
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("bench")));
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir m_folder;
    ConfigIn m_config;
};

} // namespace

TEST_F(Profile, KeepsATextUntilNullIsWritten)
{
    const QString backup = QStringLiteral("Backup");
    const QString entry = QStringLiteral("~ZN1a2b.tmp");
    EXPECT_EQ(Get(backup, entry), kNone);
    EXPECT_TRUE(Set(backup, entry, QStringLiteral("/home/me/a.sql")));
    EXPECT_EQ(Get(backup, entry), QStringLiteral("/home/me/a.sql"));
    EXPECT_TRUE(ApplicationProfile().WriteString(backup, entry, nullptr));
    EXPECT_EQ(Get(backup, entry), kNone);
    EXPECT_TRUE(ApplicationProfile().WriteString(backup, entry, nullptr));
}

TEST_F(Profile, IsOnDiskWhenAWriteReturns)
{
    EXPECT_TRUE(Set(QStringLiteral("Backup"), QStringLiteral("entry"), QStringLiteral("value")));
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("entry=value"));
}

TEST_F(Profile, GivesEveryTextBackAsItWas)
{
    const QString texts[] = {
        QStringLiteral(""),       QStringLiteral("/a/b c.sql"),      QStringLiteral("a, b; c"),
        QStringLiteral("\"q\""),  QStringLiteral("C:\\a\\b"),        QStringLiteral(" spaces "),
        QStringLiteral("100 %"),  QStringLiteral("@Size(1 2)"),      QStringLiteral("line\nend"),
        QStringLiteral("\u00e9"), QString::fromUtf16(u"\U0001F600"), QString(5000, u'x')};
    for (const QString& text : texts) {
        EXPECT_TRUE(Set(QStringLiteral("s"), QStringLiteral("e"), text));
        EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), text);
    }
}

TEST_F(Profile, TellsAnyTwoNamesApart)
{
    // Each is a section and an entry; a write costs the flush of a file, so not all pairs are made.
    const QStringList names = {
        QStringLiteral("a"),       QStringLiteral("A"),      QStringLiteral("a/b"),
        QStringLiteral("a\\b"),    QStringLiteral("a%2Fb"),  QStringLiteral("%"),
        QStringLiteral(""),        QStringLiteral("/"),      QStringLiteral("//"),
        QStringLiteral("a/"),      QStringLiteral("/a"),     QStringLiteral("General"),
        QStringLiteral("general"), QStringLiteral("[a]"),    QStringLiteral("a=b"),
        QStringLiteral(";a"),      QStringLiteral("\u00e9"), QStringLiteral("~ZN%41.tmp")};
    const QString other = QStringLiteral("a");
    for (const QString& name : names) {
        EXPECT_TRUE(Set(name, other, QStringLiteral("in ") + name));
        EXPECT_TRUE(Set(other, name, QStringLiteral("entry ") + name));
    }
    for (const QString& name : names.mid(1)) {
        EXPECT_EQ(Get(name, other), QStringLiteral("in ") + name);
        EXPECT_EQ(Get(other, name), QStringLiteral("entry ") + name);
    }
    EXPECT_TRUE(ApplicationProfile().WriteString(other, other, nullptr));
    EXPECT_EQ(Get(other, other), kNone);
    EXPECT_EQ(Get(other, QStringLiteral("a/b")), QStringLiteral("entry a/b"));
    EXPECT_EQ(Get(QStringLiteral("a/b"), other), QStringLiteral("in a/b"));
}

TEST_F(Profile, ReadsAroundWhatIsBroken)
{
    PutFile(QByteArray("\x00\xFF[[[\n[Backup\ngarbage\n[Backup]\nkept=a\n=b\nlist=a, b\n", 51));
    EXPECT_EQ(Get(QStringLiteral("Backup"), QStringLiteral("kept")), QStringLiteral("a"));
    EXPECT_EQ(Get(QStringLiteral("Backup"), QStringLiteral("list")), kNone);
    EXPECT_EQ(Get(QStringLiteral("Backup"), QStringLiteral("absent")), kNone);
    EXPECT_TRUE(Set(QStringLiteral("Backup"), QStringLiteral("absent"), QStringLiteral("c")));
    EXPECT_EQ(Get(QStringLiteral("Backup"), QStringLiteral("absent")), QStringLiteral("c"));
    EXPECT_EQ(Get(QStringLiteral("Backup"), QStringLiteral("kept")), QStringLiteral("a"));
}

TEST_F(Profile, SaysThatItCannotBeWritten)
{
    // A folder stands where the file should.
    ASSERT_TRUE(QDir().mkpath(Path()));
    EXPECT_FALSE(Set(QStringLiteral("s"), QStringLiteral("e"), QStringLiteral("v")));
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), kNone);
}

TEST_F(Profile, SeesWhatAnotherProcessWrites)
{
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), kNone);
    PutFile("[s]\ne=1\n");
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), QStringLiteral("1"));
    EXPECT_TRUE(QFile::remove(Path()));
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), kNone);
}

TEST_F(Profile, LosesNothingWhenTwoProcessesWriteByTurnsAndAtOnce)
{
    constexpr int kEntries = 60;
    const auto write = [](const char* who) {
        for (int i = 0; i < kEntries; ++i) {
            const QString entry = QString::fromLatin1(who) + QString::number(i);
            if (!Set(QStringLiteral("Backup"), entry, entry))
                return false;
        }
        return true;
    };
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(write("child") ? 0 : 1);
    EXPECT_TRUE(write("parent"));
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    for (const char* who : {"child", "parent"}) {
        for (int i = 0; i < kEntries; ++i) {
            const QString entry = QString::fromLatin1(who) + QString::number(i);
            EXPECT_EQ(Get(QStringLiteral("Backup"), entry), entry);
        }
    }
}

TEST_F(Profile, ThatCannotBeReadIsNotWrittenOver)
{
    EXPECT_TRUE(Set(QStringLiteral("s"), QStringLiteral("e"), QStringLiteral("v")));
    ASSERT_TRUE(QFile::setPermissions(Path(), QFile::WriteOwner));
    {
        const OrdinaryUser ordinary;
        EXPECT_FALSE(Set(QStringLiteral("s"), QStringLiteral("f"), QStringLiteral("w")));
        EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), kNone);
    }
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), QStringLiteral("v"));
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("f")), kNone);
}

TEST_F(Profile, StaysWholeOnAFullDiskAndSaysSo)
{
    EXPECT_TRUE(Set(QStringLiteral("s"), QStringLiteral("e"), QStringLiteral("v")));
    {
        const FullDisk full(3);
        EXPECT_FALSE(Set(QStringLiteral("s"), QStringLiteral("f"), QStringLiteral("w")));
    }
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), QStringLiteral("v"));
}

// A file that others have written, and one that others are to read.
TEST_F(Profile, IsReadAndWrittenAsQSettingsDoes)
{
    const QStringList texts = {QStringLiteral("plain"),
                               QStringLiteral("a;b,c=d"),
                               QStringLiteral(" x "),
                               QStringLiteral("\"q\"\\"),
                               QStringLiteral("@at"),
                               QStringLiteral("\u00e9\n\tz"),
                               QStringLiteral("\x01"
                                              "f"),
                               QString()};
    const auto key = [](int i) { return QStringLiteral("Back up/~%1.t").arg(i); };
    {
        PutFile("");
        QSettings theirs(Path(), QSettings::IniFormat);
        for (int i = 0; i < texts.size(); ++i)
            theirs.setValue(key(i), texts[i]);
    }
    for (int i = 0; i < texts.size(); ++i) {
        const QString entry = QStringLiteral("~%1.t").arg(i);
        EXPECT_EQ(Get(QStringLiteral("Back up"), entry), texts[i]);
        EXPECT_TRUE(Set(QStringLiteral("Back up"), entry, texts[texts.size() - 1 - i]));
    }
    const QSettings theirs(Path(), QSettings::IniFormat);
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(theirs.value(key(i)).toString(), texts[texts.size() - 1 - i]);
    EXPECT_EQ(theirs.allKeys().size(), texts.size());
}

TEST_F(Profile, OfAHostTakesTheFilesPlace)
{
    class Counting final : public IApplicationProfile
    {
    public:
        QString GetString(const QString&, const QString&, const QString& fallback) override
        {
            ++calls;
            return fallback;
        }
        bool WriteString(const QString&, const QString&, const char16_t*) override
        {
            ++calls;
            return true;
        }
        int calls = 0;
    } counting;
    SetApplicationProfile(&counting);
    EXPECT_EQ(Get(QStringLiteral("s"), QStringLiteral("e")), kNone);
    EXPECT_TRUE(Set(QStringLiteral("s"), QStringLiteral("e"), QStringLiteral("v")));
    SetApplicationProfile(nullptr);
    EXPECT_EQ(counting.calls, 2);
    EXPECT_FALSE(QFile::exists(Path()));
}
