// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/ReadFileText.h"

#include "search/files/FileText.h"
#include "search/files/TextCounts.h"

#include <QFile>
#include <QFileInfo>

std::optional<QString> ReadFileText(const QString& path, qint64 mostBytes, int codePage)
{
    FileText file(codePage);
    constexpr std::size_t kPiece = 1024 * 1024;
    if (QFileInfo(path).size() > mostBytes ||
        file.Open(QFile::encodeName(path).toStdString(), true, kPiece) != FileText::Kind::Text)
        return std::nullopt;
    ByteBuffer text;
    while (file.Read(text, kPiece)) {}
    if (file.Failed())
        return std::nullopt;
    return TextOf(text);
}
