// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/MatchCase.h"

QString InCaseOf(const QString& match, const QString& replacement)
{
    const QString upper = match.toUpper();
    const QString lower = match.toLower();
    if (upper == lower || replacement.isEmpty()) // nothing has a case
        return replacement;
    if (match == upper)
        return replacement.toUpper();
    if (match == lower)
        return replacement.toLower();
    if (match[0].isUpper())
        return replacement[0].toUpper() + replacement.mid(1);
    return replacement;
}
