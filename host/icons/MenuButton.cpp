// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/icons/MenuButton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

MenuButton::MenuButton(QWidget* parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
}

void MenuButton::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionToolButton::HasMenu;
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}
