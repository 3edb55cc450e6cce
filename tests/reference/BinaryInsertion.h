// SPDX-License-Identifier: GPL-3.0-or-later
// Sorting by binary insertion into a plain array, as slow as it is plain.
#pragma once

#include <cstddef>
#include <vector>

namespace reference {

template <class Element, class Compare>
std::vector<Element> InsertAll(const std::vector<Element>& elements, Compare compare,
                               bool keepDuplicates)
{
    std::vector<Element> sorted;
    for (const Element& element : elements) {
        long low = 0;
        long high = static_cast<long>(sorted.size()) - 1;
        bool met = false;
        while (low <= high && !met) {
            const long middle = (low + high) / 2;
            const int order = compare(element, sorted[static_cast<std::size_t>(middle)]);
            met = order == 0;
            if (met)
                low = middle;
            else if (order < 0)
                high = middle - 1;
            else
                low = middle + 1;
        }
        if (!met || keepDuplicates)
            sorted.insert(sorted.begin() + low, element);
    }
    return sorted;
}

} // namespace reference
