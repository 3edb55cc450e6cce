// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/TemplateFile.h"
#include "tests/SourceTree.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace completion;

namespace {

QString Write(const QTemporaryDir& folder, const char* name, const QByteArray& bytes)
{
    QFile file(folder.filePath(QLatin1String(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        ADD_FAILURE() << file.errorString().toStdString();
    return file.fileName();
}

QStringList Shipped()
{
    const QDir folder(QString::fromStdString(InSourceTree("data/Templates")));
    QStringList paths;
    for (const QString& name : folder.entryList({QStringLiteral("*.txt")}))
        paths << folder.filePath(name);
    return paths;
}

// Each marker of a line with a value in its place, the first one first. Empty if one is not closed
// or ends before it begins.
QString Answered(QString line)
{
    for (;;) {
        const auto start = line.indexOf(QLatin1String("^#"));
        if (start < 0)
            return line.isEmpty() ? QStringLiteral("\n") : line;
        const auto end = line.indexOf(QLatin1String("#^"));
        if (end < start + 2)
            return {};
        line.replace(start, end + 2 - start, QStringLiteral("x"));
    }
}

} // namespace

TEST(TemplateFiles, HaveTheTemplatesBehindTheirRemarks)
{
    const TemplateFile file = ParseTemplates(
        QStringLiteral("templates 1\r\nA remark\r\n\r\n== sel: Select rows\r\nSELECT ^!\r\n  FROM "
                       "t\r\n\r\n== one\n\\== no head\n\n"));
    ASSERT_TRUE(file.isOne);
    ASSERT_EQ(file.templates.size(), 2U);
    EXPECT_EQ(file.templates[0].shortName, QStringLiteral("sel"));
    EXPECT_EQ(file.templates[0].title, QStringLiteral("Select rows"));
    EXPECT_EQ(file.templates[0].lines,
              QStringList({QStringLiteral("SELECT ^!"), QStringLiteral("  FROM t")}));
    EXPECT_EQ(file.templates[1].lines, QStringList({QStringLiteral("== no head")}));
}

TEST(TemplateFiles, AreNoneWithoutTheirFirstLine)
{
    for (const char* text : {"", "== sel: x\nSELECT", "\x7F\x45LF", "templates 2\n== a\nb"}) {
        const TemplateFile file = ParseTemplates(QString::fromLatin1(text));
        EXPECT_FALSE(file.isOne) << text;
        EXPECT_TRUE(file.templates.empty()) << text;
    }
}

TEST(TemplateFiles, LeaveOutWhatHasNoShortName)
{
    const TemplateFile file =
        ParseTemplates(QStringLiteral("templates 1\n== \nlost\n== a b: c\nlost\n== ok\nkept"));
    ASSERT_EQ(file.templates.size(), 1U);
    EXPECT_EQ(file.templates[0].shortName, QStringLiteral("ok"));
    EXPECT_EQ(file.badLine, 1);
}

TEST(TemplateFiles, IncludeOthersOfTheirFolderOnce)
{
    const QTemporaryDir folder;
    const QTemporaryDir other;
    const QString path =
        Write(folder, "a.txt", "templates 1\ninclude b.txt\ninclude ../x/c.txt\n== one\nmine\n");
    Write(folder, "b.txt", "templates 1\ninclude a.txt\n== one\ntheirs\n== two\nb\n");
    Write(other, "c.txt", "templates 1\n== three\nc\n");
    EXPECT_EQ(ReadTemplates(path).templates.size(), 2U);
    const TemplateFile file = ReadTemplates(path, other.path());
    ASSERT_EQ(file.templates.size(), 3U);
    EXPECT_EQ(file.templates[0].lines.first(), QStringLiteral("mine"));
}

TEST(TemplateFiles, AreNoneIfTheyAreMissingOrAFolder)
{
    const QTemporaryDir folder;
    EXPECT_FALSE(ReadTemplates(folder.filePath(QStringLiteral("none.txt"))).isOne);
    EXPECT_FALSE(ReadTemplates(folder.path()).isOne);
}

TEST(TemplateFiles, OfAHundredThousandAreReadAndSearched)
{
    QString text = QStringLiteral("templates 1\n");
    for (int i = 0; i < 100000; ++i)
        text += QStringLiteral("== t%1: Template number %1\nSELECT %1\n").arg(i);
    const TemplateFile file = ParseTemplates(text);
    ASSERT_EQ(file.templates.size(), 100000U);
    const std::vector<int> found = FindTemplates(file.templates, QStringLiteral("t99999"), 100);
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front(), 99999);
}

TEST(TemplateFiles, AreFoundByFirstLetters)
{
    const std::vector<CodeTemplate> templates = {
        {QStringLiteral("cur"), QStringLiteral("Cursor loop"), {}},
        {QStringLiteral("proc"), QStringLiteral("Procedure with error handling"), {}}};
    EXPECT_EQ(FindTemplates(templates, QStringLiteral("pwe"), 9), std::vector<int>({1}));
    EXPECT_EQ(FindTemplates(templates, QStringLiteral("loop"), 9), std::vector<int>({0}));
    EXPECT_EQ(FindTemplates(templates, QString(), 9).size(), 2U);
}

TEST(ShippedTemplates, AreThirtyAndMoreWhoseMarkersAreClosed)
{
    std::size_t count = 0;
    for (const QString& path : Shipped()) {
        QFile read(path);
        ASSERT_TRUE(read.open(QIODevice::ReadOnly));
        const TemplateFile file = ParseTemplates(QString::fromUtf8(read.readAll()));
        EXPECT_TRUE(file.isOne && file.badLine < 0) << path.toStdString();
        count += file.templates.size();
        for (const CodeTemplate& each : file.templates) {
            EXPECT_NE(each.title, each.shortName) << path.toStdString();
            for (const QString& line : each.lines)
                EXPECT_FALSE(Answered(line).isEmpty()) << line.toStdString();
            EXPECT_EQ(each.lines.join(u'\n').count(QLatin1String("^!")), 1)
                << path.toStdString() << ' ' << each.shortName.toStdString();
        }
    }
    EXPECT_GE(count, 30U);
}
