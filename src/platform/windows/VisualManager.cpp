// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/VisualManager.h"

#include "platform/windows/DeviceContext.h"
#include "platform/windows/Wnd.h"

#include <QPainter>
#include <QPalette>

namespace {

CBCGPVisualManager*& HostManager()
{
    static CBCGPVisualManager* manager = nullptr;
    return manager;
}

QRect ToQt(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top),
            static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

QPalette PaletteOf(const CWnd& splitter)
{
    return splitter.GetSafeHwnd() ? splitter.GetSafeHwnd()->palette() : QPalette();
}

// Between ground and text: seen on light and on dark, and nowhere loud.
QColor EdgeColour(const QPalette& palette)
{
    constexpr int kTextPart = 30; // percent
    const QColor ground = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const auto mix = [&](int a, int b) { return (a * (100 - kTextPart) + b * kTextPart) / 100; };
    return {mix(ground.red(), text.red()), mix(ground.green(), text.green()),
            mix(ground.blue(), text.blue())};
}

void DrawEdge(QPainter& painter, const QRect& rect, const QColor& colour)
{
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), colour);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), colour);
    painter.fillRect(QRect(rect.left(), rect.top(), 1, rect.height()), colour);
    painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), colour);
}

} // namespace

CBCGPVisualManager::~CBCGPVisualManager() = default;

CBCGPVisualManager* CBCGPVisualManager::GetInstance()
{
    static CBCGPVisualManager own;
    return HostManager() ? HostManager() : &own;
}

void CBCGPVisualManager::SetInstance(CBCGPVisualManager* manager)
{
    HostManager() = manager;
}

void CBCGPVisualManager::OnDrawSplitterBorder(CDC& dc, CWnd& splitter, const RECT& rect)
{
    DrawEdge(dc.Painter(), ToQt(rect), EdgeColour(PaletteOf(splitter)));
}

void CBCGPVisualManager::OnDrawSplitterBox(CDC& dc, CWnd& splitter, RECT& rect)
{
    DrawEdge(dc.Painter(), ToQt(rect), EdgeColour(PaletteOf(splitter)));
    rect = {rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1};
}

// With a grip in the middle where there is room for one.
void CBCGPVisualManager::OnFillSplitterBackground(CDC& dc, CWnd& splitter, const RECT& rect)
{
    constexpr int kGrip = 24; // pixels along the bar
    constexpr int kThickness = 2;
    const QPalette palette = PaletteOf(splitter);
    const QRect area = ToQt(rect);
    dc.Painter().fillRect(area, palette.color(QPalette::Window));
    QRect grip(0, 0, area.width() > area.height() ? kGrip : kThickness,
               area.width() > area.height() ? kThickness : kGrip);
    grip.moveCenter(area.center());
    if (area.contains(grip))
        dc.Painter().fillRect(grip, EdgeColour(palette));
}
