// SPDX-License-Identifier: GPL-3.0-or-later
// Peak memory is measured in processes of their own, since a peak is one for the process.
#pragma once

namespace bench {

// The child's side: does what its arguments say and prints bytes. True if these were a child's.
bool RunAsChild(int argc, char** argv);

} // namespace bench
