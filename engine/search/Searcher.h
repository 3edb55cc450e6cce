// SPDX-License-Identifier: GPL-3.0-or-later
// Searcher: finds texts and expressions in a text, in place and in both directions.
//
// A search backwards finds the match that starts last. What is sought is prepared once for as long
// as it stays the same. An expression that goes on for too long finds nothing: a match attempt
// after ten million steps back, a whole search after two seconds.
#pragma once

#include "engine/search/AnchoredText.h"
#include "engine/search/ExpressionTranslator.h"
#include "engine/search/LiteralScan.h"
#include "engine/search/MatchFinder.h"
#include "engine/search/SearchedText.h"
#include "engine/search/WordRule.h"

#include <array>
#include <optional>

namespace engine::search {

namespace flag {
enum Bit : int
{
    WholeWord = 2,
    MatchCase = 4,
    WordStart = 0x100000,
    Expression = 0x200000, // takes no notice of the two for words
    Posix = 0x400000,
    Native = 0x800000, // the expression is PCRE2's own
};
} // namespace flag

class Searcher
{
public:
    // The limit is that of one search for an expression.
    explicit Searcher(const SearchedText& text, Budget::Limit limit = {})
        : m_text(text), m_limit(limit)
    {}

    // The first match between two places; the last one if they run backwards. Nothing sought is
    // found at once. Both and the text sought are UTF-8.
    std::optional<Range> Find(std::string_view sought, int flags, long from, long to);

    // A replacement with its escapes made real: \0 the match of the last expression, \1 to \9 what
    // its groups took, \a \b \f \n \r \t \v and \\ the characters.
    std::string Substituted(std::string_view replacement);

    // Before the text changes: what the groups took goes along with it. Moved gives a place's
    // place behind the change.
    template <typename Move>
    void TextChanges(Move moved)
    {
        const bool onlyMatch = m_groupsAre == Groups::None;
        if (!onlyMatch)
            KeepGroups();
        for (Range& group : m_groups) {
            group = {moved(group.start), moved(group.end)};
            if (onlyMatch)
                return;
        }
    }

    // What keeps a text from being an expression under the flags; nothing if it is one.
    std::optional<Expression::Problem> ProblemOf(std::string_view sought, int flags);

    // How many searches went on for too long.
    long Stopped() const { return m_stopped; }

private:
    using Finding = MatchFinder::Finding;

    // Where the groups of the last expression are; its match is kept at once.
    enum class Groups
    {
        None,
        InFinder,
        Kept,
    };

    bool Prepare(std::string_view sought, int flags);
    bool PrepareExpression(std::string_view sought, int flags);
    std::optional<Translation> Translated(std::string_view sought, int flags,
                                          Expression::Problem* problem = nullptr);
    bool PrepareText(const std::string& text, bool matchCase);
    bool WordsAreTheSame();
    std::string WordItem() const;

    // An empty range: none.
    Range FindText(long from, long to);
    Range FirstText(long from, long to);
    Range LastText(long from, long to);
    Range FirstTextIn(std::string_view bytes, long base, long to);
    Range LastTextIn(std::string_view bytes, long base, long to);
    std::string AroundGap(long from, long gap, long to) const;
    bool Suits(Range match, long to, std::string_view bytes, long base);
    WordRule Words() const
    {
        return {(m_flags & flag::WholeWord) != 0, (m_flags & flag::WordStart) != 0};
    }

    std::optional<Range> FindMatch(long from, long to);
    void KeepGroups();
    long Aligned(long at) const;

    const SearchedText& m_text;
    Budget::Limit m_limit;
    long m_length = 0; // of the text that is searched

    // What is prepared: a scan for a text, a finder for an expression, or both for a text at edges.
    std::string m_sought;
    int m_flags = -1;
    std::string m_words; // the word characters that the expression was made with
    unsigned m_wordsVersion = 0;
    std::optional<LiteralScan> m_scan;
    std::optional<MatchFinder> m_finder;
    std::optional<AnchoredText> m_anchored;
    AsciiWords m_asciiWords;
    bool m_usesWords = false;
    bool m_isDoubtful = false; // the text that was found may lack an edge

    // Of the last expression; one that took no part is empty.
    Groups m_groupsAre = Groups::Kept;
    std::array<Range, 10> m_groups{};
    std::array<int, 10> m_groupNumbers{}; // in the finder, 0: nowhere
    long m_stopped = 0;
};

} // namespace engine::search
