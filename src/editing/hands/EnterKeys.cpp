// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/EnterKeys.h"

#include "control/Recording.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/CodePlaces.h"
#include "editing/hands/EditedText.h"
#include "editing/operations/EditScopes.h"
#include "editing/operations/LineEndText.h"
#include "platform/services/OptionsServer.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int kNewLine = 2329; // the message of Enter
constexpr int kAsAbove = 1;    // the indentation of the line above

bool IsEnter(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

int CloserOf(int unit)
{
    switch (unit) {
    case '(':
        return ')';
    case '[':
        return ']';
    case '{':
        return '}';
    default:
        return 0;
    }
}

QString LineEnd(CZNCoreEditorControlEx& control)
{
    const std::u16string_view text = LineEndOf(control.GetEOLMode(1), u"\r\n");
    return QString(reinterpret_cast<const QChar*>(text.data()),
                   static_cast<qsizetype>(text.size()));
}

QString Step(CZNCoreEditorControlEx& control)
{
    const int tab = control.GetTabWidth(1);
    const int columns = control.GetIndent(1) != 0 ? control.GetIndent(1) : tab;
    return control.GetUseTabs(1) && columns == tab ? QStringLiteral("\t") : QString(columns, u' ');
}

} // namespace

EnterKeys::EnterKeys(CZNCoreEditorControlEx& control, QObject* parent)
    : QObject(parent), m_control(control)
{
    control.GetSafeHwnd()->installEventFilter(this);
}

bool EnterKeys::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOurs = event->type() == QEvent::KeyPress && m_control.GetSafeHwnd() &&
                        IsEnter(static_cast<const QKeyEvent&>(*event));
    return (isOurs && Press()) || QObject::eventFilter(watched, event);
}

// The blanks that a line begins with, up to the caret.
QString EnterKeys::OwnIndent(long caret)
{
    const int line = m_control.LineFromPosition(caret, 1);
    const long end = std::min(caret, static_cast<long>(m_control.GetLineIndentPosition(line, 1)));
    return hands::TextOf(m_control, m_control.PositionFromLine(line, 1), end);
}

QString EnterKeys::IndentOfNext(long caret)
{
    return m_control.GetAutoIndent() > 0 ? OwnIndent(caret) : QString();
}

// Nothing for a caret that does not stand behind a bracket of code.
std::optional<EnterKeys::Break> EnterKeys::InBrackets(long caret)
{
    const int line = m_control.LineFromPosition(caret, 1);
    const long start = m_control.PositionFromLine(line, 1);
    long bracket = caret - 1;
    while (bracket >= start &&
           m_control.IsIndentChar(static_cast<char16_t>(m_control.GetCharAt(bracket, 1))))
        --bracket;
    const int closer = bracket >= start ? CloserOf(m_control.GetCharAt(bracket, 1)) : 0;
    const bool isAtEnd = caret == m_control.GetLineEndPosition(line, 1);
    if (closer == 0 || (!isAtEnd && m_control.GetCharAt(caret, 1) != closer) ||
        hands::IsInStringOrComment(m_control, bracket + 1))
        return std::nullopt;
    const QString own = u'\n' + OwnIndent(caret);
    return Break{own + Step(m_control), isAtEnd ? QString() : own};
}

// With several carets each opens its line, where the engine and the indentation leave one caret.
bool EnterKeys::Press()
{
    if (!m_control.Scheme() || m_control.GetReadOnly(1) || m_control.AutoCActive(1))
        return false; // a list of the host takes Enter
    const bool opens = m_control.GetAutoIndent() > 0 &&
                       CZNOptionsServer::GetObjectW()->GetBool(option::ClosePairs);
    std::vector<engine::SelectionEnds> carets = hands::SelectionsOf(m_control);
    if (std::ranges::any_of(carets, [](const auto& each) { return each.anchor != each.caret; }))
        return false;
    std::vector<std::optional<Break>> breaks;
    for (const auto& each : carets)
        breaks.push_back(opens ? InBrackets(each.caret) : std::nullopt);
    const bool isPlain = carets.size() == 1 && !breaks.front();
    if (isPlain && m_control.GetAutoIndent() <= kAsAbove &&
        IndentOfNext(carets.front().caret).isEmpty())
        return false;
    m_control.Call(engine::kLineKey, 1, 0, 1);
    {
        const UndoStep step(m_control); // with the indentation that follows
        if (isPlain)
            m_control.NewLine(1);
        else if (carets.size() == 1)
            Put(*breaks.front());
        else
            PutAll(carets, breaks);
    }
    m_control.Call(engine::kLineKey, 0, 0, 1);
    return true;
}

// A macro has each unit, which the engine takes for typed, and each step back.
void EnterKeys::Put(const Break& text)
{
    for (const QChar unit : text.before + text.behind) {
        const char16_t one[] = {unit.unicode(), u'\0'};
        m_control.ReplaceSel(one, 1);
    }
    for (qsizetype i = 0; i < text.behind.size(); ++i)
        m_control.CharLeft(1);
}

// A macro has Enter.
void EnterKeys::PutAll(const std::vector<engine::SelectionEnds>& carets,
                       const std::vector<std::optional<Break>>& breaks)
{
    struct Placed
    {
        int at;
        std::size_t caret;
        Break text;
    };
    std::vector<Placed> all;
    for (std::size_t i = 0; i < carets.size(); ++i)
        all.push_back(
            {carets[i].caret, i,
             breaks[i].value_or(Break{u'\n' + IndentOfNext(carets[i].caret), QString()})});
    std::ranges::sort(all, {}, &Placed::at);
    const bool isRecorded = m_control.Call(engine::kRecordCommand, kNewLine, 0, 1) != 0;
    std::vector<engine::SelectionEnds> placed(carets.size());
    const QString lineEnd = LineEnd(m_control);
    int moved = 0;
    for (Placed& each : all) {
        each.text.before.replace(u'\n', lineEnd);
        const QString text = each.text.before + each.text.behind.replace(u'\n', lineEnd);
        hands::Insert(m_control, each.at + moved, text);
        const int caret = each.at + moved + static_cast<int>(each.text.before.size());
        placed[each.caret] = {caret, caret};
        moved += static_cast<int>(text.size());
    }
    hands::Select(m_control, placed);
    m_control.ScrollCaret(1);
    if (isRecorded)
        m_control.Call(engine::kRecordCommand, 0, 0, 1);
}
