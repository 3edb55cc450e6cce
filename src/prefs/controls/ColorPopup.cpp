// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/controls/ColorPopup.h"

#include "prefs/controls/NamedColors.h"
#include "prefs/controls/Paints.h"

#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ColorPopup)
};

constexpr int kColumns = 8;
constexpr int kRows = static_cast<int>(kNamedColors.size()) / kColumns;
constexpr int kCells = kColumns * kRows;
constexpr int kRim = 6; // pixels, as all that follow
constexpr int kSwatchRim = 3;
static_assert(kCells == static_cast<int>(kNamedColors.size()));

} // namespace

ZNCEColorPopup::ZNCEColorPopup(COLORREF color, COLORREF defaultColor, const QString& defaultText,
                               const QString& customText, QWidget* owner)
    : QWidget(owner, Qt::Popup), m_color(color), m_defaultColor(defaultColor),
      m_defaultText(defaultText), m_customText(customText)
{
    setFont(QApplication::font("QMenu"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(Texts::tr("Palette"));
    if (color == kDefaultColor) {
        m_chosen = m_defaultText.isEmpty() ? kNoCell : kDefaultCell;
    } else {
        const auto* found = std::ranges::find(kNamedColors, color, &NamedColor::color);
        if (found != kNamedColors.end())
            m_chosen = static_cast<int>(found - kNamedColors.begin());
    }
    m_current = m_chosen;
    resize(sizeHint());
}

int ZNCEColorPopup::TextHeight() const
{
    constexpr int kAir = 12;
    return fontMetrics().height() + kAir;
}

int ZNCEColorPopup::CellSize() const
{
    constexpr int kAir = 8;
    return fontMetrics().height() + kAir;
}

int ZNCEColorPopup::GridTop() const
{
    return kRim + (m_defaultText.isEmpty() ? 0 : TextHeight() + kSwatchRim);
}

QSize ZNCEColorPopup::sizeHint() const
{
    constexpr int kTextRoom = 40; // beside a text, for the swatch too
    const int text = std::max(fontMetrics().horizontalAdvance(m_defaultText),
                              fontMetrics().horizontalAdvance(m_customText)) +
                     kTextRoom;
    const int below = m_customText.isEmpty() ? 0 : TextHeight() + kSwatchRim;
    return {2 * kRim + std::max(kColumns * CellSize(), text),
            GridTop() + kRows * CellSize() + below + kRim};
}

QRect ZNCEColorPopup::RectOf(int cell) const
{
    const int size = CellSize();
    if (cell == kDefaultCell && !m_defaultText.isEmpty())
        return {kRim, kRim, width() - 2 * kRim, TextHeight()};
    if (cell == kCustomCell && !m_customText.isEmpty())
        return {kRim, GridTop() + kRows * size + kSwatchRim, width() - 2 * kRim, TextHeight()};
    if (cell < 0 || cell >= kCells)
        return {};
    const int left = (width() - kColumns * size) / 2;
    return {left + cell % kColumns * size, GridTop() + cell / kColumns * size, size, size};
}

int ZNCEColorPopup::CellAt(QPoint place) const
{
    for (int cell = kDefaultCell; cell < kCells; ++cell) {
        if (RectOf(cell).contains(place))
            return cell;
    }
    return kNoCell;
}

QString ZNCEColorPopup::NameOf(int cell) const
{
    if (cell == kDefaultCell)
        return m_defaultText;
    if (cell == kCustomCell)
        return m_customText;
    return cell >= 0 && cell < kCells ? ShownName(kNamedColors[static_cast<std::size_t>(cell)])
                                      : QString();
}

COLORREF ZNCEColorPopup::ColorOf(int cell) const
{
    if (cell == kDefaultCell)
        return kDefaultColor;
    return cell >= 0 && cell < kCells ? kNamedColors[static_cast<std::size_t>(cell)].color
                                      : m_color;
}

void ZNCEColorPopup::ShowBelow(const QRect& place)
{
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    QPoint corner(place.left(), place.bottom() + 1);
    if (corner.y() + height() > room.bottom() && place.top() - height() >= room.top())
        corner.setY(place.top() - height());
    corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())));
    move(corner);
    show();
    setFocus(Qt::PopupFocusReason);
}

