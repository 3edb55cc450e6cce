// SPDX-License-Identifier: GPL-3.0-or-later
// Where the comments and strings of a script stand, told byte by byte from the text's start, and
// by facts that the databases' manuals state. Client programs' lines are not known here.
#pragma once

#include <string>
#include <vector>

namespace reference {

enum class Stretch
{
    Code,
    Comment,
    String, // names in double quotes too
};

// Of each unit; those beyond ASCII count as letters. The language by its name in the menu.
std::vector<Stretch> StretchesOf(const std::string& language, const std::u16string& text);

} // namespace reference
