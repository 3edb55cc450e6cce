// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/looks/HoverTips.h"

#include "control/ErrorInfo.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/base/Units.h"

#include <QAbstractScrollArea>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int kMargins = 5;
constexpr int kMostLines = 15;
constexpr long kLongestLine = 100; // units

QString Paragraphs(const QStringList& texts)
{
    QStringList escaped;
    for (const QString& text : texts)
        escaped << text.toHtmlEscaped();
    return escaped.isEmpty() ? QString()
                             : QStringLiteral("<p>") + escaped.join(QStringLiteral("</p><p>")) +
                                   QStringLiteral("</p>");
}

QString ProblemsOfLine(CZNCoreEditorControlEx& control, int line)
{
    const ErrorMap* problems = control.ErrorsGetAll(problem::kAny, problem::kAny, 1);
    if (!problems || !problems->contains(line))
        return {};
    QStringList texts;
    for (const auto& found : problems->at(line)) {
        if (found->pszText && texts.size() < kMostLines)
            texts << FromUnits(found->pszText);
    }
    return Paragraphs(texts);
}

// The first lines of it, each as far as it is not too long.
QString HiddenText(CZNCoreEditorControlEx& control, int line)
{
    const int last = static_cast<int>(control.GetLastChild(line, -1, 1));
    QString text;
    for (int hidden = line + 1; hidden <= std::min(last, line + kMostLines); ++hidden) {
        const long start = control.PositionFromLine(hidden, 1);
        const long end = std::min(static_cast<long>(control.GetLineEndPosition(hidden, 1)),
                                  start + kLongestLine);
        QString shown(end - start, Qt::Uninitialized);
        if (!shown.isEmpty()) // which has no room for the terminator
            control.GetRange(start, end, reinterpret_cast<char16_t*>(shown.data()));
        text += shown.toHtmlEscaped() + u'\n';
    }
    if (last > line + kMostLines)
        text += QChar(0x2026);
    return text.isEmpty() ? QString() : QStringLiteral("<pre>") + text + QStringLiteral("</pre>");
}

} // namespace

HoverTips::HoverTips(CZNCoreEditorControlEx& control, QObject* parent)
    : QObject(parent), m_control(control)
{
    if (auto* area = qobject_cast<QAbstractScrollArea*>(control.GetSafeHwnd()))
        area->viewport()->installEventFilter(this);
}

QString HoverTips::TextAt(CZNCoreEditorControlEx& control, const QPoint& place)
{
    const int line =
        control.LineFromPosition(control.PositionFromPoint(place.x(), place.y(), 1), 1);
    int margins = 0;
    for (int margin = 0; margin < kMargins; ++margin)
        margins += static_cast<int>(control.GetMarginWidthN(margin, 1));
    if (place.x() < margins)
        return ProblemsOfLine(control, line);
    const long under = control.PositionFromPointClose(place.x(), place.y(), 1);
    const ErrorInfo* problem =
        under < 0 ? nullptr : control.ErrorGetOverPos(static_cast<int>(under), 1);
    if (problem && problem->pszText)
        return Paragraphs({FromUnits(problem->pszText)});
    const long end = control.GetLineEndPosition(line, 1);
    const bool isBehind = place.x() > control.PointXFromPosition(end, 1);
    return isBehind && !control.GetFoldExpanded(line, 1) ? HiddenText(control, line) : QString();
}

bool HoverTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !m_control.GetSafeHwnd())
        return QObject::eventFilter(watched, event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QString text = TextAt(m_control, help.pos());
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help.globalPos(), text, static_cast<QWidget*>(watched));
    return true;
}
