// SPDX-License-Identifier: GPL-3.0-or-later
// ExpressionTranslator: the engine's pattern syntax in that of PCRE2.
// Knows no text, no engine and no compiled expression. What it gives may still fail to compile.
//
// Of its own are groups by \( and \), the end of a match at \c, \< and \>, and that only what names
// a line end leaves the line: a negated class and \D, \S and \W stay in it, as the dot does.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine::search {

struct Syntax
{
    bool posix = false; // groups by ( and ), while \( and \) are brackets
    bool matchCase = false;
    // Matches one character of a word: an item of a PCRE2 pattern.
    std::string word = "[A-Za-z0-9_\\p{L}\\p{M}\\p{N}]";
};

struct Translation
{
    std::string pattern;          // UTF-8
    std::array<int, 10> groups{}; // where \1 to \9 stand among the groups of pattern; 0: nowhere
    std::vector<int> ends;        // the groups of pattern that mark where the match ends
    bool usesWords = false;       // depends on Syntax::word
    bool emptyAtLineEnds = false; // a match of nothing counts at a line's end, too
    std::string required;         // UTF-8 that every match has, in one case or another
    bool staysInLine = true;      // no match has a line end
};

class ExpressionTranslator
{
public:
    explicit ExpressionTranslator(Syntax syntax) : m_syntax(std::move(syntax)) {}

    // The pattern is UTF-8. Nothing if it is none of the syntax.
    std::optional<Translation> Translate(std::string_view pattern);
    // Where it is none: the byte that cannot be read, or the end, where something is missing.
    std::size_t Stopped() const { return m_token; }

    // Behind a pattern that was none: why, and at which of its bytes.
    const char* Reason() const { return m_reason; }
    std::size_t Place() const { return m_failedAt; }

private:
    // What stands before, which decides what may follow.
    enum class Last
    {
        BranchStart, // of the pattern, a group or an alternative
        Edge,        // matches a place
        WordStart,
        Item,
        Repeated,
    };

    struct Group
    {
        int number = 0;        // \1 is 1
        std::size_t start = 0; // in the translation
        std::size_t at = 0;    // in the pattern
    };

    bool Fail(const char* reason, std::size_t at); // false
    bool TakeAll(std::string_view pattern);
    bool TakeOne();
    bool TakeAnchor(char anchor);
    bool TakeRepeat(char repeat);
    bool TakeEscape();
    bool TakeReference(int number);
    bool OpenGroup();
    bool CloseGroup();
    bool TakeCharacter();
    bool TakeClass();
    void MarkEnd();
    void TakeHexadecimal();
    bool TakeWordEdge(char edge);

    bool AtEnd() const { return m_at >= m_pattern.size(); }
    bool Follows(std::string_view text) const
    {
        return m_pattern.substr(m_at, text.size()) == text;
    }
    bool BranchStartsHere() const;
    bool BranchEndsHere(std::size_t at) const;
    void PutItem(std::string_view item); // one that is no character
    void PutCharacter(std::string_view item, std::string_view character);
    std::string Word() const { return InItsCase(m_syntax.word); }
    std::string InItsCase(const std::string& item) const;
    void PutExact(char32_t character); // in its own case, whatever the flags say
    void EndRun();

    Syntax m_syntax;
    std::string_view m_pattern;
    std::size_t m_at = 0;
    std::size_t m_token = 0; // the start of what is taken
    const char* m_reason = "";
    std::size_t m_failedAt = 0;
    Last m_last = Last::BranchStart;
    std::vector<Group> m_open;
    bool m_hasBranches = false;
    bool m_isBranch = false;     // outside of groups there are alternatives
    std::string m_run;           // characters outside of groups that stand side by side, up to here
    std::size_t m_lastOfRun = 0; // where in it the last one begins
    int m_numbered = 0;          // groups of the pattern
    int m_capturing = 0;         // of the translation
    Translation m_result;
};

} // namespace engine::search
