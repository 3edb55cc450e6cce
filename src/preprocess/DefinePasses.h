// SPDX-License-Identifier: GPL-3.0-or-later
// The passes of one run that read definitions and replace variables. Each walks the hits of "&&"
// from a place to the text's end.
//
// A run makes a pass for each included file, over everything below it. To walk all of that each
// time would take the square of the text, so a pass visits only what can come out differently: the
// fresh text, lines that the pass before changed, definitions that still wait for a value, and
// whatever is styled otherwise than before. Elsewhere a hit stands in a comment, or is a use that
// nothing can replace any more: a name that was looked up in vain can never get a value.
#pragma once

#include "preprocess/ScriptText.h"
#include "preprocess/language/Directives.h"

#include <QString>

#include <optional>
#include <vector>

class VariableTable;

class DefinePasses
{
public:
    // All outlive this; directivesFound is set when a definition is seen.
    DefinePasses(ScriptText& text, VariableTable& table, QString word, bool& directivesFound);

    // One pass. What stands from start up to freshEnd has not been seen by the pass before.
    void Run(long start, long freshEnd);

private:
    struct Range
    {
        long from;
        long to;
    };
    using Ranges = std::vector<Range>;
    struct Line // as it was when it was last read
    {
        long start = -1;
        unsigned changes = 0;
        QString text; // from its first character that is no blank
        bool isDefinition = false;
    };

    void Pass(long start, long freshEnd);
    bool DefinitionStands(long start, long freshEnd);
    Ranges TakeRanges(long start, long freshEnd);
    bool Visit(Range range);
    bool VisitHit(long hit);
    bool VisitDefinition(long hit, long lineStart, long lineEnd);
    void VisitUse(long hit, long lineEnd);
    bool ResolveReference(long hit, const directive::Definition& definition);
    void CommentOut(long lineStart);
    void Replace(long hit, const QString& name, const QString& value);

    bool IsDefinition(long lineStart, long lineEnd);
    const QString& ReadLine(long lineStart, long lineEnd);
    void EnterLine(long lineStart);
    void LeaveLine();
    void KeepForNextPass();
    long FromEnd(long position) const { return m_text.Length() - position; }

    ScriptText& m_text;
    VariableTable& m_table;
    QString m_word;
    bool& m_directivesFound;

    QString m_marker;   // of comments
    QString m_previous; // the definition that was visited last in this pass
    Line m_line;
    long m_next = 0;          // where the search goes on
    long m_commentLength = 0; // what the hit's visit put in front of it
    long m_lineStart = -1;    // of the last visited
    bool m_lineChanged = false;

    // From the text's front, where what a pass does later moves nothing.
    Ranges m_changed; // lines that the next pass has to visit
    // From the text's end, where nothing that comes before moves anything.
    Ranges m_again;
    std::optional<long> m_unseen;   // this much at the end no pass has seen; nothing: all
    std::optional<long> m_wordFree; // this much at the end does not hold the word
    std::optional<long> m_wordAt;   // this far from the end the word stands
};
