#include "host/Encodings.h"

#include <algorithm>

namespace {

// clang-format off
constexpr EncodingChoice kChoices[] = {
    {  6, false, "UTF-8"                },
    {  6, true,  "UTF-8 with mark"      },
    {  2, true,  "UTF-16 LE with mark"  },
    {  2, false, "UTF-16 LE"            },
    {  4, true,  "UTF-16 BE with mark"  },
    {  4, false, "UTF-16 BE"            },
    {  8, true,  "UTF-32 LE with mark"  },
    {  8, false, "UTF-32 LE"            },
    { 10, true,  "UTF-32 BE with mark"  },
    { 10, false, "UTF-32 BE"            },
    {  0, false, "windows-1252"         },
};
// clang-format on

// The characters of 0x80 to 0x9F in windows-1252, in the order of Unicode.
constexpr char16_t kHighCharacters[] = {
    0x0152, 0x0153, 0x0160, 0x0161, 0x0178, 0x017D, 0x017E, 0x0192, 0x02C6,
    0x02DC, 0x2013, 0x2014, 0x2018, 0x2019, 0x201A, 0x201C, 0x201D, 0x201E,
    0x2020, 0x2021, 0x2022, 0x2026, 0x2030, 0x2039, 0x203A, 0x20AC, 0x2122,
};
// Bytes without a character of their own, which stand for the control characters of their value.
constexpr char16_t kControls[] = {0x81, 0x8D, 0x8F, 0x90, 0x9D};

bool IsInWindows1252(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return true;
    return std::ranges::binary_search(unit < 0xA0 ? std::span<const char16_t>(kControls)
                                                  : std::span<const char16_t>(kHighCharacters),
                                      unit);
}

const EncodingChoice* FindChoice(int encoding, bool mark)
{
    // A code page has no mark, whatever the flag of the file says.
    const bool wanted = mark && encoding != 0;
    const auto* found = std::ranges::find_if(kChoices, [=](const EncodingChoice& choice) {
        return choice.encoding == encoding && choice.mark == wanted;
    });
    return found == std::end(kChoices) ? nullptr : found;
}

} // namespace

std::span<const EncodingChoice> EncodingChoices()
{
    return kChoices;
}

QString EncodingName(int encoding, bool mark)
{
    const EncodingChoice* choice = FindChoice(encoding, mark);
    return QLatin1String(choice ? choice->name : "Unknown encoding");
}

int IndexOfEncoding(int encoding, bool mark)
{
    const EncodingChoice* choice = FindChoice(encoding, mark);
    return choice ? int(choice - kChoices) : 0;
}

QString LineEndName(int mode)
{
    switch (mode) {
    case 1:
        return QStringLiteral("CR LF");
    case 2:
        return QStringLiteral("CR");
    case 3:
        return QStringLiteral("LF");
    default:
        return {};
    }
}

bool FitsWindows1252(QStringView text)
{
    return std::all_of(text.utf16(), text.utf16() + text.size(), IsInWindows1252);
}
