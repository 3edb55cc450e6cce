// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/text/Numbers.h"

#include <algorithm>

namespace numbers {

std::u16string TextOf(int number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

std::u16string PaddedTextOf(int number, int width)
{
    std::u16string text = TextOf(number);
    const auto wanted = static_cast<std::size_t>(
        std::min(width < 0 ? -static_cast<long>(width) : width, 0L + kWidest));
    if (text.size() >= wanted)
        return text;
    if (width < 0)
        text.append(wanted - text.size(), u' ');
    else
        text.insert(number < 0 ? 1 : 0, wanted - text.size(), u'0');
    return text;
}

int Sum(int first, int second)
{
    return static_cast<int>(static_cast<unsigned>(first) + static_cast<unsigned>(second));
}

} // namespace numbers
