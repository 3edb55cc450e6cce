// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/StringUtils.h"

#include "platform/text/CodePage.h"

#include <climits>

namespace znutils {

namespace {
constexpr int kSystemCodePage = 0;
}

std::u16string StringUtils::ConvertMBToUnicode(std::string_view bytes)
{
    bytes = bytes.substr(0, bytes.find('\0'));
    std::u16string text;
    if (bytes.size() > INT_MAX)
        return text;
    const int count = static_cast<int>(bytes.size());
    const int most = platform::MaxUnitCount(kSystemCodePage, bytes.size());
    text.resize(static_cast<std::size_t>(most));
    const int units =
        platform::MultiByteToWideChar(kSystemCodePage, bytes.data(), count, text.data(), most);
    text.resize(static_cast<std::size_t>(units));
    return text;
}

std::string StringUtils::ConvertToMBString(std::u16string_view text)
{
    std::string bytes;
    if (text.size() > INT_MAX)
        return bytes;
    const int most = platform::MaxByteCount(kSystemCodePage, text.size());
    bytes.resize(static_cast<std::size_t>(most));
    const int count = platform::WideCharToMultiByte(
        kSystemCodePage, text.data(), static_cast<int>(text.size()), bytes.data(), most);
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

} // namespace znutils
