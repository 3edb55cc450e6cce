// The error list by message: what is listed, where it stands, and what is to be seen of it.
#include "tests/engine/EngineFixture.h"

#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <random>

namespace msg = engine::message;

namespace {

using Sci = QsciScintillaBase;

constexpr int kErrorIndicator = 3;
constexpr int kWarningIndicator = 5;
constexpr int kErrorMarker = 2;
constexpr int kWarningMarker = 9;

// The engine's answers about one text, through one window that shows it.
class Errors
{
public:
    explicit Errors(const EngineUnderTest& window) : m_engine(window) {}

    void SetNumbers() const
    {
        m_engine.Send(msg::ErrorsSetIndic, kErrorIndicator);
        m_engine.Send(msg::WarningsSetIndic, kWarningIndicator);
        m_engine.Send(msg::ErrorsSetMarkNum, kErrorMarker);
        m_engine.Send(msg::WarningsSetMarkNum, kWarningMarker);
    }

    int Add(const ErrorInfo& record, int owner = 1) const
    {
        return static_cast<int>(m_engine.Send(msg::ErrorAdd, static_cast<WPARAM>(owner), &record));
    }
    int Add(long start, long end, int severity = problem::Error, int owner = 1) const
    {
        ErrorInfo record;
        record.nStart = start;
        record.nEnd = end;
        record.nSeverity = severity;
        return Add(record, owner);
    }

    const ErrorInfo* First(int owner = problem::kAny) const
    {
        return Record(m_engine.Send(msg::ErrorGetFirst, static_cast<WPARAM>(owner)));
    }
    const ErrorInfo* Next(int owner = problem::kAny) const
    {
        return Record(m_engine.Send(msg::ErrorGetNext, static_cast<WPARAM>(owner)));
    }
    const ErrorInfo* Over(long position) const
    {
        return Record(m_engine.Send(msg::ErrorGetOverPos, static_cast<WPARAM>(position)));
    }
    ErrorMap& All(int owner = problem::kAny, int kind = problem::kAny) const
    {
        return *reinterpret_cast<ErrorMap*>(
            m_engine.Send(msg::ErrorsGetAll, static_cast<WPARAM>(owner), kind));
    }

    // "start-end" for each problem of the walk.
    std::string Walk(int owner = problem::kAny) const
    {
        std::string walk;
        for (const ErrorInfo* each = First(owner); each; each = Next(owner))
            walk += (walk.empty() ? "" : " ") + std::to_string(each->nStart) + '-' +
                    std::to_string(each->nEnd);
        return walk;
    }

    // The text that an indicator lies below, pieces divided by a bar.
    std::string Underlined(int indicator) const
    {
        std::string result;
        bool before = false;
        const long length = Stock(Sci::SCI_GETLENGTH);
        for (long at = 0; at < length; ++at) {
            const bool is =
                Stock(Sci::SCI_INDICATORVALUEAT, static_cast<unsigned long>(indicator), at) != 0;
            if (is && !before && !result.empty())
                result += '|';
            if (is)
                result +=
                    static_cast<char>(Stock(Sci::SCI_GETCHARAT, static_cast<unsigned long>(at)));
            before = is;
        }
        return result;
    }

    std::vector<int> Lines(int marker) const
    {
        std::vector<int> lines;
        for (LRESULT line = 0; line < m_engine.Send(msg::GetLineCount); ++line) {
            if (m_engine.Send(msg::MarkerGet, static_cast<WPARAM>(line)) & (1 << marker))
                lines.push_back(static_cast<int>(line));
        }
        return lines;
    }

    void Show() const { m_engine.Send(msg::ErrorsShow); }
    // What the stock engine does before it paints.
    void Update() const { Q_EMIT static_cast<Sci*>(m_engine.Window())->SCN_UPDATEUI(0); }

    long Stock(unsigned message, unsigned long wParam = 0, long lParam = 0) const
    {
        return static_cast<Sci*>(m_engine.Window())->SendScintilla(message, wParam, lParam);
    }

private:
    static const ErrorInfo* Record(LRESULT answer)
    {
        return reinterpret_cast<const ErrorInfo*>(answer);
    }

