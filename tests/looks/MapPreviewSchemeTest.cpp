// SPDX-License-Identifier: GPL-3.0-or-later
// The preview of the document map in the colours of each scheme, as it stands on the screen.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "looks/Schemes.h"
#include "platform/base/Colours.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

constexpr int kTransactSql = 3;
constexpr int kBar = 2; // a pixel of it
constexpr int kLines = 11;

class MapPreviewScheme : public testing::TestWithParam<const char*>
{
protected:
    MapPreviewScheme()
    {
        face.setScheme(QString::fromLatin1(GetParam()));
        face.setLanguage(kTransactSql);
        QString text;
        for (int i = 0; i < 30; ++i)
            text += QStringLiteral("select 1\n");
        face.setText(text);
        face.control().Colorize(0, -1, 1);
        face.setDocumentMapVisible(true);
        face.setGeometry(40, 40, 700, 400);
        face.show();
        face.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&face));
        QApplication::processEvents();
    }

    static QWindow* Preview()
    {
        for (QWindow* window : QGuiApplication::allWindows()) {
            if (window->objectName() == QLatin1String("mapPreview") && window->isVisible())
                return window;
        }
        return nullptr;
    }

    // Of what is on the screen.
    QImage Shown()
    {
        auto* map = face.findChild<QWidget*>(QStringLiteral("documentMap"));
        const QPoint place(20, 2);
        QHelpEvent rest(QEvent::ToolTip, place, map->mapToGlobal(place));
        QApplication::sendEvent(map, &rest);
        QWindow* preview = Preview();
        if (!preview || !QTest::qWaitForWindowExposed(preview))
            return {};
        QApplication::processEvents();
        return preview->screen()->grabWindow(preview->winId()).toImage();
    }

    ZNCoreEditorWidget face;
};

TEST_P(MapPreviewScheme, GivesItTheGroundTheLightAndTheInkOfTheText)
{
    const ColourScheme& scheme = *zncoreeditor::FindScheme(QString::fromLatin1(GetParam()));
    const QImage shown = Shown();
    ASSERT_FALSE(shown.isNull());
    const int height = shown.height() / kLines;
    const int right = shown.width() - 4;
    const int lit = height + height / 2; // of the second line
    const int other = 4 * height + height / 2;
    EXPECT_EQ(shown.pixelColor(right, other), ToQColor(scheme.Of(Drawn::Ground)));
    EXPECT_EQ(shown.pixelColor(right, lit), ToQColor(scheme.Of(Drawn::CurrentLine)));
    EXPECT_EQ(shown.pixelColor(kBar, lit), ToQColor(scheme.Of(Drawn::Caret)));
    const auto keyword = scheme.OfRole(QStringLiteral("keyword"));
    ASSERT_TRUE(keyword);
    const QColor ink = ToQColor(keyword->fore);
    int nearest = 3 * 255;
    for (int y = 3 * height; y < 5 * height; ++y) {
        for (int x = 8; x < right; ++x) {
            const QColor one = shown.pixelColor(x, y);
            nearest = std::min(nearest, std::abs(one.red() - ink.red()) +
                                            std::abs(one.green() - ink.green()) +
                                            std::abs(one.blue() - ink.blue()));
        }
    }
    EXPECT_LT(nearest, 60) << "letters have soft edges";
}

INSTANTIATE_TEST_SUITE_P(Of, MapPreviewScheme, testing::Values("Light", "Dark", "High Contrast"),
                         [](const auto& one) {
                             std::string name(one.param);
                             std::erase(name, ' ');
                             return name;
                         });

} // namespace
