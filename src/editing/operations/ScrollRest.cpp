// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/operations/ScrollRest.h"

#include "control/ZNCoreEditorControl.h"
#include "editing/operations/LineWidth.h"

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds kRest(500);
constexpr qint64 kSlice = 2'000'000; // nanoseconds
constexpr int kAtOnce = 256;         // lines between two looks at the clock

QString Name()
{
    return QStringLiteral("scrollRest");
}

} // namespace

ScrollRest::ScrollRest(CZNCoreEditorControl& control, QObject* parent)
    : QObject(parent), m_control(control)
{
    setObjectName(Name());
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ScrollRest::GoOn);
}

ScrollRest* ScrollRest::Of(const QObject& window)
{
    return static_cast<ScrollRest*>(window.findChild<QObject*>(Name()));
}

const QScrollBar& ScrollRest::Bar() const
{
    return *qobject_cast<QAbstractScrollArea*>(m_control.GetSafeHwnd())->horizontalScrollBar();
}

bool ScrollRest::HasChanged()
{
    const long units = m_control.GetLength(1);
    const int lines = m_control.GetLineCount(1);
    const bool hasChanged = units != m_units || lines != m_lines;
    m_units = units;
    m_lines = lines;
    return hasChanged;
}

// Lines above the widest may have come and gone: where they have, it is looked for again.
void ScrollRest::Measured(int widest)
{
    if (widest >= 0)
        m_widest = widest;
    // Where there is no engine the window is another.
    if (!qobject_cast<QAbstractScrollArea*>(m_control.GetSafeHwnd()) || !HasChanged())
        return;
    m_isLooking = false;
    if (Bar().maximum() > 0 && m_control.GetWrapMode(1) == 0)
        m_timer.start(kRest);
    else
        m_timer.stop();
}

bool ScrollRest::IsMuchNarrower(int width) const
{
    const int range = m_control.GetScrollWidth(1);
    return width <= Bar().pageStep() || width < range / 4 * 3;
}

void ScrollRest::Begin()
{
    if (m_widest >= 0 && m_widest < m_lines && !IsMuchNarrower(WidthOfLine(m_control, m_widest)))
        return;
    m_isLooking = true;
    m_next = 0;
    m_longest.fill({});
    m_measured = 0;
    m_width = 0;
    m_widest = -1;
    m_timer.start(std::chrono::milliseconds::zero());
}

void ScrollRest::GoOn()
{
    if (!m_control.GetSafeHwnd() || Bar().maximum() == 0)
        return;
    if (HasChanged()) { // of which the range is not measured yet
        m_isLooking = false;
        m_timer.start(kRest);
    } else if (!m_isLooking) {
        Begin();
    } else if (m_next < m_lines) {
        LookAtLines();
    } else {
        Measure();
    }
}

void ScrollRest::LookAtLines()
{
    QElapsedTimer clock;
    for (clock.start(); m_next < m_lines && clock.nsecsElapsed() < kSlice;) {
        for (const int end = std::min(m_next + kAtOnce, m_lines); m_next < end; ++m_next) {
            const int units = m_control.LineLength(m_next, 1);
            if (units <= m_longest.back().units)
                continue;
            m_longest.back() = {m_next, units};
            std::ranges::sort(m_longest, std::ranges::greater(), &Line::units);
        }
    }
    m_timer.start(std::chrono::milliseconds::zero());
}

// One at a time: to lay out a line may take milliseconds.
void ScrollRest::Measure()
{
    if (m_measured == m_longest.size() || m_longest[m_measured].number < 0) {
        SetBack();
        return;
    }
    const int line = m_longest[m_measured++].number;
    const int width = WidthOfLine(m_control, line);
    if (width > m_width) {
        m_width = width;
        m_widest = line;
    }
    if (IsMuchNarrower(m_width))
        m_timer.start(std::chrono::milliseconds::zero());
}

// What is seen stays where it is.
void ScrollRest::SetBack() const
{
    const int offset = m_control.GetXOffset(1);
    const int seen = offset > 0 ? offset + Bar().pageStep() : 1;
    m_control.SetScrollWidth(std::max(m_width, seen), 1);
}
