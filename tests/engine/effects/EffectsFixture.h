// SPDX-License-Identifier: GPL-3.0-or-later
// An engine window that shows what a message did: the caret written into the text, and pictures.
#pragma once

#include "tests/engine/EngineFixture.h"

#include <QImage>

#include <gtest/gtest.h>

class Effects : public testing::Test
{
protected:
    Effects(); // 400 pixels wide, 300 high, a font of one width

    // A text with '|' where the caret is to be, and '[' at the anchor where that is elsewhere.
    void Place(const std::u16string& marked) const;
    // The same of what stands in the window.
    std::u16string Placed() const;

    long Caret() const { return m_engine.Send(engine::message::GetCurrentPos); }
    long TopLine() const { return m_engine.Send(engine::message::GetFirstVisibleLine); }
    int LineHeight() const;
    double ColumnWidth() const;
    int ColumnAt(double column) const; // pixels from where the text begins
    int WholeLines() const;            // that the window has room for

    QWidget* Viewport() const; // without the scroll bars
    QImage Picture() const;    // of the viewport
    // Pixels of the picture that have this colour, 0xRRGGBB, within a rectangle; all of it if null.
    static int CountOf(const QImage& picture, QRgb colour, QRect within = {});
    int CountOf(QRgb colour, QRect within = {}) const { return CountOf(Picture(), colour, within); }

    void Type(const QString& text) const;
    // Which text a line's selection is of, by the messages that tell its edges; empty: none.
    std::u16string SelectedOfLine(long line) const;

    EngineUnderTest m_engine;
};

std::u16string LinesOf(int count); // "line 0\nline 1\n" and so on