void ZNCEColorPopup::SetCurrentCell(int cell)
{
    if (cell == m_current)
        return;
    m_current = cell;
    setAccessibleName(cell == kNoCell ? Texts::tr("Palette") : NameOf(cell).trimmed());
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    update();
    if (cell != kCustomCell && cell != kNoCell)
        Q_EMIT Hovered(ColorOf(cell));
}

void ZNCEColorPopup::Choose(int cell)
{
    if (m_isDone)
        return;
    m_isDone = true;
    hide();
    if (cell == kNoCell)
        Q_EMIT Cancelled();
    else if (cell == kCustomCell)
        Q_EMIT CustomWanted();
    else
        Q_EMIT Chosen(ColorOf(cell));
}

void ZNCEColorPopup::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    Choose(kNoCell);
}

bool ZNCEColorPopup::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int cell = CellAt(help->pos());
        QToolTip::showText(help->globalPos(), cell >= 0 ? NameOf(cell).trimmed() : QString(), this,
                           RectOf(cell));
        return true;
    }
    return QWidget::event(event);
}

void ZNCEColorPopup::mouseMoveEvent(QMouseEvent* event)
{
    if (const int cell = CellAt(event->position().toPoint()); cell != kNoCell)
        SetCurrentCell(cell);
}

void ZNCEColorPopup::mousePressEvent(QMouseEvent* event)
{
    if (!rect().contains(event->position().toPoint()))
        Choose(kNoCell);
}

void ZNCEColorPopup::mouseReleaseEvent(QMouseEvent* event)
{
    if (const int cell = CellAt(event->position().toPoint()); cell != kNoCell)
        Choose(cell);
}

int ZNCEColorPopup::First() const
{
    return m_defaultText.isEmpty() ? 0 : kDefaultCell;
}

int ZNCEColorPopup::Last() const
{
    return m_customText.isEmpty() ? kCells - 1 : kCustomCell;
}

// The default cell lies before the table and the custom cell behind it, in both directions; each
// end leads to the other.
int ZNCEColorPopup::Next(int key) const
{
    const bool isForward = key == Qt::Key_Right || key == Qt::Key_Down;
    const int step = key == Qt::Key_Left || key == Qt::Key_Right ? 1 : kColumns;
    if (m_current == kNoCell)
        return isForward ? First() : Last();
    if (m_current == kDefaultCell)
        return isForward ? 0 : Last();
    if (m_current == kCustomCell)
        return isForward ? First() : step == 1 ? kCells - 1 : kCells - kColumns;
    const int next = m_current + (isForward ? step : -step);
    if (next >= 0 && next < kCells)
        return next;
    if (isForward)
        return m_customText.isEmpty() ? First() : kCustomCell;
    return m_defaultText.isEmpty() ? Last() : kDefaultCell;
}

void ZNCEColorPopup::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        SetCurrentCell(Next(event->key()));
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Choose(m_current);
        break;
    case Qt::Key_Escape:
        Choose(kNoCell);
        break;
    default:
        break;
    }
    event->accept();
}

void ZNCEColorPopup::PaintFrame(QPainter& painter, int cell) const
{
    const QRect rect = RectOf(cell).adjusted(0, 0, -1, -1);
    if (cell == m_current) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRect(rect);
    } else if (cell == m_chosen) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect);
    }
}

void ZNCEColorPopup::PaintText(QPainter& painter, int cell, const QString& text) const
{
    if (text.isEmpty())
        return;
    PaintFrame(painter, cell);
    const QRect rect = RectOf(cell);
    painter.setPen(
        palette().color(cell == m_current ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(rect, Qt::AlignCenter, text);
    if (cell != kDefaultCell)
        return;
    const int side = rect.height() - 2 * kRim;
    PaintSwatch(painter, QRect(rect.left() + kRim, rect.top() + kRim, side, side), m_defaultColor,
                palette());
}

// The default cell first, the custom cell last.
void ZNCEColorPopup::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    PaintText(painter, kDefaultCell, m_defaultText);
    for (int cell = 0; cell < kCells; ++cell) {
        PaintFrame(painter, cell);
        PaintSwatch(painter,
                    RectOf(cell).adjusted(kSwatchRim, kSwatchRim, -kSwatchRim, -kSwatchRim),
                    ColorOf(cell), palette());
    }
    PaintText(painter, kCustomCell, m_customText);
}
