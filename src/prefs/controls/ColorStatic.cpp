// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/controls/ColorStatic.h"

#include "prefs/controls/Paints.h"

#include <QPainter>

CColorStatic::CColorStatic(const QString& text, QWidget* parent) : QFrame(parent), m_text(text)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum); // it is not squeezed away
    setAccessibleName(text);
}

void CColorStatic::SetText(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void CColorStatic::SetColors(COLORREF text, COLORREF ground)
{
    m_textColor = text;
    m_groundColor = ground;
    update();
}

QSize CColorStatic::sizeHint() const
{
    constexpr int kAir = 16;
    return fontMetrics().size(0, m_text) + QSize(kAir, kAir);
}

void CColorStatic::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(contentsRect(), ToQColor(m_groundColor));
    painter.setPen(ToQColor(m_textColor));
    painter.drawText(contentsRect(), Qt::AlignCenter, m_text);
    QFrame::paintEvent(event);
}
