// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/PlainPreprocessor.h"

#include <algorithm>
#include <cstdlib>
#include <regex>

namespace reference {

namespace {

using Text = std::u16string;
constexpr std::size_t kNone = Text::npos;
const Text kSigil = u"&&";

bool IsBlank(char16_t unit)
{
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

Text TrimLeft(const Text& text)
{
    return Text(std::find_if_not(text.begin(), text.end(), IsBlank), text.end());
}

Text Trim(const Text& text)
{
    Text trimmed = TrimLeft(text);
    while (!trimmed.empty() && IsBlank(trimmed.back()))
        trimmed.pop_back();
    return trimmed;
}

Text TrimRuns(Text text, char16_t unit)
{
    while (!text.empty() && text.front() == unit)
        text.erase(0, 1);
    while (!text.empty() && text.back() == unit)
        text.pop_back();
    return text;
}

std::string Narrow(const Text& text) // for lines of ASCII
{
    return std::string(text.begin(), text.end());
}

Text Widen(const std::string& text)
{
    return Text(text.begin(), text.end());
}

// std::regex recurses for each character. The end of a line is a value, whatever stands there, so
// that the expressions get the line's head alone.
constexpr std::size_t kHead = 2000;

std::string HeadOf(const Text& line)
{
    return Narrow(line.substr(0, kHead));
}

Text BehindHead(const Text& line)
{
    return line.size() > kHead ? line.substr(kHead) : Text();
}

char16_t Lower(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

Text Lowered(Text text)
{
    std::transform(text.begin(), text.end(), text.begin(), Lower);
    return text;
}

bool IsNameUnit(char16_t unit)
{
    const auto byte = static_cast<signed char>(unit & 0xFF);
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= 'a' && byte <= 'z') || byte == '_';
}

std::vector<Text> Tokens(const Text& value)
{
    std::vector<Text> tokens;
    Text token;
    for (const char16_t unit : value + u"&") {
        if (unit != u'&') {
            token += unit;
        } else if (!token.empty()) {
            tokens.push_back(token);
            token.clear();
        }
    }
    return tokens;
}

} // namespace

void PlainPreprocessor::Run(const Text& script)
{
    text = script;
    origins.clear();
    for (std::size_t at = 0; at < text.size(); ++at)
        origins.push_back({0, LineOf(at)});
    Table table;
    ExpandDefines(table, 0);
    ExpandIncludes(table);
}

void PlainPreprocessor::ExpandDefines(Table& table, std::size_t start)
{
    if (Find(u"#define", start, text.size()) == kNone && table.empty())
        return;
    Text previous;
    std::size_t hit = Find(kSigil, start, text.size());
    while (hit != kNone) {
        std::size_t commentLength = 0;
        const Text line = TrimLeft(LineAt(hit));
        const bool inComment = InComment(hit);
        const bool inString = !inComment && InString(hit);
        const bool isDefine = !inComment && !inString &&
                              std::regex_match(HeadOf(line), std::regex("(^#define\\s+).*$"));
        if (isDefine && !VisitDefinition(table, hit, previous, commentLength))
            return;
        if (!isDefine && !inComment)
            VisitUse(table, hit);
        hit = Find(kSigil, hit + commentLength + 2, text.size());
    }
}

bool PlainPreprocessor::VisitDefinition(Table& table, std::size_t hit, Text& previous,
                                        std::size_t& commentLength)
{
    const std::size_t start = LineStart(hit);
    const Text line = TrimLeft(LineAt(hit));
    found = true;
    const Text cut = line.substr(0, line.find(m_marker));
    const std::string head = HeadOf(cut);
    std::smatch parts;
    if (!std::regex_match(head, parts, std::regex("(^#define\\s+)(&&[a-zA-Z0-9_]+\\s+)(.+$)")))
        return false;
    const Text name = Trim(Widen(parts[2]));
    const Text value = Trim(Widen(parts[3]) + BehindHead(cut));
    const auto commentOut = [&] {
        Insert(start, m_marker, {-1, 0});
        commentLength = m_marker.size();
    };
    const std::size_t place = value.find(kSigil);
    if (Lowered(line) != Lowered(previous)) {
        if (place == kNone) {
            table.insert({name, value});
            commentOut();
        }
    } else if (place != kNone) {
        const std::vector<Text> tokens = Tokens(value);
        const std::size_t chosen = place == 0 ? 0 : 1;
        const Text reference = chosen < tokens.size() ? kSigil + tokens[chosen] : kSigil;
        if (const Text with = table[reference]; !with.empty()) {
            Replace(hit, reference, with);
            if (tokens.size() == 2 && place != 0) {
                table.insert({name, tokens[0] + with});
                commentOut();
            } else if (tokens.size() == 1) {
                table.insert({name, with});
                commentOut();
            }
        }
    }
    previous = TrimLeft(LineAt(start));
    return true;
}

void PlainPreprocessor::VisitUse(Table& table, std::size_t hit)
{
    Text candidate = kSigil;
    Text best;
    for (std::size_t at = hit + 2; at < LineEnd(hit) && IsNameUnit(text[at]); ++at) {
        candidate += text[at];
        if (!table[candidate].empty())
            best = candidate;
    }
    if (candidate == kSigil)
        return;
    if (!table[candidate].empty())
        Replace(hit, candidate, table[candidate]);
    else if (!best.empty())
        Replace(hit, best, table[best]);
}

// Within a selection of the length of what is replaced; the range grows by every difference.
void PlainPreprocessor::Replace(std::size_t at, const Text& what, const Text& with)
{
    std::size_t end = std::min(at + what.size(), text.size());
    for (std::size_t from = Find(what, at, end); from != kNone;) {
        const Origin origin = origins[from];
        text.replace(from, what.size(), with);
        const auto begin = origins.begin() + static_cast<std::ptrdiff_t>(from);
        origins.erase(begin, begin + static_cast<std::ptrdiff_t>(what.size()));
        origins.insert(origins.begin() + static_cast<std::ptrdiff_t>(from), with.size(), origin);
        end += static_cast<std::size_t>(
            std::labs(static_cast<long>(with.size()) - static_cast<long>(what.size())));
        from = Find(what, from + with.size(), std::min(end, text.size()));
    }
}

void PlainPreprocessor::ExpandIncludes(Table& table)
{
    const Text word = u"#include";
    std::size_t hit = FindWord(word, 0);
    while (hit != kNone) {
        const std::size_t start = LineStart(hit);
        const std::size_t end = LineEnd(hit);
        const Text line = Trim(LineAt(hit));
        if (!InComment(hit) && !InString(hit)) {
            found = true;
            if (m_done.contains(line)) {
                Insert(start, m_marker, {-1, 0});
            } else {
                if (ExpandInclude(line, start, end))
                    ExpandDefines(table, end);
                m_done.insert(line);
            }
        }
        hit = FindWord(word, end);
    }
}

bool PlainPreprocessor::ExpandInclude(const Text& line, std::size_t start, std::size_t end)
{
    Text name = line.substr(8);
    for (const Text& mark : {m_marker, Text(u"/*")}) {
        if (const std::size_t at = name.find(mark); at != kNone && at != 0)
            name.resize(at);
    }
    name = Trim(name);
    if (name.find(u'<') != kNone)
        name = Trim(TrimRuns(TrimRuns(name, u'<'), u'>'));
    if (name.find(u'"') != kNone)
        name = Trim(TrimRuns(name, u'"'));
    const auto file = m_files.find(name);
    if (file == m_files.end()) {
        failedNames.insert({LineOf(start), name});
        return false;
    }
    Insert(end, u"\r", {-1, 0});
    Insert(start, m_marker, {-1, 0});
    const auto number = static_cast<int>(fileOf.size());
    fileOf.push_back(name);
    std::size_t at = end + 1 + m_marker.size();
    int fileLine = 0;
    for (const char16_t unit : file->second) {
        Insert(at++, Text(1, unit), {number, fileLine});
        if (unit == u'\n')
            ++fileLine;
    }
    return true;
}

void PlainPreprocessor::Insert(std::size_t at, const Text& what, Origin origin)
{
    text.insert(at, what);
    origins.insert(origins.begin() + static_cast<std::ptrdiff_t>(at), what.size(), origin);
}

std::size_t PlainPreprocessor::Find(const Text& what, std::size_t from, std::size_t to) const
{
    if (from > text.size())
        return kNone;
    const std::size_t at = text.find(what, from);
    return at != kNone && at + what.size() <= to ? at : kNone;
}

int PlainPreprocessor::ClassOf(char16_t unit) const
{
    if (unit == u'\r' || unit == u'\n')
        return 0;
    if (unit <= u' ')
        return 1;
    return m_wordCharacters.find(unit) != kNone ? 2 : 3;
}

std::size_t PlainPreprocessor::FindWord(const Text& what, std::size_t from) const
{
    for (std::size_t at = from; at + what.size() <= text.size(); ++at) {
        if (Lowered(text.substr(at, what.size())) != what)
            continue;
        const std::size_t end = at + what.size();
        const bool begins = at == 0 || ClassOf(text[at - 1]) != ClassOf(text[at]);
        const bool ends = end == text.size() || ClassOf(text[end]) != ClassOf(text[end - 1]);
        if (begins && ends)
            return at;
    }
    return kNone;
}

std::size_t PlainPreprocessor::LineStart(std::size_t at) const
{
    while (at > 0 && text[at - 1] != u'\n' &&
           !(text[at - 1] == u'\r' && !(at < text.size() && text[at] == u'\n')))
        --at;
    return at;
}

std::size_t PlainPreprocessor::LineEnd(std::size_t at) const
{
    while (at < text.size() && text[at] != u'\r' && text[at] != u'\n')
        ++at;
    return at;
}

int PlainPreprocessor::LineOf(std::size_t at) const
{
    int line = 0;
    for (std::size_t i = 0; i < at; ++i) {
        const bool pairs = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (text[i] == u'\n' || (text[i] == u'\r' && !pairs))
            ++line;
    }
    return line;
}

Text PlainPreprocessor::LineAt(std::size_t at) const
{
    const std::size_t start = LineStart(at);
    return text.substr(start, LineEnd(start) - start);
}

int PlainPreprocessor::StyleAt(std::size_t at)
{
    if (m_styledText != text || m_styles.empty()) {
        m_styledText = text;
        m_styles = m_stylesOf(text);
    }
    return m_styles[at];
}

bool PlainPreprocessor::IsDialect() const
{
    return m_lexer >= 2 && m_lexer <= 18 && !(m_lexer >= 6 && m_lexer <= 9) &&
           !(m_lexer >= 11 && m_lexer <= 13);
}

bool PlainPreprocessor::InComment(std::size_t at)
{
    const int style = StyleAt(at);
    const bool isGeneric = m_lexer == 0 || m_lexer == 9;
    return (IsDialect() && (style == 1 || style == 2)) ||
           (isGeneric && (style == 1 || style == 2 || style == 3));
}

bool PlainPreprocessor::InString(std::size_t at)
{
    const int style = StyleAt(at);
    const bool isGeneric = m_lexer == 0 || m_lexer == 9;
    return (IsDialect() && (style == 4 || style == 8)) || (isGeneric && (style == 6 || style == 7));
}

} // namespace reference
