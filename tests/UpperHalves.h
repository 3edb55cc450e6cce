// SPDX-License-Identifier: GPL-3.0-or-later
// The upper halves of the vector registers, as another library may leave them. Where there are none
// they are never in use, and what clears them has to leave the processor alone.
#pragma once

#include <gtest/gtest.h>

namespace upperhalves {

inline bool Exist()
{
#if defined(__x86_64__)
    return __builtin_cpu_supports("avx") != 0;
#else
    return false;
#endif
}

// By one register for all: they are cleared together.
inline void Use()
{
#if defined(__x86_64__)
    if (Exist())
        asm volatile("vpcmpeqd %%xmm15, %%xmm15, %%xmm15\n\t"
                     "vinsertf128 $1, %%xmm15, %%ymm15, %%ymm15"
                     :
                     :
                     : "xmm15");
#endif
}

inline bool AreInUse()
{
    unsigned low = 0;
#if defined(__x86_64__)
    if (Exist())
        asm volatile("vextractf128 $1, %%ymm15, %%xmm14\n\t"
                     "vmovd %%xmm14, %0"
                     : "=r"(low)
                     :
                     : "xmm14");
#endif
    return low != 0;
}

class VectorRegisters : public testing::Test
{
protected:
    void SetUp() override
    {
        Use();
        ASSERT_EQ(AreInUse(), Exist());
    }
};

} // namespace upperhalves
