// SPDX-License-Identifier: GPL-3.0-or-later
// The plain style's marks are seen on light and on dark grounds.
#include "host/icons/Style.h"
#include "host/icons/Icons.h"
#include "host/preferences/Appearance.h"
#include "looks/Schemes.h"
#include "tests/looks/Contrast.h"

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionMenuItem>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

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

TEST_P(PlainStyle, LightsTheTitleOfThePaneWithTheKeys)
{
    QMainWindow window;
    window.setPalette(QPalette(GetParam()));
    auto* text = new QLineEdit(&window);
    window.setCentralWidget(text);
    auto* pane = new QDockWidget(QStringLiteral("Pane"), &window);
    auto* list = new QLineEdit(pane);
    pane->setWidget(list);
    window.addDockWidget(Qt::LeftDockWidgetArea, pane);
    window.resize(400, 200);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto title = [&] {
        const QRect rect(0, 0, pane->width(), list->y());
        return pane->grab(rect).toImage().convertToFormat(QImage::Format_RGB32);
    };
    text->setFocus();
    const QImage quiet = title();
    list->setFocus();
    const QImage lit = title();
    const QPoint edge(lit.width() / 2, 1);
    constexpr double kSeen = 3;
    EXPECT_GE(Contrast(lit.pixelColor(edge), quiet.pixelColor(edge)), kSeen);
    text->setFocus();
    EXPECT_EQ(title(), quiet);
}

INSTANTIATE_TEST_SUITE_P(OnGrounds, PlainStyle,
                         testing::Values(QColor(0xEF, 0xEF, 0xEF), QColor(0x2B, 0x2F, 0x36),
                                         QColor(Qt::black)));

namespace {

class Schemes : public testing::TestWithParam<const char*>
{
protected:
    Schemes()
    {
        Style::Install();
        appearance::SetCurrent(QLatin1String(GetParam()));
    }
    ~Schemes() override
    {
        appearance::SetCurrent(QStringLiteral("Desktop"));
        QApplication::setStyle(QStyleFactory::create("fusion"));
    }

    template <class Option>
    static QImage Drawn(QStyle::ControlElement element, Option option, QStyle::State state)
    {
        option.rect = QRect(0, 0, 120, 30);
        option.palette = QApplication::palette();
        option.text = QStringLiteral("word");
        option.state |= QStyle::State_KeyboardFocusChange | state;
        QImage picture(option.rect.size(), QImage::Format_RGB32);
        picture.fill(option.palette.color(QPalette::Window));
        QPainter painter(&picture);
        QApplication::style()->drawControl(element, &option, &painter);
        return picture;
    }

    // Dots of the second picture alone that stand out from the window, as a frame has at its top.
    static int SeenInSecond(const QImage& first, const QImage& second)
    {
        constexpr double kSeen = 3;
        const QColor ground = QApplication::palette().color(QPalette::Window);
        int seen = 0;
        for (int y = 0; y < first.height(); ++y) {
            for (int x = 0; x < first.width(); ++x) {
                seen += first.pixel(x, y) != second.pixel(x, y) &&
                        Contrast(second.pixelColor(x, y), ground) >= kSeen;
            }
        }
        return seen;
    }
};

class DarkSchemes : public Schemes
{};

constexpr int kFrame = 60; // dots at least around a word

} // namespace

TEST_P(Schemes, TellWhatHasTheFocusByAFrame)
{
    for (const auto element :
         {QStyle::CE_PushButton, QStyle::CE_CheckBox, QStyle::CE_RadioButton}) {
        const QStyleOptionButton option;
        EXPECT_GE(
            SeenInSecond(Drawn(element, option, QStyle::State_Enabled),
                         Drawn(element, option, QStyle::State_Enabled | QStyle::State_HasFocus)),
            kFrame)
            << int(element);
    }
}

