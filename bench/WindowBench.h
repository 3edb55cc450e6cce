// SPDX-License-Identifier: GPL-3.0-or-later
// What a person's window on a display takes, in processes of their own: a process has one display.
#pragma once

namespace bench {

// The child's side: does the work and prints its seconds. True if the arguments were a child's.
bool RunInWindow(int argc, char** argv);

} // namespace bench
