// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/PairKeys.h"

#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/CodePlaces.h"
#include "editing/operations/EditScopes.h"
#include "platform/services/OptionsServer.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

struct Row
{
    char16_t opens;
    char16_t closes;
};

constexpr Row kRows[] = {{u'(', u')'}, {u'[', u']'}, {u'{', u'}'}, {u'\'', u'\''}, {u'"', u'"'}};
constexpr std::u16string_view kLeavesRoom = u" \t\r\n)]},;";

bool IsQuote(char16_t unit)
{
    return unit == u'\'' || unit == u'"';
}

bool IsOfWord(char16_t unit)
{
    return QChar(unit).isLetterOrNumber() || QChar(unit).isSurrogate() || unit == u'_';
}

// One that somebody types, and no command.
char16_t TypedBy(const QKeyEvent& event)
{
    constexpr auto kCommand = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.text().size() == 1 && !(event.modifiers() & kCommand) ? event.text()[0].unicode()
                                                                       : char16_t(0);
}

bool IsBackspace(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Backspace && event.modifiers() == Qt::NoModifier;
}

} // namespace

PairKeys::PairKeys(CZNCoreEditorControlEx& control, QObject* parent)
    : QObject(parent), m_control(control)
{
    control.GetSafeHwnd()->installEventFilter(this);
}

bool PairKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (m_isTyping || !m_control.GetSafeHwnd())
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        DropLeft();
        return Press(static_cast<QKeyEvent&>(*event)) || QObject::eventFilter(watched, event);
    case QEvent::KeyRelease:
    case QEvent::FocusOut:
        DropLeft();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

char16_t PairKeys::UnitAt(long position)
{
    return static_cast<char16_t>(m_control.GetCharAt(position, 1));
}

// Whatever has happened, a pair whose marks do not stand there is none.
void PairKeys::DropLeft()
{
    if (m_pairs.empty())
        return;
    const long caret = m_control.GetCurrentPos(1);
    const long length = m_control.GetLength(1);
    const auto isLeft = [&](const Pair& pair) {
        const long close = length - pair.behind;
        return caret <= pair.open || caret > close || UnitAt(close) != pair.closes;
    };
    m_pairs.erase(std::find_if(m_pairs.begin(), m_pairs.end(), isLeft), m_pairs.end());
}

bool PairKeys::Press(QKeyEvent& event)
{
    const char16_t typed = TypedBy(event);
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows), [typed](const Row& each) {
        return each.opens == typed || each.closes == typed;
    });
    const bool erases = IsBackspace(event) && !m_pairs.empty();
    if ((row == std::end(kRows) && !erases) || !m_control.Scheme() || m_control.GetReadOnly(1) ||
        m_control.GetOvertype(1) || m_control.IsSelection() ||
        m_control.Call(engine::kGetSelections, 0, 0, 1) != 1 ||
        !CZNOptionsServer::GetObjectW()->GetBool(option::ClosePairs))
        return false;
    const long caret = m_control.GetCurrentPos(1);
    const bool isAtClose =
        !m_pairs.empty() && caret == m_control.GetLength(1) - m_pairs.back().behind;
    if (erases) {
        if (!isAtClose || caret != m_pairs.back().open + 1)
            return false;
        m_pairs.pop_back();
        const UndoStep step(m_control);
        m_control.Clear(1);
        m_control.DeleteBack(1);
        return true;
    }
    if (isAtClose && m_pairs.back().closes == typed) {
        m_pairs.pop_back();
        m_control.CharRight(1);
        return true;
    }
    return row->opens == typed && MayGetPartner(typed, caret) && TypePair(event, row->closes);
}

bool PairKeys::MayGetPartner(char16_t typed, long caret)
{
    if (caret < m_control.GetLength(1) &&
        kLeavesRoom.find(UnitAt(caret)) == std::u16string_view::npos)
        return false;
    if (hands::IsInStringOrComment(m_control, caret))
        return false;
    const char16_t before = caret > 0 ? UnitAt(caret - 1) : u' ';
    return !IsQuote(typed) || (!IsOfWord(before) && !IsQuote(before));
}

// The partner goes in by a command that a macro repeats, and that nobody takes for typing.
bool PairKeys::TypePair(QKeyEvent& event, char16_t closes)
{
    const QScopedValueRollback<bool> typing(m_isTyping, true);
    const QPointer<PairKeys> alive(this); // a change may close the editor
    const long open = m_control.GetCurrentPos(1);
    const char16_t text[] = {closes, u'\0'};
    m_control.BeginUndoAction(1);
    QCoreApplication::sendEvent(m_control.GetSafeHwnd(), &event);
    if (!alive || !m_control.GetSafeHwnd())
        return true;
    if (m_control.GetCurrentPos(1) == open + 1 && !m_control.IsSelection()) {
        m_control.ReplaceSel(text, 1);
        m_control.CharLeft(1);
        m_pairs.push_back({open, m_control.GetLength(1) - open - 1, closes});
    }
    m_control.EndUndoAction(1);
    return true;
}
