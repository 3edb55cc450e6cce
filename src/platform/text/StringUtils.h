// SPDX-License-Identifier: GPL-3.0-or-later
// StringUtils: whole texts between the system's code page and UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace znutils {

struct StringUtils
{
    // The text of bytes in the system's code page, up to the first zero byte. Empty if it does not
    // fit an int.
    static std::u16string ConvertMBToUnicode(std::string_view bytes);

    // The bytes of a text in the system's code page. A unit that the page lacks becomes "?".
    static std::string ConvertToMBString(std::u16string_view text);
};

} // namespace znutils