    const EngineUnderTest& m_engine;
};

using Lines = std::vector<int>;

class ErrorListTest : public testing::Test
{
protected:
    ErrorListTest()
    {
        m_engine.SetText(u"select one\nfrom two\nwhere three\n");
        m_errors.SetNumbers();
    }

    EngineUnderTest m_engine;
    Errors m_errors{m_engine};
};

} // namespace

TEST_F(ErrorListTest, CopiesTheRecordAndGivesItAnId)
{
    ErrorInfo record;
    record.nStart = 7;
    record.nEnd = 10;
    record.nSeverity = problem::Warning;
    record.nKind = problem::Semantic;
    record.nCode = 208;
    record.SetText(u"Invalid object name");
    const int id = m_errors.Add(record, 42);
    EXPECT_GT(id, 0);
    record.SetText(u"something else");
    const ErrorInfo* listed = m_errors.First();
    ASSERT_NE(listed, nullptr);
    EXPECT_NE(listed, &record);
    EXPECT_EQ(std::u16string(listed->pszText), u"Invalid object name");
    EXPECT_EQ(listed->nStart, 7);
    EXPECT_EQ(listed->nEnd, 10);
    EXPECT_EQ(listed->nLine, 0);
    EXPECT_EQ(listed->nSeverity, problem::Warning);
    EXPECT_EQ(listed->nKind, problem::Semantic);
    EXPECT_EQ(listed->nCode, 208);
    EXPECT_EQ(listed->nOwner, 42);
    EXPECT_EQ(listed->nId, id);
    EXPECT_EQ(m_errors.Next(), nullptr);
}

TEST_F(ErrorListTest, ANullRecordIsNone)
{
    EXPECT_EQ(m_engine.Send(msg::ErrorAdd, 1, LPARAM{0}), 0);
    EXPECT_EQ(m_errors.First(), nullptr);
}

TEST_F(ErrorListTest, ARecordWithoutATextIsListedWithoutOne)
{
    m_errors.Add(7, 10);
    EXPECT_EQ(m_errors.First()->pszText, nullptr);
}

TEST_F(ErrorListTest, WalksInTheOrderOfTheText)
{
    m_errors.Add(16, 19);
    m_errors.Add(0, 6);
    m_errors.Add(7, 10);
    m_errors.Add(7, 8);
    EXPECT_EQ(m_errors.Walk(), "0-6 7-10 7-8 16-19");
}

TEST_F(ErrorListTest, AnOwnersWalkPassesTheOthersBy)
{
    m_errors.Add(0, 6, problem::Error, 1);
    m_errors.Add(7, 10, problem::Error, 2);
    m_errors.Add(16, 19, problem::Error, 1);
    EXPECT_EQ(m_errors.Walk(1), "0-6 16-19");
    EXPECT_EQ(m_errors.Walk(2), "7-10");
    EXPECT_EQ(m_errors.Walk(3), "");
}

TEST_F(ErrorListTest, AWalkGoesOnBehindWhatWasDeleted)
{
    for (long start = 0; start < 30; start += 3)
        m_errors.Add(start, start + 1);
    int deleted = 0;
    for (const ErrorInfo* each = m_errors.First(); each; each = m_errors.Next(), ++deleted)
        m_engine.Send(msg::ErrorDelete, 1, each->nId);
    EXPECT_EQ(deleted, 10);
    EXPECT_EQ(m_errors.First(), nullptr);
}

TEST_F(ErrorListTest, DeletesOnlyAnOwnersOwn)
{
    const int id = m_errors.Add(0, 6, problem::Error, 1);
    m_engine.Send(msg::ErrorDelete, 2, id);
    m_engine.Send(msg::ErrorDelete, 1, id + 1);
    m_engine.Send(msg::ErrorDelete, 1, -1);
    EXPECT_EQ(m_errors.Walk(), "0-6");
    m_engine.Send(msg::ErrorDelete, static_cast<WPARAM>(-1), id);
    EXPECT_EQ(m_errors.Walk(), "");
}

