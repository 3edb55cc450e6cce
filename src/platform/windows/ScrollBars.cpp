// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/ScrollBars.h"

#include "platform/windows/Window.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace {

struct ActionRow
{
    int action;
    UINT code;
};

constexpr ActionRow kActions[] = {
    {QAbstractSlider::SliderSingleStepSub, SB_LINEUP},
    {QAbstractSlider::SliderSingleStepAdd, SB_LINEDOWN},
    {QAbstractSlider::SliderPageStepSub, SB_PAGEUP},
    {QAbstractSlider::SliderPageStepAdd, SB_PAGEDOWN},
    {QAbstractSlider::SliderToMinimum, SB_TOP},
    {QAbstractSlider::SliderToMaximum, SB_BOTTOM},
    {QAbstractSlider::SliderMove, SB_THUMBTRACK},
};

const QString& NameOf(int bar)
{
    static const QString names[] = {QStringLiteral("ownHorizontalBar"),
                                    QStringLiteral("ownVerticalBar")};
    return names[bar == SB_VERT];
}

QScrollBar* MakeOwnBar(HWND window, int bar)
{
    auto* made = new QScrollBar(bar == SB_VERT ? Qt::Vertical : Qt::Horizontal, window);
    made->setObjectName(NameOf(bar));
    made->hide();
    made->setRange(0, 0);
    made->setPageStep(0);
    QObject::connect(made, &QScrollBar::actionTriggered, window, [=](int action) {
        for (const ActionRow& row : kActions) {
            if (row.action == action)
                SendMessage(window, bar == SB_VERT ? WM_VSCROLL : WM_HSCROLL,
                            ScrollParam(row.code, made->sliderPosition()),
                            reinterpret_cast<LPARAM>(made));
        }
    });
    return made;
}

// The part of a page that the last position lies above the range's end.
int BehindPosition(int page)
{
    return std::max(page - 1, 0);
}

} // namespace

QScrollBar* ScrollBarOf(HWND window, int bar)
{
    if (!IsWindow(window))
        return nullptr;
    if (const auto* area = qobject_cast<QAbstractScrollArea*>(window))
        return bar == SB_VERT ? area->verticalScrollBar() : area->horizontalScrollBar();
    for (QObject* child : window->children()) {
        if (child->objectName() == NameOf(bar))
            return static_cast<QScrollBar*>(child);
    }
    return MakeOwnBar(window, bar);
}

bool GetScrollInfo(HWND window, int bar, SCROLLINFO* info)
{
    const QScrollBar* slider =
        info->cbSize == sizeof(SCROLLINFO) ? ScrollBarOf(window, bar) : nullptr;
    if (!slider)
        return false;
    if (info->fMask & SIF_RANGE) {
        info->nMin = slider->minimum();
        info->nMax = slider->maximum() + BehindPosition(slider->pageStep());
    }
    if (info->fMask & SIF_PAGE)
        info->nPage = slider->pageStep();
    if (info->fMask & SIF_POS)
        info->nPos = slider->value();
    if (info->fMask & SIF_TRACKPOS)
        info->nTrackPos = slider->sliderPosition();
    return true;
}

bool SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, bool redraw)
{
    SCROLLINFO state;
    state.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    if (info->cbSize != sizeof(SCROLLINFO) || !GetScrollInfo(window, bar, &state))
        return false;
    if (info->fMask & SIF_RANGE) {
        state.nMin = info->nMin;
        state.nMax = std::max(info->nMax, info->nMin);
    }
    if (info->fMask & SIF_PAGE)
        state.nPage = info->nPage;
    if (info->fMask & SIF_POS)
        state.nPos = info->nPos;
    const qint64 units = qint64{state.nMax} - state.nMin + 1;
    state.nPage = static_cast<int>(std::clamp<qint64>(state.nPage, 0, units));
    QScrollBar* slider = ScrollBarOf(window, bar);
    const QSignalBlocker quiet(slider);
    slider->setRange(state.nMin, state.nMax - BehindPosition(state.nPage));
    slider->setPageStep(state.nPage);
    slider->setValue(state.nPos);
    if (redraw)
        slider->update();
    return true;
}
