// SPDX-License-Identifier: GPL-3.0-or-later
// The upper halves of the vector registers, as another library may leave them.
#pragma once

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace upperhalves {

// Whether the processor tells if they are in use.
inline bool CanBeAsked()
{
#if defined(__x86_64__)
    unsigned a = 0, b = 0, c = 0, d = 0;
    return __builtin_cpu_supports("avx") && __get_cpuid_count(0xD, 1, &a, &b, &c, &d) &&
           (a & 4) != 0; // XGETBV with ECX = 1
#else
    return false;
#endif
}

inline bool AreInUse()
{
#if defined(__x86_64__)
    unsigned low = 0, high = 0;
    asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return (low & 4) != 0;
#else
    return false;
#endif
}

inline void Use()
{
#if defined(__x86_64__)
    asm volatile("vpcmpeqd %%xmm15, %%xmm15, %%xmm15\n\t"
                 "vinsertf128 $1, %%xmm15, %%ymm15, %%ymm15"
                 :
                 :
                 : "xmm15");
#endif
}

} // namespace upperhalves
