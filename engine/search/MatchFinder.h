// SPDX-License-Identifier: GPL-3.0-or-later
// MatchFinder: finds the matches of one expression in a text, in both directions.
//
// A search goes through the text in short windows, each as the start of an unfinished subject: what
// one run of the expression can cost is bounded by its window, and whatever it cannot decide there
// is done start by start, in ever larger windows, on the time of the whole search.
#pragma once

#include "engine/search/Budget.h"
#include "engine/search/Expression.h"
#include "engine/search/SearchedText.h"
#include "engine/search/WordRule.h"

#include <memory>
#include <vector>

namespace engine::search {

class MatchFinder
{
public:
    using Outcome = Expression::Outcome;

    // What about a match the expression alone does not say.
    struct Rules
    {
        std::vector<int> ends;        // groups whose place is where the match ends
        bool emptyAtLineEnds = false; // a match of nothing counts at a line's end, too
    };

    struct Finding
    {
        Outcome outcome = Outcome::NotFound;
        Range whole;   // the match; of a partial one only the start
        Range visible; // the same, or up to where the pattern says it ends
    };

    // The limit is that of each search.
    MatchFinder(const SearchedText& text, std::unique_ptr<Expression> expression, Rules rules,
                Budget::Limit limit)
        : m_text(text), m_expression(std::move(expression)), m_rules(std::move(rules)),
          m_limit(limit)
    {}

    // Of the matches that start between two places and end before the second one.
    Finding First(long from, long to, const WordRule& words);
    Finding Last(long from, long to, const WordRule& words);

    // What a group of the last match took; empty if it took no part.
    Range Group(int group) const;

private:
    // What of the text the expression sees.
    struct Window
    {
        long from = 0; // where matches may start
        long to = 0;   // of the subject
        long lastStart = -1;
        bool isUnfinished = false;
        bool isCareful = false;
    };

    void Begin(const WordRule& words);
    Finding Seek(long from, long lastStart, long to);
    bool CanMatchFrom(long from, long to) const;
    Finding SeekCarefully(long at, long to, long& reach);
    Finding LastFrom(Finding first, long to, long bound);
    Finding FindIn(const Window& window);
    Finding Describe() const;
    long QuickEnd(long from, long to) const;
    long CharacterStart(long at) const;
    long NextPlace(long at) const;
    bool IsLineEnd(long at) const;

    const SearchedText& m_text;
    std::unique_ptr<Expression> m_expression;
    Rules m_rules;
    Budget::Limit m_limit;

    // Of the search under way.
    WordRule m_words;
    Budget m_budget;
    long m_length = 0; // of the text

    long m_base = 0; // of the last subject
};

} // namespace engine::search
