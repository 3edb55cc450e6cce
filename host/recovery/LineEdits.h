// SPDX-License-Identifier: GPL-3.0-or-later
// How one text becomes another by changes of whole lines. Text alone.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

struct LineEdit
{
    long start = 0;  // in the first text, in units
    long length = 0; // of what goes there
    QString text;    // what comes instead

    bool operator==(const LineEdit&) const = default;
};

// From the end to the start, so that each place is right when its turn comes. None for equal texts.
std::vector<LineEdit> LineEdits(QStringView from, QStringView to);
