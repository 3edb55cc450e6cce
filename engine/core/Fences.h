// SPDX-License-Identifier: GPL-3.0-or-later
// What the stock engine must not be asked: parameters on which it aborts, crashes, runs for ever or
// takes all memory.
#pragma once

#include "control/EngineMessages.h"

#include <span>

namespace engine {

class Engine;

// May change the parameters, which are those of the channel. False: the message answers 0.
using Fence = bool (*)(const Engine& engine, WPARAM& wParam, LPARAM& lParam);

struct FenceRow
{
    UINT number;
    Fence admits;
};

std::span<const FenceRow> Fences();

} // namespace engine
