// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
