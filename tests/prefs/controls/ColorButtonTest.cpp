// SPDX-License-Identifier: GPL-3.0-or-later
// The colour button, its palette and the sample, by mouse and keys.
#include "prefs/controls/ColorButton.h"
#include "platform/system/SystemColors.h"
#include "platform/windows/Questions.h"
#include "platform/windows/Wnd.h"
#include "prefs/controls/ColorStatic.h"

#include <QApplication>
#include <QGroupBox>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr UINT kId = 28059;
constexpr COLORREF kDefault = 0xFF000000;

// What came from the button, with the colour that the button had by then.
struct News
{
    UINT code;
    COLORREF color;
    COLORREF shown;

    bool operator==(const News&) const = default;
};

void PrintTo(const News& news, std::ostream* out)
{
    *out << news.code << " with " << std::hex << news.color << " at " << news.shown;
}

class ListeningWnd final : public CWnd
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message >= 2025 && message <= 2029) {
            EXPECT_EQ(wParam, kId);
            heard.push_back({message, static_cast<COLORREF>(lParam), button->GetColor()});
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

    CColorButton* button = nullptr;
    std::vector<News> heard;
};

class ColorChooser final : public IUserQuestions
{
public:
    ColorChooser() { SetUserQuestions(this); }
    ~ColorChooser() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND, const QString&, Buttons) override { return Answer::Ok; }
    std::optional<COLORREF> AskColor(HWND, COLORREF color) override
    {
        begunWith.push_back(color);
        return chosen;
    }

    std::optional<COLORREF> chosen;
    std::vector<COLORREF> begunWith;
};

class ColorButtons : public testing::Test
{
protected:
    ColorButtons()
    {
        window.resize(300, 200);
        parent.SubclassWindow(&window);
        auto* group = new QGroupBox(&window);
        group->setGeometry(20, 20, 200, 100);
        button = new CColorButton(group);
        button->setGeometry(10, 30, 90, 26);
        SetDlgCtrlID(button, kId);
        parent.button = button;
        window.show();
        QApplication::processEvents();
    }
    ~ColorButtons() override
    {
        if (button->Popup())
            button->Popup()->Choose(ZNCEColorPopup::kNoCell);
        parent.Detach();
    }

    ZNCEColorPopup& Drop(COLORREF color)
    {
        button->SetColor(color);
        button->click();
        return *button->Popup();
    }
    void Press(int key) { QTest::keyClick(button->Popup(), static_cast<Qt::Key>(key)); }
    void ClickCell(int cell)
    {
        ZNCEColorPopup& popup = *button->Popup();
        QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.RectOf(cell).center());
    }

    ColorChooser user;
    QWidget window;
    ListeningWnd parent;
    CColorButton* button;
};

TEST_F(ColorButtons, StandForTheDefaultAtFirst)
{
    EXPECT_EQ(button->GetColor(), kDefault);
    EXPECT_EQ(button->GetDefaultColor(), GetSysColor(12));
    EXPECT_EQ(button->GetDefaultText(), "Default");
    EXPECT_EQ(button->GetCustomText(), "More Colors...");
    EXPECT_FALSE(button->IsPopupDown());
    EXPECT_FALSE(button->GetTrackSelection());
}

TEST_F(ColorButtons, TellOfAChoiceBeforeTheyTakeIt)
{
    Drop(0x000000);
    EXPECT_TRUE(button->IsPopupDown());
    ClickCell(16);
    EXPECT_THAT(parent.heard, ElementsAre(News{2026, 0, 0}, News{2027, 0x0000FF, 0},
                                          News{2028, 0x0000FF, 0}, News{2025, 0x0000FF, 0}));
    EXPECT_EQ(button->GetColor(), 0x0000FFU);
    EXPECT_FALSE(button->IsPopupDown());
}

TEST_F(ColorButtons, TellOfNoChangeForTheSameColour)
{
    Drop(0x0000FF);
    ClickCell(16);
    EXPECT_THAT(parent.heard, ElementsAre(News{2026, 0xFF, 0xFF}, News{2027, 0xFF, 0xFF},
                                          News{2028, 0xFF, 0xFF}));
}

TEST_F(ColorButtons, RestoreTheColourOnEscape)
{
    button->SetTrackSelection(true);
    Drop(0x000000);
    Press(Qt::Key_Right);
    EXPECT_EQ(button->GetColor(), 0x002AA5U);
    parent.heard.clear();
    Press(Qt::Key_Escape);
    EXPECT_EQ(button->GetColor(), 0x000000U);
    EXPECT_THAT(parent.heard, ElementsAre(News{2027, 0, 0}, News{2029, 0, 0}));
    EXPECT_FALSE(button->IsPopupDown());
}