TEST_F(ErrorListTest, DeletesByOwnerAndKind)
{
    const auto fill = [&] {
        m_engine.Send(msg::ErrorDeleteAll, static_cast<WPARAM>(-1), -1);
        for (const int owner : {1, 2}) {
            for (const int kind : {problem::Syntax, problem::Semantic}) {
                ErrorInfo record;
                record.nStart = owner * 10 + kind;
                record.nEnd = record.nStart + 1;
                record.nKind = kind;
                m_errors.Add(record, owner);
            }
        }
    };
    fill();
    EXPECT_EQ(m_errors.Walk(), "10-11 11-12 20-21 21-22");
    m_engine.Send(msg::ErrorDeleteAll, 1, problem::Semantic);
    EXPECT_EQ(m_errors.Walk(), "10-11 20-21 21-22");
    fill();
    m_engine.Send(msg::ErrorDeleteAll, 2, -1);
    EXPECT_EQ(m_errors.Walk(), "10-11 11-12");
    fill();
    m_engine.Send(msg::ErrorDeleteAll, static_cast<WPARAM>(-1), problem::Syntax);
    EXPECT_EQ(m_errors.Walk(), "11-12 21-22");
}

TEST_F(ErrorListTest, AllStandUnderTheirLines)
{
    m_errors.Add(16, 19);
    m_errors.Add(7, 10);
    m_errors.Add(0, 6, problem::Warning, 2);
    ErrorMap& all = m_errors.All();
    ASSERT_EQ(all.size(), 2u);
    ASSERT_EQ(all[0].size(), 2u);
    EXPECT_EQ(all[0][0]->nOwner, 2);
    EXPECT_EQ(all[0][1]->nStart, 7);
    EXPECT_EQ(all[1][0]->nStart, 16);
    EXPECT_EQ(m_errors.All(2).size(), 1u);
    EXPECT_TRUE(m_errors.All(1, problem::Semantic).empty());
}

TEST_F(ErrorListTest, ARecordOfTheMapOutlivesItsDeletion)
{
    ErrorInfo record;
    record.nStart = 7;
    record.SetText(u"kept");
    m_errors.Add(record);
    const std::shared_ptr<ErrorInfo> kept = m_errors.All()[0].front();
    m_engine.Send(msg::ErrorDeleteAll, static_cast<WPARAM>(-1), -1);
    EXPECT_TRUE(m_errors.All().empty());
    EXPECT_EQ(std::u16string(kept->pszText), u"kept");
}

TEST_F(ErrorListTest, FindsTheWorstAndThenTheShortestOverAPlace)
{
    m_errors.Add(0, 19, problem::Warning);
    const int wide = m_errors.Add(5, 15);
    const int narrow = m_errors.Add(7, 10);
    m_errors.Add(8, 9, problem::Note);
    EXPECT_EQ(m_errors.Over(8)->nId, narrow);
    EXPECT_EQ(m_errors.Over(10)->nId, wide); // the end is outside
    EXPECT_EQ(m_errors.Over(16)->nSeverity, problem::Warning);
    EXPECT_EQ(m_errors.Over(19), nullptr);
    for (const long position : {-1L, 33L, LONG_MAX, LONG_MIN})
        EXPECT_EQ(m_errors.Over(position), nullptr) << position;
}

TEST_F(ErrorListTest, MarksOnlyWhatIsShown)
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

TEST_F(ErrorListTest, ErrorsAndWarningsHaveMarksOfTheirOwnAndNotesHaveNone)
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

TEST_F(ErrorListTest, DeletingLeavesTheMarksOfTheOthers)
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

TEST_F(ErrorListTest, MarksCanGoWhileTheListStays)
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

TEST_F(ErrorListTest, SeveritiesKeepProblemsOfAKindFromBeingShown)
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

TEST_F(ErrorListTest, OtherNumbersTakeTheMarksAlong)
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

TEST_F(ErrorListTest, NumbersThatThereAreNotGiveNoMark)
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

TEST_F(ErrorListTest, OneNumberForBothShowsBoth)
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

