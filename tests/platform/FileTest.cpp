// SPDX-License-Identifier: GPL-3.0-or-later
// Files with share modes, and what the system knows of them.
#include "platform/system/File.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

class Files : public testing::Test
{
protected:
    QString Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return folder.filePath(name);
    }
    int CauseOfOpening(const QString& path, UINT flags = CFile::modeRead) const
    {
        CFile file;
        CFileException error;
        return file.Open(path, flags, &error) ? CFileException::none : error.m_cause;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Files, AreReadAndWritten)
{
    const QString path = folder.filePath("a");
    CFile file;
    ASSERT_TRUE(file.Open(path, CFile::modeCreate | CFile::modeReadWrite));
    file.Write("text", 4);
    file.Close();
    char bytes[8] = {};
    ASSERT_TRUE(file.Open(path, CFile::modeRead));
    EXPECT_EQ(file.GetLength(), 4);
    EXPECT_EQ(file.Read(bytes, sizeof bytes), 4U);
    EXPECT_STREQ(bytes, "text");
}

TEST_F(Files, TellWhyTheyCannotBeOpened)
{
    EXPECT_EQ(CauseOfOpening(folder.filePath("missing")), CFileException::fileNotFound);
    EXPECT_EQ(CauseOfOpening(folder.path()), CFileException::accessDenied);
    EXPECT_EQ(CauseOfOpening(Write("a", "") + "/b"), CFileException::badPath);
    EXPECT_EQ(CauseOfOpening(folder.filePath(QString(4000, 'x'))), CFileException::badPath);
}

TEST_F(Files, ThatArePipesAreRefusedWithoutWaiting)
{
    const QString path = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(CauseOfOpening(path), CFileException::badPath);
}

TEST_F(Files, ReadersThatDenyWritersBearEachOther)
{
    const QString path = Write("a", "text");
    CFile reader;
    ASSERT_TRUE(reader.Open(path, CFile::modeRead | CFile::shareDenyWrite));
    EXPECT_EQ(CauseOfOpening(path, CFile::modeRead | CFile::shareDenyWrite), CFileException::none);
    EXPECT_EQ(CauseOfOpening(path, CFile::modeReadWrite | CFile::shareExclusive),
              CFileException::sharingViolation);
}

TEST_F(Files, AreNotEmptiedWhileAnotherHoldsThem)
{
    const QString path = Write("a", "text");
    CFile writer;
    ASSERT_TRUE(writer.Open(path, CFile::modeReadWrite | CFile::shareExclusive));
    EXPECT_EQ(CauseOfOpening(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive),
              CFileException::sharingViolation);
    EXPECT_EQ(QFile(path).size(), 4);
}

TEST_F(Files, RaiseWhatStopsAWrite)
{
    const QString path = Write("a", "text");
    CFile file;
    ASSERT_TRUE(file.Open(path, CFile::modeRead));
    EXPECT_THROW(file.Write("x", 1), CFileException);
    EXPECT_THROW(CFile::Remove(folder.filePath("missing")), CFileException);
}

TEST_F(Files, AreReadOnlyWhenNobodyMayWriteThem)
{
    const QString path = Write("a", "text");
    EXPECT_EQ(GetFileAttributesW(path), 0U);
    EXPECT_TRUE(SetFileAttributesW(path, FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(GetFileAttributesW(path), FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(SetFileAttributesW(path, 0));
    EXPECT_EQ(GetFileAttributesW(path), 0U);
    EXPECT_EQ(GetFileAttributesW(folder.filePath("missing")), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(SetFileAttributesW(folder.filePath("missing"), 0));
}

TEST_F(Files, AStatusOfNothingLeavesTheRecord)
{
    CFileStatus status;
    status.m_mtime = 7;
    EXPECT_FALSE(CFile::GetStatus(folder.filePath("missing"), status));
    EXPECT_EQ(status.m_mtime, 7);
    EXPECT_TRUE(CFile::GetStatus(Write("a", "text"), status));
    EXPECT_EQ(status.m_size, 4);
}
