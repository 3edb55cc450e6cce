// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an engine tells of a line that is too long to be drawn exactly: places in a line are kept
/// to 16 million pixels, behind which text is drawn in steps of two pixels, twice as far of four,
/// and so on. Moving, typing and saving are as exact as anywhere.
#pragma once

#include "platform/base/Types.h"

namespace engine {

/// A notification, once for a text: line, and length: how many characters of it are drawn exactly.
/// From the event loop, when the line has come into sight or the caret stands in it.
inline constexpr UINT kLongLineShown = 2901;

} // namespace engine
