// SPDX-License-Identifier: GPL-3.0-or-later
// Completer: the way of what is chosen into the text.
#include "completion/popup/Completer.h"

#include "completion/ScriptSource.h"
#include "completion/popup/LiveIndex.h"
#include "control/Selections.h"
#include "control/ZNCoreEditorControl.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace completion {
namespace {

qsizetype CharactersIn(const QString& text)
{
    return std::count_if(text.begin(), text.end(),
                         [](QChar unit) { return !unit.isLowSurrogate(); });
}

bool IsQuote(QChar unit)
{
    return unit == u'"' || unit == u']' || unit == u'`';
}

} // namespace

// What of the word behind the caret, and of the quote that ends it, is the end of the proposal as
// well.
QString Completer::TailOf(const QString& text, const QString& behind)
{
    const auto* end = std::find_if_not(behind.begin(), behind.end(), IsWordUnit);
    if (end != behind.end() && IsQuote(*end) && text.endsWith(*end))
        ++end;
    const QString rest = behind.left(end - behind.begin());
    return text.endsWith(rest, Qt::CaseInsensitive) ? rest : QString();
}

// As keys would do it: at each of several carets that stand alike, and so that a macro that is
// recorded repeats it.
void Completer::Insert(const Proposal& proposal)
{
    const long caret = m_control.GetCurrentPos(1);
    const QString typed = TextOf(m_query.start, caret);
    const QString behind = TextOf(
        caret, std::min(caret + static_cast<long>(proposal.text.size()), m_control.GetLength(1)));
    const bool goesOn = proposal.text.startsWith(typed);
    const qsizetype before = goesOn ? 0 : CharactersIn(typed);
    const QString tail = TailOf(proposal.text, behind);
    if (!AreAllBetween(typed, goesOn ? Qt::CaseSensitive : Qt::CaseInsensitive, tail))
        m_control.SetSel(caret, caret, 1);
    const bool overtypes = m_control.GetOvertype(1) != 0;
    QInputMethodEvent rest;
    rest.setCommitString(goesOn ? proposal.text.mid(typed.size()) : proposal.text);
    const QPointer<Completer> alive(this); // a change may close the editor
    const QPointer<QWidget> window(m_window);
    m_control.SetOvertype(0, 1);
    m_control.BeginUndoAction(1);
    for (qsizetype i = 0; alive && i < before; ++i)
        m_control.DeleteBack(1);
    for (qsizetype i = CharactersIn(tail); alive && i > 0; --i)
        m_control.Clear(1);
    if (alive)
        QCoreApplication::sendEvent(window, &rest);
    if (window) // another editor may show the text on
        SendMessage(window, engine::message::EndUndoAction, 0, 0);
    if (!alive)
        return;
    m_control.SetOvertype(overtypes, 1);
    m_added = 0; // the text is nobody's typing
}

// Whether each of several carets stands between the same texts. One that does not would lose what
// it stands between.
bool Completer::AreAllBetween(const QString& before, Qt::CaseSensitivity beforeCase,
                              const QString& behind) const
{
    std::vector<engine::SelectionEnds> all(
        static_cast<std::size_t>(m_control.Call(engine::kGetSelections, 0, 0, 1)));
    m_control.Call(engine::kGetSelections, all.size(), reinterpret_cast<LPARAM>(all.data()), 1);
    const long length = m_control.GetLength(1);
    return std::all_of(all.begin(), all.end(), [&](const engine::SelectionEnds& each) {
        const long start = std::max(0L, each.caret - static_cast<long>(before.size()));
        const long end = std::min(length, each.caret + static_cast<long>(behind.size()));
        return each.anchor == each.caret &&
               TextOf(start, each.caret).compare(before, beforeCase) == 0 &&
               TextOf(each.caret, end).compare(behind, Qt::CaseInsensitive) == 0;
    });
}

} // namespace completion
