// SPDX-License-Identifier: GPL-3.0-or-later
// The library's start and stop, in a process of its own with a copy of the library.
#include "common/Globals.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class LibraryInAFolder : public testing::Test
{
protected:
    LibraryInAFolder()
    {
        const QDir from(zncoreeditor::GetAppPath());
        for (const QString& name : from.entryList({QStringLiteral("libZN*.so*")}, QDir::Files))
            EXPECT_TRUE(QFile::copy(from.filePath(name), Path(name)));
        QDir(m_folder.path()).mkdir(QStringLiteral("Syntax"));
        EXPECT_TRUE(QFile::copy(from.filePath(QStringLiteral("Syntax/SQL.xml")),
                                Path(QStringLiteral("Syntax/SQL.xml"))));
    }

    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QString Config() const { return Path(QStringLiteral("ZNCoreEditor.xml")); }

    void WriteConfig(const QByteArray& bytes) const
    {
        QFile file(Config());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray ReadConfig() const
    {
        QFile file(Config());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    // What the host told.
    QString Run(const QStringList& arguments = {}) const
    {
        QProcess host;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_LIBRARY_PATH"), m_folder.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), Path(QStringLiteral("home")));
        host.setProcessEnvironment(environment);
        host.start(QCoreApplication::applicationDirPath() + QStringLiteral("/library_probe"),
                   arguments);
        EXPECT_TRUE(host.waitForFinished(60000));
        EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(host.exitCode(), 0) << host.readAllStandardError().toStdString();
        m_errors = QString::fromLocal8Bit(host.readAllStandardError());
        return QString::fromLocal8Bit(host.readAllStandardOutput());
    }

    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    QString UserCopy(const QString& name) const
    {
        return Path(QStringLiteral("home/Marrowfield/") + name);
    }

    QTemporaryDir m_folder;
    mutable QString m_errors; // of the last run
};

constexpr char kConfig[] =
    "<ZNCoreEditor>\r\n\t<Editor>\r\n\t\t<RightEdgeColumn>1</RightEdgeColumn>"
    "\r\n\t</Editor>\r\n\t<Languages count=\"1\">\r\n"
    "\t\t<Language number=\"0\">\r\n\t\t\t<Name>One</Name>\r\n"
    "\t\t\t<SyntaxFile>SQL.xml</SyntaxFile>\r\n\t\t</Language>\r\n"
    "\t</Languages>\r\n</ZNCoreEditor>\r\n";

TEST_F(LibraryInAFolder, ReadsTheConfigurationBesideIt)
{
    WriteConfig(kConfig);
    const QString told = Run();
    EXPECT_TRUE(told.contains(QStringLiteral("configured 1\n"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("file %1\n").arg(Config()))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("languages 1\n"))) << told.toStdString();
}

TEST_F(LibraryInAFolder, EditsOnEmptySettingsWithoutAConfiguration)
{
    const QString told = Run({QStringLiteral("change")});
    EXPECT_TRUE(told.contains(QStringLiteral("configured 0\n"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("languages 0\n"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("text text\n"))) << told.toStdString();
    EXPECT_FALSE(QFile::exists(Config()));
}

TEST_F(LibraryInAFolder, LeavesABrokenConfigurationAsItIs)
{
    const QByteArray broken = "<ZNCoreEditor><Editor><RightEdgeColumn>1</Edi";
    WriteConfig(broken);
    const QString told = Run({QStringLiteral("change")});
    EXPECT_TRUE(told.contains(QStringLiteral("configured 0\n"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("text text\n"))) << told.toStdString();
    EXPECT_EQ(ReadConfig(), broken);
}

TEST_F(LibraryInAFolder, LeavesWhatWasInstalledAndPutsChangesIntoTheUsersCopies)
{
    WriteConfig(kConfig);
    const QString installed = Path(QStringLiteral("Syntax/SQL.xml"));
    const QByteArray syntax = Read(installed);
    Run({QStringLiteral("change")});
    EXPECT_EQ(ReadConfig(), kConfig);
    EXPECT_EQ(Read(installed), syntax);
    const QByteArray saved = Read(UserCopy(QStringLiteral("ZNCoreEditor.xml")));
    EXPECT_TRUE(saved.contains("<RightEdgeColumn>77</RightEdgeColumn>")) << saved.constData();
    EXPECT_TRUE(saved.contains("<SyntaxFile>SQL.xml</SyntaxFile>")) << saved.constData();
    EXPECT_TRUE(QFile::exists(UserCopy(QStringLiteral("Base/SQL.xml"))));
}

TEST_F(LibraryInAFolder, ReadsTheUsersCopyFromThenOn)
{
    WriteConfig(kConfig);
    Run({QStringLiteral("change")});
    QByteArray twice = Read(UserCopy(QStringLiteral("ZNCoreEditor.xml")));
    WriteConfig("<broken");
    EXPECT_TRUE(Run().contains(QStringLiteral("configured 1\n")));
    EXPECT_EQ(Read(UserCopy(QStringLiteral("ZNCoreEditor.xml"))), twice);
}

TEST_F(LibraryInAFolder, WritesNothingForAnEditorThatChangedNothing)
{
    WriteConfig(kConfig);
    Run();
    EXPECT_EQ(ReadConfig(), kConfig);
    EXPECT_FALSE(QFile::exists(UserCopy(QStringLiteral("ZNCoreEditor.xml"))));
    EXPECT_FALSE(QFile::exists(UserCopy(QStringLiteral("Base/SQL.xml"))));
}

TEST_F(LibraryInAFolder, KeepsSettingsInTheFolderThatTheHostNames)
{
    WriteConfig(kConfig);
    const QString copy = Path(QStringLiteral("home/Mine/ZNCoreEditor.xml"));
    EXPECT_TRUE(Run({QStringLiteral("change"), QStringLiteral("Mine")})
                    .contains(QStringLiteral("folder 1\n")));
    EXPECT_TRUE(Read(copy).contains("<RightEdgeColumn>77</RightEdgeColumn>"));
    EXPECT_FALSE(QFile::exists(UserCopy(QStringLiteral("ZNCoreEditor.xml"))));
    WriteConfig("<broken"); // the copy is read there from then on
    EXPECT_TRUE(Run({QString(), QStringLiteral("Mine")}).contains(QStringLiteral("languages 1\n")));
    EXPECT_TRUE(Run({QString(), QStringLiteral("a/b")}).contains(QStringLiteral("folder 0\n")));
}

TEST_F(LibraryInAFolder, LeavesACopyThatItCannotRead)
{
    WriteConfig(kConfig);
    QDir(m_folder.path()).mkpath(QStringLiteral("home/Marrowfield"));
    const QString copy = UserCopy(QStringLiteral("ZNCoreEditor.xml"));
    QFile file(copy);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<mine");
    file.close();
    EXPECT_TRUE(Run({QStringLiteral("change")}).contains(QStringLiteral("configured 1\n")));
    EXPECT_EQ(Read(copy), QByteArray("<mine"));
}

// The module may be missing, or the library that it needs.
TEST_F(LibraryInAFolder, WithoutAnEngineOpensAndSavesNothingAndTellsWhy)
{
    const QString engine = Path(QStringLiteral("libZNBaseEditor.so"));
    const QString script = Path(QStringLiteral("script.sql"));
    QFile file(script);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("ten bytes.");
    file.close();
    for (const QByteArray& module : {QByteArray(), QByteArray("no module")}) {
        ASSERT_TRUE(!QFile::exists(engine) || QFile::remove(engine));
        if (QFile put(engine); !module.isEmpty()) {
            ASSERT_TRUE(put.open(QIODevice::WriteOnly));
            put.write(module);
        }
        const QString told = Run({script});
        EXPECT_TRUE(told.contains(QStringLiteral("opened 0\nsaved 0\n"))) << told.toStdString();
        EXPECT_TRUE(told.contains(QStringLiteral("engine 0 "))) << told.toStdString();
        EXPECT_TRUE(told.contains(QStringLiteral("widget 0 The editor"))) << told.toStdString();
        EXPECT_EQ(m_errors.count(QStringLiteral("engine cannot be loaded")), 1);
        EXPECT_TRUE(m_errors.contains(QStringLiteral("libZNBaseEditor.so")))
            << m_errors.toStdString();
        EXPECT_EQ(Read(script), QByteArray("ten bytes."));
    }
}

// Each answer ends, and is empty.
TEST_F(LibraryInAFolder, WithoutAnEngineHasAFaceThatAnswersNothing)
{
    WriteConfig(kConfig);
    ASSERT_TRUE(QFile::remove(Path(QStringLiteral("libZNBaseEditor.so"))));
    const QString told = Run({QStringLiteral("face")});
    EXPECT_TRUE(told.contains(QStringLiteral("face: \n"))) << told.toStdString();
}

TEST_F(LibraryInAFolder, WithoutSettingsHasAnEditorOfPlainTextAndSaysSo)
{
    const QString told = Run({QStringLiteral("face")});
    EXPECT_TRUE(told.contains(QStringLiteral(" undo problems"))) << told.toStdString();
    EXPECT_EQ(m_errors.count(QStringLiteral("settings cannot be read")), 1);
    WriteConfig(kConfig);
    ASSERT_TRUE(QDir(Path(QStringLiteral("Syntax"))).removeRecursively());
    Run({QStringLiteral("face")});
    EXPECT_EQ(m_errors.count(QStringLiteral("languages have no files")), 1);
}

} // namespace
