// SPDX-License-Identifier: GPL-3.0-or-later
// The partitioner's messages over a real engine window: units, settings, switches, ownership.
#include "control/Analysis.h"
#include "control/PartitionInfo.h"
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace msg = engine::message;

namespace {

using testing::ElementsAre;

constexpr int kPlain = 1;
constexpr int kTransactSql = 3;
constexpr int kOracle = 5;
constexpr int kSql = 9;

class Analysis : public testing::Test
{
protected:
    Analysis() { SetLexer(kTransactSql); }

    void SetLexer(int lexer) const { m_engine.Send(msg::SetLexer, static_cast<WPARAM>(lexer)); }
    void SetText(const std::u16string& text) const { m_engine.SetText(text); }

    std::unique_ptr<PartitionInfo> RecordAt(long position) const
    {
        return std::unique_ptr<PartitionInfo>(reinterpret_cast<PartitionInfo*>(
            m_engine.Send(msg::PartitionGetAt, static_cast<WPARAM>(position))));
    }

    std::u16string At(long position) const
    {
        const auto record = RecordAt(position);
        return record ? std::u16string(record->pszText) : u"none";
    }

    std::vector<std::u16string> All(long from = 0, long to = partitioner::ToEnd) const
    {
        std::vector<std::u16string> texts;
        auto* next = reinterpret_cast<PartitionInfo*>(
            m_engine.Send(msg::PartitionGetAll, static_cast<WPARAM>(from), to));
        while (next) {
            const std::unique_ptr<PartitionInfo> record(next);
            next = record->pNext;
            EXPECT_EQ(m_engine.Range(record->nFirst, record->nSecond), record->pszText);
            texts.emplace_back(record->pszText);
        }
        return texts;
    }

    std::u16string TextOf(LRESULT given) const
    {
        const std::unique_ptr<char16_t[]> text(reinterpret_cast<char16_t*>(given));
        return text ? std::u16string(text.get()) : u"none";
    }

    std::u16string CatalogAt(long position) const
    {
        return TextOf(m_engine.Send(msg::GetCatalogForOffset, static_cast<WPARAM>(position)));
    }

    std::u16string Separator() const { return TextOf(m_engine.Send(msg::GetBatchSeparator)); }

    // The batch as text; "none" if there is no answer.
    std::u16string Batch(long first, long second) const
    {
        PositionPair around{first, second};
        PositionPair found{-7, -8};
        if (!m_engine.Send(msg::DoFindBatch, reinterpret_cast<WPARAM>(&around), &found)) {
            EXPECT_EQ(found.first, -7);
            EXPECT_EQ(found.second, -8);
            return u"none";
        }
        return m_engine.Range(found.first, found.second);
    }

    LRESULT Send(UINT message, LPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return m_engine.Send(message, static_cast<WPARAM>(wParam), lParam);
    }

    void SendText(UINT message, const char16_t* text, LPARAM lParam = 0) const
    {
        m_engine.Send(message, reinterpret_cast<WPARAM>(text), lParam);
    }

    LRESULT SetServer(int dialect, UINT message = msg::SetServerIdentifier, LPARAM flag = 0) const
    {
        const partitioner::ServerIdentifier server{dialect};
        return m_engine.Send(message, reinterpret_cast<WPARAM>(&server), flag);
    }

    EngineUnderTest m_engine;
};

} // namespace

TEST_F(Analysis, GivesTheStatementAtAPositionWithItsPlaceAndText)
{
    SetText(u"select 1; select 'a;b'; go");
    const auto record = RecordAt(12);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->nFirst, 10);
    EXPECT_EQ(record->nSecond, 23);
    EXPECT_STREQ(QString::fromUtf16(record->pszText).toUtf8(), "select 'a;b';");
    EXPECT_FALSE(record->pNext);
}

