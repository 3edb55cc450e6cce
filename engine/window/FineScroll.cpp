// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/FineScroll.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QInputDevice>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QScrollBar>
#include <QScrollEvent>
#include <QScrollPrepareEvent>
#include <QScroller>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>

namespace engine {

FineScroll::FineScroll(QAbstractScrollArea& window) : m_window(window)
{
    QScroller::grabGesture(window.viewport(), QScroller::TouchGesture);
}

// A scroller asks the application as it goes. One of a window that outlives the application stays.
FineScroll::~FineScroll()
{
    if (QCoreApplication::instance())
        return;
    QObject::disconnect(m_window.viewport(), &QObject::destroyed, nullptr, nullptr);
    if (auto* scroller = m_window.viewport()->findChild<QScroller*>())
        scroller->setParent(nullptr);
}

bool FineScroll::Turn(const QWheelEvent& event, int lineHeight)
{
    const QPoint way = event.pixelDelta();
    const bool isOfFingers = event.phase() != Qt::NoScrollPhase ||
                             event.device()->type() == QInputDevice::DeviceType::TouchPad;
    if (!isOfFingers)
        return false;
    const bool turnsBack = way.y() != 0 && (way.y() > 0) != (m_rest > 0);
    if (event.phase() == Qt::ScrollBegin || turnsBack)
        m_rest = 0;
    if (way.isNull())
        return false;
    m_rest += way.y();
    const int lines = m_rest / std::max(1, lineHeight);
    m_rest -= lines * lineHeight;
    QScrollBar& down = *m_window.verticalScrollBar();
    QScrollBar& across = *m_window.horizontalScrollBar();
    down.setValue(down.value() - lines);
    across.setValue(across.value() - way.x());
    return true;
}

bool FineScroll::Swing(QEvent& event, int lineHeight)
{
    QScrollBar& down = *m_window.verticalScrollBar();
    QScrollBar& across = *m_window.horizontalScrollBar();
    if (event.type() == QEvent::ScrollPrepare) {
        auto& prepare = static_cast<QScrollPrepareEvent&>(event);
        prepare.setViewportSize(m_window.viewport()->size());
        prepare.setContentPosRange(
            QRectF(0, 0, across.maximum(), static_cast<qreal>(down.maximum()) * lineHeight));
        prepare.setContentPos(
            QPointF(across.value(), static_cast<qreal>(down.value()) * lineHeight));
        event.accept();
        return true;
    }
    if (event.type() >= QEvent::TouchBegin && event.type() <= QEvent::TouchEnd)
        return Touch(static_cast<QTouchEvent&>(event));
    if (event.type() != QEvent::Scroll)
        return false;
    m_hasMoved = true;
    const QPointF place = static_cast<QScrollEvent&>(event).contentPos();
    down.setValue(qRound(place.y() / std::max(1, lineHeight)));
    across.setValue(qRound(place.x()));
    event.accept();
    return true;
}

// One that stays where it was is a click.
bool FineScroll::Touch(QTouchEvent& event)
{
    if (event.device()->type() != QInputDevice::DeviceType::TouchScreen || event.points().isEmpty())
        return false;
    event.accept();
    if (event.type() == QEvent::TouchBegin)
        m_hasMoved = false;
    else if (event.type() == QEvent::TouchEnd && !m_hasMoved)
        Tap(event.points().constFirst().position());
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
