// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointingDevice>
#include <QTest>

// One for all tests of a process: Qt takes none back.
inline QPointingDevice* TouchScreen()
{
    static QPointingDevice* const device = QTest::createTouchDevice();
    return device;
}
