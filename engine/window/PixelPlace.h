// SPDX-License-Identifier: GPL-3.0-or-later
// PixelPlace: the place of a window's text in pixels, while fingers move it. The stock engine knows
// whole lines alone. The part of a line that is above the window is made by the viewport: a line
// taller meanwhile, and moved up by that part behind the scroll bars. What the engine paints and
// where it finds the mouse is right as it stands. Once nothing moves the text, it goes to the
// nearest line, and all is as if it had been scrolled there.
#pragma once

#include "engine/text/Raw.h"

#include <QTimer>
#include <QVariantAnimation>

#include <chrono>
#include <functional>

class QAbstractScrollArea;
class QEvent;

namespace engine {

class PixelPlace
{
public:
    // Sets the margins of the viewport, in pixels.
    using SetMargins = std::function<void(int top, int bottom)>;

    PixelPlace(QAbstractScrollArea& window, const Raw& raw, SetMargins setMargins);
    PixelPlace(const PixelPlace&) = delete;
    PixelPlace& operator=(const PixelPlace&) = delete;

    // Pixels of the text above the window, with all that is wrapped and without what is hidden.
    qint64 Top() const;
    qint64 Last() const; // the greatest
    int LineHeight() const;

    // As near as there is, to stay until more is said. False if it is there.
    bool MoveTo(qint64 top);
    void Hold(); // where it is

    // From MoveTo on until it stands at a line again.
    bool IsBetweenLines() const { return m_height > 0; }

    // Goes to the nearest line once nothing has come for so long and no button of the mouse is
    // held.
    void Rest(std::chrono::milliseconds time);
    void End();     // at once
    void EndSoon(); // when the engine is not at work

    // An order that may scroll, or change the lines, is for a text at a line.
    static bool IsEndedBy(unsigned message);
    // What happens to the window, and to its viewport.
    void See(const QEvent& event);
    void SeeInside(const QEvent& event);

private:
    qint64 Lines() const; // in the window's rows
    int Page() const;     // lines, when it stands at one
    bool EndsAtLastLine() const;
    bool IsAtWork() const; // the stock engine, which must not be moved then
    bool Put(qint64 top);
    void SetPart(int part);
    void StandAt(qint64 line);
    void Glide();

    QAbstractScrollArea& m_window;
    const Raw& m_raw;
    const SetMargins m_setMargins;
    int m_part = 0;   // pixels of the top line above the window: 0 to its height
    int m_height = 0; // of the line that the viewport is taller by
    bool m_moves = false;
    bool m_isHeld = false; // a button of the mouse
    QTimer m_rest;
    QVariantAnimation m_glide;
    qint64 m_glidesFrom = 0;
};

} // namespace engine
