// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of its own for each test, and files in it by name.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

class SettingsFolder : public testing::Test
{
protected:
    QString PathOf(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    void Put(const char* name, const QByteArray& bytes) const
    {
        QFile file(PathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray Get(const char* name) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
    }

    void SetMode(const char* name, mode_t mode) const
    {
        ASSERT_EQ(chmod(QFile::encodeName(PathOf(name)).constData(), mode), 0);
    }

private:
    QTemporaryDir m_folder;
};

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << text.toStdString();
}
