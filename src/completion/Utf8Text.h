// SPDX-License-Identifier: GPL-3.0-or-later
// A piece of an editor's text as UTF-8, and the way back from its bytes to UTF-16 units.
#pragma once

#include <string>
#include <string_view>

namespace completion {

// A lone surrogate becomes U+FFFD: three bytes for one unit.
void AppendUtf8(std::u16string_view text, std::string& utf8);
std::string ToUtf8(std::u16string_view text);

// The units of bytes that begin and end between characters.
long CountUnits(std::string_view utf8);

// Units of places that are asked for from front to back.
class UnitCounter
{
public:
    explicit UnitCounter(std::string_view utf8) : m_utf8(utf8) {}

    long At(long byte)
    {
        if (byte < m_byte) {
            m_byte = 0;
            m_unit = 0;
        }
        m_unit += CountUnits(m_utf8.substr(static_cast<std::size_t>(m_byte),
                                           static_cast<std::size_t>(byte - m_byte)));
        m_byte = byte;
        return m_unit;
    }

private:
    std::string_view m_utf8;
    long m_byte = 0;
    long m_unit = 0;
};

} // namespace completion