TEST_F(Analysis, CountsUnitsInMixedText)
{
    const std::u16string first = u"select '\u00e9\u4e2d\xD83D\xDE00';";
    SetText(first +
            u" select N'\u0416;\xD83D\xDE00' as [\u00fc];\nGO\nuse [\u00e9\xD83D\xDE00]\nselect 3");
    EXPECT_THAT(All(), ElementsAre(first, u"select N'\u0416;\xD83D\xDE00' as [\u00fc];",
                                   u"use [\u00e9\xD83D\xDE00]", u"select 3"));
    EXPECT_EQ(RecordAt(static_cast<long>(first.size()) + 3)->nFirst,
              static_cast<int>(first.size()) + 1);
    EXPECT_EQ(CatalogAt(m_engine.Send(msg::GetLength)), u"\u00e9\xD83D\xDE00");
    EXPECT_EQ(Batch(0, 0), first + u" select N'\u0416;\xD83D\xDE00' as [\u00fc];\n");
}

TEST_F(Analysis, TakesTheCaretForANegativePosition)
{
    SetText(u"select 1; select 2;");
    Send(msg::GotoPos, 12);
    EXPECT_EQ(At(partitioner::AtCaret), u"select 2;");
    Send(msg::GotoPos, 0);
    EXPECT_EQ(At(partitioner::AtCaret), u"select 1;");
}

TEST_F(Analysis, TakesPositionsOutsideTheTextForItsEnds)
{
    SetText(u"select 1;\nGO\nuse a\nselect 2;");
    EXPECT_EQ(At(100000), u"select 2;");
    EXPECT_EQ(CatalogAt(100000), u"a");
    EXPECT_EQ(CatalogAt(-100), u"none");
    EXPECT_EQ(Batch(-5, -9), u"select 1;\n");
    EXPECT_EQ(Batch(100000, 100001), u"use a\nselect 2;");
    EXPECT_EQ(All(-5, 3).size(), 1U);
    EXPECT_TRUE(All(100000, 100001).empty());
}

TEST_F(Analysis, LeavesTheTextOfAVeryLongStatementToTheHost)
{
    const std::u16string longest(partitioner::LongestText - 10, u'x');
    SetText(u"select '" + longest + u"';"); // exactly the longest
    EXPECT_TRUE(RecordAt(0)->pszText);
    Send(msg::GotoPos, 9);
    m_engine.Insert(9, u"y");
    const auto record = RecordAt(0);
    EXPECT_FALSE(record->pszText);
    EXPECT_EQ(record->nSecond, partitioner::LongestText + 1);
}

TEST_F(Analysis, FindsTheBatchesOfARange)
{
    SetText(u"a\nGO\nb\nGO\nc");
    EXPECT_EQ(Batch(0, 0), u"a\n");
    EXPECT_EQ(Batch(5, 6), u"b\n");
    EXPECT_EQ(Batch(0, 6), u"a\nGO\nb\n");
    EXPECT_EQ(Batch(0, 5), u"a\n"); // up to the next one's start
    EXPECT_EQ(Batch(0, 11), u"a\nGO\nb\nGO\nc");
    EXPECT_EQ(Batch(6, 0), u"b\n"); // no range
}

TEST_F(Analysis, AnswersNothingForALexerOfNoSql)
{
    SetText(u"select 1; use a");
    SetLexer(kPlain);
    EXPECT_EQ(At(0), u"none");
    EXPECT_TRUE(All().empty());
    EXPECT_EQ(Batch(0, 0), u"none");
    EXPECT_EQ(CatalogAt(9), u"none");
    EXPECT_EQ(Separator(), u"none");
    EXPECT_EQ(Send(msg::PartitionerInit, 0, 1), 0);
    EXPECT_EQ(Send(msg::PartitionerAttach, partitioner::DialectOfLexer), 0);
    EXPECT_EQ(Send(msg::PartitionerReset), 0);
    SetLexer(kTransactSql);
    EXPECT_EQ(At(0), u"select 1;");
}

TEST_F(Analysis, FollowsTheLexer)
{
    SetText(u"begin null; end;\n/\nselect 1;\nGO\n");
    EXPECT_EQ(Separator(), u"GO");
    EXPECT_EQ(Batch(0, 0), u"begin null; end;\n/\nselect 1;\n");
    SetLexer(kOracle);
    EXPECT_EQ(Separator(), u"/");
    EXPECT_EQ(Batch(0, 0), u"begin null; end;\n");
    m_engine.Send(msg::SetLexerLanguage, 0, u"mssql");
    EXPECT_NE(Separator(), u"/");
}

