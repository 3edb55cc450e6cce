// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/text/LineOrder.h"

#include "platform/text/Integer.h"

#include <QChar>
#include <QLocale>
#include <QStringView>

#include <algorithm>

namespace lineorder {
namespace {

constexpr int kByLocale = 1;
constexpr int kByNumber = 2;

std::u16string_view View(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

// Appends the text in one case, character by character.
void Fold(std::u16string_view text, std::u16string& out)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (QChar::isHighSurrogate(text[at]) && at + 1 < text.size() &&
            QChar::isLowSurrogate(text[at + 1])) {
            const char32_t folded =
                QChar::toCaseFolded(QChar::surrogateToUcs4(text[at], text[at + 1]));
            out.push_back(QChar::highSurrogate(folded));
            out.push_back(QChar::lowSurrogate(folded));
            ++at;
        } else {
            out.push_back(static_cast<char16_t>(QChar::toCaseFolded(text[at])));
        }
    }
}

std::u16string Folded(std::u16string_view text)
{
    std::u16string result;
    result.reserve(text.size());
    Fold(text, result);
    return result;
}

LeadingNumber NumberOf(std::u16string_view part)
{
    const auto isDigit = [](char16_t c) { return (c & 0xFF) >= u'0' && (c & 0xFF) <= u'9'; };
    const auto count = static_cast<std::size_t>(
        std::find_if_not(part.begin(), part.end(), isDigit) - part.begin());
    return {count > 0, IntegerOf(part.substr(0, count))};
}

// 0 also where one of the two is missing.
int Ordered(const LeadingNumber& first, const LeadingNumber& second)
{
    if (!first.isThere || !second.isThere)
        return 0;
    return (first.value > second.value) - (first.value < second.value);
}

// The locale "C" has no order of its own but that of codes; English has the one that all share.
QCollator CollatorFor(bool ignoreCase)
{
    const QLocale locale = QLocale().collation();
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setCaseSensitivity(ignoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive);
    return collator;
}

QStringView QtView(std::u16string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

int Collate(const QString& first, const QString& second, int start, int end, bool ignoreCase)
{
    return CollatorFor(ignoreCase)
        .compare(QtView(PartOf(View(first), start, end)), QtView(PartOf(View(second), start, end)));
}

std::uint64_t HeadOf(std::u16string_view part)
{
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < 4; ++i)
        head = head << 16 | (i < part.size() ? part[i] : 0U);
    return head;
}

} // namespace

std::u16string_view PartOf(std::u16string_view line, int start, int end)
{
    if (start == -1 && end == -1)
        return line;
    const long from = start == -1 ? 0 : start;
    const long length = end == -1 ? 0 : end - from;
    if (length < 0)
        return {};
    const auto at = std::min(static_cast<std::size_t>(std::max(from, 0L)), line.size());
    return line.substr(at, length == 0 ? line.npos : static_cast<std::size_t>(length));
}

int CompareText(const QString& first, const QString& second, int start, int end)
{
    return PartOf(View(first), start, end).compare(PartOf(View(second), start, end));
}

int CompareTextNoCase(const QString& first, const QString& second, int start, int end)
{
    return Folded(PartOf(View(first), start, end))
        .compare(Folded(PartOf(View(second), start, end)));
}

int CompareCollate(const QString& first, const QString& second, int start, int end)
{
    return Collate(first, second, start, end, false);
}

int CompareCollateNoCase(const QString& first, const QString& second, int start, int end)
{
    return Collate(first, second, start, end, true);
}

int CompareNumeric(const QString& first, const QString& second, int start, int end)
{
    const int order = Ordered(NumberOf(PartOf(View(first), start, end)),
                              NumberOf(PartOf(View(second), start, end)));
    return order != 0 ? order : CompareText(first, second, start, end);
}

int CompareNumericNoCase(const QString& first, const QString& second, int start, int end)
{
    const int order = Ordered(NumberOf(PartOf(View(first), start, end)),
                              NumberOf(PartOf(View(second), start, end)));
    return order != 0 ? order : CompareTextNoCase(first, second, start, end);
}

Compare ComparisonOf(int mode, bool ignoreCase)
{
    switch (mode) {
    case kByLocale:
        return ignoreCase ? CompareCollateNoCase : CompareCollate;
    case kByNumber:
        return ignoreCase ? CompareNumericNoCase : CompareNumeric;
    default:
        return ignoreCase ? CompareTextNoCase : CompareText;
    }
}

Keys::Keys(const std::vector<std::u16string_view>& lines, int mode, bool ignoreCase, int start,
           int end)
{
    if (mode == kByLocale) {
        const QCollator collator = CollatorFor(ignoreCase);
        m_collation.reserve(lines.size());
        for (const std::u16string_view line : lines)
            m_collation.push_back(collator.sortKey(QtView(PartOf(line, start, end)).toString()));
        return;
    }
    m_keys.resize(lines.size());
    std::size_t units = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        m_keys[i].part = PartOf(lines[i], start, end);
        units += m_keys[i].part.size();
    }
    if (ignoreCase)
        m_folded.reserve(units); // parts point into it
    for (Key& key : m_keys) {
        if (mode == kByNumber)
            key.number = NumberOf(key.part);
        if (ignoreCase) {
            const std::size_t from = m_folded.size();
            Fold(key.part, m_folded);
            key.part = std::u16string_view(m_folded).substr(from);
        }
        key.head = HeadOf(key.part);
    }
}

int Keys::operator()(std::uint32_t first, std::uint32_t second) const
{
    if (!m_collation.empty())
        return m_collation[first].compare(m_collation[second]);
    const Key& a = m_keys[first];
    const Key& b = m_keys[second];
    if (const int order = Ordered(a.number, b.number); order != 0)
        return order;
    if (a.head != b.head)
        return a.head < b.head ? -1 : 1;
    return a.part.compare(b.part);
}

} // namespace lineorder
