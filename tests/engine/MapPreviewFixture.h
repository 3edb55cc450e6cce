// SPDX-License-Identifier: GPL-3.0-or-later
// An engine's window with a document map, and what its preview shows.
#pragma once

#include "control/EngineLooks.h"
#include "engine/looks/DocumentMap.h"
#include "engine/looks/MapPreview.h"
#include "platform/base/Colours.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace mappreview {

using engine::DocumentMap;
using Sci = QsciScintillaBase;
namespace msg = engine::message;

inline constexpr int kRow = 2;    // pixels of the map
inline constexpr int kLines = 11; // of a preview
inline constexpr int kAbove = 4;  // pixels of it above the first
inline constexpr int kBeside = 8; // and beside them
inline constexpr COLORREF kGround = 0xF0FFFF;
inline constexpr COLORREF kInk = 0x402010;
inline constexpr COLORREF kLit = 0xFFE0C0;
inline constexpr COLORREF kCaret = 0x0000C0;

template <class Condition>
bool Becomes(Condition condition)
{
    return QTest::qWaitFor(condition, 5000);
}

class MapPreviewTest : public testing::Test
{
protected:
    MapPreviewTest()
    {
        m_engine.Send(msg::StyleSetBack, Sci::STYLE_DEFAULT, kGround);
        m_engine.Send(msg::StyleSetFore, Sci::STYLE_DEFAULT, kInk);
        m_engine.Send(msg::StyleClearAll);
        m_engine.Send(msg::SetCaretLineVisible, 1);
        m_engine.Send(msg::SetCaretLineBack, kLit);
        m_engine.Send(msg::SetCaretFore, kCaret);
        m_top = m_engine.Window()->parentWidget();
        m_top->setGeometry(20, 60, 620, 420);
        m_engine.Window()->setGeometry(0, 0, 600, 400);
        m_engine.Send(engine::kShowDocumentMap, 1);
        m_top->show();
        m_engine.Window()->show();
        m_top->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_top));
        Settle();
    }

    Sci& Window() const { return *static_cast<Sci*>(m_engine.Window()); }
    DocumentMap& Map() const
    {
        return *static_cast<DocumentMap*>(
            Window().findChild<QWidget*>(QStringLiteral("documentMap")));
    }
    const engine::MapPreview* Preview() const { return Map().Preview(); }
    bool IsShown() const { return Preview() && Preview()->isVisible(); }

    void Settle() const
    {
        EXPECT_TRUE(Becomes([this] {
            QApplication::processEvents();
            return Map().Refresh();
        }));
    }

    void Put(const std::u16string& text)
    {
        m_engine.SetText(text);
        Settle();
    }

    // Lines with a ground each, by which a picture tells them: the style of one is its number.
    void PutTellable(int count)
    {
        std::u16string text;
        for (int i = 0; i < count; ++i)
            text += u"line\n";
        m_engine.SetText(text);
        m_engine.Send(msg::StartStyling, 0, 0xFF);
        for (int i = 0; i < count; ++i) {
            const int style = StyleOf(i);
            m_engine.Send(msg::SetStyling, 5, style);
            m_engine.Send(msg::StyleSetBack, static_cast<WPARAM>(style), GroundOf(i));
        }
        Settle();
    }
    // Those of the stock engine's own are in between.
    static int StyleOf(int line) { return line < 30 ? 1 + line : 10 + line; }
    static COLORREF GroundOf(int line) { return static_cast<COLORREF>(0x800000 + line * 0x0203); }

    // Of the map's row, as Qt tells it of a mouse that rests.
    void RestAt(int y)
    {
        const QPoint place(30, y);
        QHelpEvent rest(QEvent::ToolTip, place, Map().mapToGlobal(place));
        QApplication::sendEvent(&Map(), &rest);
    }
    void RestOver(int line) { RestAt(line * kRow); }
    void MoveTo(int y)
    {
        const QPointF place(30, y);
        QMouseEvent move(QEvent::MouseMove, place, Map().mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&Map(), &move);
    }

    // Pixels of the window, whatever the scale of the screen is.
    QColor At(int x, int y) const
    {
        const QImage& picture = Preview()->Picture();
        const double scale = picture.devicePixelRatio();
        return picture.pixelColor(static_cast<int>((x + 0.5) * scale),
                                  static_cast<int>((y + 0.5) * scale));
    }
    QSize Size() const { return Preview()->geometry().size(); }
    int Height(int rows) const { return (Size().height() - 2 * kAbove) / rows; }
    int MiddleOf(int row, int rows) const { return kAbove + row * Height(rows) + Height(rows) / 2; }

    // The lines that are seen, by their grounds; the lit one, which has no ground of its own: -1.
    std::vector<int> Seen(int rows = kLines) const
    {
        std::vector<int> lines;
        for (int row = 0; row < rows; ++row) {
            // Above the letters, where all is ground.
            const QColor ground = At(kBeside + 3, kAbove + row * Height(rows) + 1);
            int line = -1;
            for (int i = 0; i < 80; ++i) {
                if (ground == ToQColor(GroundOf(i)))
                    line = i;
            }
            lines.push_back(line);
        }
        return lines;
    }
    static std::vector<int> FromTo(int first, int last, int lit)
    {
        std::vector<int> lines;
        for (int line = first; line <= last; ++line)
            lines.push_back(line == lit ? -1 : line);
        return lines;
    }

    // Whether there is a pixel of the colour in the row.
    bool HasInk(const QColor& ink, int row, int rows) const
    {
        const QImage& picture = Preview()->Picture();
        const double scale = picture.devicePixelRatio();
        const int top = static_cast<int>((kAbove + row * Height(rows)) * scale);
        for (int y = top; y < top + Height(rows) * scale; ++y) {
            for (int x = static_cast<int>(kBeside * scale); x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == ink)
                    return true;
            }
        }
        return false;
    }

    EngineUnderTest m_engine;
    QWidget* m_top = nullptr;
};

} // namespace mappreview
