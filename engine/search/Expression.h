// SPDX-License-Identifier: GPL-3.0-or-later
// Expression: a compiled pattern of PCRE2, run over UTF-8 that may be ill-formed.
// What it may cost is bounded: a quick run gives up early, a careful one when the time of its
// search is spent.
#pragma once

#include "engine/search/Budget.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

// PCRE2's own types, which only the source file needs.
struct pcre2_real_code_8;
struct pcre2_real_match_data_8;

namespace engine::search {

class Expression
{
public:
    enum class Reading
    {
        Pattern,
        Plain, // no character means anything but itself
    };

    enum class Outcome
    {
        Found,
        NotFound,
        Partial, // only in an unfinished subject: what follows decides what starts here
        Stopped, // it goes on for too long
    };

    struct Run
    {
        std::size_t from = 0;              // where a match may start
        std::size_t lastStart = kAnywhere; // and where at the latest
        bool isUnfinished = false;         // more text follows the subject
        bool endsInLine = false;           // the subject's end is no line's
        bool notEmptyAtStart = false;      // a match at from has characters
        Budget* budget = nullptr;          // of a careful run; null: a quick one
    };

    static constexpr std::size_t kAnywhere = ~std::size_t{0};

    struct Problem
    {
        std::string reason;
        std::size_t place = 0; // in the pattern
    };

    // Null if it is no pattern; the problem, if it is not null, then tells why.
    static std::unique_ptr<Expression> Compile(const std::string& pattern, Reading reading,
                                               bool matchCase, Problem* problem = nullptr);
    ~Expression();
    Expression(const Expression&) = delete;
    Expression& operator=(const Expression&) = delete;

    // The first match; what starts before from can be looked at, but is not matched.
    Outcome Find(std::string_view subject, const Run& run);

    // Of the last match that was found, or of a partial one. Where a group that took no part
    // starts and ends is kAnywhere.
    std::size_t Start(int group = 0) const;
    std::size_t End(int group = 0) const;

    std::size_t Lookbehind() const { return m_lookbehind; } // characters

    // False if every match has a byte that the text lacks.
    bool CanMatchIn(std::string_view text) const;

private:
    Expression(pcre2_real_code_8* code, std::string pattern, unsigned options);
    pcre2_real_code_8* CodeFor(const Run& run);

    struct FreeCode
    {
        void operator()(pcre2_real_code_8* code) const;
    };
    struct FreeMatch
    {
        void operator()(pcre2_real_match_data_8* match) const;
    };
    using Code = std::unique_ptr<pcre2_real_code_8, FreeCode>;

    std::string m_pattern;
    unsigned m_options;
    Code m_code;
    Code m_bounded; // made when a run has a last start: looking for it costs the others
    Code m_careful; // made with the first careful run: it reports every step
    std::unique_ptr<pcre2_real_match_data_8, FreeMatch> m_match;
    std::size_t m_lookbehind = 0;
    int m_groups = 0;
    std::string m_required;    // forms of one byte that every match has; empty: none is known
    bool m_isCompiled = false; // to machine code
};

} // namespace engine::search
