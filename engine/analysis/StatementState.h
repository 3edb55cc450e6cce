// SPDX-License-Identifier: GPL-3.0-or-later
// StatementState: all that a place in a script owes to the text before it. Equal states read the
// same text the same way, which is what lets an edit be followed by reading a few kilobytes.
#pragma once

#include "engine/analysis/BatchSeparator.h"
#include "engine/analysis/BlockRules.h"
#include "engine/analysis/SqlScanner.h"
#include "engine/analysis/Terminator.h"

namespace engine::analysis {

// What a script is read by.
struct ScriptRules
{
    const SqlDialect* dialect = nullptr;
    BatchSeparator separator;
    Terminator terminator; // until the script sets another

    bool operator==(const ScriptRules&) const = default;
};

struct StatementState : BlockState
{
    enum class Phase : std::uint8_t
    {
        None,  // between statements
        Open,  // in one
        Ended, // behind one; ELSE, or the terminator of USE, may still belong to it
    };

    ScanState scan;
    Terminator terminator;
    Phase phase = Phase::None;
    bool lineIsClean = true;      // blanks and comments only, so far
    bool nameExpected = false;    // behind USE
    bool takesTerminator = false; // of phase Ended
    bool hasBegun = false;        // there was something else than blanks and comments

    bool operator==(const StatementState&) const = default;

    // Of the statement under way nothing stays.
    void Forget(Phase next)
    {
        static_cast<BlockState&>(*this) = {};
        phase = next;
        nameExpected = false;
        takesTerminator = false;
    }
};

} // namespace engine::analysis