TEST_F(ErrorListTest, TheHostsOwnIndicatorStaysTheCurrentOne)
{
    m_errors.Stock(Sci::SCI_SETINDICATORCURRENT, 8);
    m_errors.Stock(Sci::SCI_SETINDICATORVALUE, 77);
    m_errors.Add(7, 10);
    m_errors.Show();
    EXPECT_EQ(m_errors.Stock(Sci::SCI_GETINDICATORCURRENT), 8);
    EXPECT_EQ(m_errors.Stock(Sci::SCI_GETINDICATORVALUE), 77);
}

TEST_F(ErrorListTest, PlacesOutsideTheTextAreClamped)
{
    for (const auto& [start, end] :
         {std::pair{5L, LONG_MAX}, {LONG_MAX, LONG_MAX}, {40L, 3L}, {12L, 4L}, {12L, LONG_MIN}})
        m_errors.Add(start, end);
    m_errors.Add(LONG_MIN, LONG_MIN);
    // The text has 32 units, and its last line is empty.
    EXPECT_EQ(m_errors.Walk(), "0-10 5-32 12-13 12-13 32-32 32-32");
    m_errors.Show();
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0, 1, 3}));
}

TEST_F(ErrorListTest, AProblemKnownByItsLineTakesTheLinesText)
{
    m_engine.SetText(u"one\n  \ttwo three \t\n   \n\nlast");
    for (const int line : {1, 2, 3, 4, INT_MAX, -5}) {
        ErrorInfo record;
        record.nLine = line;
        m_errors.Add(record);
    }
    m_errors.Show();
    EXPECT_EQ(m_errors.Walk(), "0-3 7-16 19-22 23-23 24-28 24-28");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one|two three|   |last");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0, 1, 2, 3, 4}));
}

TEST_F(ErrorListTest, PlacesCountUnits)
{
    m_engine.SetText(u"\u00e9\U0001F600\u4e2d two \U0001F600\n");
    m_errors.Add(5, 8);
    m_errors.Add(9, 9); // takes in both halves of the pair
    m_errors.Show();
    EXPECT_EQ(m_errors.Walk(), "5-8 9-11");
    m_engine.Insert(0, u"\U0001F600\n");
    EXPECT_EQ(m_errors.Walk(), "8-11 12-14");
    EXPECT_EQ(m_errors.First()->nLine, 1);
}

TEST_F(ErrorListTest, ProblemsAndMarksFollowTheText)
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

TEST_F(ErrorListTest, TextAtTheEdgesOfAProblemIsNotPartOfIt)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    m_engine.Insert(10, u"Z");
    m_engine.Insert(7, u"A");
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "8-11");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
}

TEST_F(ErrorListTest, TextBetweenTwoProblemsThatTouchIsPartOfNeither)
{
    m_errors.Add(7, 8);
    m_errors.Add(8, 10);
    m_errors.Show();
    m_engine.Insert(8, u"--");
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "7-8 10-12");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "o|ne");
}

TEST_F(ErrorListTest, AMarkerGoesWithItsProblemWhenTheLineIsDivided)
{
    m_errors.Add(7, 10);
    m_errors.Show();
    m_engine.Insert(7, u"\n\n");
    m_errors.Update();
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{2}));
    EXPECT_EQ(m_errors.First()->nLine, 2);
}

TEST_F(ErrorListTest, LinesThatAreJoinedShareAMarkerUntilTheLastProblemGoes)
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

TEST_F(ErrorListTest, AProblemWhoseTextIsDeletedStaysListedThere)
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

TEST_F(ErrorListTest, AProblemIsMarkedInTheMarginOfAnEmptyText)
{
    m_engine.SetText(u"one");
    m_errors.Add(0, 3);
    m_errors.Show();
    m_engine.Send(msg::ClearAll);
    m_errors.Update();
    EXPECT_EQ(m_errors.Walk(), "0-0");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
}

TEST_F(ErrorListTest, AMarkerGoesWithItsProblemWhenALineEndIsCutInTwo)
{
    m_engine.SetText(u"one\r\ntwo\r\n");
    m_errors.Add(4, 5);
    m_errors.Show();
    m_engine.Erase(4, 7);
    m_errors.Update();
    EXPECT_EQ(m_errors.First()->nLine, 1);
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{1}));
}

