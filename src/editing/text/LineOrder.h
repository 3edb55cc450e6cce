// SPDX-License-Identifier: GPL-3.0-or-later
// The orders in which lines can be sorted. Each looks at a part of the line, from a column to
// another: both -1 mean the whole line, a start of -1 is 0, and an end of -1 or equal to the start
// is the line's end. Knows no window; columns count UTF-16 units.
#pragma once

#include <QCollator>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lineorder {

// The digits at the front of a part.
struct LeadingNumber
{
    bool isThere = false;
    int value = 0;
};

// Below 0 if the first comes first, 0 for two that are equal, above 0 otherwise.
using Compare = int (*)(const QString& first, const QString& second, int start, int end);

// By code, by the locale, or by the digits at the front where both have some and by code
// otherwise. A digit there is a unit whose low byte is one, so that U+0130 counts; it has the
// value 0.
int CompareText(const QString& first, const QString& second, int start, int end);
int CompareTextNoCase(const QString& first, const QString& second, int start, int end);
int CompareCollate(const QString& first, const QString& second, int start, int end);
int CompareCollateNoCase(const QString& first, const QString& second, int start, int end);
int CompareNumeric(const QString& first, const QString& second, int start, int end);
int CompareNumericNoCase(const QString& first, const QString& second, int start, int end);

// 1 by the locale, 2 by number, any other by code.
Compare ComparisonOf(int mode, bool ignoreCase);

std::u16string_view PartOf(std::u16string_view line, int start, int end);

// Lines with what a comparison looks at worked out once for each, for the order that the comparison
// of the same mode gives. The lines stay the caller's and outlive this.
class Keys
{
public:
    Keys(const std::vector<std::u16string_view>& lines, int mode, bool ignoreCase, int start,
         int end);

    int operator()(std::uint32_t first, std::uint32_t second) const;

private:
    struct Key
    {
        std::u16string_view part;
        std::uint64_t head = 0; // the part's first units, in an order that numbers have
        LeadingNumber number;
    };

    std::u16string m_folded;
    std::vector<Key> m_keys;
    std::vector<QCollatorSortKey> m_collation; // empty unless it is by the locale
};

} // namespace lineorder