TEST_P(Schemes, TellTheButtonThatEnterPresses)
{
    const QStyleOptionButton plain;
    QStyleOptionButton byEnter;
    byEnter.features = QStyleOptionButton::DefaultButton;
    EXPECT_GE(SeenInSecond(Drawn(QStyle::CE_PushButton, plain, QStyle::State_Enabled),
                           Drawn(QStyle::CE_PushButton, byEnter, QStyle::State_Enabled)),
              kFrame);
}

TEST_P(Schemes, ShowWhichEntryOfAMenuIsWalkedOntoThoughItIsDisabled)
{
    const QStyleOptionMenuItem entry;
    EXPECT_GE(SeenInSecond(Drawn(QStyle::CE_MenuItem, entry, QStyle::State_None),
                           Drawn(QStyle::CE_MenuItem, entry, QStyle::State_Selected)),
              kFrame);
}

TEST_P(Schemes, LeaveTheWordsOfADisabledEntryThatIsWalkedOntoReadable)
{
    QStyleOptionMenuItem entry;
    entry.text = QStringLiteral("MMMM");
    const auto contrast = [&entry](QStyle::State state) {
        const QImage picture = Drawn(QStyle::CE_MenuItem, entry, state);
        const QImage middle = picture.copy(picture.rect().adjusted(4, 4, -4, -4));
        return BestContrast(middle, middle.pixel(middle.width() - 1, 0));
    };
    constexpr double kShare = 0.75; // of what one that is passed over has
    EXPECT_GE(contrast(QStyle::State_Selected), kShare * contrast(QStyle::State_None));
}

// A drawing in one colour for lines and one to set apart, which may be that of the chosen entry.
TEST_P(Schemes, ShowTheIconOfTheEntryThatIsChosen)
{
    QStyleOptionMenuItem entry;
    entry.maxIconWidth = 24;
    const auto drawn = [&entry](const QIcon& icon) {
        entry.icon = icon;
        return Drawn(QStyle::CE_MenuItem, entry, QStyle::State_Enabled | QStyle::State_Selected);
    };
    const QImage without = drawn({});
    const QImage with = drawn(CommandIcon("find"));
    const QColor words = QApplication::palette().color(QPalette::HighlightedText);
    int dots = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width() / 4; ++x) {
            if (with.pixel(x, y) == without.pixel(x, y))
                continue;
            ++dots;
            const QColor dot = with.pixelColor(x, y);
            const QColor ground = without.pixelColor(x, y);
            // Between the two, whatever share of the dot the line has.
            for (const auto part : {&QColor::red, &QColor::green, &QColor::blue}) {
                const auto [low, high] = std::minmax({(words.*part)(), (ground.*part)()});
                EXPECT_GE((dot.*part)(), low - 2);
                EXPECT_LE((dot.*part)(), high + 2);
            }
        }
    }
    EXPECT_GT(dots, 20);
}

// In the light the plain style is left as it is.
TEST_P(DarkSchemes, SetTheThumbOfAScrollBarOffAgainstItsGroove)
{
    constexpr double kSeen = 3;
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setPageStep(50);
    bar.resize(16, 300);
    const QImage picture = bar.grab().toImage();
    const QColor groove = picture.pixelColor(8, 250);
    EXPECT_GE(BestContrast(picture.copy(0, 20, 16, 130), groove.rgb()), kSeen);
}

// At its edge, half way down.
TEST_P(Schemes, SetAMenuOffAgainstTheTextBelow)
{
    constexpr double kSeen = 3;
    QMenu menu;
    menu.addAction(QStringLiteral("word"));
    menu.addAction(QStringLiteral("other"));
    const QImage picture = menu.grab().toImage();
    const QColor text = QApplication::palette().color(QPalette::Base);
    EXPECT_GE(Contrast(picture.pixelColor(0, picture.height() / 2), text), kSeen);
}

INSTANTIATE_TEST_SUITE_P(OfTheWorkbench, DarkSchemes, testing::Values("Dark", "High Contrast"));
INSTANTIATE_TEST_SUITE_P(OfTheWorkbench, Schemes,
                         testing::Values("Desktop", "Light", "Dark", "High Contrast"));
