// SPDX-License-Identifier: GPL-3.0-or-later
// What FindBar shows while one types, and how many matches there are.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/FindBar.h"
#include "host/finding/MatchCount.h"
#include "search/FindReplaceManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLocale>

#include <algorithm>
#include <chrono>

using Editor = CZNCoreEditorControlEx;

namespace {

constexpr std::chrono::milliseconds kRest(300); // of somebody who types into the text

} // namespace

void FindBar::SeekSoon()
{
    ShowMatches();
    m_count->Stop();
    if (isHidden())
        return;
    m_recount.stop();
    m_seek.start(0);
}

bool FindBar::SeekNow()
{
    if (!m_seek.isActive())
        return false;
    m_seek.stop();
    Seek();
    return true;
}

void FindBar::Seek()
{
    Editor* editor = m_editor();
    if (!editor || isHidden())
        return;
    KeepOrigin(*editor);
    if (m_find->currentText().isEmpty() || m_tellsWrong) {
        GoBack(*editor);
        if (!m_tellsWrong)
            Tell({});
        return;
    }
    HandOver();
    const Range searched = Searched(*editor);
    const long from = std::clamp(m_origin->from, searched.start, searched.end);
    const auto find = [&](long start) {
        return m_manager.FindInRange(editor, static_cast<int>(start),
                                     static_cast<int>(searched.end), true);
    };
    long found = find(from);
    m_wentRound = found < 0 && from > searched.start;
    if (m_wentRound)
        found = find(searched.start);
    if (found < 0) {
        GoBack(*editor);
        Tell(tr("Not found"));
        ShowMissing(true);
        return;
    }
    const long end = editor->GetTargetEnd(1);
    Select(*editor, found, end);
    m_origin->shown = {found, end};
    CountMatches(*editor);
}

void FindBar::Select(Editor& editor, long start, long end)
{
    editor.EnsureVisibleEnforcePolicy(editor.LineFromPosition(start, 1), 1);
    editor.SetSel(start, end, 1);
    m_matchIn = &editor;
    m_match = {start, end};
}

bool FindBar::IsOwn(Editor& editor) const
{
    return m_matchIn == &editor && m_match == SelectedIn(editor);
}

FindBar::Range FindBar::SelectedIn(Editor& editor)
{
    return {editor.GetSelectionStart(1), editor.GetSelectionEnd(1)};
}

// Where the search started, for as long as nobody but the bar moves the caret.
void FindBar::KeepOrigin(Editor& editor)
{
    const Range selected = SelectedIn(editor);
    if (m_origin && m_origin->editor == &editor && m_origin->shown == selected)
        return;
    m_origin = {&editor,        editor.GetAnchor(1),           editor.GetCurrentPos(1),
                selected.start, editor.GetFirstVisibleLine(1), editor.GetXOffset(1),
                selected};
}

void FindBar::GoBack(Editor& editor)
{
    const Range selected = SelectedIn(editor);
    if (!m_origin || m_origin->editor != &editor || m_origin->shown != selected)
        return;
    const Range was = {std::min(m_origin->anchor, m_origin->caret),
                       std::max(m_origin->anchor, m_origin->caret)};
    if (selected == was)
        return;
    m_origin->shown = was;
    editor.SetSel(m_origin->anchor, m_origin->caret, 1);
    editor.LineScroll(0, m_origin->top - editor.GetFirstVisibleLine(1), 1);
    editor.SetXOffset(m_origin->left, 1);
}

void FindBar::CountMatches(Editor& editor)
{
    m_tellsPlace = true;
    m_recount.stop();
    m_count->Start([this, &editor](long from) { return StepOf(editor, from); },
                   Searched(editor).start);
}

// A piece of a long text at once. An expression may match over many lines, and is not cut.
MatchCount::Step FindBar::StepOf(Editor& editor, long from)
{
    constexpr long kPiece = 1L << 20; // UTF-16 units
    if (m_editor() != &editor)        // which may be gone
        return {};
    HandOver();
    const Range searched = Searched(editor);
    long to = searched.end;
    if (!m_expression->isChecked() && to - from > kPiece)
        to = std::min(to, editor.GetLineEndPosition(editor.LineFromPosition(from + kPiece, 1), 1));
    const long found =
        m_manager.FindInRange(&editor, static_cast<int>(from), static_cast<int>(to), true);
    MatchCount::Step step{found, found < 0 ? to : Behind(editor, found)};
    if ((found < 0 && to == searched.end) || step.next > searched.end)
        step.next = -1;
    return step;
}

// Nothing matches twice at one place.
long FindBar::Behind(Editor& editor, long found)
{
    const long end = editor.GetTargetEnd(1);
    return end > found ? end : std::max(end + 1, editor.PositionAfter(end, 1));
}

void FindBar::TellPlace()
{
    if (!m_tellsPlace || !m_count->IsStarted() || !isVisible())
        return;
    Editor* editor = m_editor();
    const QLocale locale;
    const int all = m_count->Known();
    const QString number =
        locale.toString(all) + (m_count->IsOver() ? QString() : QStringLiteral("+"));
    long at = editor ? editor->GetSelectionStart(1) : -1;
    if (editor && m_origin && !editor->IsSelection()) // in the word that is sought
        at = m_origin->from;
    const int place = m_count->PlaceOf(at);
    QString text;
    if (place > 0)
        text = tr("%1 of %2").arg(locale.toString(place), number);
    else if (!m_count->IsOver())
        text = tr("more than %1").arg(locale.toString(all));
    else if (all > 0)
        text = tr("%n found", nullptr, all);
    if (m_wentRound)
        text = text.isEmpty() ? tr("gone round") : tr("%1, gone round").arg(text);
    m_result->setText(text);
    m_result->setToolTip(text);
}

void FindBar::OnTextChanged()
{
    if (!isVisible() || !m_tellsPlace)
        return;
    m_count->Stop();
    m_recount.start(kRest);
}

void FindBar::CountAnew()
{
    Editor* editor = m_editor();
    m_wentRound = false;
    if (editor && isVisible() && m_tellsPlace && !m_tellsWrong && !m_find->currentText().isEmpty())
        CountMatches(*editor);
}
