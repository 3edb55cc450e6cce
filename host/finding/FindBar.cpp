// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/FindBar.h"

#include "control/EngineLooks.h"
#include "control/ExpressionCheck.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/ExpressionHelp.h"
#include "platform/base/Units.h"
#include "search/FindReplaceManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using Editor = CZNCoreEditorControlEx;

namespace {

// As the engine searches.
constexpr int kWholeWord = 2;
constexpr int kMatchCase = 4;
constexpr int kExpression = 0x200000;
constexpr int kPerlSyntax = 0x800000;

constexpr int kBookmark = 0;

bool IsSelected(Editor& editor, long start, long end)
{
    return editor.GetSelectionStart(1) == start && editor.GetSelectionEnd(1) == end;
}

} // namespace

void FindBar::OpenFinding()
{
    ShowReplaceRow(false);
    Open();
}

void FindBar::Open()
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    // Lines that are selected are where to search, less what to search for.
    const bool isLines = editor->LineFromPosition(editor->GetSelectionStart(1), 1) !=
                         editor->LineFromPosition(editor->GetSelectionEnd(1), 1);
    if (isHidden())
        m_inSelection->setChecked(isLines);
    const bool isTyped = isLines || (isVisible() && IsOwn(*editor)); // maybe as an expression
    const QString found = isTyped ? QString() : editor->GetFindString();
    const QString sought = found.isEmpty() ? m_find->currentText() : found;
    const QString replacement = m_replace->currentText();
    m_manager.FillFindCombo(*m_find);
    m_manager.FillReplaceCombo(*m_replace);
    m_find->setEditText(sought);
    m_replace->setEditText(replacement);
    m_result->clear();
    show();
    ShowMatches();
    m_seek.stop(); // the caret stays until somebody types
    KeepOrigin(*editor);
    if (!found.isEmpty() && !editor->IsSelection())
        m_origin->from = editor->WordStartPosition(m_origin->caret, true, 1);
    m_tellsPlace = true;
    m_recount.start(0);
    m_find->setFocus();
    m_find->lineEdit()->selectAll();
}

// All that would be found, lit in the text and on the scroll bar; nothing while the bar is closed.
void FindBar::ShowMatches()
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    if (m_scoped != editor) // and never was, or no longer is
        editor->Call(engine::kShowMatchesWithin, static_cast<WPARAM>(-1), 0, 1);
    const std::u16string sought =
        isHidden() ? std::u16string() : m_find->currentText().toStdU16String();
    editor->Call(engine::kShowMatches, static_cast<WPARAM>(Flags()),
                 sought.empty() ? 0 : reinterpret_cast<LPARAM>(sought.c_str()), 1);
    const QString wrong = isHidden() ? QString() : WhatIsWrong(*editor);
    if (!wrong.isEmpty() || m_tellsWrong) {
        m_result->setText(wrong);
        m_result->setToolTip(wrong);
    }
    m_tellsWrong = !wrong.isEmpty();
    ShowMissing(m_tellsWrong);
}

// What is not found is seen where it was typed.
void FindBar::ShowMissing(bool isMissing)
{
    m_isMissing = isMissing;
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    QPalette own; // but for its text as the bar's
    if (isMissing)
        own.setColor(QPalette::Text, isDark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB3, 0x26, 0x1E));
    m_find->lineEdit()->setPalette(own);
}

void FindBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) // which the box hands on to its field after this
        QMetaObject::invokeMethod(
            this, [this] { ShowMissing(m_isMissing); }, Qt::QueuedConnection);
}

int FindBar::Flags() const
{
    return (m_wholeWord->isChecked() ? kWholeWord : 0) |
           (m_matchCase->isChecked() ? kMatchCase : 0) |
           (m_expression->isChecked() ? kExpression : 0) |
           (m_expression->isChecked() && m_help->IsPerl() ? kPerlSyntax : 0);
}

