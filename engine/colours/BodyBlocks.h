// SPDX-License-Identifier: GPL-3.0-or-later
// BodyBlocks: what stands open in the body of a routine that is written between tags of dollars.
// Inside of it words mean more than in the script around it: BEGIN is no transaction, IF and FOR
// where a statement starts are none of a clause. It is fed with tokens in order.
#pragma once

#include "engine/analysis/SqlWords.h"

namespace engine {

struct BodyBlocks
{
    enum class Place : std::uint8_t
    {
        Start, // of a statement
        Label, // behind << where a statement starts
        Inside,
    };

    // A word whose meaning hangs on the next one.
    enum class Pending : std::uint8_t
    {
        None,
        Begin, // inside of a statement: a block if ATOMIC comes
        End,
    };

    std::uint64_t frames = 0; // what is open, four bits each, the innermost lowest
    std::uint32_t depth = 0;  // how much; the outermost of more than sixteen have lost their kinds
    Place place = Place::Start;
    Pending pending = Pending::None;

    bool operator==(const BodyBlocks&) const = default;

    // Whatever an END closes, it is closed where a line ends behind the word.
    std::uint32_t Depth() const { return depth - (pending == Pending::End && depth > 0); }

    // Any token but blanks, comments and line ends; of a word that stands behind a point, the word
    // is None.
    void Take(const analysis::TextSpans& text, const analysis::Token& token, analysis::SqlWord word)
    {
        using analysis::TokenKind;
        const bool saysNothing = word == analysis::SqlWord::None && place == Place::Inside &&
                                 pending == Pending::None && token.kind != TokenKind::Operator &&
                                 token.kind != TokenKind::Terminator;
        if (!saysNothing)
            TakeShape(text, token, word);
    }

private:
    enum class Frame : std::uint8_t;

    void TakeShape(const analysis::TextSpans& text, const analysis::Token& token,
                   analysis::SqlWord word);

    Frame Innermost() const { return static_cast<Frame>(frames & 0xF); }
    bool IsInnermost(Frame frame) const { return depth > 0 && Innermost() == frame; }
    void Push(Frame frame);
    void Become(Frame frame);
    void Pop(std::uint32_t count);
    void PopAll(Frame frame);
    void PopTo(Frame frame, Frame head);
    void EndStatement();
    void CloseParenthesis();
    bool Settle(analysis::SqlWord word);
    bool TakeAtStart(analysis::SqlWord word);
    void TakeWord(analysis::SqlWord word);
    void TakeThen();
    void TakeEnd();
};

} // namespace engine
