// SPDX-License-Identifier: GPL-3.0-or-later
// Colouring: the language of a document and, if it is a dialect of SQL, the styles, line states and
// fold levels that it gives the text. Other languages are the stock engine's.
//
// The stock engine knows how far the text is styled from its start. Behind an edit there is mostly
// a tail that is styled too and only waits for the text in front of it: once a place of the tail is
// reached in the state that it was styled from, all of the tail stands. Such places are the starts
// of lines and, some hundred bytes apart, places inside long lines; at them the walk also ends and
// is taken up again.
#pragma once

#include "engine/colours/AlikeStyles.h"
#include "engine/colours/FoldLevels.h"
#include "engine/colours/SqlPlaces.h"

#include <optional>

namespace engine {

class Colouring
{
public:
    // This engine's lexer number.
    int Lexer() const { return m_lexer; }
    bool IsSql() const { return m_dialect != nullptr; }

    void SetLexer(const Raw& raw, int lexer);
    // After the stock engine was told of a lexer by its name.
    void TakeStockLexer(const Raw& raw);
    void SetKeyWords(const Raw& raw, int set, std::string_view words);
    // After a lexer property has changed in the stock engine.
    void ReadProperties(const Raw& raw);
    // What batches are parted by, whose lines fold; empty: the dialect's own.
    void SetSeparator(const Raw& raw, std::optional<analysis::BatchSeparator> separator);

    // Before text goes in or out of a document of so many bytes. Every window that shows it may say
    // so.
    void InsertionBegins(const Raw& raw, long length, long position, long bytes);
    void DeletionBegins(const Raw& raw, long length, long position, long bytes);

    // Styles up to this place at least, where the document's end of styles is before it.
    void StyleTo(const Raw& raw, long position);

    // Styles from the line of start on, whatever was there.
    void Colorize(const Raw& raw, long start, long end);

    // All of the text is to be styled afresh, if it is SQL.
    void Restart(const Raw& raw);

    // Gives a stretch of a long line these styles, by turns with their alikes. How far the text is
    // styled stays.
    void LayAlike(const Raw& raw, long start, std::span<char> styles);
    const AlikeStyles& Alike() const { return m_alike; }

    // What stands behind the end of styles is somebody else's.
    void DropTail() { m_tail = {}; }

private:
    // What is styled by the states of its places, in bytes. Empty: nothing.
    struct Range
    {
        long start = 0;
        long end = 0;
        bool IsEmpty() const { return start >= end; }
    };

    // What a walk over some lines has made. It may start and end inside of a line.
    struct Lines
    {
        long first = 0; // line
        long start = 0; // byte
        std::vector<char> styles;
        std::vector<int> states;              // at the start of the line behind each
        std::vector<SqlPlaces::Place> places; // inside of them
        FoldLevels folds;
        bool agrees = false;     // with what the tail was styled from
        bool endsInLine = false; // at the last place
        bool hasLongLine = false;

        long End() const { return start + static_cast<long>(styles.size()); }
    };

    void Become(const Raw& raw, int lexer);
    void ChooseDialect(const Raw& raw);
    bool IsRepeated(long length);
    long TakeEnd(const Raw& raw);
    long LastPlace(const Raw& raw, long position) const;
    void EditBegins(const Raw& raw, long length, long start, long end);
    void EditEnds(const Raw& raw);
    void LeaveSomeToStyle(const Raw& raw, long position);
    bool StyleChunk(const Raw& raw, long position);
    void StartWalk(const Raw& raw, SqlStyler& styler);
    void Walk(const Raw& raw, SqlStyler& styler, long position);
    bool WalkLine(const Raw& raw, SqlStyler& styler, long next, long position);
    long StopBehind(const Raw& raw, long position, long step) const;
    bool IsOfTail(const SqlPlaces::Place& place, long length) const;
    bool ReachesTail(const Raw& raw, long line, long start, const SqlLineState& state,
                     int number) const;
    bool TurnsFirstBatch(const Raw& raw);
    const SqlBlockState& BlocksBehind() const;
    bool Apply(const Raw& raw);
    void LayAlikeInLongLines(const Raw& raw);

    int m_lexer = 0;
    const analysis::SqlDialect* m_dialect = nullptr; // null: not SQL
    std::optional<analysis::BatchSeparator> m_separator;
    SqlVocabulary m_vocabulary;
    analysis::Terminator m_terminator; // at the text's start
    SqlLineStates m_states;
    bool m_folds = false;
    SqlFoldOptions m_foldOptions;
    long m_end = 0; // of the styles, as this class has left it
    Range m_tail;
    AlikeStyles m_alike;
    SqlPlaces m_places;      // those behind the end of styles are the tail's
    long m_editEnd = 0;      // of the edit that was noted last
    long m_editLines = -1;   // of the text before it; -1: it has been looked at
    long m_notedLength = -1; // of the text, when an edit was noted last
    unsigned m_edits = 0;
    bool m_running = false;
    Lines m_lines;
};

} // namespace engine
