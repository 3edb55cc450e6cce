// SPDX-License-Identifier: GPL-3.0-or-later
// ZN_API marks what the shared libraries export; everything else stays hidden in them.
#pragma once

#define ZN_API __attribute__((visibility("default")))
