// SPDX-License-Identifier: GPL-3.0-or-later
// What is to be seen of the problems in a text, and that it follows the text's edits.
#include "tests/RandomSeed.h"
#include "tests/engine/ErrorFixture.h"

#include <climits>
#include <random>

namespace msg = engine::message;

namespace {

using Sci = QsciScintillaBase;

class ErrorMarksTest : public ErrorListTest
{};

} // namespace

TEST_F(ErrorMarksTest, MarksOnlyWhatIsShown)
{
    m_errors.Add(7, 10);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "");
    m_errors.Show();
    m_errors.Add(16, 19);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one|two");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0, 1}));
}

TEST_F(ErrorMarksTest, ErrorsAndWarningsHaveMarksOfTheirOwnAndNotesHaveNone)
{
    m_errors.Add(0, 6, problem::Note);
    m_errors.Add(7, 10, problem::Warning);
    m_errors.Add(16, 19, problem::Error);
    m_errors.Add(20, 25, problem::Error + 5);
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "two|where");
    EXPECT_EQ(m_errors.Underlined(kWarningIndicator), "one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{1, 2}));
    EXPECT_EQ(m_errors.Lines(kWarningMarker), (Lines{0}));
}

TEST_F(ErrorMarksTest, DeletingLeavesTheMarksOfTheOthers)
{
    const int first = m_errors.Add(0, 8);
    m_errors.Add(6, 10);
    m_errors.Show();
    m_engine.Send(msg::ErrorDelete, 1, first);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), " one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
    m_engine.Send(msg::ErrorDeleteAll, 1, -1);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), Lines());
}

TEST_F(ErrorMarksTest, MarksCanGoWhileTheListStays)
{
    m_errors.Add(7, 10, problem::Error, 1);
    m_errors.Add(16, 19, problem::Error, 2);
    m_errors.Show();
    m_engine.Send(msg::ErrorMarkerDeleteAll, 1, -1);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "two");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{1}));
    EXPECT_EQ(m_errors.Walk(), "7-10 16-19");
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one|two");
}

TEST_F(ErrorMarksTest, SeveritiesKeepProblemsOfAKindFromBeingShown)
{
    for (const int kind : {int{problem::Syntax}, int{problem::Semantic}, 7}) {
        for (const int severity : {problem::Warning, problem::Error}) {
            ErrorInfo record;
            record.nStart = kind == 7 ? 26 : kind * 11;
            record.nEnd = record.nStart + 2;
            record.nKind = kind;
            record.nSeverity = severity;
            m_errors.Add(record);
        }
    }
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kWarningIndicator), "se|fr|th");
    m_engine.Send(msg::SetSyntaxSeverity, problem::Error);
    EXPECT_EQ(m_errors.Underlined(kWarningIndicator), "fr|th");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "se|fr|th");
    m_engine.Send(msg::SetSemanticSeverity, problem::Error + 1);
    EXPECT_EQ(m_errors.Underlined(kWarningIndicator), "th");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "se|th");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0, 2}));
    EXPECT_EQ(m_errors.Over(12), nullptr);
    EXPECT_EQ(m_errors.All()[1].size(), 2u);
    m_engine.Send(msg::SetSyntaxSeverity, 0);
    m_engine.Send(msg::SetSemanticSeverity, static_cast<WPARAM>(-1));
    EXPECT_EQ(m_errors.Underlined(kWarningIndicator), "se|fr|th");
}

TEST_F(ErrorMarksTest, OtherNumbersTakeTheMarksAlong)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    m_engine.Send(msg::ErrorsSetIndic, 20);
    m_engine.Send(msg::ErrorsSetMarkNum, 31);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "");
    EXPECT_EQ(m_errors.Underlined(20), "one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), Lines());
    EXPECT_EQ(m_errors.Lines(31), (Lines{0}));
}

TEST_F(ErrorMarksTest, NumbersThatThereAreNotGiveNoMark)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    for (const WPARAM number : {static_cast<WPARAM>(-1), WPARAM{32}, WPARAM{INT_MAX}}) {
        m_errors.SetNumbers();
        EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
        m_engine.Send(msg::ErrorsSetIndic, number);
        m_engine.Send(msg::ErrorsSetMarkNum, number);
        for (int mark = 0; mark < 32; ++mark) {
            EXPECT_EQ(m_errors.Underlined(mark), "") << mark;
            EXPECT_EQ(m_errors.Lines(mark), Lines()) << mark;
        }
    }
    EXPECT_EQ(m_errors.Walk(), "7-10");
}

TEST_F(ErrorMarksTest, OneNumberForBothShowsBoth)
{
    m_engine.Send(msg::WarningsSetIndic, kErrorIndicator);
    m_engine.Send(msg::WarningsSetMarkNum, kErrorMarker);
    m_errors.Add(0, 6, problem::Warning);
    const int error = m_errors.Add(7, 10);
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "select|one");
    m_engine.Send(msg::ErrorDelete, 1, error);
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "select");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
}

TEST_F(ErrorMarksTest, TheHostsOwnIndicatorStaysTheCurrentOne)
{
    m_errors.Stock(Sci::SCI_SETINDICATORCURRENT, 8);
    m_errors.Stock(Sci::SCI_SETINDICATORVALUE, 77);
    m_errors.Add(7, 10);
    m_errors.Show();
    EXPECT_EQ(m_errors.Stock(Sci::SCI_GETINDICATORCURRENT), 8);
    EXPECT_EQ(m_errors.Stock(Sci::SCI_GETINDICATORVALUE), 77);
}

