// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/icons/Style.h"

#include "host/icons/FocusFrame.h"
#include "host/icons/Icons.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDockWidget>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace {

const QString kPlain = QStringLiteral("fusion");
constexpr double kFocusWidth = 2; // pixels
constexpr double kThin = 1;

QColor FocusOn(const QStyleOption& option, QPalette::ColorRole ground)
{
    return FocusColour(option.palette, option.palette.color(QPalette::Active, ground));
}

// Between the ink and the ground, so that it is seen on both.
QColor Frame(const QStyleOption& option)
{
    constexpr double kInk = 0.55;
    constexpr double kFaintInk = 0.25;
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const QColor ink = option.palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ground = option.palette.color(QPalette::Base);
    const double share = isEnabled ? kInk : kFaintInk;
    const auto part = [share](int a, int b) { return static_cast<int>(b + (a - b) * share); };
    return {part(ink.red(), ground.red()), part(ink.green(), ground.green()),
            part(ink.blue(), ground.blue())};
}

QColor Ink(const QStyleOption& option)
{
    const bool isEnabled = option.state & QStyle::State_Enabled;
    return isEnabled ? option.palette.color(QPalette::Active, QPalette::Text) : Frame(option);
}

void DrawBox(const QStyleOption& option, QPainter& painter, bool isRound)
{
    constexpr double kCorner = 2.5;
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const double corner = isRound ? box.width() / 2 : kCorner;
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isHot = option.state & (QStyle::State_HasFocus | QStyle::State_MouseOver);
    painter.setPen(isHot ? FocusOn(option, QPalette::Base) : Frame(option));
    painter.setBrush(
        option.palette.brush(option.state & QStyle::State_Sunken ? QPalette::Mid : QPalette::Base));
    painter.drawRoundedRect(box, corner, corner);
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    QPen pen(Ink(option), box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (isRound && option.state & QStyle::State_On) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Ink(option));
        painter.drawEllipse(box.center(), box.width() / 4, box.height() / 4);
    } else if (option.state & QStyle::State_On) {
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.43, 0.73), at(0.78, 0.28)}));
    } else if (option.state & QStyle::State_NoChange) {
        painter.setPen(pen);
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    }
}

void DrawEditFrame(const QStyleOption& option, QPainter& painter)
{
    const bool hasFocus = option.state & QStyle::State_HasFocus;
    DrawFocusFrame(painter, option.rect, hasFocus ? FocusOn(option, QPalette::Base) : Frame(option),
                   hasFocus ? kFocusWidth : kThin);
}

// Around words in a window, or a row of a list.
void DrawFocusRect(const QStyleOption& option, QPainter& painter)
{
    const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    const bool isRow = option.state & QStyle::State_Item;
    const QPalette::ColorRole ground = !isRow                                  ? QPalette::Window
                                       : option.state & QStyle::State_Selected ? QPalette::Highlight
                                                                               : QPalette::Base;
    if (focus)
        DrawFocusFrame(painter, option.rect, FocusOn(option, ground), kThin);
}

// The button that Enter presses has a thin frame.
void DrawButtonFrame(const QStyleOptionButton& option, QPainter& painter)
{
    const bool isDefault = option.features & QStyleOptionButton::DefaultButton;
    const bool hasFocus = option.state & QStyle::State_HasFocus;
    if ((isDefault || hasFocus) && option.state & QStyle::State_Enabled)
        DrawFocusFrame(painter, option.rect, FocusOn(option, QPalette::Button),
                       hasFocus ? kFocusWidth : kThin);
}

