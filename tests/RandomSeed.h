// SPDX-License-Identifier: GPL-3.0-or-later
// The seed of a random test. It is printed at once, since a run that crashes leaves nothing else.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <random>

// That of ZN_TEST_SEED, which repeats a run, or one of its own.
inline unsigned RandomSeed()
{
    const char* given = std::getenv("ZN_TEST_SEED");
    const unsigned seed =
        given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
    std::printf("ZN_TEST_SEED=%u\n", seed);
    return seed;
}