QString FindBar::WhatIsWrong(Editor& editor) const
{
    const std::u16string sought = m_find->currentText().toStdU16String();
    engine::ExpressionProblem problem;
    problem.text = sought.c_str();
    if (!editor.Call(engine::kExpressionProblem, static_cast<WPARAM>(Flags()),
                     reinterpret_cast<LPARAM>(&problem), 1))
        return {};
    const QString reason = FromUnits(problem.reason);
    return problem.place < 0
               ? tr("No expression: %1").arg(reason)
               : tr("No expression: %1, at character %2").arg(reason).arg(problem.place + 1);
}

void FindBar::ScopeSelection(bool isOn)
{
    m_scoped = nullptr;
    Editor* editor = m_editor();
    if (isOn && editor) {
        GoBack(*editor);
        const Range selected = SelectedIn(*editor);
        if (selected.start < selected.end) {
            m_scoped = editor;
            editor->Call(engine::kShowMatchesWithin, static_cast<WPARAM>(selected.start),
                         selected.end, 1);
        }
    }
    SeekSoon();
    if (isOn && editor && !m_scoped) {
        m_inSelection->setChecked(false);
        Tell(tr("Nothing is selected"));
    }
}

bool FindBar::IsScoped(Editor& editor) const
{
    return m_scoped == &editor && editor.Call(engine::kMatchesFrom, 0, 0, 1) >= 0;
}

FindBar::Range FindBar::Searched(Editor& editor) const
{
    if (!IsScoped(editor))
        return {0, editor.GetLength(1)};
    return {editor.Call(engine::kMatchesFrom, 0, 0, 1), editor.Call(engine::kMatchesTo, 0, 0, 1)};
}

template <typename Match>
void FindBar::EachMatch(Editor& editor, Match match)
{
    const Range searched = Searched(editor);
    for (long from = searched.start; from <= searched.end;) {
        const long found = m_manager.FindInRange(&editor, static_cast<int>(from),
                                                 static_cast<int>(searched.end), true);
        if (found < 0 || !match(found))
            return;
        from = Behind(editor, found);
    }
}

void FindBar::Close()
{
    if (isHidden())
        return;
    if (Editor* editor = m_editor()) // before, or the keyboard passes through what is beside
        editor->SetFocus();
    hide();
    m_inSelection->setChecked(false);
    ShowMatches();
    m_seek.stop();
    m_recount.stop();
    m_count->Stop();
    m_origin.reset();
    m_manager.Save();
}

bool FindBar::Prepare(Editor* editor)
{
    if (!editor)
        return false;
    const QString sought = m_find->currentText();
    if (sought.isEmpty()) {
        Open();
        return false;
    }
    if (const QString wrong = WhatIsWrong(*editor); !wrong.isEmpty()) {
        Tell(wrong);
        m_tellsWrong = true;
        ShowMissing(true);
        return false;
    }
    m_manager.AddFindHistory(sought);
    HandOver();
    return true;
}

void FindBar::HandOver() const
{
    m_manager.SetFind(m_find->currentText());
    m_manager.SetMatchCase(m_matchCase->isChecked());
    m_manager.SetWholeWord(m_wholeWord->isChecked());
    m_manager.SetRegExp(m_expression->isChecked());
    m_manager.SetPerlSyntax(m_help->IsPerl());
    m_manager.SetWrap(true);
    m_manager.SetDown(true);
}

void FindBar::FindNext()
{
    Find(true);
}

void FindBar::FindPrevious()
{
    Find(false);
}

void FindBar::Find(bool down)
{
    SeekNow(); // what was typed last counts as shown
    Editor* editor = m_editor();
    if (!Prepare(editor))
        return;
    const bool isFound = SelectNext(*editor, down);
    TellFound(*editor, isFound);
    if (isFound && m_wentRound && !isVisible())
        Q_EMIT Told(down ? tr("On from the top") : tr("On from the end"));
}

void FindBar::TellFound(Editor& editor, bool isFound)
{
    if (!isFound) {
        Tell(tr("Not found"));
        ShowMissing(true);
        return;
    }
    Tell({});
    m_origin.reset();
    ShowMatches();
    if (!isVisible())
        return;
    m_tellsPlace = true;
    if (m_count->IsStarted())
        TellPlace();
    else
        CountMatches(editor);
}

