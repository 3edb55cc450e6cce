// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: code that a host inserts, with values that the user is asked for.
#include "docview/ZNCoreEditorView.h"
#include "docview/dialogs/InputBox.h"
#include "docview/text/CodeWords.h"
#include "platform/base/Units.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorView)
};

constexpr int kLineUnits = 1000; // of the line in front of the caret, for the indent
constexpr QLatin1String kCaretMarker("^!");

// So that what follows stands below the caret's column.
QString IndentAtCaret(CZNCoreEditorControlEx& control)
{
    std::array<char16_t, kLineUnits + 1> line = {};
    const long caret = control.GetCurLine(kLineUnits, line.data(), 1);
    const std::u16string_view fitting(line.data());
    return codewords::IndentLike(fitting.substr(0, static_cast<std::size_t>(std::max(caret, 0L))));
}

} // namespace

void CZNCoreEditorView::InsertStringArray(QStringList& lines)
{
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.pop_back();
    m_coreEditor.BeginUndoAction(1);
    const bool wraps = m_coreEditor.IsSelection();
    if (wraps)
        m_coreEditor.Cut(1);
    const long place = m_coreEditor.GetCurrentPos(1);
    const QString indent = IndentAtCaret(m_coreEditor);
    QString text;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        text += GetInputValues(Units(lines[i]));
        if (lines.size() > 1)
            text += u'\n';
        if (i + 1 < lines.size())
            text += indent;
    }
    m_coreEditor.InsertText(place, Units(text), 1);
    const long end = place + static_cast<long>(text.size());
    m_coreEditor.SetSel(end, end, 1);
    GoToCaretMarker(place, end);
    if (wraps)
        m_coreEditor.Paste(1);
    m_coreEditor.EndUndoAction(1);
    m_coreEditor.SetFocus();
}

// By the search flags in force.
void CZNCoreEditorView::GoToCaretMarker(long start, long end)
{
    const QString marker = kCaretMarker;
    m_coreEditor.SetTarget(static_cast<int>(start), static_cast<int>(end));
    const long found =
        m_coreEditor.SearchInTarget(static_cast<int>(marker.size()), Units(marker), 1);
    if (found < 0)
        return;
    m_coreEditor.SetSel(found, found + static_cast<long>(marker.size()), 1);
    m_coreEditor.DeleteBack(1);
}

// A value may bring further markers. A marker that is not closed, and a question that is not
// answered, cost the whole line.
QString CZNCoreEditorView::GetInputValues(const char16_t* text)
{
    QString line(reinterpret_cast<const QChar*>(text));
    for (;;) {
        codewords::Prompt prompt;
        switch (codewords::FindPrompt(line, prompt)) {
        case codewords::PromptSearch::None:
            return line;
        case codewords::PromptSearch::NotClosed:
            return {};
        case codewords::PromptSearch::Found:
            break;
        }
        CInputBox box(prompt.text, QString(), 1, Texts::tr("Enter Input Param"), this);
        if (box.DoModal() != IDOK)
            return {};
        line.replace(prompt.start, prompt.length, box.m_value);
    }
}
