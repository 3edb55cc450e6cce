// SPDX-License-Identifier: GPL-3.0-or-later
// SqlBlocks: what stands open at a place of a script - blocks, parentheses, the batch. It is fed
// with tokens in order.
#pragma once

#include "engine/analysis/BlockRules.h"
#include "engine/colours/BodyBlocks.h"

namespace engine {

struct SqlBlockState : analysis::BlockState
{
    enum class Batch : std::uint8_t
    {
        None,  // no code yet
        Fresh, // code on one line
        Open,  // and something on another
    };

    analysis::Terminator terminator;
    Batch batch = Batch::None;
    bool inStatement = false;
    bool hasBegun = false; // there was something else than blanks and comments
    bool divided = false;  // a separator stands above
    BodyBlocks body;       // of a routine, if one is under way

    bool operator==(const SqlBlockState&) const = default;

    // What stands open in the statement.
    std::uint32_t Depth() const
    {
        return declarations + blocks + cases + controls + parentheses + body.Depth();
    }
};

class SqlBlocks
{
public:
    explicit SqlBlocks(const analysis::SqlDialect& dialect);

    SqlBlockState state;

    // Any token but blanks, comments and line ends.
    void Take(const analysis::TextSpans& text, const analysis::Token& token,
              analysis::SqlWord word);
    void TakeLineEnd();

    // The same in the body of a routine, between the tags.
    void TakeInBody(const analysis::TextSpans& text, const analysis::Token& token,
                    analysis::SqlWord word);

    // The tag that ends the body: what was left open in it is not open behind it.
    void EndBody(const analysis::TextSpans& text, const analysis::Token& tag);

    // Nothing of the batch goes on behind this.
    void CloseBatch();

    // A line of the client's stands between statements.
    void CloseStatement();

    // What stands behind the token that has just been taken, and is read by other rules.
    enum class Behind
    {
        Code,
        Terminators, // of SET TERM
        Data,        // of COPY
        Source,      // of CREATE JAVA
    };
    Behind WhatIsBehind() const { return m_behind; }

private:
    analysis::BlockRules m_rules;
    Behind m_behind = Behind::Code;
};

} // namespace engine
