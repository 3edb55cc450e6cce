// SPDX-License-Identifier: GPL-3.0-or-later
// The error list by message: what is listed, where it stands, and whose it is.
#include "tests/engine/ErrorFixture.h"

#include <climits>
#include <memory>

namespace msg = engine::message;

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
