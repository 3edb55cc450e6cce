// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/text/Capitals.h"

#include <QChar>

namespace capitals {

char16_t Narrowed(char16_t c)
{
    return static_cast<char16_t>(static_cast<signed char>(c));
}

std::u16string Capitalized(std::u16string_view text)
{
    std::u16string result(text);
    bool startsWord = true;
    for (char16_t& c : result) {
        if (QChar::isSpace(c)) {
            startsWord = true;
        } else if (QChar::isLetter(c)) {
            const auto mapped =
                static_cast<char16_t>(startsWord ? QChar::toUpper(c) : QChar::toLower(c));
            if (const char16_t narrowed = Narrowed(mapped)) // no NUL where there was a letter
                c = narrowed;
            startsWord = false;
        }
    }
    return result;
}

} // namespace capitals
