// SPDX-License-Identifier: GPL-3.0-or-later
// EngineWindow: the mouse and its wheel.
#include "engine/window/EngineWindow.h"
#include "platform/windows/ScrollBars.h"
#include "platform/windows/Window.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

#include <cstdlib>
#include <utility>

namespace engine {

// The stock handler takes Control for columns, where Alt is the window manager's. Here Alt makes
// columns, and Control sets one more caret.
void EngineWindow::mousePressEvent(QMouseEvent* event)
{
    m_engine.EndRuns();
    m_engine.longLines.Prepare();
    EndComposition();
    m_hasMoved = true;
    if (m_engine.looks.MousePressed(*event))
        return;
    if (event->button() == Qt::RightButton && m_engine.looks.IsOn())
        m_carets.PlaceForMenu(event->pos());
    const Qt::KeyboardModifiers held = event->modifiers();
    const bool isLeft = event->button() == Qt::LeftButton;
    m_addsCaret = isLeft && held == Qt::ControlModifier && m_carets.Add(event->pos());
    if (m_addsCaret)
        return;
    const bool isColumn = isLeft && held.testFlag(Qt::AltModifier);
    if (IsFar(event->pos(), isColumn || held.testFlag(Qt::ControlModifier))) {
        PressFar(*event);
        return;
    }
    if (!isColumn && !held.testFlag(Qt::ControlModifier)) {
        QsciScintillaBase::mousePressEvent(event);
        return;
    }
    Qt::KeyboardModifiers told = held & ~(Qt::AltModifier | Qt::ControlModifier);
    told.setFlag(Qt::ControlModifier, isColumn || !m_carets.IsInText(event->pos()));
    QMouseEvent press(event->type(), event->position(), event->globalPosition(), event->button(),
                      event->buttons(), told);
    QsciScintillaBase::mousePressEvent(&press);
    event->setAccepted(press.isAccepted());
}

// So far to the right the stock engine aborts, whether a button is pressed or not; for columns in
// the margins too.
bool EngineWindow::IsFar(QPoint point, bool makesColumns) const
{
    return !m_engine.columns.HaveRoomAt(point.x()) && (makesColumns || m_carets.IsInText(point));
}

void EngineWindow::PressFar(const QMouseEvent& event)
{
    setFocus();
    if (event.button() != Qt::LeftButton)
        return;
    m_engine.columns.Dissolve();
    if (!event.modifiers().testFlag(Qt::ShiftModifier))
        m_carets.Place(event.pos());
    else
        m_carets.Extend(event.pos());
}

void EngineWindow::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IsFar(event->pos(), m_engine.columns.AreSelected()))
        PressFar(*event);
    else
        QsciScintillaBase::mouseDoubleClickEvent(event);
}

void EngineWindow::mouseMoveEvent(QMouseEvent* event)
{
    const bool isFar = IsFar(event->pos(), m_engine.columns.AreSelected());
    if ((m_addsCaret || isFar) && event->buttons().testFlag(Qt::LeftButton))
        m_carets.Extend(event->pos());
    else if (!isFar)
        QsciScintillaBase::mouseMoveEvent(event);
    m_engine.looks.MouseMoved(event->position().toPoint());
}

void EngineWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_addsCaret, false))
        return;
    if (IsFar(event->pos(), m_engine.columns.AreSelected()))
        m_engine.columns.Dissolve();
    QsciScintillaBase::mouseReleaseEvent(event);
}

// With Control or Shift a turn is first the parent's. Fine wheels turn by less than a step at a
// time.
void EngineWindow::wheelEvent(QWheelEvent* event)
{
    const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
    if (!zooms && !event->modifiers().testFlag(Qt::ShiftModifier)) {
        if (!m_fineScroll.Turn(*event))
            QsciScintillaBase::wheelEvent(event);
        return;
    }
    m_place.End();
    const QPointer<EngineWindow> alive(this);
    bool isTaken = zooms;
    m_turn += event->angleDelta().y();
    while (alive && std::abs(m_turn) >= WHEEL_DELTA) {
        const int step = m_turn > 0 ? WHEEL_DELTA : -WHEEL_DELTA;
        m_turn -= step;
        if (IsTurnTaken(*event, step))
            isTaken = true;
        else if (zooms && alive)
            m_engine.Perform(step > 0 ? message::ZoomIn : message::ZoomOut, 0, 0);
    }
    if (isTaken || !alive)
        event->accept();
    else
        QsciScintillaBase::wheelEvent(event);
}

bool EngineWindow::IsTurnTaken(const QWheelEvent& event, int step)
{
    const UINT flags = (event.modifiers().testFlag(Qt::ControlModifier) ? MK_CONTROL : 0) |
                       (event.modifiers().testFlag(Qt::ShiftModifier) ? MK_SHIFT : 0);
    const QPoint at = event.globalPosition().toPoint();
    return SendMessage(parentWidget(), WM_MOUSEWHEEL, WheelParam(flags, step),
                       PointParam({at.x(), at.y()})) != 0;
}

} // namespace engine
