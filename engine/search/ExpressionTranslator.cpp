// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/ExpressionTranslator.h"

#include "engine/search/CharacterClass.h"
#include "engine/search/PatternText.h"

#include <algorithm>

namespace engine::search {
namespace {

constexpr const char* kNoCharacter = "this is no character";

} // namespace

// What an alternative begins and ends with is known once there is one.
std::optional<Translation> ExpressionTranslator::Translate(std::string_view pattern)
{
    m_hasBranches = false;
    if (!TakeAll(pattern) || (m_hasBranches && !TakeAll(pattern)))
        return std::nullopt;
    return std::move(m_result);
}

bool ExpressionTranslator::Fail(const char* reason, std::size_t at)
{
    m_reason = reason;
    m_failedAt = at;
    return false;
}

bool ExpressionTranslator::TakeAll(std::string_view pattern)
{
    m_pattern = pattern;
    m_at = 0;
    m_last = Last::BranchStart;
    m_open.clear();
    m_numbered = m_capturing = 0;
    m_isBranch = false;
    m_run.clear();
    m_result = {};
    while (!AtEnd()) {
        m_token = m_at;
        if (!TakeOne())
            return false;
    }
    EndRun();
    if (m_isBranch)
        m_result.required.clear();
    m_token = m_at;
    return m_open.empty() || Fail("the group has no end", m_open.back().at);
}

bool ExpressionTranslator::TakeOne()
{
    const char character = m_pattern[m_at];
    switch (character) {
    case '.':
        ++m_at;
        PutItem(".");
        return true;
    case '^':
    case '$':
        return TakeAnchor(character);
    case '[':
        return TakeClass();
    case '*':
    case '+':
    case '?':
        return TakeRepeat(character);
    case '\\':
        return TakeEscape();
    case '|':
        ++m_at;
        m_result.pattern += '|';
        m_hasBranches = true;
        EndRun();
        m_isBranch |= m_open.empty();
        m_last = Last::BranchStart;
        return true;
    case '(':
        return m_syntax.posix ? OpenGroup() : TakeCharacter();
    case ')':
        return m_syntax.posix ? CloseGroup() : TakeCharacter();
    default:
        return TakeCharacter();
    }
}

bool ExpressionTranslator::BranchStartsHere() const
{
    return m_last == Last::BranchStart && (m_hasBranches || m_at == 0);
}

bool ExpressionTranslator::BranchEndsHere(std::size_t at) const
{
    const std::string_view rest = m_pattern.substr(at);
    return rest.empty() || (m_hasBranches && (rest.starts_with('|') ||
                                              rest.starts_with(m_syntax.posix ? ")" : "\\)")));
}

// A pattern without alternatives has its anchors at its own ends, one with them at the ends of
// every branch; a ^ or $ elsewhere is a character. The compiler's own anchors also hold between CR
// and LF, which is no edge of a line.
bool ExpressionTranslator::TakeAnchor(char anchor)
{
    if (anchor == '^' && BranchStartsHere()) {
        m_result.pattern += R"(^(?!\n(?<=\r\n)))";
        m_result.emptyAtLineEnds = true;
    } else if (anchor == '$' && BranchEndsHere(m_at + 1)) {
        m_result.pattern += R"($(?!\n(?<=\r\n)))";
        m_result.emptyAtLineEnds |= m_last == Last::BranchStart;
    } else {
        return TakeCharacter();
    }
    ++m_at;
    m_last = Last::Edge;
    return true;
}

// Behind * and + another one changes nothing; behind ? it is none.
bool ExpressionTranslator::TakeRepeat(char repeat)
{
    ++m_at;
    if (m_last == Last::Repeated)
        return true;
    if (m_last != Last::Item)
        return Fail("nothing stands here to be repeated", m_at - 1);
    if (repeat != '+' && !m_run.empty())
        m_run.resize(m_lastOfRun);
    EndRun();
    m_result.pattern += repeat;
    m_last = repeat == '?' ? Last::Edge : Last::Repeated;
    return true;
}

bool ExpressionTranslator::TakeEscape()
{
    ++m_at;
    if (AtEnd())
        return Fail("nothing follows the backslash", m_at - 1);
    const char letter = m_pattern[m_at];
    if (letter >= '1' && letter <= '9')
        return TakeReference(letter - '0');
    if (!m_syntax.posix && letter == '(')
        return ++m_at, OpenGroup();
    if (!m_syntax.posix && letter == ')')
        return ++m_at, CloseGroup();
    if (letter == '<' || letter == '>')
        return TakeWordEdge(letter);
    if (const char* set = NamedClass(letter)) {
        ++m_at;
        PutItem(set);
        return true;
    }
    switch (letter) {
    case 'c':
        MarkEnd();
        return true;
    case 'w':
    case 'W':
        ++m_at;
        PutItem(letter == 'w' ? Word() : OtherThan(Word()));
        m_result.usesWords = true;
        return true;
    case 'x':
        TakeHexadecimal();
        return true;
    default:
        break;
    }
    char32_t character = 0;
    if (!NextCharacter(m_pattern, m_at, character))
        return Fail(kNoCharacter, m_at);
    PutExact(EscapedCharacter(character));
    return true;
}

// Without two digits behind it: any hexadecimal digit.
void ExpressionTranslator::TakeHexadecimal()
{
    ++m_at;
    const int code = HexadecimalAt(m_pattern, m_at);
    if (code < 0) {
        PutItem("[0-9A-Fa-f]");
        return;
    }
    m_at += 2;
    PutExact(static_cast<char32_t>(code));
}

bool ExpressionTranslator::TakeWordEdge(char edge)
{
    ++m_at;
    if (edge == '>' && m_last == Last::WordStart)
        return Fail("a word has a character at least", m_at - 2);
    const std::string word = Word();
    m_result.pattern += edge == '<' ? Join({"(?=", word, ")(?<!", word, ")"})
                                    : Join({"(?!", word, ")(?<=", word, ")"});
    m_result.usesWords = true;
    m_last = edge == '<' ? Last::WordStart : Last::Edge;
    return true;
}

void ExpressionTranslator::MarkEnd()
{
    ++m_at;
    m_result.pattern += "()";
    m_result.ends.push_back(++m_capturing);
    m_last = Last::Edge;
}

// What a group took is compared as it stands, in any case of the pattern's letters.
bool ExpressionTranslator::TakeReference(int number)
{
    ++m_at;
    const bool isOpen = std::any_of(m_open.begin(), m_open.end(), [number](const Group& group) {
        return group.number == number;
    });
    if (isOpen || number > m_numbered)
        return Fail("there is no such group before it", m_at - 2);
    const int group = m_result.groups[static_cast<std::size_t>(number)];
    PutItem(InItsCase(Join({"\\g{", std::to_string(group), "}"})));
    return true;
}

bool ExpressionTranslator::OpenGroup()
{
    if (m_syntax.posix)
        ++m_at;
    ++m_numbered;
    ++m_capturing;
    if (m_numbered < static_cast<int>(m_result.groups.size()))
        m_result.groups[static_cast<std::size_t>(m_numbered)] = m_capturing;
    EndRun();
    m_result.pattern += '(';
    m_open.push_back({m_numbered, m_result.pattern.size(), m_at - (m_syntax.posix ? 1 : 2)});
    m_last = Last::BranchStart;
    return true;
}

bool ExpressionTranslator::CloseGroup()
{
    if (m_syntax.posix)
        ++m_at;
    const std::size_t at = m_at - (m_syntax.posix ? 1 : 2);
    if (m_open.empty())
        return Fail("no group ends here", at);
    if (m_open.back().start == m_result.pattern.size())
        return Fail("the group is empty", at);
    m_open.pop_back();
    PutItem(")");
    return true;
}

bool ExpressionTranslator::TakeCharacter()
{
    const std::size_t start = m_at;
    char32_t character = 0;
    if (!NextCharacter(m_pattern, m_at, character))
        return Fail(kNoCharacter, m_at);
    const std::string_view text = m_pattern.substr(start, m_at - start);
    if (character >= 0x80 || IsAsciiLetter(character) || (character >= U'0' && character <= U'9')) {
        PutCharacter(text, text);
    } else {
        std::string code;
        AppendCode(code, character);
        PutCharacter(code, text);
    }
    return true;
}

bool ExpressionTranslator::TakeClass()
{
    CharacterClass set;
    const std::size_t start = m_at;
    if (!set.Read(m_pattern, m_at))
        return Fail("the set of characters has no end, or a range that runs backwards", start);
    PutItem(set.Translated(Word(), m_syntax.matchCase));
    m_result.usesWords |= set.UsesWords();
    m_result.staysInLine &= !set.HasLineEnd();
    return true;
}

void ExpressionTranslator::PutItem(std::string_view item)
{
    EndRun();
    m_result.pattern += item;
    m_last = Last::Item;
}

void ExpressionTranslator::PutCharacter(std::string_view item, std::string_view character)
{
    m_result.staysInLine &= character != "\n" && character != "\r";
    if (m_open.empty()) {
        m_lastOfRun = m_run.size();
        m_run += character;
    }
    m_result.pattern += item;
    m_last = Last::Item;
}

// The longest run is required, unless an alternative does without it.
void ExpressionTranslator::EndRun()
{
    if (m_run.size() > m_result.required.size())
        m_result.required = m_run;
    m_run.clear();
}

// The item without regard to the flag that ignores case.
std::string ExpressionTranslator::InItsCase(const std::string& item) const
{
    return m_syntax.matchCase ? item : Join({"(?-i:", item, ")"});
}

void ExpressionTranslator::PutExact(char32_t character)
{
    std::string code;
    AppendCode(code, character);
    PutCharacter(InItsCase(code), InUtf8(character));
}

} // namespace engine::search
