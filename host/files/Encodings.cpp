// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Encodings.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Encodings)
};

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
    {  0, false, "windows-1252"         },
};
// clang-format on

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
    if (!choice)
        return Texts::tr("Unknown encoding");
    return choice->mark ? Texts::tr(choice->name) : QLatin1String(choice->name);
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
