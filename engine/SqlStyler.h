// SqlStyler: the styles and the fold levels of an SQL text, line by line in one walk. It knows the
// text and the state at a line's start, and nothing of windows: who uses it keeps the states.
#pragma once

#include "engine/SqlBlocks.h"
#include "engine/SqlVocabulary.h"
#include "engine/analysis/BatchSeparator.h"
#include "engine/analysis/StatementState.h"

#include <array>
#include <span>

namespace engine {

// What a place at the start of a line owes to the text before it.
struct SqlLineState
{
    analysis::ScanState scan;
    SqlBlockState blocks;
    bool docComment = false; // the block comment under way is one

    bool operator==(const SqlLineState&) const = default;
    std::uint64_t Hash() const;
};

struct SqlFoldOptions
{
    bool comments = false;
    bool compact = false;

    bool operator==(const SqlFoldOptions&) const = default;
};

// The colours of a family of lexers: what each kind of token is, and each keyword set.
struct SqlPalette;

class SqlStyler
{
public:
    using WordStyles = std::array<std::uint8_t, 256>; // by the sets that have the word

    // Dialect, terminators and vocabulary are the caller's, and outlive the styler.
    SqlStyler(int lexer, const analysis::ScriptRules& rules, const SqlVocabulary& vocabulary,
              analysis::Terminators& terminators, SqlFoldOptions fold);

    // Goes on at a line's start. The text stays as it is until the next call.
    void Start(analysis::TextSpans text, long position, const SqlLineState& state);

    // Styles the line up to the start of the next, or to the text's end: one byte into styles for
    // each of the line's.
    void Line(long next, std::span<char> styles);

    // Of the line that has just been styled: its fold level, as if its batch had no other line
    // (see SqlBlockState::Batch).
    int Level() const { return m_level; }
    bool IsBlank() const { return m_isBlank; }

    // At the start of the next line.
    const SqlLineState& State() const { return m_state; }

private:
    using Token = analysis::Token;
    using TokenKind = analysis::TokenKind;

    void Take(const Token& token, const analysis::ScanState& before);
    void TakeComment(const Token& token);
    void TakeWord(const Token& token);
    const WordStyles& StylesFor(const Token& token, const SqlVocabulary::Entry& entry,
                                bool behindPoint) const;
    void TakeVariable(const Token& token);
    bool TakeSeparator(const Token& token);
    bool TakeCommand(const Token& token);
    void TakeDelimiter(const Token& token);
    void TakeSetTerm();
    void TakeTerminatorComment(const Token& token);
    void SetTerminator(long start, long end);
    void Feed(const Token& token, analysis::SqlWord word);
    bool IsListed(const Token& token, std::string_view list) const;
    bool EqualsWord(const Token& token, std::string_view word) const;
    std::string_view BytesOf(const Token& token);
    long EndOfPointedWord(const Token& token) const;
    int QuotedNameStyle(const Token& token, const analysis::ScanState& before) const;
    void Fill(long start, long end, int style);
    void NoteDepth();
    long VisibleDepth() const;
    void FinishLine();
    void OpenFreshBatch();

    const SqlPalette& m_palette;
    const analysis::SqlDialect& m_dialect;
    const SqlVocabulary& m_vocabulary;
    analysis::Terminators& m_terminators;
    analysis::BatchSeparator m_separator;
    SqlFoldOptions m_fold;
    bool m_hasCommands;
    SqlBlocks m_blocks;
    analysis::SqlScanner m_scanner;
    SqlLineState m_state;
    // Of the line
    long m_lineStart = 0;
    long m_lineEnd = 0;
    std::span<char> m_styles;
    long m_startDepth = 0;
    long m_least = 0; // depth
    int m_level = 0;
    bool m_isBlank = true;
    bool m_isClean = true;          // only comments so far
    bool m_freshAtStart = false;    // see SqlBlockState::Batch
    bool m_ignored = false;         // the rest of the line says nothing of statements
    bool m_clientLine = false;      // nothing in it goes on behind its end
    bool m_afterName = false;       // a data type may come
    bool m_afterGlobalName = false; // behind @@name and a point
    long m_blankStart = -1;         // of the blanks behind a name
    std::string m_scratch;
};

} // namespace engine
