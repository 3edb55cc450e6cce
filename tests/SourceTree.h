// SPDX-License-Identifier: GPL-3.0-or-later
// Where the tree stands that the tests were built from.
#pragma once

#include <string>

// The path of a file or a folder of it, by its path from the root.
std::string InSourceTree(const std::string& path);
