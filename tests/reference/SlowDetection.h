// SPDX-License-Identifier: GPL-3.0-or-later
// The encoding of a block, decided slowly and in plain steps over decoded arrays. What the
// converter decides has to agree with it on any bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace reference {

struct Verdict
{
    int encoding;
    int markSize;
};

Verdict Detect(const std::vector<std::uint8_t>& block);

// The same for a block whose encoding the caller has asked for.
Verdict Resolve(int requested, const std::vector<std::uint8_t>& block);

} // namespace reference
