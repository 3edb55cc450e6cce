// SPDX-License-Identifier: GPL-3.0-or-later
// Places in the UTF-8 form of a text, as places in the text.
#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>

// How many UTF-16 units stand before the byte.
inline long UnitsBefore(const QByteArray& utf8, long byte)
{
    const long inside = std::clamp(byte, 0L, static_cast<long>(utf8.size()));
    return static_cast<long>(QString::fromUtf8(utf8.constData(), inside).size());
}

// The word at a place, or the character if there is none: what an underline is to cover.
inline long EndOfWord(const QString& text, long start)
{
    const long size = static_cast<long>(text.size());
    long end = start;
    while (end < size &&
           (text[end].isLetterOrNumber() || text[end] == u'_' || text[end].isSurrogate()))
        ++end;
    return std::max(end, std::min(start + 1, size));
}