TEST_F(ColorButtons, PreviewWhatTheCursorPassesOnlyWhenTheyTrack)
{
    Drop(0x000000);
    Press(Qt::Key_Right);
    EXPECT_EQ(button->GetColor(), 0x000000U);
    Press(Qt::Key_Escape);
    parent.heard.clear();
    button->SetTrackSelection(true);
    Drop(0x000000);
    Press(Qt::Key_Right);
    EXPECT_THAT(parent.heard, ElementsAre(News{2026, 0, 0}, News{2025, 0x002AA5, 0x002AA5}));
}

TEST_F(ColorButtons, KeepAColourBesideTheTableByCancelling)
{
    ZNCEColorPopup& popup = Drop(0x123456);
    EXPECT_EQ(popup.CurrentCell(), ZNCEColorPopup::kNoCell);
    Press(Qt::Key_Return); // on no cell
    EXPECT_EQ(button->GetColor(), 0x123456U);
    EXPECT_EQ(parent.heard.back().code, 2029U);
}

TEST_F(ColorButtons, AreCancelledByAClickOutside)
{
    ZNCEColorPopup& popup = Drop(0x0000FF);
    QTest::mouseClick(&popup, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(button->GetColor(), 0x0000FFU);
    EXPECT_THAT(parent.heard, ElementsAre(News{2026, 0xFF, 0xFF}, News{2027, 0xFF, 0xFF},
                                          News{2029, 0xFF, 0xFF}));
}

TEST_F(ColorButtons, AskTheDesktopForFurtherColours)
{
    user.chosen = 0x0A0B0C;
    Drop(0x0000FF);
    ClickCell(ZNCEColorPopup::kCustomCell);
    EXPECT_THAT(user.begunWith, ElementsAre(0x0000FFU));
    EXPECT_EQ(button->GetColor(), 0x0A0B0CU);
    EXPECT_EQ(parent.heard.back(), (News{2025, 0x0A0B0C, 0xFF}));
}

TEST_F(ColorButtons, AreCancelledWithTheDesktopsDialog)
{
    Drop(kDefault);
    button->SetDefaultColor(0x00FF00);
    ClickCell(ZNCEColorPopup::kCustomCell);
    EXPECT_THAT(user.begunWith, ElementsAre(0x00FF00U));
    EXPECT_EQ(button->GetColor(), kDefault);
    EXPECT_EQ(parent.heard.back().code, 2029U);
}

TEST_F(ColorButtons, ChooseTheDefault)
{
    Drop(0x0000FF);
    ClickCell(ZNCEColorPopup::kDefaultCell);
    EXPECT_EQ(button->GetColor(), kDefault);
    EXPECT_EQ(button->accessibleDescription().section(u':', 0, 0), "Default");
}

TEST_F(ColorButtons, ShowTheDefaultColourForTheDefault)
{
    button->SetDefaultColor(0x0000FF);
    button->SetColor(kDefault);
    const QPoint inBox(20, button->height() / 2);
    EXPECT_EQ(button->grab().toImage().pixelColor(inBox), QColor(255, 0, 0));
    button->SetColor(0x00FF00);
    EXPECT_EQ(button->grab().toImage().pixelColor(inBox), QColor(0, 255, 0));
}

TEST_F(ColorButtons, OpenByTheArrowKeyToo)
{
    QTest::keyClick(button, Qt::Key_Down);
    ASSERT_TRUE(button->Popup());
    EXPECT_TRUE(button->Popup()->isVisible());
}

TEST_F(ColorButtons, DropThePaletteBelowThemselves)
{
    const ZNCEColorPopup& popup = Drop(0);
    const QRect place(button->mapToGlobal(QPoint(0, 0)), button->size());
    constexpr int kFrame = 4; // that the platform may put around
    EXPECT_NEAR(popup.y(), place.bottom() + 1, kFrame);
    EXPECT_TRUE(popup.isWindow());
}

TEST_F(ColorButtons, DropNoSecondPalette)
{
    const ZNCEColorPopup* popup = &Drop(0);
    button->click();
    EXPECT_EQ(button->Popup(), popup);
    EXPECT_EQ(parent.heard.size(), 1U);
}

TEST_F(ColorButtons, GoWithTheirPaletteDown)
{
    Drop(0);
    delete button->parentWidget();
    QApplication::processEvents();
    button = new CColorButton(&window); // for what follows each test
    EXPECT_EQ(parent.heard.size(), 1U);
}

TEST_F(ColorButtons, BeginInTheCellOfTheirColour)
{
    EXPECT_EQ(Drop(0xFFFFFF).CurrentCell(), 39);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Drop(kDefault).CurrentCell(), ZNCEColorPopup::kDefaultCell);
}

