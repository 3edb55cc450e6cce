// SPDX-License-Identifier: GPL-3.0-or-later
// The same walks each time; ZN_SEED takes others, ZN_MESSAGES says how many messages they are,
// ZN_TRACE tells what is sent.
#include "tests/engine/ChannelWalk.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace {

unsigned long NumberFrom(const char* variable, unsigned long otherwise)
{
    const char* given = std::getenv(variable);
    return given ? std::strtoul(given, nullptr, 10) : otherwise;
}

} // namespace

TEST(ChannelWalk, EndsWellWhateverIsSent)
{
    constexpr unsigned long kShare = 20000; // some seconds
    constexpr unsigned long kMessagesOfAWalk = 5000;
    const auto first = static_cast<unsigned>(NumberFrom("ZN_SEED", 1));
    const unsigned long messages = NumberFrom("ZN_MESSAGES", kShare);
    for (unsigned long walk = 0; walk * kMessagesOfAWalk < messages; ++walk) {
        const unsigned seed = first + static_cast<unsigned>(walk);
        std::cout << "ZN_SEED=" << seed << " ZN_MESSAGES=" << kMessagesOfAWalk << std::endl;
        std::mt19937 random(seed);
        ChannelWalk channel([&random](long low, long high) {
            return std::uniform_int_distribution<long>(low, high)(random);
        });
        for (unsigned long i = 0; i < kMessagesOfAWalk; ++i)
            ASSERT_TRUE(channel.Step()) << "message " << i << ": " << channel.Fault();
        QApplication::processEvents();
    }
}