TEST_F(ErrorMarksTest, ProblemsAndMarksFollowTheText)
{
    m_errors.Add(7, 10);
    m_errors.Add(16, 19, problem::Warning);
    m_errors.Show();
    m_engine.Insert(0, u"-- a line\n");
    m_engine.Insert(18, u"XX"); // inside "one"
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "17-22 28-31");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "oXXne");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{1}));
    EXPECT_EQ(m_errors.Lines(kWarningMarker), (Lines{2}));
    m_engine.Erase(5, 20);
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "5-7 13-16");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
    EXPECT_EQ(m_errors.Lines(kWarningMarker), (Lines{1}));
}

TEST_F(ErrorMarksTest, TextAtTheEdgesOfAProblemIsNotPartOfIt)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    m_engine.Insert(10, u"Z");
    m_engine.Insert(7, u"A");
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "8-11");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
}

TEST_F(ErrorMarksTest, TextBetweenTwoProblemsThatTouchIsPartOfNeither)
{
    m_errors.Add(7, 8);
    m_errors.Add(8, 10);
    m_errors.Show();
    m_engine.Insert(8, u"--");
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "7-8 10-12");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "o|ne");
}

TEST_F(ErrorMarksTest, AMarkerGoesWithItsProblemWhenTheLineIsDivided)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    m_engine.Insert(7, u"\n\n");
    m_errors.Update();
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{2}));
    EXPECT_EQ(m_errors.First()->nLine, 2);
}

TEST_F(ErrorMarksTest, LinesThatAreJoinedShareAMarkerUntilTheLastProblemGoes)
{
    const int first = m_errors.Add(7, 10);
    const int second = m_errors.Add(16, 19);
    m_errors.Show();
    m_engine.Erase(10, 11);
    m_errors.Update();
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
    m_engine.Send(msg::ErrorDelete, 1, first);
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
    m_engine.Send(msg::ErrorDelete, 1, second);
    EXPECT_EQ(m_errors.Lines(kErrorMarker), Lines());
}

TEST_F(ErrorMarksTest, AProblemWhoseTextIsDeletedStaysListedThere)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    m_engine.Erase(5, 19);
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "5-5");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
    m_engine.Send(msg::Undo);
    m_errors.Update();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "");
    EXPECT_EQ(m_errors.First()->nEnd, m_errors.First()->nStart);
}

TEST_F(ErrorMarksTest, AProblemIsMarkedInTheMarginOfAnEmptyText)
{
    m_engine.SetText(u"one");
    m_errors.Add(0, 3);
    m_errors.Show();
    m_engine.Send(msg::ClearAll);
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "0-0");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
}

TEST_F(ErrorMarksTest, AMarkerGoesWithItsProblemWhenALineEndIsCutInTwo)
{
    m_engine.SetText(u"one\r\ntwo\r\n");
    m_errors.Add(4, 5);
    m_errors.Show();
    m_engine.Erase(4, 7);
    m_errors.Update();
    EXPECT_EQ(m_errors.First()->nLine, 1);
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{1}));
}

TEST_F(ErrorMarksTest, AReadOnlyTextCanBeMarked)
{
    m_engine.Send(msg::SetReadOnly, 1);
    m_errors.Add(7, 10);
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
}

TEST_F(ErrorMarksTest, MarksStandWhereTheProblemsStandAfterAnyEdits)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upTo = [&random](long last) {
        return std::uniform_int_distribution<long>(0, last)(random);
    };
    constexpr const char16_t* kPieces[] = {u"a",  u"\n",   u"xyz\r\nuvw",
                                           u"\r", u"\n\n", u"  long piece "};
    for (int round = 0; round < 30; ++round) {
        m_engine.Send(msg::ErrorDeleteAll, static_cast<WPARAM>(-1), -1);
        m_engine.SetText(u"select one\nfrom two\r\nwhere three\n\nand four\n");
        for (int i = 0; i < 12; ++i) {
            const long start = upTo(44);
            m_errors.Add(start, start + upTo(8), problem::Warning + static_cast<int>(upTo(1)));
        }
        m_errors.Show();
        for (int step = 0; step < 40; ++step) {
            const long length = m_engine.Send(msg::GetLength);
            const long at = upTo(length);
            switch (upTo(5)) {
            case 0:
                m_engine.Erase(at, std::min(length, at + upTo(7)));
                break;
            case 1:
                m_engine.Send(upTo(1) ? msg::Undo : msg::Redo);
                break;
            case 2:
                if (const ErrorInfo* over = m_errors.Over(at))
                    m_engine.Send(msg::ErrorDelete, static_cast<WPARAM>(-1), over->nId);
                break;
            default:
                m_engine.Insert(at, kPieces[upTo(5)]);
            }
            m_errors.Update();
            const std::string errors = m_errors.Underlined(kErrorIndicator);
            const std::string warnings = m_errors.Underlined(kWarningIndicator);
            const Lines errorLines = m_errors.Lines(kErrorMarker);
            const Lines warningLines = m_errors.Lines(kWarningMarker);
            m_errors.Show(); // draws all of it from the list
            ASSERT_EQ(errors, m_errors.Underlined(kErrorIndicator)) << step;
            ASSERT_EQ(warnings, m_errors.Underlined(kWarningIndicator)) << step;
            ASSERT_EQ(errorLines, m_errors.Lines(kErrorMarker)) << step;
            ASSERT_EQ(warningLines, m_errors.Lines(kWarningMarker)) << step;
        }
    }
}
