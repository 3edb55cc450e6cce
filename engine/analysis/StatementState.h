// StatementState: all that a place in a script owes to the text before it. Equal states read the
// same text the same way, which is what lets an edit be followed by reading a few kilobytes.
#pragma once

#include "engine/analysis/BatchSeparator.h"
#include "engine/analysis/SqlScanner.h"

#include <deque>
#include <string>

namespace engine::analysis {

// What a script is read by.
struct ScriptRules
{
    const SqlDialect* dialect = nullptr;
    BatchSeparator separator;
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

struct StatementState
{
    enum class Phase : std::uint8_t
    {
        None,  // between statements
        Open,  // in one
        Ended, // behind one; ELSE, or the terminator of USE, may still belong to it
    };

    // What the first words of the statement have said.
    enum class Head : std::uint8_t
    {
        Plain,      // no more than that it is a statement
        Create,     // CREATE or ALTER: the kind of object comes
        CreateType, // a type: it has a body if BODY comes
        Execute,    // EXECUTE: a body if BLOCK comes
        Set,        // SET: TERM may come
        Copy,       // COPY: STDIN may come
        CopyData,   // data stand behind the terminator
        Routine,    // the header of a routine
        Trigger,    // the header of a trigger
        Body,       // behind the IS or the DECLARE of a routine
    };

    // A word whose meaning hangs on the next one.
    enum class Pending : std::uint8_t
    {
        None,
        Begin,
        End,
        Is,
    };

    // The last token, comments and blanks left out.
    enum class Before : std::uint8_t
    {
        Other,
        Operator,
        Point, // what stands behind it is a name
    };

    ScanState scan;
    // Each BEGIN above a declaration part turns that part into its block, and END closes the
    // innermost one that is open, so that counts say as much as a stack would.
    std::uint32_t declarations = 0; // parts that wait for their BEGIN, packages included
    std::uint32_t blocks = 0;       // open above them; a CASE in a block counts
    std::uint32_t cases = 0;        // open CASEs while there is no block
    std::uint32_t controls = 0;     // IF and loops that are a routine's whole body
    std::uint32_t parentheses = 0;
    std::uint16_t terminator = 0;
    Phase phase = Phase::None;
    Head head = Head::Plain;
    Pending pending = Pending::None;
    Before before = Before::Other;
    bool lineIsClean = true;      // blanks and comments only, so far
    bool routineHeader = false;   // of a routine in declarations
    bool ifSeen = false;          // its THEN comes
    bool whileSeen = false;       // its DO comes
    bool nameExpected = false;    // behind USE
    bool takesTerminator = false; // of phase Ended

    bool operator==(const StatementState&) const = default;

    // Of the statement under way nothing stays.
    void Forget(Phase next)
    {
        *this = {.scan = scan, .terminator = terminator, .phase = next, .lineIsClean = lineIsClean};
    }
};

} // namespace engine::analysis
