// SPDX-License-Identifier: GPL-3.0-or-later
// The operations behind the rows of Hands.def. Each that changes the text is one undo step.
#pragma once

class CZNCoreEditorControlEx;

namespace hands {

using Editor = CZNCoreEditorControlEx;

// CommentHands.cpp. Lines that are all comments lose their marker, others get one: twice is as
// before.
void ToggleComment(Editor& editor);

// LineHands.cpp. At several carets and selections, each line that one has a part in, once.
void MoveLinesUp(Editor& editor);
void MoveLinesDown(Editor& editor);
void Duplicate(Editor& editor); // the selection, behind itself; without one the line
void JoinLines(Editor& editor); // with the next one if one line is selected
void DeleteLines(Editor& editor);
void PasteIndented(Editor& editor); // the first line where the caret is, the others below it

// SelectionHands.cpp
void SelectLines(Editor& editor);
void GrowSelection(Editor& editor); // word, what brackets hold, brackets, statement, batch, all
void ShrinkSelection(Editor& editor);
void SelectStatement(Editor& editor);
// OccurrenceHands.cpp. Of the word at the caret, or of what is selected: as whole words if it is
// one. Letters count as they are written. Beyond 5,000 carets no more are made.
void AddNextOccurrence(Editor& editor); // without a selection the word itself
void SelectOccurrences(Editor& editor);
void SurroundByParentheses(Editor& editor);
void SurroundByQuotes(Editor& editor);
void SurroundByDoubleQuotes(Editor& editor);
void SurroundByBrackets(Editor& editor);
void SurroundByBraces(Editor& editor);

// PlaceHands.cpp
void NextStatement(Editor& editor);
void PreviousStatement(Editor& editor);
void NextBatch(Editor& editor);
void PreviousBatch(Editor& editor);
// To the partner of the bracket before or behind the caret; else out of the brackets around it.
void MatchingBracket(Editor& editor);
void FoldHere(Editor& editor);
void UnfoldHere(Editor& editor);
void FoldEverything(Editor& editor);
void UnfoldEverything(Editor& editor);
void FoldFromDepth(Editor& editor, int depth); // 0: all; what is not so deep is open
template <int Level>
void FoldToLevel(Editor& editor)
{
    FoldFromDepth(editor, Level);
}

} // namespace hands
