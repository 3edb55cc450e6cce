// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/text/Comments.h"

namespace comments {

Found WithoutOverlap(Found found)
{
    if (found.start >= 0 && found.start + 1 == found.end)
        found.end = -1;
    else if (found.end >= 0 && found.end + 1 == found.start)
        found.start = -1;
    return found;
}

long MarkerToRemove(std::u16string_view text, std::u16string_view marker)
{
    constexpr std::size_t kLookedAt = 3;
    const std::u16string_view seen = text.substr(0, kLookedAt);
    if (!seen.starts_with(marker))
        return 0;
    const auto length = static_cast<long>(marker.size());
    return seen.substr(marker.size()).starts_with(u' ') ? length + 1 : length;
}

Continuation ContinuationOf(std::u16string_view previousLine)
{
    if (previousLine.starts_with(u"--"))
        return {u"-- ", false};
    if (previousLine.starts_with(u"/*"))
        return {u" * ", true};
    if (previousLine.starts_with(u"*"))
        return {u"* ", true};
    return {};
}

} // namespace comments
