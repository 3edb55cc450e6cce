// SPDX-License-Identifier: GPL-3.0-or-later
// The first of a few bytes in a run of text, sixteen bytes at a step: what long comments, strings
// and blanks are read with.
#pragma once

#include "engine/analysis/TextSpans.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <algorithm>

namespace engine::analysis {

// The first place of a or b in [start, end), end if there is none.
inline const char* FindEither(const char* start, const char* end, char a, char b)
{
#ifdef __SSE2__
    const __m128i first = _mm_set1_epi8(a);
    const __m128i second = _mm_set1_epi8(b);
    for (; end - start >= 16; start += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(start));
        const int hits = _mm_movemask_epi8(
            _mm_or_si128(_mm_cmpeq_epi8(bytes, first), _mm_cmpeq_epi8(bytes, second)));
        if (hits)
            return start + __builtin_ctz(static_cast<unsigned>(hits));
    }
#endif
    while (start < end && *start != a && *start != b)
        ++start;
    return start;
}

// The same over both runs of a text, from a position inside it; stop if there is none before.
inline long FindEither(const TextSpans& text, long position, long stop, char a, char b)
{
    while (position < stop) {
        const std::string_view run =
            text.RunAt(position).substr(0, static_cast<std::size_t>(stop - position));
        const char* end = run.data() + run.size();
        const char* found = FindEither(run.data(), end, a, b);
        position += found - run.data();
        if (found < end)
            break;
    }
    return position;
}

} // namespace engine::analysis
