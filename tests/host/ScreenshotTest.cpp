// SPDX-License-Identifier: GPL-3.0-or-later
// The program as it is started for a picture.
#include "tests/SourceTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kProgram = QStringLiteral(ZN_WORKBENCH);

struct Outcome
{
    int exitCode = -1;
    QString errors;
    QString output;
};

Outcome Start(const QStringList& words, const QString& scale = QStringLiteral("1"),
              const QString& path = kProgram)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
    program.setProcessEnvironment(environment);
    program.start(path, words);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardError()),
            QString::fromUtf8(program.readAllStandardOutput())};
}

QString Sample(const char* name)
{
    return QString::fromStdString(InSourceTree("samples/")) + QLatin1String(name);
}

// How many colours the picture has: an empty window has few.
qsizetype ColourCount(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return colours.size();
}

} // namespace

TEST(Screenshot, ShowsTheScript)
{
    QTemporaryDir folder;
    const QString picture = folder.filePath("window.png");
    const Outcome outcome = Start({"--screenshot", picture, Sample("schema.sql")});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
    const QImage withScript(picture);
    ASSERT_FALSE(withScript.isNull());

    ASSERT_EQ(Start({"--screenshot", picture}).exitCode, 0);
    EXPECT_GT(ColourCount(withScript), ColourCount(QImage(picture)) + 50);
}

TEST(Screenshot, IsTwiceAsLargeAtTwiceTheScale)
{
    QTemporaryDir folder;
    const QString picture = folder.filePath("window.png");
    ASSERT_EQ(Start({"--screenshot", picture, Sample("schema.sql")}).exitCode, 0);
    const QSize once = QImage(picture).size();
    ASSERT_EQ(Start({"--screenshot", picture, Sample("schema.sql")}, "2").exitCode, 0);
    EXPECT_EQ(QImage(picture).size(), once * 2);
}

TEST(Screenshot, NamesTheScriptThatIsMissing)
{
    QTemporaryDir folder;
    const Outcome outcome =
        Start({"--screenshot", folder.filePath("window.png"), folder.filePath("no.sql")});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.errors.contains(QStringLiteral("no.sql")));
    EXPECT_TRUE(outcome.errors.contains(QStringLiteral("There is no")));
}

TEST(Screenshot, TellsThatItCannotBeWritten)
{
    QTemporaryDir folder;
    const Outcome outcome = Start({"--screenshot", folder.filePath("gone/window.png")});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.errors.contains(QStringLiteral("cannot be written")));
}

TEST(Program, TellsItsOptionsAndEnds)
{
    const Outcome outcome = Start({"--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.output.contains(QStringLiteral("--screenshot")));
    EXPECT_EQ(Start({"--nonsense"}).exitCode, 2);
}

TEST(Program, TellsThatItsEngineIsMissing)
{
    // The program and its libraries, all but the module.
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("bin"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("lib"));
    const QDir libraries(QFileInfo(kProgram).absolutePath() + "/../lib");
    for (const QString& name : libraries.entryList({"libZNCoreEditor.so.*", "libZNPlatform.so.*"}))
        ASSERT_TRUE(QFile::copy(libraries.filePath(name), folder.filePath("lib/") + name));
    const QString alone = folder.filePath("bin/znworkbench");
    ASSERT_TRUE(QFile::copy(kProgram, alone));

    const Outcome outcome =
        Start({"--screenshot", folder.filePath("window.png")}, QStringLiteral("1"), alone);
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_TRUE(outcome.errors.contains(QStringLiteral("libZNBaseEditor.so")));
    EXPECT_FALSE(QFile::exists(folder.filePath("window.png")));
}
