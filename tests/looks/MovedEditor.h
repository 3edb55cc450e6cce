// SPDX-License-Identifier: GPL-3.0-or-later
// An editor whose text fingers move, and what is seen of it: the page that a very tall editor
// shows, cut out where the fingers have brought it.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPointingDevice>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>
#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace finescroll {

inline constexpr int kTransactSql = 3;

template <class Condition>
bool Becomes(Condition condition)
{
    QElapsedTimer time;
    for (time.start(); !condition() && time.elapsed() < 5000;)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    return condition();
}

inline QString Script(int statements)
{
    QString text = QStringLiteral("\n");
    for (int i = 0; i < statements; ++i)
        text +=
            QStringLiteral("create procedure p%1 as\nbegin\n\tselect 'value %1', %1 -- some\n"
                           "\tupdate t set a = %1 where b = 'a line of some length %1'\nend\ngo\n")
                .arg(i);
    return text;
}

struct Editor
{
    explicit Editor(const QString& text, QSize size = {420, 230})
    {
        face.setScheme(QStringLiteral("Light"));
        face.setLanguage(kTransactSql);
        face.setText(text);
        face.resize(size);
        face.show();
        control.SetCaretWidth(0, 1);
        control.SetScrollWidth(2000, 1); // no bar comes on the way
        Window().SendScintilla(QsciScintillaBase::SCI_SETCARETLINEVISIBLEALWAYS, 1);
        // What is lit at the caret comes when it likes.
        for (const int lit : {27, 28})
            Window().SendScintilla(QsciScintillaBase::SCI_INDICSETSTYLE,
                                   static_cast<unsigned long>(lit),
                                   long{QsciScintillaBase::INDIC_HIDDEN});
        QApplication::processEvents();
    }

    QsciScintillaBase& Window() const
    {
        return *static_cast<QsciScintillaBase*>(control.GetSafeHwnd());
    }
    QWidget& Viewport() const { return *Window().viewport(); }
    QScrollBar& Bar() const { return *Window().verticalScrollBar(); }
    int Height() const { return static_cast<int>(control.TextHeight(0, 1)); }
    int Line() const { return static_cast<int>(control.GetFirstVisibleLine(1)); }
    bool IsAtLine() const { return Viewport().y() == 0 && Viewport().height() == Room().height(); }
    int Top() const { return Line() * Height() - Viewport().y(); } // pixels

    // Without the bars.
    QSize Room() const
    {
        const QScrollBar& across = *Window().horizontalScrollBar();
        return {Viewport().width(), Window().height() - (across.isVisible() ? across.height() : 0)};
    }

    // True if the editor took it.
    bool Wheel(QPoint pixels, Qt::ScrollPhase phase, QPoint angle = {},
               const QPointingDevice* device = QPointingDevice::primaryPointingDevice()) const
    {
        const QPointF place(Viewport().mapFrom(&Window(), QPoint(60, 60)));
        QWheelEvent wheel(place, Viewport().mapToGlobal(place), pixels, angle, Qt::NoButton,
                          Qt::NoModifier, phase, false, Qt::MouseEventNotSynthesized, device);
        QApplication::sendEvent(&Viewport(), &wheel);
        return wheel.isAccepted();
    }
    bool Fingers(int down, int right = 0) const { return Wheel({-right, -down}, Qt::ScrollUpdate); }
    bool Gone() const
    {
        Wheel({}, Qt::ScrollEnd);
        return Becomes([this] { return IsAtLine(); });
    }

    ZNCoreEditorWidget face;
    CZNCoreEditorControlEx& control = face.control();
};

// All of an editor's text in one picture.
inline QImage PageOf(const Editor& editor, int mode = 0)
{
    Editor page(QString(), {100, 100});
    page.face.setText(editor.face.text());
    page.control.SetWrapMode(mode, 1);
    page.control.SetHScrollBar(0, 1);
    page.control.SetVScrollBar(0, 1);
    const auto fit = [&] {
        const int lines = page.control.VisibleFromDocLine(page.control.GetLineCount(1), 1);
        page.face.resize(editor.Viewport().width() + page.face.width() - page.Viewport().width(),
                         (lines + 40) * page.Height());
        QApplication::processEvents();
    };
    fit();
    for (int line = 0; line < page.control.GetLineCount(1); ++line) {
        if (!editor.control.GetFoldExpanded(line, 1) && page.control.GetFoldExpanded(line, 1))
            page.control.ToggleFold(line, 1);
        if (editor.control.MarkerGet(line, 1) & 1) // a bookmark
            page.control.MarkerAdd(line, 0, 1);
    }
    fit();
    page.control.SetXOffset(editor.control.GetXOffset(1), 1);
    QApplication::processEvents();
    return page.Viewport().grab().toImage().convertToFormat(QImage::Format_RGB32);
}

