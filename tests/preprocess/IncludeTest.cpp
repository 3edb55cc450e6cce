// SPDX-License-Identifier: GPL-3.0-or-later
// Included files over the engine's own styling.
#include "platform/system/SpecialFolders.h"
#include "tests/preprocess/PreprocessFixture.h"

#include <QDir>

namespace {

using Includes = PreprocessTest;

TEST_F(Includes, StandBetweenTheCommentedLineAndItsEnd)
{
    Write("a.sql", "select a\n");
    EXPECT_EQ(Expand("x\n#include a.sql\ny"), "x\n--#include a.sql\rselect a\n\ny");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
    EXPECT_FALSE(control.HasPreprocessorErrors());
}

TEST_F(Includes, TakeTheNameInEveryForm)
{
    Write("a.sql", "a");
    for (const char* form :
         {"#include a.sql", "#include <a.sql>", "#include \"a.sql\"", "#include a.sql -- note",
          "#include a.sql /* note */", "  #INCLUDE\t<< a.sql >>  ", "#include \"\"a.sql\"\" "}) {
        const std::string text = Expand(form);
        EXPECT_EQ(text, "--" + std::string(form) + "\ra");
    }
}

TEST_F(Includes, LeaveTheWholeTextWhereSomethingIsSelected)
{
    SetScript("one two");
    control.SetSel(0, 3, 1);
    EXPECT_EQ(Expand(), "one two");
    EXPECT_EQ(control.GetWindowTextW(), "one");
}

TEST_F(Includes, AreNotSeenInAScriptWithout)
{
    EXPECT_EQ(Expand("select 1"), "select 1");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
    QString original("unchanged");
    zncoreeditor::GetCompileManager()->GetOriginalScript(original);
    EXPECT_TRUE(original.isEmpty());
}

TEST_F(Includes, AreNotSeenInCommentsAndStrings)
{
    Write("a.sql", "a");
    const QString script = "-- #include a.sql\n/* #include a.sql */\n'#include a.sql'";
    EXPECT_EQ(Expand(script), script.toStdString());
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

TEST_F(Includes, AreSeenInACommentOfALanguageThatIsNoSql)
{
    Bind("C++");
    Write("a.h", "int a;");
    EXPECT_EQ(Expand("/*\n#include a.h\n*/"), "/*\n//#include a.h\rint a;\n*/");
}

TEST_F(Includes, DropTheFrontOfALineWhateverStandsThere)
{
    EXPECT_EQ(Expand("x #include a.sql"), "x #include a.sql");
    EXPECT_TRUE(control.HasPreprocessorErrors());
    EXPECT_EQ(Errors(), (std::map<int, QString>{{0, Missing("de a.sql")}}));
}

TEST_F(Includes, OfTheFileItselfAreCommentedOut)
{
    Write("a.sql", "#include a.sql\nselect 1");
    EXPECT_EQ(Expand("#include a.sql"), "--#include a.sql\r--#include a.sql\nselect 1");
    EXPECT_TRUE(Errors().empty());
}

TEST_F(Includes, InACycleEnd)
{
    Write("a.sql", "#include b.sql");
    Write("b.sql", "#include a.sql");
    EXPECT_EQ(Expand("#include a.sql"), "--#include a.sql\r--#include b.sql\r--#include a.sql");
}

TEST_F(Includes, OfTheSameTextComeOnce)
{
    Write("a.sql", "a");
    EXPECT_EQ(Expand("#include a.sql\n #include a.sql \n#include  a.sql"),
              "--#include a.sql\ra\n-- #include a.sql \n--#include  a.sql\ra");
}

TEST_F(Includes, TellTheCaseOfLinesThatCameBefore)
{
    Write("a.sql", "a");
    EXPECT_EQ(Expand("#include a.sql\n#INCLUDE a.sql"), "--#include a.sql\ra\n--#INCLUDE a.sql\ra");
}

TEST_F(Includes, AreWholeWords)
{
    Write("a.sql", "a");
    EXPECT_EQ(Expand("#includes a.sql\nx#include a.sql"), "#includes a.sql\nx#include a.sql");
    EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound());
}

// There a bare # begins a comment, and -- does only with a blank behind it.
TEST_F(Includes, AreSeenInMySqlAtTheFrontOfALine)
{
    Bind("MySQL");
    Write("a.sql", "one &&B # &&B\n#note");
    EXPECT_EQ(Expand("#define &&B two\n  #INCLUDE <a.sql> -- c\n&&B"),
              "-- #define &&B two\n--   #INCLUDE <a.sql> -- c\rone two # &&B\n#note\ntwo");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
    for (const char* comment : {"# #include a.sql", "x #include a.sql", "#includes a.sql",
                                "/* #include a.sql\n#include a.sql */", "-- #include a.sql",
                                "#define", "##define &&A 1", "/* */ #include a.sql"}) {
        EXPECT_EQ(Expand(comment), comment);
        EXPECT_FALSE(control.GetIncludeOrDefineDirectivesFound()) << comment;
    }
}

TEST_F(Includes, ThatFailTwiceGetOneMessage)
{
    EXPECT_EQ(Expand("#include no.sql\n#include no.sql"), "#include no.sql\n--#include no.sql");
    EXPECT_EQ(Errors(), (std::map<int, QString>{{0, Missing("no.sql")}}));
}

TEST_F(Includes, TellAStaleMessageAfterAMissInAnotherFolder)
{
    QDir(folder.path()).mkdir("A");
    QDir(folder.path()).mkdir("B");
    Write("B/x.sql", "x");
    control.SetDatasourceSearchPath(folder.filePath("A") + ";" + folder.filePath("B"));
    EXPECT_EQ(Expand("#include x.sql\n#include y.sql"), "--#include x.sql\rx\n#include y.sql");
    EXPECT_EQ(Errors(), (std::map<int, QString>{{2, Missing("x.sql")}}));
}

TEST_F(Includes, LookThroughTheDefaultFoldersLast)
{
    QDir(folder.path()).mkdir("A");
    QDir(folder.path()).mkdir("B");
    Write("A/x.sql", "first");
    Write("B/x.sql", "second");
    Write("B/y.sql", "default");
    options.paths[option::IncludePath] = " " + folder.filePath("B") + "/ ; ";
    control.SetDatasourceSearchPath(folder.filePath("A"));
    EXPECT_EQ(Expand("#include x.sql\n#include y.sql"),
              "--#include x.sql\rfirst\n--#include y.sql\rdefault");
}

TEST_F(Includes, OfTheOwnApplicationHaveFoldersOfTheirOwn)
{
    class OwnFolders final : public ISpecialFolders
    {
    public:
        OwnFolders() { SetSpecialFolders(this); }
        ~OwnFolders() override { SetSpecialFolders(nullptr); }
        QString AppName() const override { return QStringLiteral("dbglazier"); }
    };
    Write("a.sql", "a");
    control.SetDatasourceSearchPath("");
    options.paths[option::OwnIncludePath] = folder.path();
    EXPECT_EQ(Expand("#include a.sql"), "#include a.sql");
    const OwnFolders folders;
    EXPECT_EQ(Expand("#include a.sql"), "--#include a.sql\ra");
}

TEST_F(Includes, LeaveEmptyEntriesOfAListOut)
{
    Write("a.sql", "a");
    control.SetDatasourceSearchPath(";; " + folder.path() + " ;");
    EXPECT_EQ(Expand("#include a.sql"), "--#include a.sql\ra");
}

TEST_F(Includes, UnderstandEitherSeparator)
{
    QDir(folder.path()).mkdir("sub");
    Write("sub/a.sql", "a");
    control.SetDatasourceSearchPath(folder.path() + "\\");
    EXPECT_EQ(Expand("#include sub\\a.sql"), "--#include sub\\a.sql\ra");
}

TEST_F(Includes, DoNotLookAtAnAbsoluteName)
{
    const QString path = Write("a.sql", "a");
    EXPECT_EQ(Expand("#include " + path), ("#include " + path).toStdString());
    EXPECT_EQ(Errors(), (std::map<int, QString>{{0, Missing(path)}}));
}

TEST_F(Includes, BringDefinitionsToWhatStandsBelow)
{
    Write("a.sql", "#define &&A 1\nselect &&A");
    EXPECT_EQ(Expand("&&A\n#include a.sql\nselect &&A"),
              "&&A\n--#include a.sql\r--#define &&A 1\nselect 1\nselect 1");
}

TEST_F(Includes, DoNotOverruleADefinitionOfTheScript)
{
    Write("a.sql", "#define &&A 2");
    EXPECT_EQ(Expand("#define &&A 1\n#include a.sql\n&&A"),
              "--#define &&A 1\n--#include a.sql\r--#define &&A 2\n1");
}

TEST_F(Includes, TakeVariablesInTheName)
{
    Write("v2.sql", "two");
    EXPECT_EQ(Expand("#define &&V 2\n#include v&&V.sql"),
              "--#define &&V 2\n--#include v2.sql\rtwo");
}

TEST_F(Includes, GoOnBelowAMalformedDefinition)
{
    Write("a.sql", "&&A");
    EXPECT_EQ(Expand("#define &&A 1\n#define X a&&b\n&&A\n#include a.sql\n&&A"),
              "--#define &&A 1\n#define X a&&b\n&&A\n--#include a.sql\r1\n1");
}

TEST_F(Includes, FinishADefinitionThatTheFirstPassLeft)
{
    // The first pass misses the second reference; the pass behind the include meets it.
    Write("a.sql", "x");
    EXPECT_EQ(Expand("#define &&A 1\n#define &&B 2\n#include a.sql\n#define &&C &&A&&B\n&&C"),
              "--#define &&A 1\n--#define &&B 2\n--#include a.sql\rx\n--#define &&C 12\n&&C");
}

TEST_F(Includes, ThatOpenACommentHideWhatStandsBelow)
{
    Write("a.sql", "/* open");
    EXPECT_EQ(Expand("#include a.sql\n#include b.sql\n*/\n#include b.sql"),
              "--#include a.sql\r/* open\n#include b.sql\n*/\n#include b.sql");
    EXPECT_EQ(Errors(), (std::map<int, QString>{{4, Missing("b.sql")}}));
}

TEST_F(Includes, ThatCloseACommentUncoverWhatStandsBelow)
{
    // The commented line takes the opening of the comment away, so the text below is text again.
    Write("a.sql", "#define &&A 1");
    EXPECT_EQ(Expand("#define &&B 2\n#include a.sql /*\n&&A &&B\n*/"),
              "--#define &&B 2\n--#include a.sql /*\r--#define &&A 1\n1 2\n*/");
}

TEST_F(Includes, OfAnotherEncodingLeaveTheScriptsOwn)
{
    control.SetEncoding(FileEncodeConverter::encUTF8);
    control.SetWriteEncodingSig(false);
    Write("a.sql", QByteArray("\xFF\xFE\x61\x00\xE4\x00", 6));
    EXPECT_EQ(Expand("#include a.sql"), "--#include a.sql\ra\xC3\xA4");
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF8);
    EXPECT_FALSE(control.GetWriteEncodingSig());
}

TEST_F(Includes, ThatFailAreToldByLineAndAllTogether)
{
    EXPECT_EQ(Expand("#include a\n\n#include b"), "#include a\n\n#include b");
    EXPECT_EQ(Errors(), (std::map<int, QString>{{0, Missing("a")}, {2, Missing("b")}}));
    Expand("select 1");
    EXPECT_TRUE(Errors().empty());
    EXPECT_FALSE(control.HasPreprocessorErrors());
}

TEST_F(Includes, OfAnEmptyScriptLeaveWhatTheRunBeforeFound)
{
    Expand("#include a");
    EXPECT_EQ(Expand(""), "");
    EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
    EXPECT_TRUE(control.HasPreprocessorErrors());
}

TEST_F(Includes, KeepTheFirstMessageOfALine)
{
    control.SetIncludeDirectiveErrorMessageAndLine("first", 3);
    control.SetIncludeDirectiveErrorMessageAndLine("second", 3);
    EXPECT_EQ(Errors().at(3), "first");
}

TEST_F(Includes, DoNotTouchTheModifiedFlag)
{
    Write("a.sql", "a");
    SetScript("#include a.sql");
    control.SetModified(true);
    Expand();
    EXPECT_TRUE(control.GetModified());
}

} // namespace
