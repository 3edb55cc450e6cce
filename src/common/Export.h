// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ZN_API marks what the shared libraries export; everything else stays hidden in them.
#pragma once

/// In front of what a shared library exports.
#define ZN_API __attribute__((visibility("default")))