TEST_F(Analysis, FollowsTheDialectThatTheLexersPropertyNames)
{
    SetLexer(kSql);
    SetText(u"create rule r as on insert to t do (select 1; select 2); select 3;");
    EXPECT_EQ(All().size(), 3U);
    m_engine.Send(msg::SetProperty, reinterpret_cast<WPARAM>(u"sql.dialect"), u"PostgreSQL");
    EXPECT_EQ(All().size(), 2U);
    m_engine.Send(msg::SetProperty, reinterpret_cast<WPARAM>(u"sql.dialect"), u"klingon");
    EXPECT_EQ(All().size(), 3U);
    m_engine.Send(msg::SetProperty, reinterpret_cast<WPARAM>(u"sql.dialect"),
                  std::u16string(1000, u'x').c_str());
    EXPECT_EQ(All().size(), 3U);
    m_engine.Send(msg::SetProperty, reinterpret_cast<WPARAM>(u"sql.dialect"), u"postgresql");
    EXPECT_EQ(All().size(), 2U);
    SetLexer(kTransactSql); // has no others beside it
    EXPECT_EQ(All().size(), 3U);
    SetLexer(kSql);
    EXPECT_EQ(All().size(), 2U);
    Send(msg::ResetProperties);
    EXPECT_EQ(All().size(), 3U);
}

TEST_F(Analysis, FollowsTheServerBeforeLexerAndProperty)
{
    SetText(u"delimiter //\nselect 1; select 2//\n");
    EXPECT_EQ(All().size(), 2U); // one up to the first terminator
    SetServer(partitioner::MySql);
    EXPECT_THAT(All(), ElementsAre(u"delimiter //", u"select 1; select 2//"));
    SetLexer(kPlain);
    EXPECT_EQ(All().size(), 2U) << "the server says that it is SQL";
    Send(msg::SetServerIdentifier, 0);
    EXPECT_TRUE(All().empty());
    EXPECT_EQ(SetServer(partitioner::Oracle, msg::PartitionerInit, 1), 1);
    EXPECT_EQ(Separator(), u"/");
    EXPECT_EQ(Send(msg::PartitionerAttach, partitioner::Ase), 1);
    EXPECT_EQ(Separator(), u"GO");
    SetServer(4711);
    EXPECT_EQ(Separator(), u"none");
}

TEST_F(Analysis, SeparatesBatchesByWhatIsSet)
{
    SetText(u"a\nGO\nb\nrun 2\nc\nRUN\nd");
    SendText(msg::SetBatchSeparator, u" run\t");
    EXPECT_EQ(Separator(), u"run");
    EXPECT_EQ(Batch(0, 0), u"a\nGO\nb\n");
    SendText(msg::SetBatchSeparator, u"RUN", partitioner::MatchCase);
    EXPECT_EQ(Batch(0, 0), u"a\nGO\nb\nrun 2\nc\n");
    SendText(msg::SetBatchSeparator, u"run", partitioner::NoCount);
    EXPECT_EQ(Batch(0, 0), u"a\nGO\nb\nrun 2\nc\n");
    SendText(msg::SetBatchSeparator, u"  ");
    EXPECT_EQ(Separator(), u"none");
    EXPECT_EQ(Batch(0, 0), m_engine.Text());
    SendText(msg::SetBatchSeparator, nullptr);
    EXPECT_EQ(Separator(), u"GO");
    EXPECT_EQ(Batch(0, 0), u"a\n");
}

