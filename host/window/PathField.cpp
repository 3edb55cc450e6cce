// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/PathField.h"

#include <QDir>
#include <QPainter>

#include <utility>

namespace {

constexpr int kMargin = 6; // pixels

} // namespace

PathField::PathField(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("path"));
    setAccessibleName(tr("Path of the script"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void PathField::Show(const QString& path)
{
    if (std::exchange(m_path, path) == path)
        return;
    const QString home = QDir::homePath();
    const bool isOwn = path.startsWith(home + u'/');
    m_text = QDir::toNativeSeparators(isOwn ? u'~' + path.mid(home.size()) : path);
    setToolTip(QDir::toNativeSeparators(path));
    setAccessibleDescription(m_text);
    update();
}

QSize PathField::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 2 * kMargin, fontMetrics().height()};
}

QSize PathField::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

// What is left out is in the middle: the name counts, and where it begins.
void PathField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect room = rect().adjusted(kMargin, 0, -kMargin, 0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(m_text, Qt::ElideMiddle, room.width()));
}

void PathField::mouseReleaseEvent(QMouseEvent*)
{
    if (!m_path.isEmpty())
        Q_EMIT Chosen();
}
