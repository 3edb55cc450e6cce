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
        host.setProcessEnvironment(environment);
        host.start(QCoreApplication::applicationDirPath() + QStringLiteral("/library_probe"),
                   arguments);
        EXPECT_TRUE(host.waitForFinished(60000));
        EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(host.exitCode(), 0) << host.readAllStandardError().toStdString();
        return QString::fromLocal8Bit(host.readAllStandardOutput());
    }

    QTemporaryDir m_folder;
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

TEST_F(LibraryInAFolder, SavesAChangedConfigurationWhenItGoes)
{
    WriteConfig(kConfig);
    Run({QStringLiteral("change")});
    const QByteArray saved = ReadConfig();
    EXPECT_TRUE(saved.contains("<RightEdgeColumn>77</RightEdgeColumn>")) << saved.constData();
    EXPECT_TRUE(saved.contains("<SyntaxFile>SQL.xml</SyntaxFile>")) << saved.constData();
}

} // namespace
