// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/EditorPrefsStatic.h"

#include "platform/system/SystemColors.h"
#include "prefs/controls/Paints.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr int kRim = 8; // pixels beside the title

}

CEditorPrefsStatic::CEditorPrefsStatic(QWidget* parent) : QWidget(parent)
{
    QFont font(QStringLiteral("Verdana"));
    font.setPointSizeF(this->font().pointSizeF() * 1.1);
    font.setBold(true);
    setFont(font);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CEditorPrefsStatic::SetTitle(const QString& title)
{
    m_title = title;
    setAccessibleName(title);
    update();
}

QSize CEditorPrefsStatic::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_title) + 2 * kRim, fontMetrics().height() + kRim};
}

// Painted into a buffer first, as all widgets are.
void CEditorPrefsStatic::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int kDarker = 125; // percent
    QPainter painter(this);
    const QColor face = ToQColor(GetSysColor(COLOR_BTNFACE));
    QLinearGradient gradient(rect().topLeft(), rect().topRight());
    gradient.setColorAt(0, face.darker(kDarker));
    gradient.setColorAt(1, face);
    painter.fillRect(rect(), gradient);
    painter.setPen(ToQColor(GetSysColor(COLOR_BTNTEXT)));
    const QRect room = rect().adjusted(kRim, 0, -kRim, 0);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_title, Qt::ElideRight, room.width()));
}
