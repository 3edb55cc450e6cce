// SPDX-License-Identifier: GPL-3.0-or-later
// SqlStyler: the styles and the fold levels of an SQL text, line by line in one walk, long lines in
// parts. It knows the text and the state at the place where it starts, and nothing of windows: who
// uses it keeps the states.
#pragma once

#include "engine/analysis/BatchSeparator.h"
#include "engine/analysis/StatementState.h"
#include "engine/colours/SqlFolds.h"
#include "engine/colours/SqlPalette.h"
#include "engine/colours/SqlVocabulary.h"

#include <span>
#include <vector>

namespace engine {

// What a place at the start of a line owes to the text before it.
struct SqlLineState
{
    analysis::ScanState scan;
    SqlBlockState blocks;
    bool docComment = false;    // the block comment under way is one
    bool clientLine = false;    // the line before was the client's and goes on
    std::uint8_t restStyle = 0; // of the client's text under way
    bool bodyMayCome = false;   // behind AS and DO
    bool inBody = false;        // of a routine, between tags of dollars
    std::uint64_t bodyTag = 0;  // its hash

    bool operator==(const SqlLineState&) const = default;
    std::uint64_t Hash() const;
};

// What a place inside a line owes to the line besides.
struct SqlLinePart
{
    long startDepth = 0;
    long leastDepth = 0;
    std::uint8_t restStyle = 0; // of the client's text that goes on to the line's end
    bool isBlank = true;
    bool isClean = true;          // only comments so far
    bool freshAtStart = false;    // see SqlBlockState::Batch
    bool ignored = false;         // the rest of the line says nothing of statements
    bool directive = false;       // the line is the pre-processor's
    bool clientLine = false;      // nothing in it goes on behind its end
    bool afterName = false;       // a data type may come
    bool afterGlobalName = false; // behind @@name and a point

    bool operator==(const SqlLinePart&) const = default;
};

struct SqlPlaceState
{
    SqlLineState state;
    SqlLinePart line;

    bool operator==(const SqlPlaceState&) const = default;
};

class SqlStyler
{
public:
    // Dialect and vocabulary are the caller's, and outlive the styler.
    SqlStyler(int lexer, const analysis::ScriptRules& rules, const SqlVocabulary& vocabulary,
              SqlFoldOptions fold);

    // What stands in front of a place was styled by at most so many bytes from the place on.
    static constexpr long kReach = 2 * analysis::kLookAhead;

    // Goes on at a line's start, or inside of a line. The styles are those from the position on, a
    // byte for each of the text's. Text and styles stay as they are until the next call.
    void Start(analysis::TextSpans text, long position, const SqlLineState& state,
               std::vector<char>& styles);
    void Resume(analysis::TextSpans text, long position, const SqlPlaceState& place,
                std::vector<char>& styles);

    // Styles to the start of the next line, or the text's end; of a long line, to some bytes behind
    // a stop. False: the line is not done.
    bool Part(long next, long stop);

    // Inside a line, behind a part of it. A styler can go on at a place if nothing behind it
    // changes the styles in front.
    bool IsPlace() const;
    SqlPlaceState Place() const;

    // Of the line that has just been styled: its fold level, as if its batch had no other line
    // (see FoldLevels).
    int Level() const { return m_level; }

    // At the start of the next line.
    const SqlLineState& State() const { return m_state; }

private:
    using Token = analysis::Token;
    using TokenKind = analysis::TokenKind;

    void Take(const Token& token, const analysis::ScanState& before);
    void TakeComment(const Token& token);
    bool TakeBodyTag(const Token& token);
    bool CutAtBodyEnd(Token& token);
    long DirectiveWord(const Token& token) const;
    bool TakeDirective(const Token& token);
    void TakeWord(const Token& token);
    const SqlPalette::ByWordSets& StylesFor(const Token& token, const SqlVocabulary::Entry& entry,
                                            bool behindPoint) const;
    void TakeVariable(const Token& token);
    bool TakeSeparator(const Token& token);
    bool TakeClient(const Token& token, bool isFirst);
    void TakeClientLine(const Token& token, const analysis::ClientLine& line, bool isInside);
    void TakeClientText(const Token& token, const analysis::ClientLine& line);
    void TakeWhatIsBehind();
    void SetTerminator(const analysis::TerminatorChange& change);
    void Feed(const Token& token, analysis::SqlWord word);
    std::string_view BytesOf(const Token& token);
    long EndOfPointedWord(const Token& token) const;
    int QuotedNameStyle(const Token& token, const analysis::ScanState& before) const;
    void Fill(long start, long end, int style);
    void NoteDepth();
    long VisibleDepth() const;
    void BeginLine();
    void FinishLine();
    bool EndsInDash() const;
    void OpenFreshBatch();

    const SqlPalette& m_palette;
    const analysis::SqlDialect& m_dialect;
    const SqlVocabulary& m_vocabulary;
    analysis::BatchSeparator m_separator;
    SqlFoldOptions m_fold;
    SqlBlocks m_blocks;
    analysis::SqlScanner m_scanner;
    SqlLineState m_state;
    SqlLinePart m_line;
    bool m_inLine = false;
    std::vector<char>* m_buffer = nullptr;
    std::span<char> m_styles; // the buffer's
    long m_start = 0;         // of the styles
    long m_lineEnd = 0;
    long m_stop = 0;        // of the part
    long m_readTo = 0;      // by whom looks farther than kReach
    long m_blankStart = -1; // of the blanks behind a name
    long m_blankEnd = -1;   // of the last blanks
    int m_level = 0;
    std::string m_scratch;
};

} // namespace engine
