// SPDX-License-Identifier: GPL-3.0-or-later
// What stands above and below the text on printed pages: the script's name and the number of the
// page, the time of the job.
#pragma once

#include "platform/base/Types.h"

#include <QString>

class QPainter;

namespace headandfoot {

// The workbench's own option, a bool for the options server.
inline constexpr int kOption = 60001;

struct Words
{
    QString name;    // of the script; a long one loses its middle
    QString page;    // which one
    QString printed; // when
};

// What they leave of a page for its text, in device pixels: all of a page that is very low.
RECT TextArea(const QPainter& painter, const RECT& page);

void Draw(QPainter& painter, const RECT& page, const Words& words);

} // namespace headandfoot
