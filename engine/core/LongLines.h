// SPDX-License-Identifier: GPL-3.0-or-later
// LongLines: what a window does to stay quick where the line of the caret, or one on the screen,
// has many thousand bytes. The stock engine lays such a line out as a whole for each character, and
// twice if its colours come in between.
#pragma once

#include <cstdint>
#include <string_view>

namespace engine {

class Engine;

class LongLines
{
public:
    explicit LongLines(Engine& engine) : m_engine(engine) {}

    // Before lines are laid out for a paint or for a key.
    void Prepare();

    // A typed character, or one that Backspace or Delete takes, in a long line. False: it is the
    // stock engine's. The caret is shown by the next Prepare, so that keys that wait are not laid
    // out one by one.
    bool Type(std::string_view bytes, char32_t character);
    bool Erase(bool back);

private:
    long LengthOf(long line) const;
    bool IsOrdinary() const;
    void FitCache();
    void TellOf(long line);
    void LayAlike(long line);
    void Changed();

    Engine& m_engine;
    long m_longest = 0;         // bytes, of the lines that were met
    std::intptr_t m_toldOf = 0; // the document in which a line is told to be too long
    bool m_caretWaits = false;
};

} // namespace engine
