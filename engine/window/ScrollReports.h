// SPDX-License-Identifier: GPL-3.0-or-later
// ScrollReports: tells the window around an engine what becomes of its scroll bars, and does what
// that window's own bars ask for.
#pragma once

#include "platform/base/Types.h"

#include <QObject>

class QsciScintillaBase;

namespace engine {

// A change is told once the event loop is reached, when no change of the text is under way: the
// listener may ask and tell the engine anything.
class ScrollReports final : public QObject
{
public:
    explicit ScrollReports(QsciScintillaBase& window);

    // WM_HSCROLL and WM_VSCROLL, sent to the engine's window.
    void Scroll(UINT message, WPARAM wParam);

private:
    void TellSoon(bool isVertical);
    void Tell(bool isVertical) const;

    QsciScintillaBase& m_window;
    bool m_waits[2] = {false, false}; // by isVertical
};

} // namespace engine
