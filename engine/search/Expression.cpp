// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/Expression.h"

#include "engine/search/PatternText.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <algorithm>

namespace engine::search {
namespace {

// Backtracks from one start. With so few a quick run through a window takes milliseconds.
constexpr std::uint32_t kQuickLimit = 4096;
constexpr std::uint32_t kCarefulLimit = 10'000'000;
constexpr std::uint32_t kDepthLimit = 1'000'000; // of the interpreter
constexpr std::uint32_t kHeapLimit = 64 * 1024;  // KB, of the interpreter
constexpr std::size_t kFirstStack = 64 * 1024;   // bytes, of compiled code
constexpr std::size_t kLargestStack = 16 * 1024 * 1024;
constexpr std::size_t kLongestPattern = 1024 * 1024; // bytes

// A line ends with CR, LF or both, whatever the text has.
pcre2_compile_context* CompileContext()
{
    static pcre2_compile_context* const context = [] {
        pcre2_compile_context* made = pcre2_compile_context_create(nullptr);
        pcre2_set_newline(made, PCRE2_NEWLINE_ANYCRLF);
        pcre2_set_max_pattern_length(made, kLongestPattern);
        return made;
    }();
    return context;
}

// Of the thread: what compiled code keeps on its stack and the limits of a run are a run's own.
struct Matching
{
    Matching()
    {
        pcre2_set_depth_limit(context, kDepthLimit);
        pcre2_set_heap_limit(context, kHeapLimit);
        pcre2_jit_stack_assign(context, nullptr, stack);
    }
    ~Matching()
    {
        pcre2_match_context_free(context);
        pcre2_jit_stack_free(stack);
    }
    Matching(const Matching&) = delete;
    Matching& operator=(const Matching&) = delete;

    pcre2_match_context* const context = pcre2_match_context_create(nullptr);
    pcre2_jit_stack* const stack = pcre2_jit_stack_create(kFirstStack, kLargestStack, nullptr);
};

pcre2_match_context* MatchContext()
{
    thread_local const Matching matching;
    return matching.context;
}

pcre2_code* CompileWith(const std::string& pattern, unsigned options,
                        Expression::Problem* problem = nullptr)
{
    int error = 0;
    PCRE2_SIZE place = 0;
    pcre2_code* code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(),
                                     options, &error, &place, CompileContext());
    constexpr std::size_t kLongestReason = 120;
    PCRE2_UCHAR reason[kLongestReason];
    if (!code && problem && pcre2_get_error_message(error, reason, sizeof reason) > 0)
        *problem = {reinterpret_cast<const char*>(reason), place};
    if (code) // without its compiler PCRE2 interprets, with the same matches
        pcre2_jit_compile(code, PCRE2_JIT_COMPLETE | PCRE2_JIT_PARTIAL_HARD);
    return code;
}

int TakeStep(pcre2_callout_block* block, void* budget)
{
    return static_cast<Budget*>(budget)->TakeStep(block->current_position) ? 0
                                                                           : PCRE2_ERROR_CALLOUT;
}

} // namespace

void Expression::FreeCode::operator()(pcre2_real_code_8* code) const
{
    pcre2_code_free(code);
}

void Expression::FreeMatch::operator()(pcre2_real_match_data_8* match) const
{
    pcre2_match_data_free(match);
}

std::unique_ptr<Expression> Expression::Compile(const std::string& pattern, Reading reading,
                                                bool matchCase, Problem* problem)
{
    // The text may hold half a character, where somebody replaced a target that was set for
    // another text.
    unsigned options = PCRE2_UTF | PCRE2_MATCH_INVALID_UTF | PCRE2_NEVER_BACKSLASH_C;
    options |= reading == Reading::Plain ? PCRE2_LITERAL : PCRE2_MULTILINE | PCRE2_ALT_CIRCUMFLEX;
    if (reading == Reading::Plain)
        options &= ~PCRE2_NEVER_BACKSLASH_C;
    if (!matchCase)
        options |= PCRE2_CASELESS;
    pcre2_code* code = CompileWith(pattern, options, problem);
    return std::unique_ptr<Expression>(code ? new Expression(code, pattern, options) : nullptr);
}

