// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/FilePlace.h"

#include <QFileInfo>

#include <algorithm>
#include <climits>
#include <optional>

namespace {

long ToNumber(QStringView digits)
{
    bool fits = false;
    const qlonglong number = digits.toLongLong(&fits);
    return fits ? static_cast<long>(std::min<qlonglong>(number, INT_MAX)) : INT_MAX;
}

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// Takes :number from the end of the word, if something is left in front of it.
std::optional<long> TakeNumber(QString& word)
{
    const qsizetype colon = word.lastIndexOf(u':');
    const QStringView digits = QStringView(word).mid(colon + 1);
    if (colon < 1 || digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), IsDigit))
        return std::nullopt;
    const long number = ToNumber(digits);
    word.truncate(colon);
    return number;
}

bool IsDriveLetter(const QString& word)
{
    return word.size() == 1 && word[0].unicode() < 0x80 && word[0].isLetter();
}

} // namespace

FilePlace ParseFilePlace(const QString& word)
{
    return ParseFilePlace(word, [](const QString& path) { return QFileInfo::exists(path); });
}

// From the longest name to the shortest, the first that is there is meant. With none there it is
// the shortest.
FilePlace ParseFilePlace(const QString& word,
                         const std::function<bool(const QString& path)>& exists)
{
    if (exists(word))
        return {word};
    QString path = word;
    if (path.endsWith(u':'))
        path.chop(1);
    const std::optional<long> last = TakeNumber(path);
    if (!last || (IsDriveLetter(path) && !exists(path)))
        return {word};
    if (exists(path))
        return {path, *last};
    QString shorter = path;
    const std::optional<long> line = TakeNumber(shorter);
    if (!line || (IsDriveLetter(shorter) && !exists(shorter)))
        return {path, *last};
    return {shorter, *line, *last};
}