TEST_F(Analysis, KnowsTheCatalogThatWasSet)
{
    SetText(u"select 1; use a\nselect 2");
    EXPECT_EQ(CatalogAt(0), u"none");
    SendText(msg::SetCurrentCatalog, u"b\u00e9", partitioner::CatalogBase);
    EXPECT_EQ(CatalogAt(0), u"b\u00e9");
    EXPECT_EQ(CatalogAt(20), u"a");
    SendText(msg::SetCurrentCatalog, u"c", partitioner::CatalogFixed);
    EXPECT_EQ(CatalogAt(20), u"c");
    SendText(msg::SetCurrentCatalog, nullptr);
    EXPECT_EQ(CatalogAt(0), u"none");
    EXPECT_EQ(CatalogAt(20), u"a");
}

TEST_F(Analysis, IsSwitchedOffAndOn)
{
    SetText(u"select 1; select 2");
    Send(msg::SetEnablePartitioner, 0);
    EXPECT_EQ(At(0), u"none");
    EXPECT_EQ(Batch(0, 0), u"none");
    m_engine.Insert(0, u"print 0; ");
    Send(msg::SetEnablePartitioner, 1);
    EXPECT_EQ(All().size(), 3U);

    EXPECT_EQ(Send(msg::PartitionerDetach), 0); // nothing was attached
    EXPECT_EQ(At(0), u"none");
    EXPECT_EQ(Send(msg::PartitionerAttach, partitioner::DialectOfLexer), 1);
    EXPECT_EQ(At(0), u"print 0;");
    EXPECT_EQ(Send(msg::PartitionerDetach), 1);
    EXPECT_EQ(At(0), u"none");
    EXPECT_EQ(Send(msg::PartitionerInit, 0, 0), 1);
    EXPECT_EQ(At(0), u"print 0;");
}

TEST_F(Analysis, LeavesTextsAboveTheLargestSizeAlone)
{
    EXPECT_EQ(Send(msg::PartitionerGetMaxFileSize), 0);
    SetText(u"select '\u00e9';");
    Send(msg::PartitionerSetMaxFileSize, 11);
    EXPECT_EQ(Send(msg::PartitionerGetMaxFileSize), 11);
    EXPECT_EQ(At(0), u"select '\u00e9';");
    m_engine.Insert(0, u" ");
    EXPECT_EQ(At(0), u"none");
    m_engine.Erase(0, 1);
    EXPECT_EQ(At(0), u"select '\u00e9';");
    Send(msg::PartitionerSetMaxFileSize, -3);
    EXPECT_EQ(Send(msg::PartitionerGetMaxFileSize), 0);
}

TEST_F(Analysis, IsResetInPartOrWhole)
{
    SetText(u"select 1; select 2;\nGO\nselect 3;");
    SendText(msg::SetBatchSeparator, u"run");
    NumberPair range{2, 12};
    EXPECT_EQ(m_engine.Send(msg::PartitionerReset, partitioner::ResetText, &range), 1);
    EXPECT_EQ(At(12), u"select 2;");
    range = {};
    EXPECT_EQ(m_engine.Send(msg::PartitionerReset, partitioner::ResetText, &range), 1);
    EXPECT_EQ(Separator(), u"run");
    EXPECT_EQ(Send(msg::PartitionerReset, partitioner::ResetAll), 1);
    EXPECT_EQ(Separator(), u"GO");
    EXPECT_EQ(Batch(0, 0), u"select 1; select 2;\n");
}

TEST_F(Analysis, CatchesUpBehindABulkChange)
{
    SetText(u"select 1; select 2;");
    EXPECT_EQ(All().size(), 2U);
    Send(msg::SetDoingReplaceAll, 1);
    m_engine.Insert(0, u"/*");
    EXPECT_TRUE(All().empty());
    m_engine.Insert(11, u"*/");
    EXPECT_THAT(All(), ElementsAre(u"select 2;"));
    m_engine.Erase(0, 13);
    Send(msg::SetDoingReplaceAll, 0);
    EXPECT_THAT(All(), ElementsAre(u"select 2;"));
    m_engine.Insert(0, u"print 1;");
    EXPECT_EQ(All().size(), 2U);
}

