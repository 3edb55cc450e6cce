// SPDX-License-Identifier: GPL-3.0-or-later
// Files, lines and definitions that no one would write on purpose.
#include "tests/platform/file/OrdinaryUser.h"
#include "tests/preprocess/PreprocessFixture.h"

#include <QDir>

#include <climits>

#include <sys/stat.h>

namespace {

class BadInput : public PreprocessTest
{
protected:
    static QString Failure(const QString& name, const QString& reason)
    {
        return QStringLiteral("Unable to open the included file '%1': %2").arg(name, reason);
    }

    void ExpectFailure(const QString& name, const QString& reason)
    {
        const QString line = "#include " + name;
        EXPECT_EQ(Expand(line), line.toStdString());
        EXPECT_TRUE(control.HasPreprocessorErrors());
        EXPECT_EQ(Errors(), (std::map<int, QString>{{0, Failure(name, reason)}}));
    }
};

TEST_F(BadInput, TellsAFileThatIsMissing)
{
    ExpectFailure("gone.sql", "No such file or directory");
}

TEST_F(BadInput, TellsAFileWithoutPermission)
{
    const QString path = Write("locked.sql", "x");
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0), 0);
    const OrdinaryUser user;
    ExpectFailure("locked.sql", "Permission denied");
}

TEST_F(BadInput, TellsAFileThatIsTooLarge)
{
    QFile file(folder.filePath("huge.sql"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(INT_MAX + qint64(1)));
    ExpectFailure("huge.sql", "File too large");
}

TEST_F(BadInput, HasNoReasonForAFolder)
{
    QDir(folder.path()).mkdir("folder");
    ExpectFailure("folder", "");
}

TEST_F(BadInput, TellsTheLastReasonThatIsNoMissingFile)
{
    for (const char* path : {"A/x.sql", "B"})
        ASSERT_TRUE(QDir(folder.path()).mkpath(path));
    ASSERT_EQ(chmod(QFile::encodeName(Write("B/x.sql", "x")).constData(), 0), 0);
    const OrdinaryUser user;
    const QString a = folder.filePath("A");
    const QString b = folder.filePath("B");
    control.SetDatasourceSearchPath(a + ";" + b);
    ExpectFailure("x.sql", "Permission denied");
    control.SetDatasourceSearchPath(b + ";" + a);
    ExpectFailure("x.sql", ""); // of a folder
}

TEST_F(BadInput, PrefersEveryReasonToAMissingFile)
{
    QDir(folder.path()).mkdir("A");
    QDir(folder.path()).mkdir("B");
    const QString path = Write("B/x.sql", "x");
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0), 0);
    const OrdinaryUser user;
    for (const char* order : {"A;B", "B;A"}) {
        QStringList folders;
        for (const QString& name : QString(order).split(';'))
            folders << folder.filePath(name);
        control.SetDatasourceSearchPath(folders.join(';'));
        ExpectFailure("x.sql", "Permission denied");
    }
}

TEST_F(BadInput, TakesNamesOfEveryCharacter)
{
    const QString name = QString::fromUtf16(u"\u00e4 \u4e2d &%1 $(x) 'y' \u0416");
    Write(name, "found");
    EXPECT_EQ(Expand("#include <" + name + ">"),
              ("--#include <" + name + ">\rfound").toStdString());
    ExpectFailure("%1 %2 gone", "No such file or directory");
}

TEST_F(BadInput, TakesFilesWithEveryAsciiCharacterInTheirNames)
{
    for (char16_t unit = 0x21; unit < 0x7F; ++unit) {
        const QString name = QStringLiteral("a%1b").arg(QChar(unit));
        if (unit == u'/' || unit == u'\\') // separators of folders
            continue;
        Write(name, "found");
        EXPECT_EQ(Expand("#include " + name), ("--#include " + name + "\rfound").toStdString());
    }
}

TEST_F(BadInput, EndsAVariablesNameAtEveryOtherCharacter)
{
    for (char16_t unit = 0x20; unit < 0x7F; ++unit) {
        const QChar character(unit);
        const QString name = QStringLiteral("&&A%1").arg(character);
        const bool isPart = character.isLetterOrNumber() || unit == u'_';
        if (unit == u' ' || unit == u'&') // the name ends before, another begins
            continue;
        const QString line = "#define " + name + " 1\n";
        EXPECT_EQ(Expand(line + name), ((isPart ? "--" + line + "1" : line + name)).toStdString());
    }
}

TEST_F(BadInput, TakesValuesOfEveryCharacter)
{
    QString value;
    for (char16_t unit = 0x21; unit < 0x3000; ++unit) {
        const QChar character(unit);
        const bool isUsual = !character.isSpace() && unit != u'&' && unit != u'-' && unit != u'/' &&
                             unit != u'\'' && unit != u'"' && unit != u'*';
        if (isUsual && unit != 0x7F && unit != 0x85)
            value += character;
    }
    value += QString::fromUtf16(u"\xD83D\xDE00");
    const QString script = "#define &&A " + value + "\n[&&A]";
    EXPECT_EQ(Expand(script), ("--#define &&A " + value + "\n[" + value + "]").toStdString());
}

