// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The mouse as it is at this moment. QGuiApplication stands behind it.
#pragma once

#include "common/Export.h"

ZN_API bool IsLeftButtonDown(); ///< whether it is held at this moment

/// Takes effect at once; null brings back the mouse. For a host that drives an editor without one.
ZN_API void SetLeftButton(bool (*isDown)());
