// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Integer.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <limits>

int IntegerOf(std::u16string_view text)
{
    std::size_t at = 0;
    while (at < text.size() && u_isUWhiteSpace(text[at]))
        ++at;
    const bool negative = at < text.size() && text[at] == u'-';
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;
    constexpr long kLargest = std::numeric_limits<int>::max();
    long value = 0;
    for (; at < text.size() && text[at] >= u'0' && text[at] <= u'9'; ++at)
        value = std::min(value * 10 + (text[at] - u'0'), kLargest + 1);
    return static_cast<int>(negative ? -value : std::min(value, kLargest));
}