TEST_F(BadInput, SurvivesCyclesOfAnyLength)
{
    constexpr int kFiles = 50;
    for (int i = 0; i < kFiles; ++i)
        Write(QString("c%1").arg(i), QString("#include c%1\n").arg((i + 1) % kFiles).toUtf8());
    Expand("#include c0\n");
    EXPECT_TRUE(Errors().empty());
    EXPECT_EQ(control.GetText().count("--#include"), kFiles + 1);
}

TEST_F(BadInput, FollowsAThousandLevels)
{
    constexpr int kLevels = 1000;
    for (int i = 0; i < kLevels; ++i)
        Write(QString("n%1").arg(i), QString("level %1\n#include n%2").arg(i).arg(i + 1).toUtf8());
    Write(QString("n%1").arg(kLevels), "#define &&DEEP bottom\n&&DEEP");
    Expand("#include n0\n&&DEEP");
    const QString text = control.GetText();
    EXPECT_TRUE(Errors().empty());
    EXPECT_TRUE(text.endsWith("bottom\nbottom"));
    const int line = control.LineFromPosition(text.indexOf("\nbottom") + 1, 1);
    EXPECT_EQ(Map().Locate(line), (SourceLine{folder.filePath("n1000"), 1}));
    EXPECT_EQ(Map().IncludedFrom(line).size(), std::size_t(kLevels) + 1);
    EXPECT_EQ(Map().Locate(control.GetLineCount(1) - 1), (SourceLine{"", 1}));
}

TEST_F(BadInput, PassesOverMalformedDefinitions)
{
    for (const char* line : {"#define &&", "#define &&-A 1", "#define x&&A 1", "#define &&A",
                             "#define && A 1", "#define &&A&&B 1", "#define &&A\t"}) {
        const QString script = QString(line) + "\n&&A";
        EXPECT_EQ(Expand(script), script.toStdString());
    }
}

TEST_F(BadInput, TakesALineOfFiftyMegabytes)
{
    constexpr qsizetype kLength = 50 * 1024 * 1024;
    Expand("#define &&A 1\n" + QString(kLength, 'x') + " &&A\n&&A");
    EXPECT_EQ(control.GetLength(1), 2 + 14 + kLength + 3 + 1);
    Expand("#define &&A " + QString(kLength, 'x') + "\n#include " + QString(kLength, 'y'));
    EXPECT_EQ(Errors().size(), 1U);
    control.SetOriginalScript();
    EXPECT_EQ(control.GetLength(1), 12 + kLength + 10 + kLength);
    control.SetText(u"", 1);
    control.EmptyUndoBuffer(1);
}

TEST_F(BadInput, TakesANameOfFiftyMegabytes)
{
    constexpr qsizetype kLength = 50 * 1024 * 1024;
    Expand("#define &&A 1\n&&" + QString(kLength, 'A') + "\n&&A");
    EXPECT_EQ(control.GetLength(1), 2 + 14 + kLength + 1 + 1);
    control.SetText(u"", 1);
    control.EmptyUndoBuffer(1);
}

TEST_F(BadInput, TakesALineOfManyUses)
{
    constexpr int kUses = 5000;
    const QString use = "&&A /* a use */, 'it is &&A too', t.&&A.c, '&&A', ('&&B'), ";
    const QString result = "value /* a use */, 'it is value too', t.value.c, 'value', ('b, c'), ";
    EXPECT_EQ(Expand("#define &&A value\n#define &&B b, c\nselect " + use.repeated(kUses) + "0"),
              ("--#define &&A value\n--#define &&B b, c\nselect " + result.repeated(kUses) + "0")
                  .toStdString());
}

TEST_F(BadInput, LooksAtAReadOnlyTextAndLeavesItAlone)
{
    Write("a.sql", "#include nested\n");
    const QString script = "#define &&A 1\n#define &&B 2&&A\n&&A '&&B'\n#include a.sql\n"
                           "#include a.sql\n#include missing.sql\nselect 1\n";
    SetScript(script);
    control.EmptyUndoBuffer(1);
    control.SetSel(3, 7, 1);
    control.SetModified(false);
    control.SetReadOnly(1, 1);
    EXPECT_EQ(Expand(), script);
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
    EXPECT_TRUE(control.HasPreprocessorErrors());
    EXPECT_EQ(Errors(), (std::map<int, QString>{{5, Missing("missing.sql")}}));
    EXPECT_EQ(control.GetAnchor(1), 3);
    EXPECT_EQ(control.GetCurrentPos(1), 7);
    EXPECT_FALSE(control.GetModified());
    EXPECT_FALSE(control.CanUndo(1));
    control.SetOriginalScript();
    EXPECT_EQ(control.GetText(), script);
    control.SetReadOnly(0, 1);
}

TEST_F(BadInput, FindsNoDirectivesInAReadOnlyTextWithoutThem)
{
    SetScript("-- #include a.sql\nselect '#include b.sql'\n");
    control.SetReadOnly(1, 1);
    Expand();
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
    EXPECT_FALSE(control.HasPreprocessorErrors());
    control.SetReadOnly(0, 1);
}

} // namespace