// So that a menu over a text is set off against it. Qt tells of no state here.
void DrawMenuFrame(QStyleOption option, QPainter& painter)
{
    option.state |= QStyle::State_Enabled;
    painter.save();
    painter.setPen(Frame(option));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

// On a dark ground the plain style's thumb is a shade of its groove.
void DrawThumbFrame(const QStyleOption& option, QPainter& painter, const QRect& thumb)
{
    constexpr int kHalf = 128; // of a lightness
    const bool isDark = option.palette.color(QPalette::Window).lightness() < kHalf;
    constexpr double kShare = 0.65; // of the ink, over the groove
    QColor edge = option.palette.color(QPalette::Active, QPalette::WindowText);
    edge.setAlphaF(kShare);
    if (isDark && option.state & QStyle::State_Enabled)
        DrawFocusFrame(painter, thumb, edge, kThin);
}

bool HasKeys(const QWidget& pane)
{
    const QWidget* focus = QApplication::focusWidget();
    return focus && pane.isAncestorOf(focus);
}

// Of an entry that cannot be taken; the plain style draws the ground of others.
void DrawEntryGround(const QStyleOption& option, QPainter& painter)
{
    constexpr double kFaint = 0.25;
    QColor ground = option.palette.color(QPalette::Active, QPalette::Highlight);
    ground.setAlphaF(kFaint);
    painter.fillRect(option.rect, ground);
}

// Quiet until the mouse is there.
void DrawTabClose(const QStyleOption& option, QPainter& painter)
{
    constexpr double kCorner = 3;
    const bool isHot = option.state & QStyle::State_MouseOver;
    painter.setRenderHint(QPainter::Antialiasing);
    if (isHot) {
        painter.setPen(Qt::NoPen);
        QColor ground = option.palette.color(QPalette::WindowText);
        constexpr double kShade = 0.15;
        ground.setAlphaF(option.state & QStyle::State_Sunken ? kShade * 2 : kShade);
        painter.setBrush(ground);
        painter.drawRoundedRect(option.rect, kCorner, kCorner);
    }
    constexpr double kSize = 0.2; // of the place, from its middle
    constexpr double kWidth = 1.3;
    const QPointF middle = QRectF(option.rect).center();
    const double arm = option.rect.width() * kSize;
    const bool isStrong = isHot || option.state & QStyle::State_Selected;
    painter.setPen(QPen(isStrong ? option.palette.color(QPalette::WindowText) : Frame(option),
                        kWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
    painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
}

} // namespace

Style::Style() : QProxyStyle(kPlain)
{
    connect(qApp, &QApplication::focusChanged, this, [](QWidget* before, QWidget* after) {
        for (QWidget* widget : {before, after}) {
            while (widget && !qobject_cast<QDockWidget*>(widget))
                widget = widget->parentWidget();
            if (widget)
                widget->update();
        }
    });
}

void Style::Install()
{
    if (QApplication::style()->name() == kPlain)
        QApplication::setStyle(new Style);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    if (element == PE_FrameMenu) {
        DrawMenuFrame(*option, *painter);
        return;
    }
    if (element == PE_FrameFocusRect) {
        DrawFocusRect(*option, *painter);
        return;
    }
    if (element == PE_Frame && option->state & State_HasFocus &&
        qobject_cast<const QAbstractScrollArea*>(widget)) {
        DrawFocusFrame(*painter, option->rect, FocusOn(*option, QPalette::Base), kThin);
        return;
    }
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    const bool isRound = element == PE_IndicatorRadioButton;
    if (element == PE_FrameLineEdit) {
        painter->save();
        DrawEditFrame(*option, *painter);
        painter->restore();
        return;
    }
    if (!isBox && !isRound && element != PE_IndicatorTabClose) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    if (element == PE_IndicatorTabClose)
        DrawTabClose(*option, *painter);
    else
        DrawBox(*option, *painter, isRound);
    painter->restore();
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButton && button) {
        QStyleOptionButton quiet = *button;
        quiet.state.setFlag(State_HasFocus, false);
        QProxyStyle::drawControl(element, &quiet, painter, widget);
        DrawButtonFrame(*button, *painter);
        return;
    }
    if (element == CE_DockWidgetTitle && widget && HasKeys(*widget)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        DrawFocusFrame(*painter, option->rect, FocusOn(*option, QPalette::Window), kFocusWidth);
        return;
    }
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && entry && option->state & State_Selected)
        DrawChosenEntry(*entry, *painter, widget);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

// Its icon is in the colour of its words.
void Style::DrawChosenEntry(QStyleOptionMenuItem entry, QPainter& painter,
                            const QWidget* widget) const
{
    const bool isEnabled = entry.state & State_Enabled;
    if (!isEnabled) {
        DrawEntryGround(entry, painter);
        entry.state.setFlag(State_Selected, false); // whose words would be as pale as the ground
    } else if (!entry.icon.isNull()) {
        const int size = proxy()->pixelMetric(PM_SmallIconSize, &entry, widget);
        const double ratio = painter.device()->devicePixelRatioF();
        entry.icon = QIcon(entry.icon.pixmap(QSize(size, size), ratio, QIcon::Selected));
    }
    QProxyStyle::drawControl(CE_MenuItem, &entry, &painter, widget);
    DrawFocusFrame(painter, entry.rect, FocusOn(entry, QPalette::Window), kThin);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ScrollBar) {
        DrawThumbFrame(*option, *painter,
                       proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget));
        return;
    }
    const bool isField = control == CC_ComboBox || control == CC_SpinBox;
    if (isField && option->state & State_HasFocus)
        DrawFocusFrame(*painter, option->rect, FocusOn(*option, QPalette::Base), kFocusWidth);
}

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption* option,
                          const QWidget* widget) const
{
    switch (which) {
    case SP_TitleBarCloseButton:
    case SP_DockWidgetCloseButton:
        return CommandIcon(QStringLiteral("close"));
    case SP_TitleBarNormalButton:
        return CommandIcon(QStringLiteral("float"));
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}

// The plain style leaves a menu no room for a frame.
int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_MenuPanelWidth ? std::max(pixels, 1) : pixels;
}

// So that an entry of a menu that cannot be taken can say why.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* more) const
{
    switch (hint) {
    case SH_Menu_AllowActiveAndDisabled:
    case SH_Menu_Scrollable: // rather than columns that cover the window
        return 1;
    case SH_EtchDisabledText: // twice, one pixel aside
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, more);
    }
}
