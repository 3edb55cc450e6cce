// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/PlainStyles.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace reference {

namespace {

using Text = std::u16string;

struct Facts
{
    const char* language;
    bool hash = false;        // # begins a comment
    bool slashes = false;     // // too
    bool blankDashes = false; // -- only with a blank behind it
    bool nested = false;
    bool backslash = false;
    bool escape = false; // E''
    bool quoting = false;
    bool dollar = false;
    const char16_t* names = u"";  // openers of quoted names but "
    const char16_t* marks = u"$"; // in words
    const char16_t* firsts = u""; // of them those that a word may begin with
    const char16_t* leads = u":"; // of variables
};

// clang-format off
const Facts kFacts[] = {
    {.language = "SQL",                .escape = true, .quoting = true, .dollar = true, .names = u"`", .marks = u"$#@", .firsts = u"#", .leads = u"@:"},
    {.language = "Transact-SQL",       .nested = true, .names = u"[", .marks = u"$#@", .firsts = u"#", .leads = u"@"},
    {.language = "Azure SQL",          .nested = true, .names = u"[", .marks = u"$#@", .firsts = u"#", .leads = u"@"},
    {.language = "Sybase ASE",         .nested = true, .names = u"[", .marks = u"$#@", .firsts = u"#", .leads = u"@"},
    {.language = "Sybase IQ",          .slashes = true, .nested = true, .names = u"[", .marks = u"$#@", .firsts = u"#", .leads = u"@"},
    {.language = "PL/SQL",             .quoting = true, .marks = u"$#", .leads = u":&"},
    {.language = "MySQL",              .hash = true, .blankDashes = true, .backslash = true, .names = u"`", .firsts = u"$", .leads = u"@"},
    {.language = "PostgreSQL",         .nested = true, .escape = true, .dollar = true},
    {.language = "SQLite",             .names = u"[`", .leads = u"@:$?"},
    {.language = "DB2",                .nested = true, .marks = u"$#@", .firsts = u"$#@"},
    {.language = "InterBase/Firebird", .quoting = true},
};
// clang-format on

const Facts& FactsOf(const std::string& language)
{
    for (const Facts& facts : kFacts) {
        if (language == facts.language)
            return facts;
    }
    throw std::invalid_argument(language);
}

class Reader
{
public:
    Reader(const Facts& facts, const Text& text, bool inBody = false)
        : m_facts(facts), m_text(text), m_inBody(inBody), m_stretches(text.size(), Stretch::Code)
    {}

    std::vector<Stretch> Read()
    {
        while (m_at < m_text.size())
            Step();
        return m_stretches;
    }

private:
    char16_t At(std::size_t at) const { return at < m_text.size() ? m_text[at] : u'\0'; }
    bool Has(const Text& what) const { return m_text.compare(m_at, what.size(), what) == 0; }
    static bool IsOneOf(char16_t unit, const char16_t* list)
    {
        return unit != 0 && Text(list).find(unit) != Text::npos;
    }
    static char16_t Lower(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? unit + 32 : unit; }
    static bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
    bool IsWord(char16_t unit) const
    {
        return (Lower(unit) >= u'a' && Lower(unit) <= u'z') || IsDigit(unit) || unit == u'_' ||
               unit >= 0x80 || IsOneOf(unit, m_facts.marks);
    }

    void Mark(std::size_t end, Stretch stretch)
    {
        end = std::min(end, m_text.size());
        std::fill(m_stretches.begin() + static_cast<long>(m_at),
                  m_stretches.begin() + static_cast<long>(end), stretch);
        m_at = end;
    }

    std::size_t LineEnd() const
    {
        return std::min(m_text.find_first_of(u"\r\n", m_at), m_text.size());
    }

    void Step()
    {
        const char16_t unit = At(m_at);
        const char16_t next = At(m_at + 1);
        const std::size_t from = m_at;
        const bool bodyMayCome = std::exchange(m_bodyMayCome, false);
        if (unit == u'$' && bodyMayCome && !m_inBody && !IsVariable() && m_facts.dollar &&
            EndOfTag(m_at) > 0) {
            Body();
            return;
        }
        if (unit == u'-' && next == u'-' && (!m_facts.blankDashes || At(m_at + 2) <= u' '))
            Mark(LineEnd(), Stretch::Comment);
        else if (unit == u'/' && next == u'/' && m_facts.slashes)
            Mark(LineEnd(), Stretch::Comment);
        else if (unit == u'#' && m_facts.hash)
            Mark(LineEnd(), IsDirective() ? Stretch::Code : Stretch::Comment);
        else if (unit == u'/' && next == u'*')
            Mark(EndOfBlockComment(), Stretch::Comment);
        else if (unit == u'\'' || unit == u'"')
            Mark(EndOfString(m_at + 1, unit, m_facts.backslash), Stretch::String);
        else if (unit == u'\\' && m_facts.backslash && next > u' ')
            m_at += 2; // what stands behind an escape of the client begins no string
        else if (IsOneOf(unit, m_facts.names))
            Mark(EndOfString(m_at + 1, unit == u'[' ? u']' : unit, false), Stretch::Code);
        else if (unit == u'$' && !IsVariable() && m_facts.dollar && EndOfTag(m_at) > 0)
            Mark(EndOfDollarString(), Stretch::String);
        else if (IsVariable())
            Variable();
        else if (IsWord(unit) && (!IsOneOf(unit, m_facts.marks) || IsOneOf(unit, m_facts.firsts)))
            Word();
        else if (unit == u'$' && next != u'$' &&
                 IsWord(next)) // $1 is no word, nor is what it names
            Variable();
        else
            ++m_at;
        if (unit <= u' ' || m_stretches[from] == Stretch::Comment)
            m_bodyMayCome = bodyMayCome;
    }