TEST_F(ErrorListTest, AHostThatAsksInsideAnEditHearsPlacesOfTheText)
{
    m_errors.Add(16, 19);
    static const Errors* errors = nullptr;
    static std::vector<std::string> answers;
    errors = &m_errors;
    answers.clear();
    m_engine.Parent().onNotify = [](Listener&, const SCNotification& record) {
        if (record.nmhdr.code == notify::Modified)
            answers.push_back(errors->Walk());
    };
    m_engine.Insert(0, u"12345");
    m_engine.Send(msg::Undo);
    m_engine.Send(msg::ClearAll);
    m_engine.Parent().onNotify = nullptr;
    EXPECT_EQ(answers, (std::vector<std::string>{"21-24", "16-19", "0-0"}));
}

TEST_F(ErrorListTest, AReadOnlyTextCanBeMarked)
{
    m_engine.Send(msg::SetReadOnly, 1);
    m_errors.Add(7, 10);
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
}

namespace {

class ErrorsInTwoWindows : public ErrorListTest
{
protected:
    void ShowSame() const
    {
        m_other.Send(msg::SetDocPointer, 0, m_engine.Send(msg::GetDocPointer));
    }

    EngineUnderTest m_other;
    Errors m_otherErrors{m_other};
};

} // namespace

TEST_F(ErrorsInTwoWindows, TheListIsTheTexts)
{
    ShowSame();
    const int id = m_errors.Add(7, 10);
    m_otherErrors.Show();
    EXPECT_EQ(m_otherErrors.Walk(), "7-10");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
    m_other.Send(msg::ErrorDelete, 1, id);
    EXPECT_EQ(m_errors.Walk(), "");
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "");
}

TEST_F(ErrorsInTwoWindows, AnEditCountsOnceWhicheverWindowItIsMadeIn)
{
    ShowSame();
    m_errors.Add(16, 19);
    m_engine.Insert(0, u"ab\n");
    m_other.Insert(0, u"cd\n");
    EXPECT_EQ(m_errors.Walk(), "22-25");
    m_other.Send(msg::Undo);
    EXPECT_EQ(m_otherErrors.Walk(), "19-22");
}

TEST_F(ErrorsInTwoWindows, AnotherTextHasAListOfItsOwn)
{
    m_errors.Add(7, 10);
    m_other.SetText(u"another text");
    EXPECT_EQ(m_otherErrors.Walk(), "");
    const LRESULT document = m_engine.Send(msg::GetDocPointer);
    m_engine.Send(msg::AddRefDocument, 0, document);
    m_engine.Send(msg::SetDocPointer, 0, m_other.Send(msg::GetDocPointer));
    EXPECT_EQ(m_errors.Walk(), "");
    m_engine.Send(msg::SetDocPointer, 0, document);
    m_engine.Send(msg::ReleaseDocument, 0, document);
    EXPECT_EQ(m_errors.Walk(), "7-10");
}

TEST_F(ErrorsInTwoWindows, ATextWithoutNumbersTakesThoseOfItsWindow)
{
    m_engine.Send(msg::SetDocPointer, 0, LPARAM{0});
    m_engine.SetText(u"select one");
    m_errors.Add(7, 10);
    m_errors.Show();
    EXPECT_EQ(m_errors.Underlined(kErrorIndicator), "one");
    EXPECT_EQ(m_errors.Lines(kErrorMarker), (Lines{0}));
}

TEST(ErrorListOfAText, OutlivesTheWindowThatTheProblemsCameThrough)
{
    EngineUnderTest survivor;
    {
        EngineUnderTest first;
        first.SetText(u"select one\n");
        survivor.Send(msg::SetDocPointer, 0, first.Send(msg::GetDocPointer));
        Errors(first).SetNumbers();
        Errors(first).Add(7, 10);
        Errors(first).Show();
        first.Insert(0, u"\n");
    }
    const Errors errors(survivor);
    EXPECT_EQ(errors.Walk(), "8-11");
    EXPECT_EQ(errors.Lines(kErrorMarker), (Lines{1}));
}

TEST_F(ErrorListTest, MarksStandWhereTheProblemsStandAfterAnyEdits)
{
    const unsigned seed = std::random_device{}();
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
