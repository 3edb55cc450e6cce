// SPDX-License-Identifier: GPL-3.0-or-later
// What README.md shows is what builds, and what it names is there.
#include "tests/SourceTree.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QString ReadText(const QString& name)
{
    QFile file(QString::fromStdString(InSourceTree("")) + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

TEST(Readme, ShowsTheEmbeddingExampleAsItBuilds)
{
    const QString file = ReadText(QStringLiteral("host/example/main.cpp"));
    const QString example = file.section(QLatin1Char('\n'), 1); // behind the licence's mark
    ASSERT_FALSE(example.isEmpty());
    EXPECT_TRUE(ReadText(QStringLiteral("README.md"))
                    .contains(QStringLiteral("```cpp\n") + example + QStringLiteral("```")));
}

TEST(Readme, LinksOnlyToWhatIsThere)
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)#:]+)\\)"));
    const QString page = ReadText(QStringLiteral("README.md"));
    int count = 0;
    for (auto at = link.globalMatch(page); at.hasNext(); ++count) {
        const QString target = at.next().captured(1);
        EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(InSourceTree("")) + target))
            << target.toStdString();
    }
    EXPECT_GT(count, 0);
}