Expression::Expression(pcre2_real_code_8* code, std::string pattern, unsigned options)
    : m_pattern(std::move(pattern)), m_options(options), m_code(code),
      m_match(pcre2_match_data_create_from_pattern(code, nullptr))
{
    std::uint32_t value = 0;
    pcre2_pattern_info(code, PCRE2_INFO_MAXLOOKBEHIND, &value);
    m_lookbehind = value;
    pcre2_pattern_info(code, PCRE2_INFO_CAPTURECOUNT, &value);
    m_groups = static_cast<int>(value);
    pcre2_pattern_info(code, PCRE2_INFO_LASTCODETYPE, &value);
    if (value == 1) {
        pcre2_pattern_info(code, PCRE2_INFO_LASTCODEUNIT, &value);
        const auto byte = static_cast<char>(value);
        // Ignoring case, k and s have a form outside ASCII.
        const bool isLetter = IsAsciiLetter(static_cast<unsigned char>(byte));
        if ((options & PCRE2_CASELESS) == 0 || (byte >= 0 && !isLetter))
            m_required = byte;
        else if (isLetter && (byte | 0x20) != 'k' && (byte | 0x20) != 's')
            m_required = {byte, static_cast<char>(byte ^ 0x20)};
    }
    std::size_t compiledSize = 0;
    pcre2_pattern_info(code, PCRE2_INFO_JITSIZE, &compiledSize);
    m_isCompiled = compiledSize > 0;
}

Expression::~Expression() = default;

pcre2_real_code_8* Expression::CodeFor(const Run& run)
{
    const auto made = [this](Code& code, unsigned options) {
        if (!code)
            code.reset(CompileWith(m_pattern, m_options | options));
        return code.get();
    };
    if (run.budget)
        return made(m_careful, PCRE2_USE_OFFSET_LIMIT | PCRE2_AUTO_CALLOUT);
    return run.lastStart == kAnywhere ? m_code.get() : made(m_bounded, PCRE2_USE_OFFSET_LIMIT);
}

Expression::Outcome Expression::Find(std::string_view subject, const Run& run)
{
    pcre2_code* const code = CodeFor(run);
    if (!code || !m_match)
        return Outcome::Stopped;
    unsigned options = 0;
    if (run.isUnfinished)
        options |= PCRE2_PARTIAL_HARD;
    if (run.endsInLine)
        options |= PCRE2_NOTEOL;
    if (run.notEmptyAtStart)
        options |= PCRE2_NOTEMPTY_ATSTART;
    pcre2_match_context* const context = MatchContext();
    pcre2_set_match_limit(context, run.budget ? kCarefulLimit : kQuickLimit);
    // Straight to the machine code: what pcre2_match does before it costs as much as a short match.
    const bool isStraight = m_isCompiled && code == m_code.get();
    if (!isStraight) {
        pcre2_set_offset_limit(context, run.lastStart == kAnywhere ? PCRE2_UNSET : run.lastStart);
        pcre2_set_callout(context, run.budget ? TakeStep : nullptr, run.budget);
    }
    const auto match = isStraight ? pcre2_jit_match : pcre2_match;
    const int result = match(code, reinterpret_cast<PCRE2_SPTR>(subject.data()), subject.size(),
                             run.from, options, m_match.get(), context);
    if (result == PCRE2_ERROR_NOMATCH)
        return Outcome::NotFound;
    if (result == PCRE2_ERROR_PARTIAL)
        return Outcome::Partial;
    // \K in a lookaround moves the start to where no match can be.
    const bool isSound = result > 0 && Start() >= run.from && Start() <= End();
    return isSound ? Outcome::Found : Outcome::Stopped;
}

bool Expression::CanMatchIn(std::string_view text) const
{
    return m_required.empty() ||
           std::any_of(m_required.begin(), m_required.end(),
                       [text](char byte) { return text.find(byte) != text.npos; });
}

std::size_t Expression::Start(int group) const
{
    return group <= m_groups
               ? pcre2_get_ovector_pointer(m_match.get())[2 * static_cast<std::size_t>(group)]
               : kAnywhere;
}

std::size_t Expression::End(int group) const
{
    return group <= m_groups
               ? pcre2_get_ovector_pointer(m_match.get())[2 * static_cast<std::size_t>(group) + 1]
               : kAnywhere;
}

} // namespace engine::search
