// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/BodyBlocks.h"

#include <utility>

namespace engine {

using analysis::SqlWord;
using analysis::TokenKind;

// A head goes on to its THEN or its LOOP. No statement ends in it, so that a half-typed one, or an
// IF of another language, opens nothing for what stands behind.
enum class BodyBlocks::Frame : std::uint8_t
{
    Unknown,
    Parenthesis,
    CaseExpression,
    IfHead,
    CaseHead,
    LoopHead,
    If,
    Case,
    Loop,
    Declarations, // wait for their BEGIN
    Block,
};

void BodyBlocks::Push(Frame frame)
{
    frames = frames << 4 | static_cast<std::uint64_t>(frame);
    ++depth;
}

void BodyBlocks::Become(Frame frame)
{
    frames = (frames & ~std::uint64_t{0xF}) | static_cast<std::uint64_t>(frame);
}

void BodyBlocks::Pop(std::uint32_t count)
{
    frames = count < 16 ? frames >> 4 * count : 0;
    depth -= count;
}

void BodyBlocks::PopAll(Frame frame)
{
    while (IsInnermost(frame))
        Pop(1);
}

// Closes the innermost one of a kind, and what was left open in it. A stray end closes nothing.
void BodyBlocks::PopTo(Frame frame, Frame head)
{
    std::uint64_t rest = frames;
    for (std::uint32_t count = 1; count <= depth; ++count, rest >>= 4) {
        const auto open = static_cast<Frame>(rest & 0xF);
        if (open == frame || open == head || open == Frame::Unknown) {
            Pop(count);
            return;
        }
    }
}

// No expression goes on behind its terminator.
void BodyBlocks::EndStatement()
{
    while (depth > 0 && Innermost() > Frame::Unknown && Innermost() <= Frame::LoopHead)
        Pop(1);
    place = Place::Start;
}

void BodyBlocks::CloseParenthesis()
{
    const BodyBlocks before = *this;
    PopAll(Frame::CaseExpression);
    if (IsInnermost(Frame::Parenthesis))
        Pop(1);
    else
        *this = before;
}

// Decides what the word before has meant. True if the word at hand belongs to it.
bool BodyBlocks::Settle(SqlWord word)
{
    const Pending settled = std::exchange(pending, Pending::None);
    if (settled == Pending::Begin && word == SqlWord::Atomic) {
        Push(Frame::Block);
        place = Place::Start;
        return true;
    }
    if (settled != Pending::End)
        return false;
    switch (word) {
    case SqlWord::If:
        PopTo(Frame::If, Frame::IfHead);
        return true;
    case SqlWord::Loop:
        PopTo(Frame::Loop, Frame::LoopHead);
        return true;
    case SqlWord::Case:
        PopTo(Frame::Case, Frame::CaseHead);
        return true;
    default:
        PopTo(Frame::Block, Frame::Declarations);
        return false;
    }
}

void BodyBlocks::TakeShape(const analysis::TextSpans& text, const analysis::Token& token,
                           SqlWord word)
{
    if (token.resumed || (pending != Pending::None && Settle(word)))
        return;
    const unsigned char byte = token.kind == TokenKind::Operator ? text.At(token.start) : '\0';
    if (token.kind == TokenKind::Terminator || byte == ';') {
        EndStatement();
        return;
    }
    if (place == Place::Label) {
        if (byte == '>')
            place = Place::Start;
        return;
    }
    if (place == Place::Start) {
        if (byte == '>') // the label's second one
            return;
        if (byte == '<') {
            place = Place::Label;
            return;
        }
        if (TakeAtStart(word))
            return;
    }
    place = Place::Inside;
    if (byte == '(')
        Push(Frame::Parenthesis);
    else if (byte == ')')
        CloseParenthesis();
    else
        TakeWord(word);
}

// What means something else where a statement starts.
bool BodyBlocks::TakeAtStart(SqlWord word)
{
    switch (word) {
    case SqlWord::Declare:
        if (!IsInnermost(Frame::Declarations))
            Push(Frame::Declarations);
        return true;
    case SqlWord::Begin:
        if (IsInnermost(Frame::Declarations))
            Become(Frame::Block);
        else
            Push(Frame::Block);
        return true;
    case SqlWord::Loop:
        Push(Frame::Loop);
        return true;
    case SqlWord::If:
        Push(Frame::IfHead);
        break;
    case SqlWord::Case:
        Push(Frame::CaseHead);
        break;
    case SqlWord::For:
    case SqlWord::Foreach:
    case SqlWord::While:
        Push(Frame::LoopHead);
        break;
    default:
        return false;
    }
    place = Place::Inside;
    return true;
}

void BodyBlocks::TakeWord(SqlWord word)
{
    switch (word) {
    case SqlWord::Case:
        Push(Frame::CaseExpression);
        return;
    case SqlWord::Loop:
        if (!IsInnermost(Frame::LoopHead))
            return;
        Become(Frame::Loop);
        place = Place::Start;
        return;
    case SqlWord::Then:
    case SqlWord::Else:
        TakeThen();
        return;
    case SqlWord::Begin:
        pending = Pending::Begin;
        return;
    case SqlWord::End:
        TakeEnd();
        return;
    default:
        return;
    }
}

// A statement starts behind it, but not in an expression.
void BodyBlocks::TakeThen()
{
    if (IsInnermost(Frame::CaseExpression) || IsInnermost(Frame::Parenthesis))
        return;
    if (IsInnermost(Frame::IfHead))
        Become(Frame::If);
    else if (IsInnermost(Frame::CaseHead))
        Become(Frame::Case);
    place = Place::Start;
}

// An expression ends with the word alone: the one behind it may be the LOOP of the head around it.
void BodyBlocks::TakeEnd()
{
    PopAll(Frame::Parenthesis);
    if (IsInnermost(Frame::CaseExpression))
        Pop(1);
    else
        pending = Pending::End;
}

} // namespace engine
