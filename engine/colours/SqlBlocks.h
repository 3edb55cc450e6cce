// SqlBlocks: what stands open at a place of a script - blocks, parentheses, the batch. It is fed
// with tokens in order.
#pragma once

#include "engine/analysis/BlockRules.h"

namespace engine {

struct SqlBlockState : analysis::BlockState
{
    enum class Batch : std::uint8_t
    {
        None,  // no code yet
        Fresh, // code on one line
        Open,  // and something on another
    };

    std::uint16_t terminator = 0;
    Batch batch = Batch::None;
    bool inStatement = false;

    bool operator==(const SqlBlockState&) const = default;

    std::uint32_t Depth() const
    {
        return declarations + blocks + cases + controls + parentheses + (batch == Batch::Open);
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

    // Nothing of the batch goes on behind this.
    void CloseBatch();

    // A line of the client's stands between statements.
    void CloseStatement();

    // The word that has just been taken is TERM of SET TERM.
    bool AtSetTerm() const { return m_atSetTerm; }

private:
    analysis::BlockRules m_rules;
    bool m_atSetTerm = false;
};

} // namespace engine
