// SPDX-License-Identifier: GPL-3.0-or-later
// Terminator: what ends a statement. It is ; until a script says other, and is kept by value where
// it holds: a script may name as many as it likes.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace engine::analysis {

class Terminator
{
public:
    static constexpr std::size_t kLongest = 15; // bytes

    Terminator() = default; // ;

    // The text's first bytes, if it has more than a terminator may have. ; for an empty one.
    explicit Terminator(std::string_view text)
    {
        if (text == ";")
            return;
        m_length = static_cast<std::uint8_t>(std::min(text.size(), kLongest));
        std::copy_n(text.begin(), m_length, m_bytes.begin());
    }

    // Empty for ;. Good while the terminator is.
    std::string_view Text() const { return {m_bytes.data(), m_length}; }
    std::string_view Written() const { return IsOwn() ? Text() : std::string_view(";"); }
    bool IsOwn() const { return m_length > 0; }

    bool operator==(const Terminator&) const = default;

private:
    std::array<char, kLongest> m_bytes{};
    std::uint8_t m_length = 0;
};

} // namespace engine::analysis
