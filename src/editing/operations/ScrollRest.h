// SPDX-License-Identifier: GPL-3.0-or-later
// ScrollRest: sets the range of the horizontal scroll bar back when the text has rested and is much
// narrower than the range. It looks for the longest lines in slices of time, and not at all while
// the line is there that was the widest.
#pragma once

#include <QObject>
#include <QTimer>

#include <array>
#include <chrono>

class CZNCoreEditorControl;
class QScrollBar;

class ScrollRest final : public QObject
{
public:
    // Of the control's window, which it has. The control outlives this.
    ScrollRest(CZNCoreEditorControl& control, QObject* parent);

    // That of a window; null if it has none.
    static ScrollRest* Of(const QObject& window);

    // The range has been measured. widest: a line that is as wide as it, -1: none is known.
    void Measured(int widest);

private:
    void Begin();
    void GoOn();
    void LookAtLines();
    void Measure();
    void SetBack() const;
    bool HasChanged();
    bool IsMuchNarrower(int width) const;
    const QScrollBar& Bar() const;

    static constexpr std::size_t kCandidates = 8;
    struct Line
    {
        int number = -1;
        int units = -1;
    };

    CZNCoreEditorControl& m_control;
    QTimer m_timer;
    int m_widest = -1; // line
    long m_units = -1; // of the text that was looked at
    int m_lines = 0;
    bool m_isLooking = false;
    int m_next = 0;                          // line to look at
    std::array<Line, kCandidates> m_longest; // the shortest of them last
    std::size_t m_measured = 0;              // of them
    int m_width = 0;                         // pixels
};
