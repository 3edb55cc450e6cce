// SPDX-License-Identifier: GPL-3.0-or-later
// Any pattern over any text, forwards and backwards, with a gap anywhere. What is found lies in the
// range that was searched, and is the same wherever the gap is.
#include "engine/search/PatternText.h"
#include "engine/search/Searcher.h"
#include "tests/engine/PlainText.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace engine::search;

namespace {

constexpr int kFlags[] = {flag::WholeWord,  flag::MatchCase, flag::WordStart,
                          flag::Expression, flag::Posix,     flag::Native};

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

bool AreSame(const std::optional<Range>& a, const std::optional<Range>& b)
{
    return a.has_value() == b.has_value() && (!a || (a->start == b->start && a->end == b->end));
}

bool IsUtf8(std::string_view text)
{
    char32_t character = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (!NextCharacter(text, at, character))
            return false;
    }
    return true;
}

void Search(const std::string& subject, std::string_view pattern, int flags, long from, long to,
            long gap)
{
    const PlainText whole(subject);
    const PlainText split(subject, gap);
    Searcher searcher(whole);
    Searcher beside(split);
    const auto found = searcher.Find(pattern, flags, from, to);
    const auto foundBeside = beside.Find(pattern, flags, from, to);
    if (found) {
        Require(found->start >= 0 && found->start <= found->end);
        Require(found->end <= whole.Length());
    }
    searcher.Substituted(pattern);
    // Half a character at the gap reads as one that is whole in one piece and not in the other.
    if (IsUtf8(subject) && searcher.Stopped() == 0 && beside.Stopped() == 0)
        Require(AreSame(found, foundBeside));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 6)
        return 0;
    int flags = 0;
    for (std::size_t i = 0; i < std::size(kFlags); ++i)
        flags |= (data[0] >> i & 1) ? kFlags[i] : 0;
    const std::size_t patternSize = std::min<std::size_t>(data[1], size - 5);
    const std::string pattern(reinterpret_cast<const char*>(data) + 5, patternSize);
    const std::string subject(reinterpret_cast<const char*>(data) + 5 + patternSize,
                              size - 5 - patternSize);
    const auto place = [&subject](std::uint8_t byte) {
        return static_cast<long>(byte % (subject.size() + 1));
    };
    const long length = static_cast<long>(subject.size());
    // PCRE2's own syntax can look back and forth in ways for which a cut subject is another one.
    if (flags & flag::Native)
        flags &= ~flag::Native;
    Search(subject, pattern, flags, 0, length, place(data[4]));
    Search(subject, pattern, flags, length, 0, place(data[4]));
    Search(subject, pattern, flags, place(data[2]), place(data[3]), place(data[4]));
    return 0;
}
