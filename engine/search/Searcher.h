// Searcher: finds texts and expressions in a text, in place and in both directions.
//
// A search backwards finds the match that starts last. What is sought is prepared once for as long
// as it stays the same. An expression whose match attempt goes on for too long finds nothing.
#pragma once

#include "engine/search/Expression.h"
#include "engine/search/ExpressionTranslator.h"
#include "engine/search/LiteralScan.h"
#include "engine/search/SearchedText.h"

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

struct Range
{
    long start = 0;
    long end = 0;
};

class Searcher
{
public:
    explicit Searcher(const SearchedText& text) : m_text(text) {}

    // The first match between two places; the last one if they run backwards. Nothing sought is
    // found at once. Both and the text sought are UTF-8.
    std::optional<Range> Find(std::string_view sought, int flags, long from, long to);

    // A replacement with its escapes made real: \0 the match of the last expression, \1 to \9 what
    // its groups took, \a \b \f \n \r \t \v and \\ the characters.
    std::string Substituted(std::string_view replacement) const;

    // How many searches went on for too long.
    long Stopped() const { return m_stopped; }

private:
    // What of the text an expression sees.
    struct Window
    {
        long base = 0; // of the subject
        long from = 0; // where matches may start
        long to = 0;   // of the subject
        long lastStart = -1;
        bool isUnfinished = false;
    };

    struct Finding
    {
        Expression::Outcome outcome = Expression::Outcome::NotFound;
        Range whole;   // the match; of a partial one only the start
        Range visible; // the same, or up to where the pattern says it ends
        std::array<Range, 10> groups{};
    };

    bool Prepare(std::string_view sought, int flags);
    bool PrepareExpression(std::string_view sought, int flags);
    bool WordsAreTheSame();
    std::string WordItem() const;

    std::optional<Range> FirstLiteral(long from, long to) const;
    std::optional<Range> LastLiteral(long from, long to) const;
    std::optional<Range> FirstLiteralIn(std::string_view bytes, long base) const;
    std::optional<Range> LastLiteralIn(std::string_view bytes, long base) const;
    std::string AroundGap(long from, long gap, long to) const;

    std::optional<Range> FirstMatch(long from, long to);
    std::optional<Range> LastMatch(long from, long to);
    Finding LastFrom(Finding first, Window window, long bound) const;
    Finding FindIn(const Window& window) const;
    Finding Describe(const Window& window) const;
    std::optional<Range> Keep(const Finding& finding);
    long BaseOf(long at) const;
    bool IsLineEnd(long at) const;
    long Aligned(long at) const;
    long CharacterStart(long at) const;
    long NextPlace(long at) const;
    bool SuitsWords(Range match) const;

    const SearchedText& m_text;
    long m_length = 0; // of the text that is searched

    // What is prepared.
    std::string m_sought;
    int m_flags = -1;
    std::string m_words; // the word characters that the expression was made with
    unsigned m_wordsVersion = 0;
    std::optional<LiteralScan> m_scan;
    std::unique_ptr<Expression> m_expression;
    Translation m_translation;

    std::array<Range, 10> m_groups{}; // of the last expression; one that took no part is empty
    long m_stopped = 0;
};

} // namespace engine::search
