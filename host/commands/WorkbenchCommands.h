// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the workbench's own commands, from the range that is a host's.
#pragma once

#include "platform/base/Types.h"

namespace command {
enum Id : UINT
{
    OpenAs = 32800,
    SaveAll,
    SplitBelow, // two panes, one below the other; or one again
    SplitBeside,
    OtherPane, // the focus goes there
    CloseFind,
    SavePdf = 32850,
    SaveHtml,
    CopyWithColours,
    PreviousPane,     // the focus goes there
    ShowCall = 32860, // what a function takes
    InsertTemplate,
    Preferences = 54033, // as the editors have it
};
} // namespace command