    // A routine's between two tags is code, up to its tag wherever that stands.
    void Body()
    {
        const Text tag = m_text.substr(m_at, EndOfTag(m_at) - m_at);
        Mark(m_at + tag.size(), Stretch::String);
        const std::size_t end = std::min(m_text.find(tag, m_at), m_text.size());
        const Text body = m_text.substr(m_at, end - m_at);
        std::ranges::copy(Reader(m_facts, body, true).Read(),
                          m_stretches.begin() + static_cast<long>(m_at));
        m_at = end;
        Mark(end + tag.size(), Stretch::String);
    }

    bool IsVariable() const
    {
        const char16_t unit = At(m_at);
        if (unit == u':' && At(m_at + 1) == u':')
            return false;
        const bool isDouble = At(m_at + 1) == unit;
        return IsOneOf(unit, m_facts.leads) && IsWord(At(m_at + (isDouble ? 2 : 1)));
    }

    void Variable()
    {
        m_at += At(m_at + 1) == At(m_at) ? 2 : 1;
        while (IsWord(At(m_at)))
            ++m_at;
    }

    // A word, and the string that it may be the prefix of.
    void Word()
    {
        std::size_t end = m_at;
        Text word;
        while (IsWord(At(end)))
            word += Lower(At(end++));
        if (At(end) == u'\'' && word == u"e" && m_facts.escape)
            Mark(EndOfString(end + 1, u'\'', true), Stretch::String);
        else if (At(end) == u'\'' && (word == u"q" || word == u"nq") && m_facts.quoting)
            Mark(EndOfQuoting(end + 1), Stretch::String);
        else
            m_at = end;
        m_bodyMayCome = m_at == end && (word == u"as" || word == u"do");
    }

    std::size_t EndOfBlockComment() const
    {
        int depth = 1;
        std::size_t at = m_at + 2;
        for (; at < m_text.size() && depth > 0; ++at) {
            const bool closes = At(at) == u'*' && At(at + 1) == u'/';
            const bool opens = m_facts.nested && At(at) == u'/' && At(at + 1) == u'*';
            depth += opens - closes;
            at += opens || closes;
        }
        return at;
    }

    std::size_t EndOfString(std::size_t at, char16_t closer, bool backslash) const
    {
        for (; at < m_text.size(); ++at) {
            if (backslash && At(at) == u'\\')
                ++at;
            else if (At(at) == closer && At(at + 1) == closer)
                ++at;
            else if (At(at) == closer)
                return at + 1;
        }
        return at;
    }

    std::size_t EndOfQuoting(std::size_t at) const
    {
        const char16_t opener = At(at);
        if (opener <= u' ')
            return EndOfString(at, u'\'', false);
        const std::size_t pair = Text(u"[{(<").find(opener);
        const char16_t closer = pair == Text::npos ? opener : u"]})>"[pair];
        const std::size_t end = m_text.find(Text(1, closer) + u"'", at + 1);
        return end == Text::npos ? m_text.size() : end + 2;
    }

    // Behind the tag that begins here; 0 if none does.
    std::size_t EndOfTag(std::size_t at) const
    {
        std::size_t end = at + 1;
        while (IsWord(At(end)) && At(end) != u'$')
            ++end;
        return At(end) == u'$' && !IsDigit(At(at + 1)) ? end + 1 : 0;
    }

    std::size_t EndOfDollarString() const
    {
        const Text tag = m_text.substr(m_at, EndOfTag(m_at) - m_at);
        const std::size_t end = m_text.find(tag, m_at + tag.size());
        return end == Text::npos ? m_text.size() : end + tag.size();
    }

    bool IsDirective() const
    {
        const std::size_t end = m_at == 0 ? Text::npos : m_text.find_last_not_of(u" \t", m_at - 1);
        const bool isFirst = end == Text::npos || At(end) == u'\r' || At(end) == u'\n';
        Text word;
        for (std::size_t at = m_at; at < m_at + 8; ++at)
            word += Lower(At(at));
        return isFirst && ((word == u"#include" && !IsWord(At(m_at + 8))) ||
                           (Has(u"#define") && At(m_at + 7) != 0 && At(m_at + 7) <= u' '));
    }

    const Facts& m_facts;
    const Text& m_text;
    bool m_inBody;
    bool m_bodyMayCome = false; // behind AS and DO
    std::vector<Stretch> m_stretches;
    std::size_t m_at = 0;
};

} // namespace

std::vector<Stretch> StretchesOf(const std::string& language, const std::u16string& text)
{
    return Reader(FactsOf(language), text).Read();
}

} // namespace reference
