// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/text/Spaces.h"

#include <algorithm>

namespace spaces {
namespace {

constexpr bool IsHalfOfPair(char16_t c)
{
    return (c & 0xF800) == 0xD800;
}

std::size_t Width(int tabWidth)
{
    return static_cast<std::size_t>(std::max(tabWidth, 1));
}

} // namespace

std::u16string TabsToBlanks(std::u16string_view line, int tabWidth)
{
    const std::size_t width = Width(tabWidth);
    std::u16string result;
    result.reserve(line.size());
    for (const char16_t c : line) {
        if (c == u'\t')
            result.append(width - result.size() % width, u' ');
        else
            result.push_back(c);
    }
    return result;
}

std::u16string BlanksToTabs(std::u16string_view line, int tabWidth)
{
    const std::size_t width = Width(tabWidth);
    std::u16string result;
    result.reserve(line.size());
    std::size_t runEnd = 0; // of the blanks around the place
    for (std::size_t at = 0; at < line.size();) {
        if (line[at] == u' ' && at >= runEnd)
            runEnd = std::min(line.find_first_not_of(u' ', at), line.size());
        const std::size_t stop = (at / width + 1) * width;
        if (line[at] == u' ' && stop <= runEnd) {
            result.push_back(u'\t');
            at = stop;
        } else {
            result.push_back(line[at++]);
        }
    }
    return result;
}

std::size_t CountTrailing(std::u16string_view line)
{
    std::size_t count = 0;
    for (auto c = line.rbegin(); c != line.rend(); ++c, ++count) {
        if (IsHalfOfPair(*c) || !IsIndentChar(*c & 0xFF))
            break;
    }
    return count;
}

} // namespace spaces
