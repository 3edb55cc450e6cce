// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What tells that a file is still the one that it was.
#pragma once

/// All 0 if there is none.
struct FileStamp
{
    long long size = 0;        ///< in bytes
    long long seconds = 0;     ///< of the time of the last change, since the epoch
    long long nanoseconds = 0; ///< the rest of that time
    bool operator==(const FileStamp&) const = default; ///< whether both say the same
};
