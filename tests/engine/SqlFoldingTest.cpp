// SPDX-License-Identifier: GPL-3.0-or-later
// The folds of SQL as pictures: in front of each line its depth, and H where it is a header.
#include "control/EngineLooks.h"
#include "engine/window/EngineWindow.h"
#include "tests/engine/SqlUnderTest.h"

#include <QImage>
#include <QString>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

constexpr int kAse = 2, kTransactSql = 3, kDb2 = 4, kOracle = 5, kGeneric = 9, kMySql = 14,
              kInterBase = 15, kIq = 18;

void ExpectFolds(int lexer, const std::string& picture, const char16_t* dialect = u"sql")
{
    EXPECT_EQ(FoldsOf(lexer, picture, dialect), picture);
}

} // namespace

TEST(SqlFolds, ABlockFoldsFromItsBeginToItsEnd)
{
    ExpectFolds(kMySql, "0  |create procedure p()\n"
                        "0H |begin\n"
                        "1  |  select 1;\n"
                        "1H |  begin\n"
                        "2  |    select 2;\n"
                        "2  |  end;\n"
                        "1  |end;\n"
                        "0  |select 3;\n");
}

TEST(SqlFolds, ATransactionIsNoBlock)
{
    ExpectFolds(kMySql, "0  |begin;\n"
                        "0  |select 1;\n"
                        "0  |commit;\n");
    ExpectFolds(kTransactSql, "0  |select 0\n"
                              "0  |begin tran\n"
                              "0  |select 1\n"
                              "0H |begin try\n"
                              "1  |select 2\n"
                              "1  |end try\n"
                              "0H |begin catch\n"
                              "1  |end catch\n"
                              "0  |begin distributed transaction\n"
                              "0  |end conversation @h\n");
    ExpectFolds(kGeneric,
                "0  |begin;\n"
                "0  |select 1;\n",
                u"postgresql");
    ExpectFolds(kGeneric,
                "0  |begin immediate;\n"
                "0  |select 1;\n",
                u"sqlite");
}

TEST(SqlFolds, CaseFoldsToItsEnd)
{
    ExpectFolds(kDb2, "0H |select case x\n"
                      "1  |  when 1 then 2\n"
                      "1  |end from t;\n"
                      "0  |select case x when 1 then 2 end from t;\n"
                      "0  |select 3;\n");
}

TEST(SqlFolds, ACaseThatNeverEndsEndsWithItsStatement)
{
    ExpectFolds(kDb2, "0H |select case x\n"
                      "1  |  when 1 then 2;\n"
                      "0  |select 3;\n");
}

TEST(SqlFolds, NamedEndsCloseOnce)
{
    ExpectFolds(kMySql, "0  |create procedure p()\n"
                        "0H |begin\n"
                        "1H |  if a then\n"
                        "2  |    set b = if(c, 1, 2);\n"
                        "2  |  elseif d then\n"
                        "2  |    set e = 1;\n"
                        "2  |  end if;\n"
                        "1H |  while a do\n"
                        "2H |    case b\n"
                        "3  |      when 1 then set c = 1;\n"
                        "3  |    end case;\n"
                        "2  |  end while;\n"
                        "1H |  repeat\n"
                        "2  |    set f = repeat('x', 3);\n"
                        "2  |  until g end repeat;\n"
                        "1H |  l: loop\n"
                        "2  |    leave l;\n"
                        "2  |  end loop;\n"
                        "1  |end;\n"
                        "0  |drop table if exists t;\n");
}

TEST(SqlFolds, DeclarationsAndTheirBlockAreOneFold)
{
    ExpectFolds(kOracle, "0H |create or replace procedure p is\n"
                         "2  |  v number;\n"
                         "2H |  function f return number is\n"
                         "3  |  begin\n"
                         "3H |    for i in 1 .. 9 loop\n"
                         "4  |      null;\n"
                         "4  |    end loop;\n"
                         "3  |  end f;\n"
                         "2  |begin\n"
                         "2  |  v := f();\n"
                         "2  |end p;\n"
                         "0  |/\n");
    ExpectFolds(kOracle, "0H |declare\n"
                         "2  |  v number;\n"
                         "2  |begin\n"
                         "2  |  null;\n"
                         "2  |end;\n"
                         "0  |/\n");
}

TEST(SqlFolds, AnExternalRoutineHasNoBody)
{
    ExpectFolds(kOracle, "0  |create function f return number as language java name 'x';\n"
                         "0  |/\n"
                         "0H |select 1 from dual;\n"
                         "1  |select 2 from dual;\n"
                         "0  |/\n");
}

