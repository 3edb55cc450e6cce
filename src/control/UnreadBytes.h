// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an encoding makes nothing of in a file.
#pragma once

#include "common/Export.h"

#include <QString>

/// The bytes of a file that are no text in an encoding. A load shows U+FFFD for them, and a save
/// puts that in their place.
struct UnreadBytes
{
    long long count = 0;  ///< all of them
    long long first = -1; ///< where the first stands, in bytes from the file's start; -1: nowhere

    explicit operator bool() const { return count > 0; } ///< true: there are some
};

/// Reads the file in the encoding, a number of FileEncodeConverter as GetEncoding() of the control
/// gives it behind a load. A file that cannot be read has none, and neither has what stands behind
/// a NUL in a code page, where a load ends. The code page is what the encoding 0 stands for; 0: the
/// system's. Costs a further read of the file, block after block.
ZN_API UnreadBytes FindUnreadBytes(const QString& path, int encoding, int codePage = 0);
