// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/FineScroll.h"

#include "engine/window/PixelPlace.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QInputDevice>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QScrollBar>
#include <QScrollEvent>
#include <QScrollPrepareEvent>
#include <QScroller>
#include <QStyleHints>
#include <QWheelEvent>

#include <chrono>

namespace engine {
namespace {

// Momentum may follow the end of a movement. Touchpads that tell of no end pause.
constexpr std::chrono::milliseconds kEnd(50);
constexpr std::chrono::milliseconds kPause(150);

} // namespace

FineScroll::FineScroll(QAbstractScrollArea& window, PixelPlace& place)
    : m_window(window), m_place(place)
{
    window.viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    window.viewport()->ungrabGesture(Qt::PanGesture); // two fingers' pixels would be lines
}

// A scroller asks the application as it goes. One of a window that outlives the application stays.
FineScroll::~FineScroll()
{
    if (QCoreApplication::instance())
        return;
    disconnect(this, &QObject::destroyed, nullptr, nullptr);
    if (auto* scroller = findChild<QScroller*>())
        scroller->setParent(nullptr);
}

// Many touchpads of X11 tell parts of a wheel's step alone.
QPointF FineScroll::WayOf(const QWheelEvent& event) const
{
    if (!event.pixelDelta().isNull())
        return event.pixelDelta();
    const QPointF steps = QPointF(event.angleDelta()) / QWheelEvent::DefaultDeltasPerStep *
                          QApplication::wheelScrollLines();
    return {steps.x() * m_window.horizontalScrollBar()->singleStep(),
            steps.y() * m_place.LineHeight()};
}

bool FineScroll::Turn(QWheelEvent& event)
{
    const bool isOfFingers = event.phase() != Qt::NoScrollPhase ||
                             event.device()->type() == QInputDevice::DeviceType::TouchPad;
    if (!isOfFingers) {
        m_place.End();
        return false;
    }
    if (event.phase() == Qt::ScrollBegin)
        m_rest = {};
    m_rest += WayOf(event);
    const QPoint way(static_cast<int>(m_rest.x()), static_cast<int>(m_rest.y()));
    m_rest -= way;
    event.setAccepted(Move(way));
    if (event.phase() == Qt::ScrollEnd)
        m_place.Rest(kEnd);
    else if (event.phase() == Qt::NoScrollPhase)
        m_place.Rest(kPause);
    return true;
}

bool FineScroll::Move(QPoint way)
{
    QScrollBar& across = *m_window.horizontalScrollBar();
    const int left = across.value();
    across.setValue(left - way.x());
    const bool hasMoved = way.y() != 0 && m_place.MoveTo(m_place.Top() - way.y());
    return hasMoved || across.value() != left;
}

bool FineScroll::event(QEvent* event)
{
    if (event->type() == QEvent::ScrollPrepare)
        Prepare(static_cast<QScrollPrepareEvent&>(*event));
    else if (event->type() == QEvent::Scroll)
        Swing(static_cast<QScrollEvent&>(*event));
    else
        return QObject::event(event);
    event->accept();
    return true;
}

void FineScroll::Prepare(QScrollPrepareEvent& event)
{
    m_place.Hold();
    const QScrollBar& across = *m_window.horizontalScrollBar();
    event.setViewportSize(m_window.size());
    event.setContentPosRange(QRectF(0, 0, across.maximum(), static_cast<qreal>(m_place.Last())));
    event.setContentPos(QPointF(across.value(), static_cast<qreal>(m_place.Top())));
}

void FineScroll::Swing(QScrollEvent& event)
{
    m_hasMoved = true;
    m_place.MoveTo(qRound64(event.contentPos().y()));
    m_window.horizontalScrollBar()->setValue(qRound(event.contentPos().x()));
    if (event.scrollState() == QScrollEvent::ScrollFinished)
        m_place.Rest(kEnd);
}

// The scroller counts in the window, since the viewport goes with the text. One finger that stays
// where it was is a click.
bool FineScroll::Touch(QEvent& event)
{
    if (event.type() == QEvent::TouchCancel) {
        QScroller::scroller(this)->stop();
        m_place.Rest(kEnd);
    }
    if (event.type() != QEvent::TouchBegin && event.type() != QEvent::TouchUpdate &&
        event.type() != QEvent::TouchEnd)
        return false;
    const auto& touch = static_cast<const QTouchEvent&>(event);
    if (touch.device()->type() != QInputDevice::DeviceType::TouchScreen || touch.points().isEmpty())
        return false;
    event.accept();
    const QEventPoint& finger = touch.points().constFirst();
    QScroller& scroller = *QScroller::scroller(this);
    if (event.type() == QEvent::TouchBegin)
        m_hasMoved = scroller.state() != QScroller::Inactive; // what it stops
    if (touch.points().size() > 1) {
        m_hasMoved = true;
        scroller.stop();
    } else {
        scroller.handleInput(event.type() == QEvent::TouchBegin    ? QScroller::InputPress
                             : event.type() == QEvent::TouchUpdate ? QScroller::InputMove
                                                                   : QScroller::InputRelease,
                             m_window.mapFromGlobal(finger.globalPosition()),
                             static_cast<qint64>(touch.timestamp()));
    }
    if (scroller.state() == QScroller::Inactive)
        m_place.Rest(kEnd);
    if (event.type() == QEvent::TouchEnd && !m_hasMoved)
        Tap(finger.position());
    return true;
}

void FineScroll::Tap(const QPointF& place)
{
    QWidget& viewport = *m_window.viewport();
    const bool isSecond =
        m_lastTap.isValid() &&
        m_lastTap.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval();
    isSecond ? m_lastTap.invalidate() : m_lastTap.start();
    const QPointF onScreen = viewport.mapToGlobal(place);
    QMouseEvent press(isSecond ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, place,
                      onScreen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&viewport, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, place, onScreen, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(&viewport, &release);
}

} // namespace engine