void FindBar::FindNextWord()
{
    FindWord(true);
}

void FindBar::FindPreviousWord()
{
    FindWord(false);
}

void FindBar::FindWord(bool down)
{
    Editor* editor = m_editor();
    const QString word = editor ? editor->GetFindString() : QString();
    if (word.isEmpty())
        return;
    m_find->setEditText(word);
    m_expression->setChecked(false);
    if (!editor->IsSelection()) // the word at the caret is where the search starts from
        editor->SelectWord();
    Find(down);
}

// Nothing that is found where it stands already, as an end of the line can be, is passed by.
bool FindBar::SelectNext(Editor& editor, bool down)
{
    const Range searched = Searched(editor);
    const long end = down ? searched.end : searched.start;
    const auto find = [&](long from, long to) {
        return m_manager.FindInRange(&editor, static_cast<int>(from), static_cast<int>(to), true);
    };
    // While all of it is selected the search has not begun.
    const bool isFresh = IsScoped(editor) && IsSelected(editor, searched.start, searched.end);
    const bool fromEnd = isFresh ? !down : down;
    const long from = std::clamp(fromEnd ? editor.GetSelectionEnd(1) : editor.GetSelectionStart(1),
                                 searched.start, searched.end);
    long found = find(from, end);
    const bool isNothing = found >= 0 && editor.GetTargetStart(1) == editor.GetTargetEnd(1);
    if (isNothing && IsSelected(editor, found, found)) {
        const long next = down ? editor.PositionAfter(from, 1) : editor.PositionBefore(from, 1);
        found = from == end ? -1 : find(next, end);
    }
    m_wentRound = found < 0;
    if (m_wentRound)
        found = down ? find(searched.start, end) : find(searched.end, end);
    if (found < 0)
        return false;
    const long matchEnd = editor.GetTargetEnd(1);
    Select(editor, found, matchEnd);
    return true;
}

// Lines, by the marker of bookmarks.
void FindBar::MarkAll()
{
    Editor* editor = m_editor();
    if (!Prepare(editor))
        return;
    int count = 0;
    EachMatch(*editor, [&](long found) {
        const int line = editor->LineFromPosition(found, 1);
        if (!(editor->MarkerGet(line, 1) & 1 << kBookmark))
            editor->ToggleBookmark(line);
        ++count;
        return true;
    });
    Tell(tr("%n found and marked", nullptr, count));
}

void FindBar::Count()
{
    Editor* editor = m_editor();
    if (!Prepare(editor))
        return;
    int count = 0;
    EachMatch(*editor, [&count](long) {
        ++count;
        return true;
    });
    Tell(tr("%n found", nullptr, count));
}

// A key finds without the bar, which is then shown for what it has to say.
void FindBar::Tell(const QString& result)
{
    m_result->setText(result);
    m_result->setToolTip(result);
    m_tellsWrong = false;
    m_tellsPlace = false;
    m_seek.stop();
    ShowMissing(false);
    if (!result.isEmpty())
        show();
    Update();
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Close(); // at the match that is shown, which is what somebody wants to edit
    else if (isEnter && qobject_cast<QCheckBox*>(focusWidget())) // where its letter has led
        event->modifiers() & Qt::ShiftModifier ? FindPrevious() : FindNext();
    else if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()); isEnter && button)
        button->click();
    else
        QWidget::keyPressEvent(event);
}

// Enter finds in one box and replaces in the other; with Shift it finds the previous one.
bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QString typed = key->text();
    if (key->modifiers() == Qt::AltModifier && !typed.isEmpty() && typed.front().isPrint())
        return true; // of a button that cannot be pressed, and no letter to be found
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    if (key->modifiers() & Qt::ShiftModifier)
        FindPrevious();
    else if (watched == m_replace)
        Replace();
    else
        FindNext();
    return true;
}
