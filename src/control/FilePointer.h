// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// A file that is closed by whom it belongs to.
#pragma once

#include <cstdio>
#include <memory>

/// What closes a file with its pointer.
struct FileCloser
{
    /// Closes it; never called for null.
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<std::FILE, FileCloser>; ///< an open file, or null
