// SPDX-License-Identifier: GPL-3.0-or-later
// How the styles of an engine look on the screen.
#pragma once

#include "control/EngineRecords.h"

namespace engine {

class Engine;

// False for a number that no style has, which leaves the record as it was.
bool GetStyleLook(const Engine& engine, WPARAM style, StyleLook* look);

} // namespace engine
