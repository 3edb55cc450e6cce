// SPDX-License-Identifier: GPL-3.0-or-later
// FineScroll: scrolling by the way that fingers go, on a touchpad and, with a swing behind it, on a
// touch screen. The text follows by pixels, and stands at a line once they are gone.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>

class QAbstractScrollArea;
class QScrollEvent;
class QScrollPrepareEvent;
class QTouchEvent;
class QWheelEvent;

namespace engine {

class PixelPlace;

class FineScroll final : public QObject
{
public:
    FineScroll(QAbstractScrollArea& window, PixelPlace& place); // the window's
    ~FineScroll() override;

    // True if it was one of fingers, which is accepted if there was somewhere to go. One of a wheel
    // is the stock engine's, on displays that give wheels a way in pixels, too.
    bool Turn(QWheelEvent& event);
    // An event of the viewport's: a finger's is no mouse that selects.
    bool Touch(QEvent& event);

    bool event(QEvent* event) override; // the scroller's

private:
    QPointF WayOf(const QWheelEvent& event) const;
    bool Move(QPoint way); // of the fingers, in pixels
    void Prepare(QScrollPrepareEvent& event);
    void Swing(QScrollEvent& event);
    void Tap(const QPointF& place);

    QAbstractScrollArea& m_window;
    PixelPlace& m_place;
    QPointF m_rest; // of a pixel
    bool m_hasMoved = false;
    QElapsedTimer m_lastTap;
};

} // namespace engine
