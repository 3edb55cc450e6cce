// SPDX-License-Identifier: GPL-3.0-or-later
// Qt's hash of a text leaves the upper halves of the vector registers in use on processors with
// VAES. Until somebody clears them, each SSE instruction waits for the one that wrote its register
// before: loops like those that convert or search text, ours and the stock engine's, take three
// times as long, some tenths of a second later and elsewhere than the text that was hashed.
#pragma once

namespace platform {

// Called where work comes in, before it, for a few cycles each time.
inline void ClearUpperHalves()
{
#if defined(__AVX__)
    __builtin_ia32_vzeroupper();
#elif defined(__x86_64__) && defined(__GNUC__)
    if (__builtin_cpu_supports("avx"))
        asm volatile("vzeroupper");
#endif
}

} // namespace platform
