// SPDX-License-Identifier: GPL-3.0-or-later
// The text that the pre-processor works on: a control's, read, searched and changed in place, with
// styles that are those of the text as it stands. A read-only text is looked at and not changed.
// Positions count UTF-16 units, lines from 0.
#pragma once

#include <QString>

#include <cstdio>

class CZNCoreEditorControlEx;
class CFindReplaceManager;
class SourceMap;

class ScriptText
{
public:
    enum class Place
    {
        Code,
        Comment,
        String,
    };

    // Both outlive this.
    ScriptText(CZNCoreEditorControlEx& control, SourceMap& map);
    ScriptText(const ScriptText&) = delete;
    ScriptText& operator=(const ScriptText&) = delete;
    ~ScriptText(); // leaves it to the engine to style and fold what changed

    long Length() const;
    int LineOf(long position) const;
    long LineStart(int line) const;
    long LineEnd(int line) const; // before the line's end characters
    QString Text(long from, long to) const;
    QString CommentMarker() const; // empty: the language has none

    // What the styles say of a position. Code in a language whose lexer tells neither.
    Place PlaceOf(long position);
    // Styles again what was changed, up to where the styles agree with those before. Behind the
    // result the places are what they were at the last call; 0: all of them are.
    long SettleStyles();

    // The search: downwards, without wrapping.
    void SearchFor(const QString& what, bool matchCase, bool wholeWord);
    long Find(long from, long to) const; // -1 if there is none
    // Replaces within as many units from position on as `what` has. Leaves `what` behind to be
    // searched for. The number of replacements: a shorter text in its place lets the range grow
    // over what follows, so there may be several.
    int Replace(long position, const QString& what, const QString& with);

    // The length put in.
    long Insert(long position, const QString& text);
    // The open file, which is closed here, below the line that ends here, as one that ends in a
    // lone carriage return. The length put in, and whether all of the file is.
    long InsertFileBehind(long lineEnd, const QString& markerInFront, const QString& path,
                          std::FILE* file, bool& isWhole);

    unsigned Changes() const { return m_changes; } // counts up with each

private:
    int ReplaceAllFrom(long start, long length, const QString& with);
    void StyleTo(long position);
    long BehindLines(long position);
    bool IsBlankLine(int line) const;
    void StyleBlock(long to);
    void Changed(long at, long removed, long inserted);

    CZNCoreEditorControlEx& m_control;
    CFindReplaceManager& m_finder;
    SourceMap& m_map;
    bool m_isReadOnly;
    int m_lexer;
    bool m_tellsPlaces;
    unsigned m_changes = 0;
    long m_firstChange = -1;

    // Styles are right before m_styled; those from m_stale to m_known are those of the text as it
    // was, which are right if the styles before them come out as they were.
    long m_styled;
    long m_stale;
    long m_known;
    long m_restyled = 0; // what was styled again since SettleStyles ends here
    long m_block;

    // What BehindLines has found last, both as units from the text's end.
    long m_below = -1; // the start of the line below; -1: nothing
    long m_behindBlank = 0;
};
