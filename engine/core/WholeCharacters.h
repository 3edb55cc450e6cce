// SPDX-License-Identifier: GPL-3.0-or-later
// WholeCharacters: keeps the moves and deletions of the stock engine to whole characters in a text
// that has noncharacters, whose bytes it takes one by one. Text without them never comes here.
#pragma once

#include "control/EngineMessages.h"

namespace engine {

class Engine;

class WholeCharacters
{
public:
    explicit WholeCharacters(Engine& engine) : m_engine(engine) {}

    // Around a message or an event: what then stands inside of a character goes on to its end, in
    // the direction in which the caret went.
    void Begin();
    void End();

    // Before the stock engine performs a command, which is told when macros are recorded: selects
    // what it is to delete.
    void OnCommand(UINT number);

    // Before a character is typed over another.
    void BeforeTyping();

    void RecordingBecame(bool on) { m_listens = on; }
    bool Listens() const { return m_listens; }

private:
    enum class Side
    {
        Before,
        Behind,
        BeforeInLine,
        BehindInLine,
    };

    long Get(UINT number, long selection = 0) const;
    long Rounded(long position, bool down) const;
    void Round(bool down) const;
    bool IsEmpty() const;
    long Reach(long caret, Side side) const;
    bool CutsAny(Side side) const;
    void Cover(Side side);

    Engine& m_engine;
    long m_caret = 0;       // bytes, when the message or the event began
    bool m_listens = false; // the stock engine tells of commands
};

} // namespace engine
