// SPDX-License-Identifier: GPL-3.0-or-later
// Replacing, of FindBar.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/FindBar.h"
#include "host/finding/MatchCase.h"
#include "platform/base/Units.h"
#include "search/FindReplaceManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

using Editor = CZNCoreEditorControlEx;

void FindBar::OpenReplacing()
{
    const QWidget* focus = isVisible() ? window()->focusWidget() : nullptr;
    const bool isSought = focus == m_find && !m_find->currentText().isEmpty();
    ShowReplaceRow(true);
    if (!isAncestorOf(focus)) {
        Open();
        return;
    }
    QComboBox* box = isSought ? m_replace : m_find;
    box->setFocus();
    box->lineEdit()->selectAll();
}

void FindBar::Replace()
{
    Editor* editor = m_editor();
    if (editor && !m_replaceRow->isVisible()) {
        OpenReplacing();
    } else if (SeekNow()) { // nobody has seen it yet
        if (m_origin && IsOwn(*editor))
            m_origin.reset();
    } else if (Prepare(editor)) {
        m_manager.AddReplaceHistory(m_replace->currentText());
        const Range searched = Searched(*editor);
        const long start = editor->GetSelectionStart(1);
        const long end = editor->GetSelectionEnd(1);
        const int found =
            m_manager.FindInRange(editor, static_cast<int>(start), static_cast<int>(end), true);
        if (found == start && editor->GetTargetEnd(1) == end && start >= searched.start &&
            end <= searched.end && !editor->GetReadOnly(1)) {
            editor->SetSel(start, start, 1);
            editor->BeginUndoAction(1);
            ReplaceTarget(*editor);
            editor->EndUndoAction(1);
            m_count->Stop();
            const long behind = editor->GetTargetEnd(1);
            editor->SetSel(behind, behind, 1);
        }
        TellFound(*editor, SelectNext(*editor, true));
    }
}

// With the target on what was put in.
void FindBar::ReplaceTarget(Editor& editor)
{
    const auto targetText = [&editor] {
        const long start = editor.GetTargetStart(1);
        QString text(editor.GetTargetEnd(1) - start, Qt::Uninitialized);
        if (!text.isEmpty()) // which has no room for the terminator
            editor.GetRange(start, start + text.size(), reinterpret_cast<char16_t*>(text.data()));
        return text;
    };
    if (!m_preserveCase->isChecked()) {
        m_manager.ReplaceOne(&editor);
        return;
    }
    const QString match = targetText();
    m_manager.ReplaceOne(&editor);
    const QString replacement = targetText();
    const QString inCase = InCaseOf(match, replacement);
    if (inCase != replacement)
        editor.ReplaceTarget(static_cast<int>(inCase.size()), Units(inCase), 1);
}

// By line and column: replacements above the caret have lengths of their own, and the manager
// leaves it at its old count of units.
class FindBar::CaretPlace
{
public:
    explicit CaretPlace(Editor& editor)
        : m_editor(editor), m_lines(editor.GetLineCount(1)),
          m_line(editor.LineFromPosition(editor.GetCurrentPos(1), 1)),
          m_column(editor.GetCurrentPos(1) - editor.PositionFromLine(m_line, 1)),
          m_top(editor.GetFirstVisibleLine(1))
    {}

    // Unless there are other lines.
    void Restore() const
    {
        if (m_editor.GetLineCount(1) != m_lines)
            return;
        const long place = std::min(m_editor.PositionFromLine(m_line, 1) + m_column,
                                    m_editor.GetLineEndPosition(m_line, 1));
        m_editor.SetSel(place, place, 1);
        m_editor.LineScroll(0, m_top - m_editor.GetFirstVisibleLine(1), 1);
    }

private:
    Editor& m_editor;
    int m_lines;
    int m_line;
    long m_column;
    int m_top; // display line
};

void FindBar::ReplaceAll()
{
    Editor* editor = m_editor();
    if (!Prepare(editor))
        return;
    m_manager.AddReplaceHistory(m_replace->currentText());
    GoBack(*editor); // from the match that was shown
    const bool isPlain = !IsScoped(*editor) && !m_preserveCase->isChecked();
    const CaretPlace caret(*editor);
    const int count = isPlain ? m_manager.ReplaceAll(editor, false) : ReplaceEach(*editor);
    if (!IsScoped(*editor))
        caret.Restore();
    m_count->Stop();
    Tell(isPlain && m_manager.WasStopped() ? tr("Stopped, %n replaced", nullptr, count)
                                           : tr("%n replaced", nullptr, count));
}

// One by one, within what is searched alone: the manager's way lets a range grow over what follows.
int FindBar::ReplaceEach(Editor& editor)
{
    if (editor.GetReadOnly(1))
        return 0;
    int count = 0;
    const long anchor = editor.GetAnchor(1);
    const long caret = editor.GetCurrentPos(1);
    editor.SetDoingReplaceAll(true, 1);
    editor.BeginUndoAction(1);
    for (long from = Searched(editor).start; from <= Searched(editor).end;) {
        const long end = Searched(editor).end;
        const long found =
            m_manager.FindInRange(&editor, static_cast<int>(from), static_cast<int>(end), true);
        if (found < 0)
            break;
        const bool isNothing = editor.GetTargetEnd(1) == found;
        const long behind = editor.GetLength(1) - editor.GetTargetEnd(1);
        ReplaceTarget(editor);
        ++count;
        from = editor.GetLength(1) - behind;
        if (isNothing)
            from = std::max(from + 1, editor.PositionAfter(from, 1));
    }
    editor.EndUndoAction(1);
    editor.SetDoingReplaceAll(false, 1);
    const Range searched = Searched(editor);
    if (IsScoped(editor))
        editor.SetSel(searched.start, searched.end, 1);
    else
        editor.SetSel(std::min(anchor, searched.end), std::min(caret, searched.end), 1);
    return count;
}
