// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowEvents.h"

#include "platform/windows/Accelerators.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Window.h"
#include "platform/windows/Wnd.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QResizeEvent>

#include <vector>

namespace {

// A key that a child left over comes to its parents as well; it was offered to them on its way in.
bool CameFromChild(HWND window)
{
    const QWidget* focused = QApplication::focusWidget();
    return focused && focused != window && window->isAncestorOf(focused) &&
           AttachedWnd(QApplication::focusWidget());
}

// Every window around the message's own may take it, the innermost first. Whoever is offered it may
// close windows around it.
bool IsTaken(const std::vector<QPointer<QWidget>>& around, MSG message)
{
    for (const QPointer<QWidget>& at : around) {
        CWnd* wnd = AttachedWnd(at);
        if (wnd && wnd->PreTranslateMessage(&message))
            return true;
    }
    return false;
}

bool IsTaken(HWND window, const QKeyEvent& key)
{
    constexpr int kModifiers = static_cast<int>(Qt::ShiftModifier | Qt::ControlModifier |
                                                Qt::AltModifier | Qt::MetaModifier);
    const FrameworkCall call; // an object may be closed by its own key
    // Shift and Tab come as a key of their own.
    const int number = key.key() == Qt::Key_Backtab ? static_cast<int>(Qt::Key_Tab) : key.key();
    std::vector<QPointer<QWidget>> around;
    for (QWidget* at = window; at; at = at->parentWidget())
        around.emplace_back(at);
    if (IsTaken(around, {window, WM_KEYDOWN, static_cast<WPARAM>(number),
                         static_cast<LPARAM>(key.modifiers().toInt() & kModifiers)}))
        return true;
    bool isTaken = false;
    const QString text = key.text(); // the event may go with its window
    for (const QChar unit : text)
        isTaken = IsTaken(around, {window, WM_CHAR, unit.unicode(), 1}) || isTaken;
    return isTaken;
}

class EventFilter final : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* window = static_cast<QWidget*>(watched);
        switch (event->type()) {
        case QEvent::Close:
            if (!SendMessage(window, WM_CLOSE, 0, 0))
                break;
            event->ignore();
            return true;
        case QEvent::Resize: {
            const QSize size = static_cast<QResizeEvent*>(event)->size();
            SendMessage(window, WM_SIZE, 0, SizeParam(size.width(), size.height()));
            break;
        }
        case QEvent::FocusOut:
            SendMessage(window, WM_KILLFOCUS, reinterpret_cast<WPARAM>(QApplication::focusWidget()),
                        0);
            break;
        case QEvent::KeyPress:
            return !CameFromChild(window) && IsTaken(window, *static_cast<QKeyEvent*>(event));
        default:
            break;
        }
        return false;
    }
};

} // namespace

void DeliverEvents(HWND window)
{
    static auto* filter = new EventFilter; // outlives every widget
    window->installEventFilter(filter);
}
