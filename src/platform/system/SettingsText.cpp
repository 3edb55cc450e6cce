// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SettingsText.h"

#include <algorithm>

namespace {

constexpr char kDigits[] = "0123456789ABCDEF";

struct Place
{
    QByteArray section;
    QByteArray name;
};

bool IsPlain(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'0' && unit <= u'9') || unit == u'_' || unit == u'-' || unit == u'.';
}

bool IsHexDigit(char16_t unit)
{
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') ||
           (unit >= u'A' && unit <= u'F');
}

QByteArray Hex(unsigned number, int digits)
{
    QByteArray text;
    for (int i = digits - 1; i >= 0; --i)
        text += kDigits[(number >> (4 * i)) & 0xF];
    return text;
}

// A slash between segments stands as a backslash.
QByteArray EscapedName(const QString& name)
{
    QByteArray escaped;
    for (const QChar character : name) {
        const char16_t unit = character.unicode();
        if (unit == u'/')
            escaped += '\\';
        else if (IsPlain(unit))
            escaped += static_cast<char>(unit);
        else
            escaped += unit <= 0xFF ? '%' + Hex(unit, 2) : "%U" + Hex(unit, 4);
    }
    return escaped;
}

// The values without a section have taken the name.
QByteArray EscapedSection(const QString& section)
{
    const QByteArray escaped = EscapedName(section);
    return escaped.toLower() == "general" ? '%' + escaped : escaped;
}

Place PlaceOf(const QString& key)
{
    const qsizetype slash = key.indexOf(u'/');
    if (slash < 0)
        return {"General", EscapedName(key)};
    return {EscapedSection(key.left(slash)), EscapedName(key.mid(slash + 1))};
}

QByteArray EscapedValue(const QString& value)
{
    bool needsQuotes = value.isEmpty() || value.startsWith(u' ') || value.endsWith(u' ');
    bool wasHex = false;
    QString escaped = value.startsWith(u'@') ? QStringLiteral("@") : QString();
    for (const QChar character : value) {
        const char16_t unit = character.unicode();
        needsQuotes = needsQuotes || unit == u';' || unit == u',' || unit == u'=';
        if (unit == u'\\' || unit == u'"') {
            escaped += u'\\';
            escaped += character;
            wasHex = false;
        } else if (unit < 0x20 || unit == 0x7F || character.isSurrogate() ||
                   (wasHex && IsHexDigit(unit))) {
            escaped += QStringLiteral("\\x") + QString::number(unit, 16);
            wasHex = true;
        } else {
            escaped += character;
            wasHex = false;
        }
    }
    const QByteArray bytes = escaped.toUtf8();
    return needsQuotes ? '"' + bytes + '"' : bytes;
}

char16_t Escape(char16_t letter)
{
    switch (letter) {
    case u'a':
        return u'\a';
    case u'b':
        return u'\b';
    case u'f':
        return u'\f';
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'v':
        return u'\v';
    default:
        return letter;
    }
}

// The character behind a backslash, and at behind it.
char16_t TakeEscaped(const QString& text, qsizetype& at)
{
    const char16_t letter = text[at++].unicode();
    const int base = letter == u'x' ? 16 : 8;
    if (letter != u'x' && !(letter >= u'0' && letter <= u'7'))
        return Escape(letter);
    const qsizetype start = letter == u'x' ? at : at - 1;
    qsizetype end = start;
    while (end < text.size() &&
           (base == 16 ? IsHexDigit(text[end].unicode())
                       : text[end] >= u'0' && text[end] <= u'7' && end < start + 3))
        ++end;
    at = end;
    return static_cast<char16_t>(text.mid(start, end - start).toUInt(nullptr, base));
}

std::optional<QString> Unescaped(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes).trimmed();
    QString value;
    bool isQuoted = false;
    for (qsizetype at = 0; at < text.size();) {
        const QChar character = text[at++];
        if (character == u'"')
            isQuoted = !isQuoted;
        else if (character == u'\\' && at < text.size())
            value += QChar(TakeEscaped(text, at));
        else if (character == u',' && !isQuoted)
            return std::nullopt; // a list
        else
            value += character;
    }
    if (!value.startsWith(u'@'))
        return value;
    return value.startsWith(QLatin1String("@@")) ? std::optional(value.mid(1)) : std::nullopt;
}

} // namespace

SettingsText::SettingsText(const QByteArray& bytes)
{
    QByteArray section = "General";
    QList<QByteArray> lines = bytes.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (const QByteArray& text : lines) {
        const QByteArray line = text.trimmed();
        Line entry{text, section, QByteArray()};
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('[')) {
            const qsizetype end = line.indexOf(']');
            section = line.mid(1, end < 0 ? -1 : end - 1).trimmed();
            entry.section = section;
        } else if (equals > 0 && !line.startsWith(';')) {
            entry.name = line.left(equals).trimmed();
        }
        m_lines.append(entry);
    }
}

QByteArray SettingsText::Bytes() const
{
    QByteArray bytes;
    for (const Line& line : m_lines)
        bytes += line.text + '\n';
    return bytes;
}

// Of two lines for one key the last counts.
std::optional<QString> SettingsText::Value(const QString& key) const
{
    const Place place = PlaceOf(key);
    for (auto line = m_lines.rbegin(); line != m_lines.rend(); ++line) {
        if (line->section == place.section && line->name == place.name)
            return Unescaped(line->text.mid(line->text.indexOf('=') + 1));
    }
    return std::nullopt;
}

void SettingsText::SetValue(const QString& key, const QString& value)
{
    RemoveValue(key);
    const Place place = PlaceOf(key);
    const Line entry{place.name + '=' + EscapedValue(value), place.section, place.name};
    qsizetype behind = m_lines.size();
    while (behind > 0 && m_lines[behind - 1].section != place.section)
        --behind;
    if (behind == 0) {
        if (!m_lines.isEmpty())
            m_lines.append(Line());
        m_lines.append(Line{'[' + place.section + ']', place.section, QByteArray()});
        behind = m_lines.size();
    }
    while (behind > 1 && m_lines[behind - 1].text.trimmed().isEmpty())
        --behind;
    m_lines.insert(behind, entry);
}

bool SettingsText::RemoveValue(const QString& key)
{
    const Place place = PlaceOf(key);
    return m_lines.removeIf([&](const Line& line) {
        return line.section == place.section && line.name == place.name;
    }) > 0;
}

bool SettingsText::RemoveGroup(const QString& group)
{
    const qsizetype slash = group.indexOf(u'/');
    const QByteArray section = EscapedSection(group.left(slash));
    const QByteArray below = slash < 0 ? QByteArray() : EscapedName(group.mid(slash + 1)) + '\\';
    return m_lines.removeIf([&](const Line& line) {
        return !line.name.isEmpty() && line.section == section && line.name.startsWith(below);
    }) > 0;
}
