// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/ScrollReports.h"

#include "platform/windows/ScrollBars.h"
#include "platform/windows/Window.h"

#include <Qsci/qsciscintillabase.h>

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace engine {
namespace {

QScrollBar& Bar(const QAbstractScrollArea& window, bool isVertical)
{
    return isVertical ? *window.verticalScrollBar() : *window.horizontalScrollBar();
}

// A message has room for the low half of a position only. The bar that is dragged knows the rest.
int TrackPosition(const QAbstractScrollArea& window, bool isVertical, UINT low)
{
    SCROLLINFO info;
    info.fMask = SIF_TRACKPOS;
    const bool isKnown =
        SendMessage(window.parentWidget(), kGetScrollInfo, reinterpret_cast<WPARAM>(&info),
                    isVertical ? kScrollVertical : 0) != 0;
    constexpr UINT kWord = 0xFFFF;
    return isKnown && (static_cast<UINT>(info.nTrackPos) & kWord) == low ? info.nTrackPos
                                                                         : static_cast<int>(low);
}

} // namespace

// The stock engine moves its bars without a signal of theirs.
ScrollReports::ScrollReports(QsciScintillaBase& window) : m_window(window)
{
    connect(&window, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int updated) {
        if (updated & QsciScintillaBase::SC_UPDATE_V_SCROLL)
            TellSoon(true);
        if (updated & QsciScintillaBase::SC_UPDATE_H_SCROLL)
            TellSoon(false);
    });
    for (const bool isVertical : {false, true}) {
        const QScrollBar& bar = Bar(window, isVertical);
        const auto tell = [this, isVertical] { TellSoon(isVertical); };
        connect(&bar, &QScrollBar::valueChanged, this, tell);
        connect(&bar, &QScrollBar::rangeChanged, this, tell);
    }
}

void ScrollReports::TellSoon(bool isVertical)
{
    if (std::exchange(m_waits[isVertical], true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this, isVertical] {
            m_waits[isVertical] = false;
            Tell(isVertical);
        },
        Qt::QueuedConnection);
}

void ScrollReports::Tell(bool isVertical) const
{
    const QScrollBar& bar = Bar(m_window, isVertical);
    SCROLLINFO info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = bar.minimum();
    info.nPage = bar.pageStep();
    info.nMax = bar.maximum() + std::max(info.nPage - 1, 0);
    info.nPos = bar.value();
    SendMessage(m_window.parentWidget(), kSetScrollInfo, reinterpret_cast<WPARAM>(&info),
                (isVertical ? kScrollVertical : 0) | kScrollRedraw);
}

void ScrollReports::Scroll(UINT message, WPARAM wParam)
{
    const bool isVertical = message == WM_VSCROLL;
    QScrollBar& bar = Bar(m_window, isVertical);
    switch (ScrollCodeOf(wParam)) {
    case SB_LINEUP:
        return bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
    case SB_LINEDOWN:
        return bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case SB_PAGEUP:
        return bar.triggerAction(QAbstractSlider::SliderPageStepSub);
    case SB_PAGEDOWN:
        return bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    case SB_TOP:
        return bar.triggerAction(QAbstractSlider::SliderToMinimum);
    case SB_BOTTOM:
        return bar.triggerAction(QAbstractSlider::SliderToMaximum);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        return bar.setValue(TrackPosition(m_window, isVertical, ScrollPositionOf(wParam)));
    default:
        return;
    }
}

} // namespace engine
