// SPDX-License-Identifier: GPL-3.0-or-later
// TextSpans: a text of UTF-8 bytes as it lies in memory, two runs with a gap between them. It is
// read in place; positions count bytes over both runs.
#pragma once

#include <string>
#include <string_view>

namespace engine::analysis {

class TextSpans
{
public:
    TextSpans() = default;
    TextSpans(std::string_view front, std::string_view back = {})
        : m_front(front.data()), m_back(back.data()), m_gap(static_cast<long>(front.size())),
          m_size(static_cast<long>(front.size() + back.size()))
    {}

    long Size() const { return m_size; }

    // 0 outside the text.
    unsigned char At(long position) const
    {
        if (position < 0 || position >= m_size)
            return 0;
        return static_cast<unsigned char>(position < m_gap ? m_front[position]
                                                           : m_back[position - m_gap]);
    }

    // The bytes from a position inside the text to the end, or to the gap.
    std::string_view RunAt(long position) const
    {
        return position < m_gap ? std::string_view(m_front + position,
                                                   static_cast<std::size_t>(m_gap - position))
                                : std::string_view(m_back + (position - m_gap),
                                                   static_cast<std::size_t>(m_size - position));
    }

    bool Has(long position, std::string_view bytes) const
    {
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (position + static_cast<long>(i) >= m_size ||
                At(position + static_cast<long>(i)) != static_cast<unsigned char>(bytes[i]))
                return false;
        }
        return true;
    }

    std::string Copy(long start, long end) const
    {
        std::string text;
        while (start < end) {
            const std::string_view run =
                RunAt(start).substr(0, static_cast<std::size_t>(end - start));
            text += run;
            start += static_cast<long>(run.size());
        }
        return text;
    }

private:
    const char* m_front = nullptr;
    const char* m_back = nullptr;
    long m_gap = 0;
    long m_size = 0;
};

} // namespace engine::analysis
