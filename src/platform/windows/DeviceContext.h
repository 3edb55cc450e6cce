// CDC: what is drawn on. A QPainter stands behind it and stays whose it was.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class QPainter;

class ZN_API CDC
{
public:
    explicit CDC(QPainter& painter) : m_painter(painter) {}

    void FillSolidRect(const RECT& rect, COLORREF color);

    QPainter& Painter() { return m_painter; }

private:
    QPainter& m_painter;
};
