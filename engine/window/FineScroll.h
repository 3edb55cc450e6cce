// SPDX-License-Identifier: GPL-3.0-or-later
// FineScroll: scrolling by the way that fingers go, on a touchpad and, with a swing behind it, on a
// touch screen. The text moves by whole lines as the fingers pass them, sideways by pixels.
#pragma once

#include <QElapsedTimer>
#include <QPointF>

class QAbstractScrollArea;
class QEvent;
class QTouchEvent;
class QWheelEvent;

namespace engine {

class FineScroll
{
public:
    explicit FineScroll(QAbstractScrollArea& window); // whose steps are lines
    ~FineScroll();
    FineScroll(const FineScroll&) = delete;
    FineScroll& operator=(const FineScroll&) = delete;

    // True if that was all. A turn without a way in pixels is the stock engine's, and one of a
    // display that gives wheels such ways, too.
    bool Turn(const QWheelEvent& event, int lineHeight);
    // An event of the viewport's: its scroller's, or a finger's, which is no mouse that selects.
    bool Swing(QEvent& event, int lineHeight);

private:
    bool Touch(QTouchEvent& event);
    void Tap(const QPointF& place);

    QAbstractScrollArea& m_window;
    int m_rest = 0; // pixels beyond the last whole line
    bool m_hasMoved = false;
    QElapsedTimer m_lastTap;
};

} // namespace engine
