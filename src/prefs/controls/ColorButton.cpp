// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/controls/ColorButton.h"

#include "platform/system/SystemColors.h"
#include "platform/windows/Questions.h"
#include "platform/windows/Wnd.h"
#include "prefs/controls/NamedColors.h"
#include "prefs/controls/Paints.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include <algorithm>

namespace {

QString NameOf(COLORREF color)
{
    const auto* found = std::ranges::find(kNamedColors, color, &NamedColor::color);
    return found != kNamedColors.end() ? ShownName(*found).trimmed()
                                       : ToQColor(color).name().toUpper();
}

} // namespace

CColorButton::CColorButton(QWidget* parent)
    : QPushButton(parent), m_defaultColor(GetSysColor(COLOR_APPWORKSPACE))
{
    setAutoDefault(false); // Enter belongs to the button that does what the dialog is for
    connect(this, &QPushButton::clicked, this, &CColorButton::DropDown);
    Describe();
}

CColorButton::~CColorButton()
{
    if (m_popup)
        m_popup->disconnect(this);
}

void CColorButton::SetColor(COLORREF color)
{
    m_color = color;
    Describe();
    update();
}

void CColorButton::SetDefaultColor(COLORREF color)
{
    m_defaultColor = color;
    Describe();
    update();
}

COLORREF CColorButton::ShownColor() const
{
    return m_color == kDefaultColor ? m_defaultColor : m_color;
}

// For who cannot see it, and for who wants to know which grey it is.
void CColorButton::Describe()
{
    const QString name = m_color == kDefaultColor
                             ? QStringLiteral("%1: %2").arg(m_defaultText, NameOf(m_defaultColor))
                             : NameOf(m_color);
    setToolTip(name);
    setAccessibleDescription(name);
}

// The nearest window around that hears messages: between the two may stand what groups controls.
void CColorButton::Tell(UINT code, COLORREF color) const
{
    for (QWidget* at = parentWidget(); at; at = at->parentWidget()) {
        if (!AttachedWnd(at))
            continue;
        SendMessage(at, code, GetDlgCtrlID(const_cast<CColorButton*>(this)),
                    static_cast<LPARAM>(color));
        return;
    }
}

void CColorButton::DropDown()
{
    if (m_isDown)
        return;
    m_isDown = true;
    m_colorBefore = m_color;
    auto* popup =
        new ZNCEColorPopup(m_color, m_defaultColor, m_defaultText, m_customText, window());
    m_popup = popup;
    connect(popup, &ZNCEColorPopup::Hovered, this, &CColorButton::OnHovered);
    connect(popup, &ZNCEColorPopup::Chosen, this, &CColorButton::OnChosen);
    connect(popup, &ZNCEColorPopup::CustomWanted, this, &CColorButton::OnCustomWanted);
    connect(popup, &ZNCEColorPopup::Cancelled, this, &CColorButton::OnCancelled);
    popup->ShowBelow(QRect(mapToGlobal(QPoint(0, 0)), size()));
    update();
    Tell(colornews::Opened, m_color);
}

void CColorButton::OnHovered(COLORREF color)
{
    if (!m_isTracking)
        return;
    SetColor(color);
    Tell(colornews::Changed, color);
}

// The window around hears of the colour before the button has it.
void CColorButton::OnChosen(COLORREF color)
{
    m_isDown = false;
    if (m_popup)
        m_popup->deleteLater();
    const QPointer<CColorButton> self = this;
    Tell(colornews::Closed, color);
    Tell(colornews::Chosen, color);
    if (color != m_colorBefore)
        Tell(colornews::Changed, color);
    if (self)
        SetColor(color);
}

void CColorButton::OnCustomWanted()
{
    const COLORREF present = m_colorBefore == kDefaultColor ? m_defaultColor : m_colorBefore;
    const QPointer<CColorButton> self = this;
    const std::optional<COLORREF> color = AskColor(this, present);
    if (!self)
        return;
    if (color)
        OnChosen(*color);
    else
        OnCancelled();
}

void CColorButton::OnCancelled()
{
    m_isDown = false;
    if (m_popup)
        m_popup->deleteLater();
    SetColor(m_colorBefore);
    const QPointer<CColorButton> self = this;
    Tell(colornews::Closed, m_colorBefore);
    if (self)
        Tell(colornews::Cancelled, m_colorBefore);
}

void CColorButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down)
        click();
    else
        QPushButton::keyPressEvent(event);
}

QSize CColorButton::sizeHint() const
{
    constexpr int kLetters = 7;
    constexpr int kAir = 10;
    return {fontMetrics().averageCharWidth() * kLetters + 4 * kAir, fontMetrics().height() + kAir};
}

void CColorButton::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int kRim = 6;
    constexpr int kArrow = 4; // half of its width
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.state.setFlag(QStyle::State_Sunken, m_isDown || isDown());
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const QRect inside = rect().adjusted(kRim, kRim, -kRim, -kRim);
    const int arrowRoom = 2 * kArrow + kRim;
    const QRect box = inside.adjusted(0, 0, -arrowRoom, 0);
    if (isEnabled())
        PaintSwatch(painter, box, ShownColor(), palette());
    const int centre = box.right() + 1 + arrowRoom / 2 + kRim / 2;
    const int top = rect().center().y() - kArrow / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQColor(GetSysColor(isEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT)));
    painter.drawPolygon(QPolygon({QPoint(centre - kArrow, top), QPoint(centre + kArrow, top),
                                  QPoint(centre, top + kArrow)}));
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(kRim / 2, kRim / 2, -kRim / 2, -kRim / 2);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}