TEST(Palette, HasFortyColoursByName)
{
    const ZNCEColorPopup popup(0, 0, QStringLiteral("Default"), QStringLiteral("More Colors..."),
                               nullptr);
    EXPECT_EQ(popup.NameOf(0), "Black");
    EXPECT_EQ(popup.ColorOf(1), 0x002AA5U);
    EXPECT_EQ(popup.NameOf(9), "Orange");
    EXPECT_EQ(popup.ColorOf(9), 0x2068FFU);
    EXPECT_EQ(popup.NameOf(20), "Aqua");
    EXPECT_EQ(popup.NameOf(35), "Pale green ");
    EXPECT_EQ(popup.ColorOf(37), 0x8B8368U);
    EXPECT_EQ(popup.NameOf(39), "White");
    EXPECT_EQ(popup.NameOf(40), "");
    EXPECT_EQ(popup.ColorOf(ZNCEColorPopup::kDefaultCell), kDefault);
}

TEST(Palette, GoesByArrowsFromTheDefaultOverTheTableToTheCustomCell)
{
    ZNCEColorPopup popup(kDefault, 0, QStringLiteral("Default"), QStringLiteral("More"), nullptr);
    std::vector<int> passed;
    for (const auto key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up,
                           Qt::Key_Up, Qt::Key_Up, Qt::Key_Left, Qt::Key_Down}) {
        QTest::keyClick(&popup, key);
        passed.push_back(popup.CurrentCell());
    }
    EXPECT_THAT(passed, ElementsAre(0, 1, 9, 8, 0, -3, -2, 39, -2));
    QTest::keyClick(&popup, Qt::Key_Right);
    EXPECT_EQ(popup.CurrentCell(), -3);
}

TEST(Palette, PassesEveryCellByTheRightArrow)
{
    ZNCEColorPopup popup(0x123456, 0, QStringLiteral("Default"), QStringLiteral("More"), nullptr);
    std::vector<int> passed;
    std::vector<int> expected = {-3};
    for (int cell = 0; cell < 40; ++cell)
        expected.push_back(cell);
    expected.push_back(-2);
    for (int i = 0; i < 42; ++i) {
        QTest::keyClick(&popup, Qt::Key_Right);
        passed.push_back(popup.CurrentCell());
    }
    EXPECT_EQ(passed, expected);
}

TEST(Palette, FindsTheCellUnderTheMouse)
{
    ZNCEColorPopup popup(0, 0, QStringLiteral("Default"), QStringLiteral("More"), nullptr);
    for (int cell = ZNCEColorPopup::kDefaultCell; cell < 40; ++cell) {
        if (cell != ZNCEColorPopup::kNoCell) {
            EXPECT_EQ(popup.CellAt(popup.RectOf(cell).center()), cell);
        }
    }
    EXPECT_EQ(popup.CellAt(QPoint(0, 0)), ZNCEColorPopup::kNoCell);
    EXPECT_TRUE(popup.RectOf(40).isEmpty());
}

TEST(Palette, NamesTheColourUnderTheMouseInATip)
{
    ZNCEColorPopup popup(0, 0, QStringLiteral("Default"), QStringLiteral("More"), nullptr);
    popup.show();
    const QPoint place = popup.RectOf(35).center();
    QHelpEvent help(QEvent::ToolTip, place, popup.mapToGlobal(place));
    QApplication::sendEvent(&popup, &help);
    EXPECT_EQ(QToolTip::text(), "Pale green");
    QToolTip::hideText();
}

TEST(Palette, SaysTheColourToAScreenReader)
{
    ZNCEColorPopup popup(0, 0, QStringLiteral("Default"), QStringLiteral("More"), nullptr);
    popup.SetCurrentCell(26);
    EXPECT_EQ(popup.accessibleName(), "Yellow");
}

TEST(ColorSample, IsPaintedInItsColours)
{
    CColorStatic sample(QStringLiteral("Sample Text"));
    sample.SetColors(0x0000FF, 0x00FFFF);
    sample.resize(120, 40);
    const QImage image = sample.grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 5), QColor(255, 255, 0));
    int red = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            red += image.pixelColor(x, y).green() < 100;
    }
    EXPECT_GT(red, 10);
}

} // namespace
