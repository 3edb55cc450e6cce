// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/EncodingChoices.h"

#include "encoding/FileEncodeConverter.h"

#include <QtGlobal>

#include <algorithm>

namespace {

constexpr const char* kWestern = QT_TRANSLATE_NOOP("Encodings", "Western European");
constexpr const char* kCentral = QT_TRANSLATE_NOOP("Encodings", "Central European");
constexpr const char* kCyrillic = QT_TRANSLATE_NOOP("Encodings", "Cyrillic");
constexpr const char* kGreek = QT_TRANSLATE_NOOP("Encodings", "Greek");
constexpr const char* kTurkish = QT_TRANSLATE_NOOP("Encodings", "Turkish");
constexpr const char* kBaltic = QT_TRANSLATE_NOOP("Encodings", "Baltic");
constexpr const char* kHebrew = QT_TRANSLATE_NOOP("Encodings", "Hebrew");
constexpr const char* kArabic = QT_TRANSLATE_NOOP("Encodings", "Arabic");
constexpr const char* kVietnamese = QT_TRANSLATE_NOOP("Encodings", "Vietnamese");
constexpr const char* kThai = QT_TRANSLATE_NOOP("Encodings", "Thai");
constexpr const char* kJapanese = QT_TRANSLATE_NOOP("Encodings", "Japanese");
constexpr const char* kSimplified = QT_TRANSLATE_NOOP("Encodings", "Simplified Chinese");
constexpr const char* kTraditional = QT_TRANSLATE_NOOP("Encodings", "Traditional Chinese");
constexpr const char* kKorean = QT_TRANSLATE_NOOP("Encodings", "Korean");

// clang-format off
constexpr EncodingChoice kChoices[] = {
    {  6, false, "UTF-8"                },
    {  6, true,  QT_TRANSLATE_NOOP("Encodings", "UTF-8 with mark")      },
    {  2, true,  QT_TRANSLATE_NOOP("Encodings", "UTF-16 LE with mark")  },
    {  2, false, "UTF-16 LE"            },
    {  4, true,  QT_TRANSLATE_NOOP("Encodings", "UTF-16 BE with mark")  },
    {  4, false, "UTF-16 BE"            },
    {  8, true,  QT_TRANSLATE_NOOP("Encodings", "UTF-32 LE with mark")  },
    {  8, false, "UTF-32 LE"            },
    { 10, true,  QT_TRANSLATE_NOOP("Encodings", "UTF-32 BE with mark")  },
    { 10, false, "UTF-32 BE"            },
    {  1252, false, "windows-1252", kWestern     },
    { 28591, false, "ISO-8859-1",   kWestern     },
    { 28605, false, "ISO-8859-15",  kWestern     },
    {   850, false, "IBM850",       kWestern     },
    {   437, false, "IBM437",       kWestern     },
    { 10000, false, "macintosh",    kWestern     },
    {  1250, false, "windows-1250", kCentral     },
    { 28592, false, "ISO-8859-2",   kCentral     },
    {   852, false, "IBM852",       kCentral     },
    {  1251, false, "windows-1251", kCyrillic    },
    { 20866, false, "KOI8-R",       kCyrillic    },
    { 21866, false, "KOI8-U",       kCyrillic    },
    { 28595, false, "ISO-8859-5",   kCyrillic    },
    {   866, false, "IBM866",       kCyrillic    },
    {  1253, false, "windows-1253", kGreek       },
    { 28597, false, "ISO-8859-7",   kGreek       },
    {   737, false, "IBM737",       kGreek       },
    {  1254, false, "windows-1254", kTurkish     },
    { 28599, false, "ISO-8859-9",   kTurkish     },
    {   857, false, "IBM857",       kTurkish     },
    {  1257, false, "windows-1257", kBaltic      },
    { 28603, false, "ISO-8859-13",  kBaltic      },
    {  1255, false, "windows-1255", kHebrew      },
    {   862, false, "IBM862",       kHebrew      },
    {  1256, false, "windows-1256", kArabic      },
    {  1258, false, "windows-1258", kVietnamese  },
    {   874, false, "windows-874",  kThai        },
    {   932, false, "Shift_JIS",    kJapanese    },
    { 51932, false, "EUC-JP",       kJapanese    },
    {   936, false, "GBK",          kSimplified  },
    { 54936, false, "GB18030",      kSimplified  },
    {   950, false, "Big5",         kTraditional },
    {   949, false, "EUC-KR",       kKorean      },
};
// clang-format on

} // namespace

std::span<const EncodingChoice> EncodingChoices()
{
    return kChoices;
}

bool IsCodePage(const EncodingChoice& choice)
{
    return choice.script != nullptr;
}

bool IsEncoding(int encoding)
{
    return encoding == FileEncodeConverter::encUnknown ||
           encoding == FileEncodeConverter::encANSI ||
           encoding == FileEncodeConverter::encUTF8Cookie ||
           std::ranges::any_of(kChoices, [encoding](const EncodingChoice& choice) {
               return choice.encoding == encoding;
           });
}