TEST(SqlFolds, WhereNoEndNamesThemOnlyBlocksFold)
{
    ExpectFolds(kInterBase, "0  |set term ^ ;\n"
                            "0H |create procedure p as\n"
                            "1  |declare variable v integer;\n"
                            "1  |begin\n"
                            "1  |  if (v = 1) then\n"
                            "1H |  begin\n"
                            "2  |    v = 2;\n"
                            "2  |  end\n"
                            "1  |end^\n"
                            "0  |set term ; ^\n"
                            "0  |select 1 from t;\n");
}

TEST(SqlFolds, ADelimiterOfTheScriptEndsABody)
{
    ExpectFolds(kMySql, "0  |delimiter $$\n"
                        "0  |create procedure p()\n"
                        "0H |begin\n"
                        "1  |  select 1;\n"
                        "1  |end$$\n"
                        "0  |select (1$$\n"
                        "0  |delimiter ;\n"
                        "0  |select 2;\n");
}

TEST(SqlFolds, ParenthesesFoldOverLines)
{
    ExpectFolds(kDb2, "0H |create table t (\n"
                      "1  |  a int,\n"
                      "1H |  b decimal(\n"
                      "2  |    8, 2)\n"
                      "1  |);\n"
                      "0H |insert into t (\n"
                      "1  |  a, b\n"
                      "0H |) values (\n"
                      "1  |  f(1), (2)\n"
                      "1  |);\n");
}

TEST(SqlFolds, AParenthesisThatIsNeverClosedEndsWithItsStatement)
{
    ExpectFolds(kDb2, "0H |select (1 +\n"
                      "1  |  2;\n"
                      "0  |select 3;\n");
}

TEST(SqlFolds, BlockCommentsFoldOverLines)
{
    ExpectFolds(kMySql, "0H |/* a\n"
                        "1  |\n"
                        "1  |   ( begin */ select 1;\n"
                        "0  |/* a */ select 2;\n"
                        "0  |-- ( begin\n"
                        "0  |select '( begin\n"
                        "0  |';\n");
}

TEST(SqlFolds, ABatchFoldsFromItsFirstLineAndItsSeparatorStaysOutside)
{
    ExpectFolds(kTransactSql, "0  |-- first\n"
                              "0H |create procedure p as\n"
                              "1H |begin\n"
                              "2  |  select 1\n"
                              "2  |end\n"
                              "1  |\n"
                              "0  |go\n"
                              "0  |\n"
                              "0H |select 2\n"
                              "1  |\n"
                              "1  |select 3\n"
                              "0  |GO 5 -- again\n"
                              "0  |select 4\n"
                              "0  |go\n");
}

TEST(SqlFolds, BatchesFoldByTheSeparatorThatIsSet)
{
    const SqlUnderTest sql(kTransactSql, u"select 1\nfrom t\nRUN\nselect 2\nGO\nselect 3");
    sql.FoldAlso();
    sql.Style();
    sql.Send(msg::SetBatchSeparator, reinterpret_cast<WPARAM>(u"run"));
    sql.Style();
    EXPECT_EQ(sql.Folds(), "0H |select 1\n"
                           "1  |from t\n"
                           "0  |RUN\n"
                           "0H |select 2\n"
                           "1  |GO\n"
                           "1  |select 3\n");
    sql.Send(msg::SetBatchSeparator, 0);
    sql.Style();
    EXPECT_EQ(sql.Folds(), "0H |select 1\n"
                           "1  |from t\n"
                           "1  |RUN\n"
                           "1  |select 2\n"
                           "0  |GO\n"
                           "0  |select 3\n");
}

TEST(SqlFolds, ABatchOfOneLineIsNoFold)
{
    ExpectFolds(kAse, "0  |select 1\n"
                      "0  |\n"
                      "0  |\n"
                      "0  |go\n"
                      "0  |select 2\n"
                      "0  |\n");
    ExpectFolds(kIq, "0  |select 1\n");
}

TEST(SqlFolds, AScriptWithoutSeparatorsIsNoFold)
{
    ExpectFolds(kTransactSql, "0  |use shop\n"
                              "0  |declare @n int\n"
                              "0H |begin\n"
                              "1  |  select @n\n"
                              "1  |end\n"
                              "0  |select 2\n");
    ExpectFolds(kOracle, "0  |select 1 from dual;\n"
                         "0  |\n"
                         "0  |select 2 from dual;\n");
}

