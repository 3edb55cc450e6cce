// SPDX-License-Identifier: GPL-3.0-or-later
// The plain style's marks are seen on light and on dark grounds.
#include "host/icons/Style.h"
#include "tests/looks/Contrast.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>

#include <gtest/gtest.h>

namespace {

class PlainStyle : public testing::TestWithParam<QColor> // of the grounds
{
protected:
    PlainStyle() { Style::Install(); }
    ~PlainStyle() override { QApplication::setStyle(QStyleFactory::create("fusion")); }

    // The most that a dot of the mark stands out from its ground.
    static double Strongest(QStyle::PrimitiveElement element, QStyle::State state)
    {
        constexpr int kSize = 16;
        QStyleOptionButton option;
        option.rect = QRect(0, 0, kSize, kSize);
        option.palette = QPalette(GetParam());
        option.state = QStyle::State_Enabled | state;
        QImage picture(kSize, kSize, QImage::Format_RGB32);
        const QColor ground = option.palette.color(QPalette::Base);
        picture.fill(ground);
        QPainter painter(&picture);
        QApplication::style()->drawPrimitive(element, &option, &painter);
        painter.end();
        return BestContrast(picture, ground.rgb());
    }
};

} // namespace

TEST_P(PlainStyle, IsSeenWhereNothingIsChosen)
{
    constexpr double kSeen = 3;
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton,
                               QStyle::PE_IndicatorItemViewItemCheck, QStyle::PE_IndicatorTabClose,
                               QStyle::PE_FrameLineEdit})
        EXPECT_GE(Strongest(element, QStyle::State_Off), kSeen) << int(element);
}

TEST_P(PlainStyle, TellsWhatIsChosenByMoreThanItsFrame)
{
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton})
        EXPECT_GT(Strongest(element, QStyle::State_On), Strongest(element, QStyle::State_Off) * 1.5)
            << int(element);
}

INSTANTIATE_TEST_SUITE_P(OnGrounds, PlainStyle,
                         testing::Values(QColor(0xEF, 0xEF, 0xEF), QColor(0x2B, 0x2F, 0x36),
                                         QColor(Qt::black)));
