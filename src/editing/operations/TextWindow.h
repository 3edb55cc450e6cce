// SPDX-License-Identifier: GPL-3.0-or-later
// TextWindow: the text around a place, for a walk from unit to unit. It is read in pieces, since a
// message for each unit would make a walk through a long line slow.
#pragma once

#include <array>

class CZNCoreEditorControl;

// Good until the text is changed.
class TextWindow
{
public:
    explicit TextWindow(CZNCoreEditorControl& control);

    char16_t operator[](long position); // 0 outside the text
    long Length() const { return m_length; }

private:
    void Read(long position);

    static constexpr long kUnits = 1024;

    CZNCoreEditorControl& m_control;
    long m_length;
    long m_start = 0;
    long m_end = 0;
    std::array<char16_t, kUnits + 3> m_units; // with half a pair at each end and a terminator
};
