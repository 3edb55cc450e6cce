// SPDX-License-Identifier: GPL-3.0-or-later
// Case by Unicode's rules in what is selected, however it is selected.
#include "tests/engine/EngineFixture.h"

#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

#include <utility>

namespace {

using namespace engine;
using Sci = QsciScintillaBase;

// Several selections and columns are made by hand, not by message; places count bytes.
class Case : public testing::Test
{
protected:
    long Stock(unsigned number, unsigned long wParam = 0, long lParam = 0)
    {
        return qobject_cast<Sci*>(editor.Window())->SendScintilla(number, wParam, lParam);
    }

    EngineUnderTest editor;
};

TEST_F(Case, ChangesInEveryOneOfSeveralSelections)
{
    editor.SetText(u"i\u0307\u0130, i\u0130 \u00e5");
    Stock(Sci::SCI_SETMULTIPLESELECTION, 1);
    Stock(Sci::SCI_SETSELECTION, 5, 3); // the caret first
    Stock(Sci::SCI_ADDSELECTION, 7, 10);
    Stock(Sci::SCI_ADDSELECTION, 11, 13);
    editor.Send(message::LowerCase);
    EXPECT_EQ(editor.Text(), u"i\u0307i\u0307, ii\u0307 \u00e5");
    std::vector<std::pair<long, long>> places; // anchor and caret
    for (unsigned long i = 0; i < 3; ++i)
        places.emplace_back(Stock(Sci::SCI_GETSELECTIONNANCHOR, i),
                            Stock(Sci::SCI_GETSELECTIONNCARET, i));
    EXPECT_EQ(places, (decltype(places){{3, 6}, {12, 8}, {15, 13}}));
    editor.Send(message::Undo);
    EXPECT_EQ(editor.Text(), u"i\u0307\u0130, i\u0130 \u00e5");
}

TEST_F(Case, ChangesInTheLinesOfAColumn)
{
    editor.SetText(u"\u0430\u0431\u0432\n\u0430\u0431\u0432\n");
    Stock(Sci::SCI_SETRECTANGULARSELECTIONANCHOR, 2);
    Stock(Sci::SCI_SETRECTANGULARSELECTIONCARET, 13);
    editor.Send(message::UpperCase);
    EXPECT_EQ(editor.Text(), u"\u0430\u0411\u0412\n\u0430\u0411\u0412\n");
    EXPECT_EQ(Stock(Sci::SCI_SELECTIONISRECTANGLE), 1);
    EXPECT_EQ(Stock(Sci::SCI_GETRECTANGULARSELECTIONANCHOR), 2);
    EXPECT_EQ(Stock(Sci::SCI_GETRECTANGULARSELECTIONCARET), 13);
}

TEST_F(Case, LeavesAReadOnlyTextAndOneThatHasItAlone)
{
    editor.SetText(u"\u0431");
    editor.Send(message::SelectAll);
    editor.Send(message::EmptyUndoBuffer);
    editor.Send(message::LowerCase);
    EXPECT_EQ(editor.Send(message::CanUndo), 0);
    editor.Send(message::SetReadOnly, 1);
    editor.Send(message::UpperCase);
    EXPECT_EQ(editor.Text(), u"\u0431");
}

TEST_F(Case, IsRecordedForAMacro)
{
    editor.Send(message::StartRecord);
    editor.Send(message::UpperCase);
    editor.Send(message::StopRecord);
    const std::vector<Heard> records = editor.Parent().Of(notify::MacroRecord);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].record.message, static_cast<int>(message::UpperCase));
}

} // namespace