TEST(SqlFolds, StatementsOfGenericSqlFoldBehindTheirFirstLines)
{
    const char* const kPicture = "0  |-- orders\n"
                                 "0H |select a,\n"
                                 "1  |       b\n"
                                 "1  |\n"
                                 "1  |  from t;\n"
                                 "0  |\n"
                                 "0  |drop table t;\n"
                                 "0H |create table u (\n"
                                 "2  |  a int -- one\n"
                                 "0H |); insert into u values (1); update u\n"
                                 "1  |  set a = 2;\n"
                                 "0  |select 1;\n";
    for (const auto* dialect : {u"sql", u"postgresql", u"sqlite"})
        ExpectFolds(kGeneric, kPicture, dialect);
}

TEST(SqlFolds, BlocksOfGenericSqlFoldInTheirStatements)
{
    ExpectFolds(kGeneric, "0H |create procedure p()\n"
                          "1H |begin\n"
                          "2  |  select 1;\n"
                          "2H |  if a then\n"
                          "3  |    select 2;\n"
                          "3  |  end if;\n"
                          "2  |end;\n"
                          "0  |select 3;\n");
}

TEST(SqlFolds, ABatchOfGenericSqlFoldsWhereASeparatorDividesTheScript)
{
    ExpectFolds(kGeneric, "0H |use shop;\n"
                          "1H |select 1,\n"
                          "2  |  2;\n"
                          "1  |drop table t;\n"
                          "0  |GO\n"
                          "0H |select 3;\n"
                          "1  |select 4;\n"
                          "0  |GO\n"
                          "0  |select 5;\n");
}

TEST(SqlFolds, TheFirstBatchFollowsTheFirstSeparator)
{
    const SqlUnderTest sql(kGeneric, u"select 1;\nselect 2;\n\nselect 3;\n");
    const char* const kWhole = "0  |select 1;\n0  |select 2;\n0  |\n0  |select 3;\n0  |\n";
    sql.FoldAlso();
    sql.Style();
    EXPECT_EQ(sql.Folds(), kWhole);
    sql.Insert(20, u"go");
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), "0H |select 1;\n1  |select 2;\n0  |go\n0  |select 3;\n0  |\n");
    sql.Insert(22, u"od");
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), "0  |select 1;\n0  |select 2;\n0H |good\n1  |select 3;\n0  |\n");
    sql.Erase(20, 24);
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), kWhole);
}

TEST(SqlFolds, ASeparatorClosesWhatStandsOpen)
{
    ExpectFolds(kTransactSql, "0H |begin\n"
                              "2H |  select (\n"
                              "3H |  case x\n"
                              "0  |go\n"
                              "0  |select 1\n"
                              "0  |go\n");
}

TEST(SqlFolds, ASeparatorInAStringIsNone)
{
    ExpectFolds(kTransactSql, "0H |select 'x\n"
                              "1  |go\n"
                              "1  |'\n"
                              "0  |go\n");
}

TEST(SqlFolds, ALineMayEndABlockAndBeginAnother)
{
    ExpectFolds(kTransactSql, "0H |if 1 = 1 begin\n"
                              "1  |  select 1\n"
                              "0H |end else begin\n"
                              "1  |  select 2\n"
                              "1  |end\n"
                              "0  |select 3\n");
}

TEST(SqlFolds, TheFirstLineOfABatchFollowsTheLinesBehindIt)
{
    const SqlUnderTest sql(kTransactSql, u"select 1\n\n\ngo\n");
    sql.FoldAlso();
    sql.Style();
    EXPECT_EQ(sql.Folds(), "0  |select 1\n0  |\n0  |\n0  |go\n0  |\n");
    sql.Insert(10, u"x");
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), "0H |select 1\n1  |\n1  |x\n0  |go\n0  |\n");
    sql.Erase(10, 11);
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), "0  |select 1\n0  |\n0  |\n0  |go\n0  |\n");
}

// ----- What a person sees