inline QImage Painted(const Editor& editor)
{
    return editor.Window()
        .grab(QRect({editor.Viewport().x(), 0}, editor.Room()))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// What is on the screen, moved there or painted anew. The screen of the tests knows no scale.
inline QImage Shown(const Editor& editor)
{
    QApplication::processEvents();
    const QWidget& window = *editor.Window().window();
    if (window.devicePixelRatio() > 1)
        return Painted(editor);
    const QRect place(editor.Window().mapTo(&window, QPoint(editor.Viewport().x(), 0)),
                      editor.Room());
    const QImage screen = window.screen()->grabWindow(window.winId()).toImage();
    return screen.copy(place).convertToFormat(QImage::Format_RGB32);
}

// An edge through a curve is a level or two off, whoever cuts.
inline bool IsNear(QRgb one, QRgb other)
{
    const auto off = [](int a, int b) { return std::abs(a - b) > 2; };
    return !off(qRed(one), qRed(other)) && !off(qGreen(one), qGreen(other)) &&
           !off(qBlue(one), qBlue(other));
}

inline testing::AssertionResult IsCutOf(const QImage& page, int top, const QImage& seen)
{
    const int scale = qRound(seen.devicePixelRatio());
    for (int y = 0; y < seen.height(); ++y) {
        if (seen.width() <= page.width() && y + top * scale < page.height() &&
            std::equal(seen.constScanLine(y), seen.constScanLine(y) + seen.width() * 4,
                       page.constScanLine(y + top * scale)))
            continue;
        for (int x = 0; x < seen.width(); ++x) {
            if (y + top * scale >= page.height() || x >= page.width() ||
                !IsNear(seen.pixel(x, y), page.pixel(x, y + top * scale)))
                return testing::AssertionFailure()
                       << "at " << top << " the pixel " << x << ", " << y << " differs";
        }
    }
    return testing::AssertionSuccess();
}

// Through the lines at the start and at the end.
inline void ExpectEachPixel(const Editor& editor, const QImage& page, int last)
{
    const int way = 3 * editor.Height();
    for (int top = 0; top <= last && !testing::Test::HasFailure();) {
        EXPECT_EQ(editor.Top(), top);
        EXPECT_TRUE(IsCutOf(page, top, Shown(editor))) << "on the screen";
        EXPECT_TRUE(IsCutOf(page, top, Painted(editor)));
        const int step = top == way && last > 2 * way ? last - 2 * way : 1;
        EXPECT_EQ(editor.Fingers(step), top < last);
        top += step;
    }
    EXPECT_EQ(editor.Top(), last);
    for (int top = last; top >= std::max(0, last - way) && !testing::Test::HasFailure(); --top) {
        EXPECT_TRUE(IsCutOf(page, top, Shown(editor))) << "up, on the screen";
        editor.Fingers(-1);
    }
}

inline int LastOf(const Editor& editor, bool endsAtLastLine)
{
    const int lines = editor.control.VisibleFromDocLine(editor.control.GetLineCount(1), 1);
    return (lines - (endsAtLastLine ? editor.Room().height() / editor.Height() : 1)) *
           editor.Height();
}

struct Touchpad : QPointingDevice
{
    Touchpad()
        : QPointingDevice(QStringLiteral("pad"), 7, QInputDevice::DeviceType::TouchPad,
                          PointerType::Finger, QInputDevice::Capability::Scroll, 1, 3)
    {}
};

// By fingers, to five pixels below the top of its tenth line.
struct Moving : Editor
{
    Moving() : Editor(Script(15)) { Fingers(10 * Height() + 5); }
    explicit Moving(int pixels) : Editor(Script(15)) { Fingers(pixels); }
};

} // namespace finescroll