TEST_F(Analysis, IsRightWhileTheReconcilerRests)
{
    SetText(u"select 1;");
    EXPECT_EQ(Send(msg::GetIsReconcilerEnabled), 1);
    EXPECT_EQ(At(0), u"select 1;");
    Send(msg::SetEnableReconciler, 0);
    EXPECT_EQ(Send(msg::GetIsReconcilerEnabled), 0);
    m_engine.Insert(0, u"print 0; ");
    EXPECT_EQ(At(0), u"print 0;");
    Send(msg::SetEnableReconciler, 1);
    EXPECT_EQ(All().size(), 2U);
}

TEST_F(Analysis, TellsTheCodePageOfItsBytes)
{
    EXPECT_EQ(Send(msg::GetMultiCodePage), 65001);
}

TEST_F(Analysis, FollowsTypingAndUndo)
{
    SetText(u"select 1; select 2;");
    Send(msg::EmptyUndoBuffer);
    EXPECT_EQ(All().size(), 2U);
    Send(msg::GotoPos, 9);
    QTest::keyClicks(m_engine.Window(), QStringLiteral("'a;b"));
    EXPECT_EQ(All().size(), 2U); // the string is not closed
    QTest::keyClicks(m_engine.Window(), QStringLiteral("';"));
    EXPECT_THAT(All(), ElementsAre(u"select 1;", u"'a;b';", u"select 2;"));
    while (Send(msg::CanUndo))
        Send(msg::Undo);
    EXPECT_THAT(All(), ElementsAre(u"select 1;", u"select 2;"));
    while (Send(msg::CanRedo))
        Send(msg::Redo);
    EXPECT_EQ(All().size(), 3U);
}

TEST_F(Analysis, IsRightInsideANotification)
{
    static std::vector<std::u16string> seen;
    seen.clear();
    SetText(u"select 1;");
    EXPECT_EQ(All().size(), 1U);
    m_engine.Parent().onNotify = [](Listener& listener, const SCNotification& record) {
        if (record.nmhdr.code != notify::Modified)
            return;
        const std::unique_ptr<PartitionInfo> info(reinterpret_cast<PartitionInfo*>(
            SendMessage(listener.editor, msg::PartitionGetAt, 0, 0)));
        seen.emplace_back(info ? info->pszText : u"none");
    };
    m_engine.Insert(0, u"print 0; ");
    m_engine.Erase(0, 2);
    m_engine.Parent().onNotify = nullptr;
    EXPECT_THAT(seen, ElementsAre(u"print 0;", u"int 0;"));
}

TEST_F(Analysis, BelongsToTheTextThatIsShown)
{
    SetText(u"select 1;");
    EXPECT_EQ(At(0), u"select 1;");
    const LRESULT other = Send(msg::CreateDocument);
    Send(msg::AddRefDocument, 0, Send(msg::GetDocPointer));
    const LRESULT first = Send(msg::GetDocPointer);
    Send(msg::SetDocPointer, 0, other);
    EXPECT_EQ(At(0), u"none");
    SetText(u"print 123456789; print 2;");
    EXPECT_EQ(All().size(), 2U);
    Send(msg::SetDocPointer, 0, first);
    EXPECT_THAT(All(), ElementsAre(u"select 1;"));
    Send(msg::ReleaseDocument, 0, first);
    Send(msg::ReleaseDocument, 0, other);
}

TEST_F(Analysis, HearsOfEditsInAnotherWindowOfTheSameText)
{
    SetText(u"select 1;");
    EngineUnderTest other;
    other.Send(msg::SetDocPointer, 0, Send(msg::GetDocPointer));
    EXPECT_EQ(At(0), u"select 1;");
    other.Insert(0, u"print 0; ");
    EXPECT_EQ(At(0), u"print 0;");
}

TEST_F(Analysis, WorksAheadInIdleTimeWithoutHarm)
{
    std::u16string text;
    for (int i = 0; i < 50; ++i)
        text += u"select 1; print 'x'; -- " + std::u16string(30000, u'c') + u'\n';
    SetText(text);
    EXPECT_EQ(Send(msg::PartitionerAttach, partitioner::DialectOfLexer), 1);
    for (int i = 0; i < 40; ++i) {
        QApplication::processEvents();
        m_engine.Insert(i * 1000, i % 2 ? u"*/" : u"/*");
    }
    Send(msg::SetReadOnly, 1);
    QApplication::processEvents();
    const auto before = All();
    Send(msg::PartitionerReset); // all of it is read again
    EXPECT_EQ(before, All());
}

