// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a piece of work in a process of its own and fails one of its system calls on files, or kills
// the process there. A place is the number of such a call among those that concern one folder.
#pragma once

#include <QByteArray>

#include <functional>
#include <string>

namespace faults {

enum class Fault
{
    None,
    NoRoom, // the call fails with ENOSPC where that can be, else with EIO
    Broken, // with EIO
    Killed,
};

struct Trial
{
    int places = 0;      // calls that were seen
    bool struck = false; // the fault was placed
    int exitCode = -1;   // of the work; -1 if it was killed
    std::string call;    // the call that failed, with its path
};

// The work ends by returning its exit code; nothing of it is destroyed. Calls on paths below the
// folder count from 0; place -1 strikes none.
Trial Trace(const std::function<int()>& work, const QByteArray& folder, int place, Fault fault);

} // namespace faults
