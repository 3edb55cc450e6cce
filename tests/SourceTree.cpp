// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/SourceTree.h"

std::string InSourceTree(const std::string& path)
{
    return std::string(ZN_SOURCE_DIR "/") + path;
}
