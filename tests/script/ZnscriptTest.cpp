// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a pipeline starts it, without a display.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Outcome
{
    int exitCode = -1;
    std::string output;
    std::string errors;
};

class Znscript : public testing::Test
{
protected:
    Outcome Start(const QStringList& words, const QString& output = QString()) const
    {
        QProcess program;
        if (!output.isEmpty())
            program.setStandardOutputFile(output);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(name));
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder.path());
        program.start(QStringLiteral(ZN_ZNSCRIPT), words);
        program.write(input);
        program.closeWriteChannel();
        if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
            return {};
        return {program.exitCode(), program.readAllStandardOutput().toStdString(),
                program.readAllStandardError().toStdString()};
    }

    void Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::string Read(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    QTemporaryDir folder;
    QByteArray input; // of the program
};

TEST_F(Znscript, WritesAnExpandedScript)
{
    Write("main.sql", "#define &&A 1\n#include part.sql\nselect &&A;\n");
    Write("part.sql", "part &&A\n");
    const Outcome outcome = Start({"expand", "--path", folder.path(), "main.sql"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, "--#define &&A 1\n--#include part.sql\npart 1\n\nselect 1;\n");
    EXPECT_EQ(Read("main.sql"), "#define &&A 1\n#include part.sql\nselect &&A;\n");
}

TEST_F(Znscript, LooksThroughAllFolders)
{
    QDir(folder.path()).mkdir("a");
    QDir(folder.path()).mkdir("b");
    Write("b/part.sql", "part");
    Write("main.sql", "#include part.sql");
    EXPECT_EQ(Start({"expand", "--path", "a;b", "main.sql"}).output, "--#include part.sql\npart");
}

TEST_F(Znscript, TakesVariablesFromItsCommandLine)
{
    Write("main.sql", "#define &&A script\n#define &&C 3\n&&A &&B &&C");
    const Outcome outcome =
        Start({"expand", "--define", "A=line", "--define", "B=x=y", "main.sql"});
    EXPECT_EQ(outcome.output, "--#define &&A script\n--#define &&C 3\nline x=y 3");
}

TEST_F(Znscript, TellsFailuresWhereTheUserWroteThem)
{
    Write("main.sql", "select 1;\n#include part.sql\nselect 2;\n#include gone.sql\n");
    Write("part.sql", "\n\n#include missing.sql\n");
    const Outcome outcome = Start({"expand", "--path", folder.path(), "main.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "");
    const std::string part = folder.filePath("part.sql").toStdString();
    EXPECT_EQ(outcome.errors, part + ":3: Unable to open the included file 'missing.sql': "
                                     "No such file or directory\n"
                                     "main.sql:2: included from here\n"
                                     "main.sql:4: Unable to open the included file 'gone.sql': "
                                     "No such file or directory\n");
}

TEST_F(Znscript, WritesNothingOfAScriptThatIncludesWhatIsNoText)
{
    Write("main.sql", "#include cut.sql\n#include whole.sql\n");
    Write("cut.sql", QByteArray("\xFF\xFE"
                                "a\0b",
                                5));
    Write("whole.sql", "select 1;\n");
    const Outcome outcome = Start({"expand", "--path", ".", "main.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "./cut.sql: not all of it can be read as utf-16le\n");
}

TEST_F(Znscript, WritesTheResultInTheEncodingAskedFor)
{
    Write("main.sql", "\xC3\xA4 \xE2\x82\xAC");
    EXPECT_EQ(Start({"expand", "--encoding", "windows-1252", "main.sql"}).output, "\xE4 \x80");
    EXPECT_EQ(Start({"expand", "--encoding", "utf-16le", "--mark", "main.sql"}).output,
              std::string("\xFF\xFE\xE4\x00 \x00\xAC\x20", 8));
    EXPECT_EQ(Start({"expand", "main.sql"}).output, "\xC3\xA4 \xE2\x82\xAC");
}

TEST_F(Znscript, WritesTheResultToAFile)
{
    Write("main.sql", "#define &&A 1\n&&A\n");
    const Outcome outcome =
        Start({"expand", "--output", "result.sql", "--eol", "crlf", "main.sql"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(Read("result.sql"), "--#define &&A 1\r\n1\r\n");
}

TEST_F(Znscript, TellsWhyTheResultCannotBeWritten)
{
    Write("main.sql", "select 1;\n");
    const auto errorsOf = [this](const QString& output) {
        const Outcome outcome = Start({"expand", "--output", output, "main.sql"});
        EXPECT_EQ(outcome.exitCode, 1);
        return outcome.errors;
    };
    EXPECT_EQ(errorsOf("no/where.sql"),
              "no/where.sql: the file cannot be written: its folder does not exist\n");
    EXPECT_EQ(errorsOf("."), ".: the file cannot be written: this is a folder\n");
    EXPECT_EQ(errorsOf("/dev/full"),
              "/dev/full: the file cannot be written: the disk may be full\n");
}

TEST_F(Znscript, KnowsTheLanguagesOfTheEditor)
{
    Write("main.h", "#define &&A 1\n&&A");
    EXPECT_EQ(Start({"expand", "--language", "c++", "main.h"}).output, "//#define &&A 1\n1");
    const Outcome outcome = Start({"expand", "--language", "Klingon", "main.h"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.errors, "znscript: there is no language “Klingon”\n");
}

TEST_F(Znscript, ConvertsFilesInTheirPlace)
{
    Write("a.sql", "\xE4\r\nb\n");
    const Outcome outcome = Start({"convert", "--to", "utf-8", "--eol", "lf", "a.sql"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(Read("a.sql"), "\xC3\xA4\nb\n");
    EXPECT_EQ(Start({"convert", "--to", "utf-16be", "--mark", "a.sql"}).exitCode, 0);
    EXPECT_EQ(Read("a.sql"), std::string("\xFE\xFF\0\xE4\0\n\0b\0\n", 10));
}

TEST_F(Znscript, KeepsAFileThatTheEncodingCannotHold)
{
    Write("a.sql", "a\nb \xE4\xB8\xAD?\n");
    Write("b.sql", "\xEF\xBB\xBF\xC3\xA4?");
    const Outcome outcome = Start({"convert", "--to", "windows-1252", "a.sql", "b.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors, "a.sql:2: a character is not in windows-1252\n");
    EXPECT_EQ(Read("a.sql"), "a\nb \xE4\xB8\xAD?\n");
    EXPECT_EQ(Read("b.sql"), "\xE4?"); // the others are converted all the same
}

TEST_F(Znscript, KeepsAFileThatAConversionWouldChange)
{
    const QByteArray half("\xFF\xFE"
                          "a\0\n\0\x00\xD8"
                          "b\0",
                          10);
    Write("half.sql", half);
    Write("sign.sql", "\xEF\xBB\xBF\xEF\xBF\xBD");
    Write("cut.sql", QByteArray("\xFF\xFE"
                                "a\0b",
                                5));
    const Outcome outcome = Start({"convert", "--to", "utf-8", "half.sql", "sign.sql", "cut.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors, "half.sql:2: a character is half of a pair, which cannot be kept\n"
                              "cut.sql: not all of it can be read as utf-16le\n");
    EXPECT_EQ(Read("half.sql"), half.toStdString());
    EXPECT_EQ(Read("sign.sql"), "\xEF\xBF\xBD"); // the character itself is one like any other
    EXPECT_EQ(Read("cut.sql"), std::string("\xFF\xFE"
                                           "a\0b",
                                           5));
}

TEST_F(Znscript, DetectsEncodingsAndLineEnds)
{
    Write("a.sql", "\xEF\xBB\xBFx\n");
    Write("b.sql", QByteArray("\xFF\xFE"
                              "a\0\r\0\n\0b\0",
                              10));
    Write("c.sql", "\xE4\r\n\n");
    const Outcome outcome = Start({"detect", "a.sql", "b.sql", "gone.sql", "c.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "a.sql: utf-8 with mark, line ends: lf\n"
                              "b.sql: utf-16le with mark, line ends: crlf\n"
                              "c.sql: windows-1252, line ends: mixed\n");
    EXPECT_EQ(outcome.errors, "gone.sql: the file does not exist\n");
}

TEST_F(Znscript, ListsBatchesByTheirLines)
{
    Write("a.tsql", "use a;\nselect 1\n  select 2\nGO\n-- no statement\nGO\n\nselect 3\nGO 2\n");
    Write("b.pls", "select 1 from dual;\n/\nbegin null; end;\n/\n");
    const Outcome outcome = Start({"batches", "a.tsql", "b.pls"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, "a.tsql:1: lines 1-3, 2 statements\n"
                              "a.tsql:7: lines 7-8, 1 statement\n"
                              "b.pls:1: lines 1-1, 1 statement\n"
                              "b.pls:3: lines 3-3, 1 statement\n");
}

TEST_F(Znscript, ListsBatchesThatCommentsDrawOut)
{
    Write("a.tsql", "select 1\n/* a */ GO /* on\nthe next */ -- line\nselect '\nGO\n'\n/*\nGO\n*/");
    EXPECT_EQ(Start({"batches", "a.tsql"}).output, "a.tsql:1: lines 1-1, 1 statement\n"
                                                   "a.tsql:2: lines 2-6, 1 statement\n");
}

TEST_F(Znscript, ListsBatchesOfTheLanguageThatItIsTold)
{
    Write("a.sql", "select 1;\n/\nselect 2;\nGO\nselect 3;\n");
    EXPECT_EQ(Start({"batches", "a.sql"}).output, "a.sql:1: lines 1-3, 2 statements\n"
                                                  "a.sql:5: lines 5-5, 1 statement\n");
    EXPECT_EQ(Start({"batches", "--language", "PL/SQL", "a.sql"}).output,
              "a.sql:1: lines 1-1, 1 statement\n"
              "a.sql:3: lines 3-5, 2 statements\n");
}

TEST_F(Znscript, ListsBatchesBetweenTheSeparatorThatItIsTold)
{
    Write("a.mysql", "select 1;\ngo;\n%%\nselect 2;");
    EXPECT_EQ(Start({"batches", "--separator", "%%", "a.mysql"}).output,
              "a.mysql:1: lines 1-2, 2 statements\n"
              "a.mysql:4: lines 4-4, 1 statement\n");
    Write("a.tsql", "select 1\nGO\nselect 2\n");
    EXPECT_EQ(Start({"batches", "--separator", "", "a.tsql"}).output,
              "a.tsql:1: lines 1-3, 1 statement\n");
}

TEST_F(Znscript, TellsWhichFilesHaveNoBatches)
{
    Write("a.txt", "select 1");
    Write("b.sql", "select 1");
    const Outcome outcome = Start({"batches", "a.txt", "gone.sql", ".", "b.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "b.sql:1: lines 1-1, 1 statement\n");
    EXPECT_EQ(outcome.errors, "a.txt: its language has no batches; --language names another\n"
                              "gone.sql: the file does not exist\n"
                              ".: this is a folder\n");
    const Outcome unknown = Start({"batches", "--language", "Klingon", "b.sql"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_EQ(unknown.errors, "znscript: there is no language “Klingon”\n");
}

TEST_F(Znscript, HelpsWithEachCommand)
{
    for (const QStringList& words :
         {QStringList{"--help"}, QStringList{"expand", "--help"}, QStringList{"batches", "--help"},
          QStringList{"convert", "-h"}, QStringList{"detect", "-h"}}) {
        const Outcome outcome = Start(words);
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.output.find("Usage: znscript"), 0U) << outcome.output;
        EXPECT_EQ(outcome.errors, "");
    }
}

TEST_F(Znscript, RefusesACommandLineThatIsWrong)
{
    for (const QStringList& words :
         {QStringList{}, QStringList{"compile"}, QStringList{"expand"},
          QStringList{"expand", "a", "b"}, QStringList{"expand", "--what", "a"},
          QStringList{"expand", "--define", "A", "a"},
          QStringList{"expand", "--define", "A-B=1", "a"},
          QStringList{"expand", "--define", "A=", "a"}, QStringList{"expand", "--path"},
          QStringList{"expand", "--encoding", "ebcdic", "a"}, QStringList{"convert", "a"},
          QStringList{"convert", "--to", "utf-8", "--eol", "nel", "a"},
          QStringList{"convert", "--to", "windows-1252", "--mark", "a"}, QStringList{"detect"},
          QStringList{"batches"}, QStringList{"batches", "--path", "a", "b"}}) {
        const Outcome outcome = Start(words);
        EXPECT_EQ(outcome.exitCode, 2) << words.join(' ').toStdString();
        EXPECT_EQ(outcome.errors.find("znscript: "), 0U) << outcome.errors;
        EXPECT_EQ(outcome.errors.find(".."), std::string::npos) << outcome.errors;
        EXPECT_EQ(outcome.output, "");
    }
}

TEST_F(Znscript, HelpsWithACommandLineThatIsRight)
{
    const std::string help = Start({"expand", "--help"}).output;
    EXPECT_EQ(help.find("Usage: znscript expand [options] FILE\n"), 0U) << help;
}

TEST_F(Znscript, TellsThatItsOutputCannotBeWritten)
{
    Write("a.sql", "select 1;\n");
    for (const QStringList& words :
         {QStringList{"--help"}, QStringList{"detect", "--help"}, QStringList{"detect", "a.sql"},
          QStringList{"batches", "a.sql"}, QStringList{"expand", "a.sql"}}) {
        const Outcome outcome = Start(words, "/dev/full");
        EXPECT_EQ(outcome.exitCode, 1) << words.join(' ').toStdString();
        EXPECT_NE(outcome.errors.find("cannot be written\n"), std::string::npos) << outcome.errors;
    }
}

TEST_F(Znscript, TellsWhatItCannotRead)
{
    EXPECT_EQ(Start({"expand", "."}).errors, ".: this is a folder\n");
    EXPECT_EQ(Start({"expand", "gone.sql"}).exitCode, 1);
    EXPECT_EQ(Start({"detect", QStringLiteral("a\uFFFD.sql")}).errors,
              "a\uFFFD.sql: a name that is not UTF-8 cannot be opened\n");
}

TEST_F(Znscript, KeepsTheLineEndsOfAScriptThatBeginsWithAnEmptyLine)
{
    Write("part.sql", "part\nmore\n");
    Write("crlf.sql", "\r\n#define &&A 1\r\n#include part.sql\r\n&&A\r\n");
    EXPECT_EQ(Start({"expand", "--path", folder.path(), "crlf.sql"}).output,
              "\r\n--#define &&A 1\r\n--#include part.sql\r\npart\r\nmore\r\n\r\n1\r\n");
    Write("lf.sql", "\n\n1\r\n2\n");
    EXPECT_EQ(Start({"expand", "lf.sql"}).output, "\n\n1\n2\n");
}

TEST_F(Znscript, DividesByATerminatorOfItsCommandLine)
{
    const QStringList words = {"batches", "--language", "DB2", "--separator", "GO"};
    Write("b.sql", "select 1; select 2; select 3@ select 4@");
    EXPECT_EQ(Start(words + QStringList{"--terminator", "@", "b.sql"}).output,
              "b.sql:1: lines 1-1, 2 statements\n");
    EXPECT_EQ(Start(words + QStringList{"--terminator", "a b", "b.sql"}).exitCode, 2);
}

TEST_F(Znscript, LooksBesideTheScriptIfItIsTold)
{
    QDir(folder.path()).mkdir("a");
    Write("a/part.sql", "beside");
    Write("part.sql", "elsewhere");
    Write("a/main.sql", "#include part.sql");
    EXPECT_EQ(Start({"expand", "--path", ".", "a/main.sql"}).output,
              "--#include part.sql\nelsewhere");
    EXPECT_EQ(Start({"expand", "--script-folder", "--path", ".", "a/main.sql"}).output,
              "--#include part.sql\nbeside");
    EXPECT_EQ(Start({"expand", "a/main.sql"}).exitCode, 1);
}

TEST_F(Znscript, TellsWhatStaysOfAScriptIfItIsStrict)
{
    Write("main.sql", "#include part.sql\n#define X 1\nselect '&&B';\n");
    Write("part.sql", "\nselect &&A;\n");
    EXPECT_EQ(Start({"expand", "--script-folder", "main.sql"}).exitCode, 0);
    const Outcome outcome = Start({"expand", "--strict", "--script-folder", "main.sql"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "./part.sql:2: Nothing defines &&A.\n"
              "main.sql:2: This defines nothing: the name of a variable begins with &&.\n"
              "main.sql:3: Nothing defines &&B.\n");
    Write("main.sql", "#define &&A 1\nselect &&A;\n");
    EXPECT_EQ(Start({"expand", "--strict", "main.sql"}).output, "--#define &&A 1\nselect 1;\n");
}

TEST_F(Znscript, ReadsTheStandardInput)
{
    Write("part.sql", "part");
    input = "#define &&A 1\r\n#include part.sql\r\n&&A";
    EXPECT_EQ(Start({"expand", "--script-folder", "-"}).output,
              "--#define &&A 1\r\n--#include part.sql\r\npart\r\n1");
    input = QByteArray("\xFF\xFE"
                       "a\0\n\0",
                       6);
    EXPECT_EQ(Start({"detect", "-"}).output, "-: utf-16le with mark, line ends: lf\n");
    EXPECT_EQ(Start({"convert", "--to", "utf-8", "--eol", "crlf", "-"}).output, "a\r\n");
    input = "select 1;\nGO\nselect &&A;\n";
    EXPECT_EQ(Start({"batches", "-"}).output, "-:1: lines 1-1, 1 statement\n"
                                              "-:3: lines 3-3, 1 statement\n");
    EXPECT_EQ(Start({"expand", "--strict", "-"}).errors, "-:3: Nothing defines &&A.\n");
}

TEST_F(Znscript, TellsItsVersion)
{
    const Outcome outcome = Start({"--version"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "znscript " ZN_VERSION "\n");
}

TEST_F(Znscript, TellsTheSyntaxOfDirectives)
{
    const std::string help = Start({"expand", "--help"}).output;
    EXPECT_NE(help.find("\n  #define &&NAME VALUE "), std::string::npos) << help;
    EXPECT_NE(help.find("--script-folder"), std::string::npos) << help;
}

} // namespace
