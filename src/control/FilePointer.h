// SPDX-License-Identifier: GPL-3.0-or-later
// A file that is closed by whom it belongs to.
#pragma once

#include <cstdio>
#include <memory>

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<std::FILE, FileCloser>;
