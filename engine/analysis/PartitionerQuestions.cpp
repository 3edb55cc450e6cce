// SPDX-License-Identifier: GPL-3.0-or-later
// What a Partitioner answers.
#include "engine/analysis/ByteSearch.h"
#include "engine/analysis/Partitioner.h"

#include <algorithm>

namespace engine::analysis {
namespace {

// A name in quotes without them, its closers single.
std::string Unquoted(const std::string& name)
{
    const char closer = name.back();
    std::string plain;
    for (std::size_t i = 1; i + 1 < name.size(); ++i) {
        plain += name[i];
        if (name[i] == closer)
            ++i;
    }
    return plain;
}

// The argument of a client's line: to the next blank, or in quotes.
Span ArgumentAt(const TextSpans& text, long position)
{
    const unsigned char quote = text.At(position);
    const bool quoted = quote == '"' || quote == '\'';
    long end = position + 1;
    const auto stops = [&](unsigned char byte) {
        return byte == '\r' || byte == '\n' || (quoted ? byte == quote : byte <= ' ');
    };
    while (end < text.Size() && !stops(text.At(end)))
        ++end;
    return {position, quoted && text.At(end) == quote ? end + 1 : end};
}

bool IsQuoted(const std::string& name)
{
    return name.size() > 1 &&
           (name.front() == '['
                ? name.back() == ']'
                : (name.front() == name.back() &&
                   (name.front() == '"' || name.front() == '`' || name.front() == '\'')));
}

} // namespace

// Where the batch of the position starts. onLine takes the separator whose line it stands on.
long Partitioner::BatchStart(const TextSpans& text, long position, Found* onLine) const
{
    for (Found separator = Last(Mark::Separators, position); separator;
         separator = Before(Mark::Separators, *separator)) {
        const SeparatorLine line =
            SeparatorAt(*m_rules.dialect, text, PositionOf(*separator), m_rules.separator);
        if (line.nextLine <= position)
            return line.nextLine;
        *onLine = separator;
    }
    return 0;
}

Span Partitioner::BatchAt(const TextSpans& text, long position)
{
    position = std::clamp(position, 0L, Size());
    EnsureAt(text, position);
    Found end;
    const long start = BatchStart(text, position, &end);
    if (!end)
        end = After(text, Mark::Separators, FirstBehind(position));
    return {start, end ? PositionOf(*end) : Size()};
}

// The first statement that starts behind the position, if no separator comes before it.
Partitioner::Found Partitioner::NextInBatch(const TextSpans& text, long position)
{
    const Found start = After(text, Mark::Starts, FirstBehind(position));
    const Found separator = start ? Before(Mark::Separators, *start) : std::nullopt;
    return separator && PositionOf(*separator) > position ? std::nullopt : start;
}

std::optional<Span> Partitioner::StatementAt(const TextSpans& text, long position)
{
    position = std::clamp(position, 0L, Size());
    EnsureAt(text, position);
    Found onLine;
    const long batch = BatchStart(text, position, &onLine);
    Found start = Last(Mark::Starts, position);
    if (start && PositionOf(*start) < batch)
        start = std::nullopt;
    const auto spanOf = [&](Place place) {
        return Span{PositionOf(place), EndOfStatement(text, place)};
    };
    if (start) {
        const Span span = spanOf(*start);
        if (position <= span.end || FindEither(text, span.end, position, '\r', '\n') == position)
            return span;
    }
    const Found next = onLine ? std::nullopt : NextInBatch(text, position);
    if (next)
        return spanOf(*next);
    return start ? std::optional(spanOf(*start)) : std::nullopt;
}

// The name at the place, if it ends at the position or before it.
std::optional<std::string> Partitioner::NameAt(const TextSpans& text, Place place,
                                               long position) const
{
    const long start = PositionOf(place);
    Span span = ArgumentAt(text, start);
    if (EventAt(place).GetKind() == Event::Use) {
        const long variables =
            m_rules.dialect->variables ? EndOfVariables(*m_rules.dialect, text, start) : -1;
        span.end = std::max(variables, SqlScanner(*m_rules.dialect, text, start).Next().end);
    }
    if (span.end > position)
        return std::nullopt;
    std::string name = text.Copy(span.start, span.end);
    if (IsQuoted(name))
        name = Unquoted(name);
    return m_rules.dialect->variables ? Substituted(text, name, place) : name;
}

// With $(name) replaced by what was set before the place. What has no value stays.
std::string Partitioner::Substituted(const TextSpans& text, const std::string& name,
                                     Place place) const
{
    std::string result;
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t close = name.compare(at, 2, "$(") == 0 ? name.find(')', at) : name.npos;
        const auto value = close != name.npos
                               ? ValueOf(text, name.substr(at + 2, close - at - 2), place)
                               : std::nullopt;
        if (value) {
            result += *value;
            at = close + 1;
        } else {
            result += name[at++];
        }
    }
    return result;
}

// Variables of the client differ by their letters, not by case. One that is set to nothing has no
// value.
std::optional<std::string> Partitioner::ValueOf(const TextSpans& text, const std::string& variable,
                                                Place before) const
{
    const auto same = [](char a, char b) {
        const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c | 0x20 : c; };
        return lower(a) == lower(b);
    };
    for (Found set = Before(Mark::Variables, before); set; set = Before(Mark::Variables, *set)) {
        const Span name = ArgumentAt(text, PositionOf(*set));
        const std::string written = text.Copy(name.start, name.end);
        if (!std::equal(written.begin(), written.end(), variable.begin(), variable.end(), same))
            continue;
        const Span value = ArgumentAt(text, SkipBlanks(text, name.end));
        const unsigned char first = text.At(value.start);
        if (first <= ' ')
            return std::nullopt;
        const std::string argument = text.Copy(value.start, value.end);
        return IsQuoted(argument) ? Unquoted(argument) : argument;
    }
    return std::nullopt;
}

std::optional<std::string> Partitioner::CatalogAt(const TextSpans& text, long position)
{
    position = std::clamp(position, 0L, Size());
    EnsureAt(text, position);
    for (Found use = Last(Mark::Catalogs, position); use; use = Before(Mark::Catalogs, *use)) {
        if (auto name = NameAt(text, *use, position))
            return name;
    }
    return std::nullopt;
}

void Partitioner::ForEachStatement(const TextSpans& text, Span range,
                                   const std::function<void(const Span&)>& take)
{
    range = {std::clamp(range.start, 0L, Size()), std::clamp(range.end, 0L, Size())};
    EnsureAt(text, range.start);
    Found start = Last(Mark::Starts, range.start);
    if (!start)
        start = After(text, Mark::Starts, {0, 0});
    while (start) {
        const Span span{PositionOf(*start), EndOfStatement(text, *start)};
        if (span.start >= range.end)
            return;
        if (span.end > range.start)
            take(span);
        start = After(text, Mark::Starts, {start->stretch, start->event + 1});
    }
}

} // namespace engine::analysis
