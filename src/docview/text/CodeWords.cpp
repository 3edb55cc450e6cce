// SPDX-License-Identifier: GPL-3.0-or-later
#include "docview/text/CodeWords.h"

#include <algorithm>
#include <unordered_set>

namespace codewords {

namespace {

constexpr QLatin1String kPromptStart("^#");
constexpr QLatin1String kPromptEnd("#^");

constexpr bool IsWordByte(unsigned byte)
{
    return byte >= 128 || byte == '_' || (byte >= '0' && byte <= '9') ||
           (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

// Of the bytes below 80, these control characters part no words.
constexpr bool IsInsideWord(unsigned byte)
{
    return byte == 127 || (byte < 32 && byte != 0 && byte != '\t' && byte != '\n' && byte != '\r');
}

} // namespace

bool IsWordUnit(char16_t unit)
{
    const unsigned byte = unit & 0xFF;
    return IsWordByte(byte) || IsInsideWord(byte);
}

long WordStart(std::u16string_view text, long place)
{
    while (place > 0 && IsWordUnit(text[static_cast<std::size_t>(place) - 1]))
        --place;
    return place;
}

std::vector<QString> SortedOnce(QStringList words)
{
    static constexpr qsizetype kSkipped = 2; // all begin with what was typed
    std::stable_sort(words.begin(), words.end(), [](const QString& a, const QString& b) {
        return QStringView(a)
                   .mid(std::min(kSkipped, a.size()))
                   .compare(QStringView(b).mid(std::min(kSkipped, b.size())), Qt::CaseInsensitive) <
               0;
    });
    std::vector<QString> once;
    std::unordered_set<QString> seen;
    for (const QString& word : words) {
        if (seen.insert(word).second)
            once.push_back(word);
    }
    return once;
}

QString IndentLike(std::u16string_view text)
{
    QString indent(static_cast<qsizetype>(text.size()), u' ');
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'\t')
            indent[static_cast<qsizetype>(i)] = u'\t';
    }
    return indent;
}

// The end is looked for from the line's start too: one that stands in front of the start makes an
// empty prompt, and the markers stay.
PromptSearch FindPrompt(const QString& line, Prompt& prompt)
{
    const qsizetype start = line.indexOf(kPromptStart);
    if (start < 0)
        return PromptSearch::None;
    const qsizetype end = line.indexOf(kPromptEnd);
    if (end < 0)
        return PromptSearch::NotClosed;
    const qsizetype inside = start + kPromptStart.size();
    prompt.start = start;
    prompt.length = std::max<qsizetype>(0, end + kPromptEnd.size() - start);
    prompt.text = end > inside ? line.mid(inside, end - inside) : QString();
    return PromptSearch::Found;
}

} // namespace codewords
