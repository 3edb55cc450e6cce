// StatementState: all that a place in a script owes to the text before it. Equal states read the
// same text the same way, which is what lets an edit be followed by reading a few kilobytes.
#pragma once

#include "engine/analysis/BatchSeparator.h"
#include "engine/analysis/BlockRules.h"
#include "engine/analysis/SqlScanner.h"

#include <deque>
#include <string>

namespace engine::analysis {

// What a script is read by.
struct ScriptRules
{
    const SqlDialect* dialect = nullptr;
    BatchSeparator separator;

    bool operator==(const ScriptRules&) const = default;
};

// The terminators that a script sets, by number. 0 is ;, which a script has until it says other.
class Terminators
{
public:
    // The most bytes a terminator may have; a longer text sets none.
    static constexpr std::size_t kLongest = 15;

    std::uint16_t NumberOf(std::string_view text);
    std::string_view TextOf(std::uint16_t number) const; // empty for ;
    bool NearlyFull() const { return m_texts.size() > 0xF000; }
    void Clear() { m_texts.clear(); }

private:
    std::deque<std::string> m_texts;
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
    std::uint16_t terminator = 0;
    Phase phase = Phase::None;
    bool lineIsClean = true;      // blanks and comments only, so far
    bool nameExpected = false;    // behind USE
    bool takesTerminator = false; // of phase Ended

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