// Edits at random places in mixed text, undo and redo among them; a window that reads the text
// afresh has to say the same.
TEST_F(Analysis, EqualsAFreshOneAfterAnyEdits)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::u16string pieces[] = {u"'",
                                     u"/*",
                                     u"*/",
                                     u";",
                                     u"\n",
                                     u"\nGO\n",
                                     u"begin ",
                                     u"end;",
                                     u"\u00e9\u4e2d",
                                     u"\xD83D\xDE00",
                                     u"select 1; ",
                                     u"\nuse [\u00fc]\n",
                                     u"[",
                                     u"]",
                                     u"create proc p as ",
                                     u"--",
                                     u"\xD83D"};
    SetText(u"select 1;");
    for (int edit = 0; edit < 600; ++edit) {
        const long length = m_engine.Send(msg::GetLength);
        const long at = static_cast<long>(random() % static_cast<unsigned long>(length + 1));
        switch (random() % 6) {
        case 0:
            m_engine.Erase(at, std::min(length, at + static_cast<long>(random() % 20)));
            break;
        case 1:
            Send(random() % 2 ? msg::Undo : msg::Redo);
            break;
        default:
            m_engine.Insert(at, pieces[random() % std::size(pieces)]);
            break;
        }
        const std::u16string statement = At(at);
        const std::u16string batch = Batch(at, at);
        const std::u16string catalog = CatalogAt(at);
        if (edit % 3)
            continue;
        const auto all = All();
        Send(msg::PartitionerReset);
        ASSERT_EQ(all, All()) << edit;
        ASSERT_EQ(statement, At(at)) << edit;
        ASSERT_EQ(batch, Batch(at, at)) << edit;
        ASSERT_EQ(catalog, CatalogAt(at)) << edit;
    }
}

// Each window follows the text by itself from there on.
TEST_F(Analysis, OfAFurtherWindowAgreesThroughEditsInEither)
{
    SetText(u"select 1\nGO\nselect 2\n");
    EXPECT_EQ(Batch(0, 0), u"select 1\n");
    const EngineUnderTest second;
    second.Send(msg::SetDocPointer, 0, m_engine.Send(msg::GetDocPointer));
    second.Send(msg::SetLexer, static_cast<WPARAM>(m_engine.Send(msg::GetLexer)));
    const auto batchOfSecond = [&] {
        PositionPair around{0, 0};
        PositionPair found{};
        second.Send(msg::DoFindBatch, reinterpret_cast<WPARAM>(&around), &found);
        return second.Range(found.first, found.second);
    };
    EXPECT_EQ(batchOfSecond(), u"select 1\n");
    m_engine.Send(msg::InsertText, 0, reinterpret_cast<LPARAM>(u"a\n"));
    EXPECT_EQ(Batch(0, 0), u"a\nselect 1\n");
    EXPECT_EQ(batchOfSecond(), u"a\nselect 1\n");
    second.Send(msg::InsertText, 2, reinterpret_cast<LPARAM>(u"GO\n"));
    EXPECT_EQ(batchOfSecond(), u"a\n");
    EXPECT_EQ(Batch(0, 0), u"a\n");
}
TEST_F(Analysis, EndsStatementsByTheTerminatorThatAPropertySets)
{
    SetText(u"select '1; select' 2@ x;@");
    EXPECT_THAT(All(), ElementsAre(u"select '1; select' 2@ x;", u"@"));
    const auto set = [&](const char16_t* text) {
        m_engine.Send(msg::SetProperty, reinterpret_cast<WPARAM>(u"sql.terminator"),
                      reinterpret_cast<LPARAM>(text));
    };
    set(u"@");
    EXPECT_THAT(All(), ElementsAre(u"select '1; select' 2@", u"x;@"));
    set(u"");
    EXPECT_THAT(All(), ElementsAre(u"select '1; select' 2@ x;", u"@"));
}
