// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Window.h"

#include "platform/system/Exceptions.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Questions.h"
#include "platform/windows/WindowEvents.h"
#include "platform/windows/Wnd.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

struct WindowRecord
{
    QPointer<QWidget> widget; // null as soon as the widget's destruction begins
    WindowProcedure procedure = nullptr;
    CWnd* wnd = nullptr;
    UINT id = 0;
};

std::vector<WindowClass>& Classes()
{
    static std::vector<WindowClass> classes;
    return classes;
}

// Keyed by address; a record goes with its widget, so that an address used again starts afresh.
std::unordered_map<HWND, WindowRecord>& Records()
{
    static auto* records = new std::unordered_map<HWND, WindowRecord>; // outlives every widget
    return *records;
}

const WindowClass* FindClass(std::u16string_view name)
{
    for (const WindowClass& windowClass : Classes()) {
        if (name == windowClass.name)
            return &windowClass;
    }
    return nullptr;
}

// The records that were asked for last: messages come in runs to a window and its parent.
struct Found
{
    HWND window = nullptr;
    WindowRecord* record = nullptr;
};
std::array<Found, 16> lastFound;

Found& LastFound(HWND window)
{
    constexpr unsigned kAlignment = 4; // bits of an address that are the same in all
    const std::size_t address = reinterpret_cast<std::size_t>(window) >> kAlignment;
    return lastFound[(address ^ address >> kAlignment) % lastFound.size()];
}

WindowRecord* LiveRecord(HWND window)
{
    if (!window)
        return nullptr;
    Found& last = LastFound(window);
    if (last.window != window) {
        const auto found = Records().find(window);
        if (found == Records().end())
            return nullptr;
        last = {window, &found->second};
    }
    return last.record->widget ? last.record : nullptr;
}

void Forget(HWND window)
{
    if (Found& last = LastFound(window); last.window == window)
        last = {};
    Records().erase(window);
}

WindowRecord& RecordOf(QWidget* widget)
{
    if (WindowRecord* record = LiveRecord(widget))
        return *record;
    WindowRecord& record = Records()[widget];
    record = WindowRecord{widget, nullptr, nullptr, 0};
    QObject::connect(widget, &QObject::destroyed, [widget] {
        CWnd* wnd = Records()[widget].wnd;
        Forget(widget);
        if (wnd)
            wnd->PostNcDestroy();
    });
    return record;
}

// An exception must not reach Qt, which has called most handlers and cannot go on.
LRESULT SendToWnd(CWnd& wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const FrameworkCall call;
    try {
        return wnd.WindowProc(message, wParam, lParam);
    } catch (const CFileException& exception) {
        ShowMessage(nullptr, exception.GetErrorMessage());
        return 0;
    }
}

} // namespace

bool RegisterWindowClass(const WindowClass& windowClass)
{
    if (FindClass(windowClass.name))
        return false;
    Classes().push_back(windowClass);
    return true;
}

HWND CreateWindowOfClass(const char16_t* className, unsigned long style, const RECT& rect,
                         HWND parent, UINT id)
{
    const WindowClass* windowClass = FindClass(className);
    if (!windowClass)
        return nullptr;
    QWidget* widget = windowClass->create(parent);
    if (!widget)
        return nullptr;
    WindowRecord& record = RecordOf(widget);
    record.procedure = windowClass->procedure;
    record.id = id;
    widget->setGeometry(static_cast<int>(rect.left), static_cast<int>(rect.top),
                        static_cast<int>(rect.right - rect.left),
                        static_cast<int>(rect.bottom - rect.top));
    // Said either way: a child that was never hidden appears together with its parent.
    widget->setVisible(style & WS_VISIBLE);
    return widget;
}

UINT GetDlgCtrlID(HWND window)
{
    const WindowRecord* record = LiveRecord(window);
    return record ? record->id : 0;
}

void SetDlgCtrlID(HWND window, UINT id)
{
    if (window)
        RecordOf(window).id = id;
}

HWND GetDlgItem(HWND window, UINT id)
{
    if (!IsWindow(window) || id == 0)
        return nullptr;
    for (QWidget* child : window->findChildren<QWidget*>()) {
        if (GetDlgCtrlID(child) == id)
            return child;
    }
    return nullptr;
}

bool IsWindow(HWND window)
{
    return window && LiveRecord(window);
}

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowRecord* record = LiveRecord(window);
    if (!record)
        return 0;
    if (record->wnd)
        return SendToWnd(*record->wnd, message, wParam, lParam);
    return record->procedure ? record->procedure(window, message, wParam, lParam) : 0;
}

bool PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!IsWindow(window))
        return false;
    return QMetaObject::invokeMethod(
        window, [=] { SendMessage(window, message, wParam, lParam); }, Qt::QueuedConnection);
}

LRESULT CallClassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowRecord* record = LiveRecord(window);
    return record && record->procedure ? record->procedure(window, message, wParam, lParam) : 0;
}

UINT RegisterWindowMessage(const char16_t* name)
{
    constexpr UINT kFirst = 0xC000;
    static std::vector<std::u16string> names;
    const auto found = std::find(names.begin(), names.end(), name);
    const auto index = static_cast<UINT>(found - names.begin());
    if (found == names.end())
        names.emplace_back(name);
    return kFirst + index;
}

HWND GetParent(HWND window)
{
    return IsWindow(window) ? window->parentWidget() : nullptr;
}

bool IsWindowVisible(HWND window)
{
    return IsWindow(window) && window->isVisible();
}

bool IsWindowEnabled(HWND window)
{
    return IsWindow(window) && window->isEnabled();
}

RECT GetClientRect(HWND window)
{
    return IsWindow(window) ? RECT{0, 0, window->width(), window->height()} : RECT{};
}

void InvalidateWindow(HWND window)
{
    if (!IsWindow(window))
        return;
    if (auto* area = qobject_cast<QAbstractScrollArea*>(window))
        area->viewport()->update();
    else
        window->update();
}

void RedrawWindow(HWND window, const RECT* rect, UINT flags)
{
    if (!IsWindow(window) || !(flags & RDW_INVALIDATE))
        return;
    const QRect area =
        rect ? QRect(QPoint(static_cast<int>(rect->left), static_cast<int>(rect->top)),
                     QPoint(static_cast<int>(rect->right) - 1, static_cast<int>(rect->bottom) - 1))
             : window->rect();
    window->update(area);
    if (!(flags & RDW_ALLCHILDREN))
        return;
    for (QWidget* inside : window->findChildren<QWidget*>())
        inside->update(area.translated(-inside->mapTo(window, QPoint(0, 0))));
}

void UpdateWindow(HWND window)
{
    if (!IsWindow(window))
        return;
    if (auto* area = qobject_cast<QAbstractScrollArea*>(window))
        area->viewport()->repaint();
    else
        window->repaint();
}

CWnd* AttachedWnd(HWND window)
{
    const WindowRecord* record = LiveRecord(window);
    return record ? record->wnd : nullptr;
}

void SetAttachedWnd(HWND window, CWnd* wnd)
{
    if (!window)
        return;
    RecordOf(window).wnd = wnd;
    if (wnd)
        DeliverEvents(window);
}
