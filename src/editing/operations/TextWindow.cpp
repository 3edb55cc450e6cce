// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/operations/TextWindow.h"

#include "control/ZNCoreEditorControl.h"

#include <algorithm>

TextWindow::TextWindow(CZNCoreEditorControl& control)
    : m_control(control), m_length(control.GetLength(1))
{}

char16_t TextWindow::operator[](long position)
{
    if (position < 0 || position >= m_length)
        return 0;
    if (position < m_start || position >= m_end)
        Read(position);
    return position < m_end ? m_units[static_cast<std::size_t>(position - m_start)] : u'\0';
}

// A walk to the left finds the piece before the place, one to the right the piece behind it. Pairs
// are read whole.
void TextWindow::Read(long position)
{
    const auto isInPair = [this](long at) {
        return at > 0 && at < m_length && (m_control.GetCharAt(at, 1) & 0xFC00) == 0xDC00;
    };
    m_start = position < m_start ? std::max(0L, position + 1 - kUnits) : position;
    m_end = std::min(m_start + kUnits, m_length);
    m_start -= isInPair(m_start) ? 1 : 0;
    m_end += isInPair(m_end) ? 1 : 0;
    const int read =
        m_control.GetRange(static_cast<int>(m_start), static_cast<int>(m_end), m_units.data());
    m_end = m_start + read;
}
