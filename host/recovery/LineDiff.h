// SPDX-License-Identifier: GPL-3.0-or-later
// What two texts do not have in common, line by line. Text alone.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

struct DiffLine
{
    enum class Kind
    {
        Same,
        Removed, // of the first text alone
        Added,   // of the second text alone
        Gap,     // lines that are the same and are left out
    };

    Kind kind = Kind::Same;
    QString text; // without its end; of a gap, empty

    bool operator==(const DiffLine&) const = default;
};

// The changed lines with as many of the same around them. Lines that differ in their end alone are
// not the same. Nothing for equal texts. Where texts have little in common, the shortest way is not
// looked for.
std::vector<DiffLine> UnifiedDiff(QStringView first, QStringView second, int around);
