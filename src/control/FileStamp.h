// SPDX-License-Identifier: GPL-3.0-or-later
// What tells that a file is still the one that it was.
#pragma once

// All 0 if there is none.
struct FileStamp
{
    long long size = 0;
    long long seconds = 0;
    long long nanoseconds = 0;
    bool operator==(const FileStamp&) const = default;
};
