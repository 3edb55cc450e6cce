// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/TextUtil.h"

#include "platform/text/Integer.h"

int CTextUtil::TextToInt(const QString& text) const
{
    return IntegerOf(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

QString CTextUtil::IntToText(int value) const
{
    return QString::number(value);
}

QStringList CTextUtil::Split(const QString& text, const QString& delimiters) const
{
    QStringList pieces;
    QString piece;
    for (const QChar unit : text) {
        if (!delimiters.contains(unit)) {
            piece += unit;
        } else if (!piece.isEmpty()) {
            pieces << piece;
            piece.clear();
        }
    }
    if (!piece.isEmpty())
        pieces << piece;
    return pieces;
}
