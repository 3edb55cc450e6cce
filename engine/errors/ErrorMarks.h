// SPDX-License-Identifier: GPL-3.0-or-later
// ErrorMarks: how the problems of a text look, and the drawing of it: indicators below the text,
// markers in the margin. Positions count bytes.
#pragma once

#include "engine/text/Raw.h"

#include <array>

namespace engine {

inline constexpr int kNoMark = -1;

// Settings by class of mark: errors, warnings; the severities by kind of problem.
struct ErrorLook
{
    std::array<int, 2> indicators{kNoMark, kNoMark};
    std::array<int, 2> markers{kNoMark, kNoMark};
    std::array<int, 2> severities{};

    bool operator==(const ErrorLook&) const = default;
};

// The class of the marks of a problem of that severity, kNoMark: it has none.
int MarkClassOf(int severity);

// Whether the severities let a problem through.
bool IsLetThrough(const ErrorLook& look, int kind, int severity);

// Draws while it lives; the indicator that the text's host works with is back afterwards.
class ErrorPainter
{
public:
    ErrorPainter(const Raw& raw, const ErrorLook& look);
    ~ErrorPainter();
    ErrorPainter(const ErrorPainter&) = delete;
    ErrorPainter& operator=(const ErrorPainter&) = delete;

    void EraseAll() const;
    void EraseText(long start, long end) const;
    void FillText(int markClass, long start, long end) const;
    bool IsTextMarked(long position) const;

    // A bit for the marker of a class, 0 if that has none.
    unsigned MarkerBit(int markClass) const;
    // Makes these the markers of the line, of those that are ours.
    void SetMarkers(long line, unsigned bits) const;

private:
    const Raw& m_raw;
    const ErrorLook& m_look;
    std::uintptr_t m_indicator;
    std::uintptr_t m_value;
};

} // namespace engine
