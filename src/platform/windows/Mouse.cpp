// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Mouse.h"

#include <QGuiApplication>

namespace {

bool IsDown()
{
    return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

bool (*current)() = IsDown;

} // namespace

bool IsLeftButtonDown()
{
    return current();
}

void SetLeftButton(bool (*isDown)())
{
    current = isDown ? isDown : IsDown;
}
