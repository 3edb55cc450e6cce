// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/Directives.h"

#include <QList>

#include <algorithm>

namespace directive {

namespace {

constexpr QStringView kSigil = u"&&";

bool IsBlank(QChar unit)
{
    return unit.isSpace();
}

bool IsLineTerminator(QChar unit)
{
    return unit == u'\n' || unit == u'\r' || unit == QChar(0x2028) || unit == QChar(0x2029);
}

bool IsWord(QChar unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'0' && unit <= u'9') || unit == u'_';
}

template <typename Accepts>
qsizetype CountFront(QStringView text, Accepts accepts)
{
    return std::find_if_not(text.begin(), text.end(), accepts) - text.begin();
}

QStringView TrimmedOf(QStringView text, char16_t unit)
{
    while (text.startsWith(unit))
        text = text.mid(1);
    while (text.endsWith(unit))
        text.chop(1);
    return text;
}

// A cut at the very front would leave nothing, so there is none.
QStringView CutBehindFront(QStringView text, QStringView mark)
{
    const qsizetype at = text.indexOf(mark);
    return at > 0 ? text.left(at) : text;
}

// The word and the blanks behind it; -1 if the line does not begin so.
qsizetype LengthOfIntroduction(QStringView line, QStringView word)
{
    if (!line.startsWith(word))
        return -1;
    const qsizetype blanks = CountFront(line.mid(word.size()), IsBlank);
    return blanks > 0 ? word.size() + blanks : -1;
}

bool HasLineTerminator(QStringView text)
{
    return std::any_of(text.begin(), text.end(), IsLineTerminator);
}

} // namespace

QStringView TrimmedLeft(QStringView text)
{
    return text.mid(CountFront(text, IsBlank));
}

QString IncludedName(const QString& trimmedLine, qsizetype wordLength, const QString& marker)
{
    QStringView name = QStringView(trimmedLine).mid(std::min(wordLength, trimmedLine.size()));
    name = CutBehindFront(name, marker);
    name = CutBehindFront(name, u"/*").trimmed();
    if (name.contains(u'<'))
        name = TrimmedOf(TrimmedOf(name, u'<'), u'>').trimmed();
    if (name.contains(u'"'))
        name = TrimmedOf(name, u'"').trimmed();
    return name.toString();
}

// The expression (^word\s+).*$ over the whole line. It is not left to std::regex, which recurses
// for each character and ends the process on a line of a megabyte.
bool IsDefinition(QStringView line, QStringView word)
{
    const qsizetype length = LengthOfIntroduction(line, word);
    return length >= 0 && !HasLineTerminator(line.mid(length));
}

// The expression (^word\s+)(&&[a-zA-Z0-9_]+\s+)(.+$) over the whole line.
std::optional<Definition> ReadDefinition(QStringView line, QStringView word)
{
    const qsizetype introduction = LengthOfIntroduction(line, word);
    if (introduction < 0)
        return std::nullopt;
    const QStringView rest = line.mid(introduction);
    if (!rest.startsWith(kSigil))
        return std::nullopt;
    const qsizetype name = kSigil.size() + CountFront(rest.mid(kSigil.size()), IsWord);
    const qsizetype blanks = CountFront(rest.mid(name), IsBlank);
    if (name == kSigil.size() || blanks == 0)
        return std::nullopt;
    QStringView value = rest.mid(name + blanks);
    if (value.isEmpty()) // the last of several blanks is the value
        value = blanks > 1 ? rest.last(1) : QStringView();
    if (value.isEmpty() || HasLineTerminator(value))
        return std::nullopt;
    return Definition{rest.left(name).toString(), value.trimmed().toString()};
}

std::optional<Reference> FirstReference(const QString& value)
{
    const qsizetype at = value.indexOf(kSigil);
    if (at < 0)
        return std::nullopt;
    const auto pieces = QStringView(value).split(u'&', Qt::SkipEmptyParts);
    Reference reference;
    reference.pieces = static_cast<int>(pieces.size());
    reference.leads = at == 0;
    const qsizetype chosen = reference.leads ? 0 : 1;
    reference.name = kSigil.toString();
    if (chosen < pieces.size())
        reference.name += pieces[chosen];
    if (!pieces.isEmpty())
        reference.prefix = pieces[0].toString();
    return reference;
}

bool IsNameCharacter(char16_t unit)
{
    return IsWord(QChar(static_cast<char16_t>(unit & 0xFF)));
}

} // namespace directive