TEST(SqlFolds, HiddenLinesShowALineBelowTheirHeader)
{
    const SqlUnderTest sql(kMySql, u"(\n1\n2\n)\n");
    sql.FoldAlso();
    sql.Style();
    auto& window = *static_cast<engine::EngineWindow*>(sql.Window());
    window.resize(300, 200);
    const int height = static_cast<int>(sql.Send(msg::TextHeight));
    const auto isCrossed = [&] {
        const QImage picture = window.viewport()->grab().toImage();
        for (int x = 100; x < 200; ++x)
            if (picture.pixelColor(x, height - 1) == picture.pixelColor(x, height / 2))
                return false;
        return true;
    };
    EXPECT_FALSE(isCrossed());
    sql.Send(msg::ToggleFold, 0);
    EXPECT_TRUE(isCrossed());
    const engine::Looks looks; // which have a button instead
    sql.Send(engine::kSetLooks, 0, reinterpret_cast<LPARAM>(&looks));
    EXPECT_FALSE(isCrossed());
    sql.Send(engine::kSetLooks, 0, LPARAM{0});
    EXPECT_TRUE(isCrossed());
    sql.Send(msg::ToggleFold, 0);
    EXPECT_FALSE(isCrossed());
}

// ----- The properties

TEST(SqlFolds, WithoutThePropertyLevelsStayAsTheyAre)
{
    const SqlUnderTest sql(kMySql, u"(\n)\n/*\n*/\n\n");
    sql.Style();
    EXPECT_EQ(sql.Folds(), "0  |(\n0  |)\n0  |/*\n0  |*/\n0  |\n0  |\n");
    sql.SetProperty(u"fold", u"1");
    sql.Style();
    EXPECT_EQ(sql.Folds(), "0H |(\n1  |)\n0  |/*\n0  |*/\n0  |\n0  |\n");
    sql.SetProperty(u"fold.comment", u"1");
    sql.SetProperty(u"fold.compact", u"1");
    sql.Style();
    EXPECT_EQ(sql.Folds(), "0H |(\n1  |)\n0H |/*\n1  |*/\n0 B|\n0 B|\n");
}

// ----- Any depth

TEST(SqlFolds, ABoundedLevelHoldsAnyDepth)
{
    constexpr long kNested = 100000;
    std::u16string text;
    for (long i = 0; i < kNested; ++i)
        text += u"(\n";
    for (long i = 0; i < kNested; ++i)
        text += u")\n";
    const SqlUnderTest sql(kDb2, text);
    sql.FoldAlso();
    sql.Style();
    const std::vector<int> levels = sql.Levels();
    EXPECT_EQ(levels[0], 0x2400);
    EXPECT_EQ(levels[1], 0x2401);
    EXPECT_EQ(levels[0xFFF - 0x400 - 1], 0x2FFE);
    EXPECT_EQ(levels[0xFFF - 0x400], 0xFFF);
    EXPECT_EQ(levels[kNested], 0xFFF);
    EXPECT_EQ(levels[2 * kNested - 1], 0x401);
    EXPECT_EQ(levels[2 * kNested], 0x400);
}

// ----- What the parent hears

TEST(SqlFolds, ChangedLevelsAreToldAndUnchangedOnesAreNot)
{
    SqlUnderTest sql(kMySql, u"a\nb\nc\n");
    sql.FoldAlso();
    sql.Style();
    sql.Parent().heard.clear();
    sql.Insert(1, u" (");
    sql.StyleRest();
    std::string told;
    for (const Heard& heard : sql.Parent().Of(notify::Modified)) {
        if (heard.record.modificationType & modification::ChangeFold)
            told += QString::asprintf("%ld: %x to %x\n", static_cast<long>(heard.record.line),
                                      heard.record.foldLevelPrev, heard.record.foldLevelNow)
                        .toStdString();
    }
    EXPECT_EQ(told, "0: 400 to 2400\n1: 400 to 401\n2: 400 to 401\n3: 400 to 401\n");
}

TEST(SqlFolds, AHandlerMayChangeTheTextFromInside)
{
    SqlUnderTest sql(kMySql, u"a (\nb\n)\nc\n");
    sql.FoldAlso();
    sql.Parent().onNotify = [](Listener& listener, const SCNotification& record) {
        if (record.nmhdr.code != notify::Modified ||
            !(record.modificationType & modification::ChangeFold))
            return;
        listener.onNotify = nullptr;
        SendMessage(listener.editor, msg::SetTargetStart, 0, 0);
        SendMessage(listener.editor, msg::SetTargetEnd, 0, 0);
        SendMessage(listener.editor, msg::ReplaceTargetNoProcess, 4,
                    reinterpret_cast<LPARAM>(u"/* \n"));
    };
    sql.Style();
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), "0H |/* \n1  |a (\n1  |b\n1  |)\n1  |c\n1  |\n");
    EXPECT_EQ(sql.StyleAt(6), 1);
}
