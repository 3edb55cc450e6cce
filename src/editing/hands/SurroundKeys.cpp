// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/SurroundKeys.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/EditedText.h"
#include "editing/hands/Hands.h"
#include "platform/services/OptionsServer.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace {

struct Row
{
    char16_t typed;
    UINT command;
};

constexpr Row kRows[] = {
    {u'(', 54225}, {u'\'', 54226}, {u'"', 54227}, {u'[', 54228}, {u'{', 54229},
};

} // namespace

SurroundKeys::SurroundKeys(CZNCoreEditorControlEx& control, QObject* parent)
    : QObject(parent), m_control(control)
{
    control.GetSafeHwnd()->installEventFilter(this);
}

// Columns without a width are carets, one in each line.
bool SurroundKeys::HasSelectedText()
{
    return std::ranges::any_of(hands::SelectionsOf(m_control),
                               [](const auto& each) { return each.anchor != each.caret; });
}

bool SurroundKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !m_control.GetSafeHwnd())
        return QObject::eventFilter(watched, event);
    const QString text = static_cast<const QKeyEvent&>(*event).text();
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& candidate) {
        return text == QChar(candidate.typed);
    });
    const HandRow* hand = row == std::end(kRows) ? nullptr : FindHand(row->command);
    if (!hand || !IsPossible(*hand, m_control) || !HasSelectedText() ||
        !CZNOptionsServer::GetObjectW()->GetBool(option::SurroundSelection))
        return QObject::eventFilter(watched, event);
    RunHand(*hand, m_control);
    return true;
}
