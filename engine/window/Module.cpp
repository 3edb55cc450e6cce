// SPDX-License-Identifier: GPL-3.0-or-later
// The engine module. Loading it makes its window class known; nothing else is reached by name.
#include "engine/window/EngineWindow.h"

namespace {

[[maybe_unused]] const bool kRegistered = [] {
    engine::RegisterEngineWindow();
    return true;
}();

} // namespace
