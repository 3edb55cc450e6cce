// SqlBlocks: what stands open at a place of a script - blocks, parentheses, the batch - and where
// lines of the client program stand. It is fed with tokens in order and keeps counts only: END
// closes the innermost of what END closes, so that counts say as much as a stack would.
#pragma once

#include "engine/analysis/SqlWords.h"
#include "engine/analysis/StatementState.h"

namespace engine {

struct SqlBlockState
{
    enum class Batch : std::uint8_t
    {
        None,  // no code yet
        Fresh, // code on one line
        Open,  // and something on another
    };
    using Head = analysis::StatementState::Head;
    using Before = analysis::StatementState::Before;

    // A word whose meaning hangs on the next one.
    enum class Pending : std::uint8_t
    {
        None,
        Begin,
        End,
        Is,
        Repeat,
    };

    std::uint32_t declarations = 0; // parts that wait for their BEGIN, packages included
    std::uint32_t blocks = 0;       // and what END closes inside them
    std::uint32_t cases = 0;        // CASEs while there is no block
    std::uint32_t controls = 0;     // IF and loops while there is no block
    std::uint32_t parentheses = 0;
    std::uint16_t terminator = 0;
    Batch batch = Batch::None;
    Head head = Head::Plain;
    Pending pending = Pending::None;
    Before before = Before::Other;
    bool inStatement = false;
    bool routineHeader = false; // of a routine in declarations
    bool ifSeen = false;        // its THEN comes
    bool whileSeen = false;     // its DO comes

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
    using Head = SqlBlockState::Head;
    using Pending = SqlBlockState::Pending;
    using Before = SqlBlockState::Before;

    void TakeTerminator();
    void TakePart(const analysis::TextSpans& text, const analysis::Token& token,
                  analysis::SqlWord word);
    bool OpenStatement(analysis::SqlWord word);
    void ReadHead(analysis::SqlWord word);
    void ReadCreate(analysis::SqlWord word);
    void ReadWord(analysis::SqlWord word);
    void ReadControl(analysis::SqlWord word);
    bool SettlePending(analysis::TokenKind kind, analysis::SqlWord word);
    bool BeginsBlock(analysis::TokenKind kind, analysis::SqlWord word) const;
    bool CanDeclare(analysis::SqlWord word) const;
    bool OpensDeclarations(analysis::SqlWord word) const;
    bool HoldsTerminator() const;
    void OpenBlock();
    void OpenControl() { ++(state.blocks > 0 ? state.blocks : state.controls); }
    void CloseBlock();
    void CloseControl();
    bool InHeader() const;
    bool InRoutine() const { return InHeader() || state.head == Head::Body; }

    const analysis::SqlDialect& m_dialect;
    bool m_hasControls; // IF and loops have an END of their own
    bool m_atSetTerm = false;
};

} // namespace engine
