// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/ScriptText.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/base/Units.h"
#include "preprocess/language/SourceMap.h"
#include "preprocess/language/Styles.h"
#include "search/FindReplaceManager.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int kContainerLexer = 0; // the host styles the text
constexpr int kAllStyleBits = 0x1F;
constexpr long kSmallBlock = 128; // a change is mostly over within two lines
constexpr long kLargeBlock = 1024 * 1024;
constexpr long kPeek = 64; // units read to tell a blank line

// Where a place is after a change.
long Moved(long place, long at, long removed, long inserted)
{
    return place > at ? std::max(at, place - removed) + inserted : place;
}

} // namespace

ScriptText::ScriptText(CZNCoreEditorControlEx& control, SourceMap& map)
    : m_control(control), m_finder(*zncoreeditor::GetFindReplaceManager()), m_map(map),
      m_isReadOnly(control.GetReadOnly(1) != 0), m_lexer(control.GetLexer(1)),
      m_tellsPlaces(TellsCommentsAndStrings(m_lexer)), m_styled(control.GetEndStyled(1)),
      m_stale(m_styled), m_known(m_styled), m_block(kSmallBlock)
{}

ScriptText::~ScriptText()
{
    if (m_firstChange < 0)
        return;
    const long line = LineStart(LineOf(m_firstChange));
    if (m_control.GetEndStyled(1) > line)
        m_control.StartStyling(line, kAllStyleBits, 1);
}

long ScriptText::Length() const
{
    return m_control.GetLength(1);
}

int ScriptText::LineOf(long position) const
{
    return m_control.LineFromPosition(position, 1);
}

long ScriptText::LineStart(int line) const
{
    return m_control.PositionFromLine(line, 1);
}

long ScriptText::LineEnd(int line) const
{
    return m_control.GetLineEndPosition(line, 1);
}

QString ScriptText::Text(long from, long to) const
{
    if (to <= from)
        return QString();
    QString text(to - from, Qt::Uninitialized); // a QString has room for the terminator
    m_control.GetRange(static_cast<int>(from), static_cast<int>(to),
                       reinterpret_cast<char16_t*>(text.data()));
    return text;
}

QString ScriptText::CommentMarker() const
{
    return m_control.GetSingleLineComment(0);
}

ScriptText::Place ScriptText::PlaceOf(long position)
{
    if (!m_tellsPlaces)
        return Place::Code;
    StyleTo(position);
    const int style = m_control.GetStyleAt(position, 1);
    if (IsCommentStyle(m_lexer, style))
        return Place::Comment;
    return IsStringStyle(m_lexer, style) ? Place::String : Place::Code;
}

void ScriptText::StyleTo(long position)
{
    m_block = kSmallBlock;
    while (m_styled <= position && m_styled < Length())
        StyleBlock(std::max(position + 1, m_styled + m_block));
}

long ScriptText::SettleStyles()
{
    if (m_tellsPlaces && m_styled < m_known) {
        m_block = kSmallBlock;
        while (m_styled < m_known && m_styled < Length())
            StyleBlock(std::max(m_stale, m_styled) + m_block);
    }
    return std::exchange(m_restyled, 0);
}

// Behind the line of a position and the blank ones below it: an engine that is asked for the styles
// of the position goes as far, and into the line behind, to tell whether the batch goes on. A line
// of many uses asks for each of them, with the same lines below it.
long ScriptText::BehindLines(long position)
{
    const long length = Length();
    const int lines = m_control.GetLineCount(1);
    int line = LineOf(position) + 1;
    if (line >= lines)
        return length;
    const long below = length - LineStart(line);
    if (below != m_below) {
        m_below = below;
        while (line < lines && IsBlankLine(line))
            ++line;
        m_behindBlank = line < lines ? length - LineStart(line) : 0;
    }
    return length - m_behindBlank;
}

bool ScriptText::IsBlankLine(int line) const
{
    const long start = LineStart(line);
    return Text(start, std::min(LineEnd(line), start + kPeek)).trimmed().isEmpty();
}

// From where the engine's styles end, which it keeps true through edits: behind a change it goes on
// to the old end once a place has the state that it had before.
void ScriptText::StyleBlock(long to)
{
    const bool isHosts = m_lexer == kContainerLexer;
    const long from = isHosts ? m_styled : m_control.GetEndStyled(1);
    const long lines = BehindLines(std::min(to, Length()));
    const long end = isHosts ? lines : std::min(to, Length());
    if (m_styled < m_known)
        m_restyled = std::max(m_restyled, lines);
    m_control.Colorize(from, end, 1);
    m_styled = isHosts ? end : std::max(end, static_cast<long>(m_control.GetEndStyled(1)));
    m_block = std::min(m_block * 2, kLargeBlock);
    if (m_styled >= m_known)
        m_known = m_stale = m_styled;
}

void ScriptText::Changed(long at, long removed, long inserted)
{
    ++m_changes;
    if (Length() - at - inserted < m_below)
        m_below = -1;
    m_firstChange = m_firstChange < 0 ? at : std::min(m_firstChange, at);
    m_restyled = m_lexer == kContainerLexer ? Length() : Moved(m_restyled, at, removed, inserted);
    if (at >= m_known)
        return;
    const bool wasStale = m_styled < m_known;
    m_known = Moved(m_known, at, removed, inserted);
    m_stale =
        wasStale ? std::max(Moved(m_stale, at, removed, inserted), at + inserted) : at + inserted;
    m_styled = std::min(m_styled, at);
}

void ScriptText::SearchFor(const QString& what, bool matchCase, bool wholeWord)
{
    m_finder.SetDown(true);
    m_finder.SetMatchCase(matchCase);
    m_finder.SetWholeWord(wholeWord);
    m_finder.SetWrap(false);
    m_finder.SetFind(what);
}

long ScriptText::Find(long from, long to) const
{
    return m_finder.FindInRange(&m_control, static_cast<int>(from), static_cast<int>(to), true);
}

int ScriptText::Replace(long position, const QString& what, const QString& with)
{
    if (m_isReadOnly)
        return 0;
    const long length = Length();
    const int lines = m_control.GetLineCount(1);
    m_finder.SetFind(what);
    m_finder.SetReplace(with);
    m_finder.SetWholeWord(false);
    m_finder.SetMatchCase(true);
    const int count = ReplaceAllFrom(position, what.size(), with);
    if (count > 0) {
        const long reach =
            std::min<long>(count == 1 ? what.size() : 2 * what.size(), length - position);
        Changed(position, reach, reach + Length() - length);
        m_map.InsertExpansion(LineOf(position), m_control.GetLineCount(1) - lines);
    }
    return count;
}

// What the finder does in a selection, with the same end, and with the options that whoever
// searched last has left it. The finder shows the caret after each, which lays out the line, in
// seconds for one of megabytes.
int ScriptText::ReplaceAllFrom(long start, long length, const QString& with)
{
    const bool isExpression = m_finder.GetRegExp();
    const QString text =
        m_finder.GetTransform() ? CFindReplaceManager::DecodeEscapes(Units(with)) : with;
    const int units = static_cast<int>(text.size());
    long end = start + length;
    int count = 0;
    m_control.SetDoingReplaceAll(true, 1);
    m_control.BeginUndoAction(1);
    long hit = Find(start, end);
    while (hit >= 0) {
        ++count;
        const long taken = m_control.GetTargetEnd(1) - m_control.GetTargetStart(1);
        const long put = isExpression ? m_control.ReplaceTargetRE(units, Units(text), 1)
                                      : m_control.ReplaceTarget(units, Units(text), 1);
        end += std::labs(put - taken);
        hit = Find(hit + put, std::min(end, Length()));
    }
    m_control.EndUndoAction(1);
    m_control.SetDoingReplaceAll(false, 1);
    m_control.SetAnchor(start, 1);
    m_control.SetCurrentPos(std::min(end, Length()), 1);
    return count;
}

long ScriptText::Insert(long position, const QString& text)
{
    if (m_isReadOnly)
        return 0;
    m_control.InsertText(position, Units(text), 1);
    Changed(position, 0, text.size());
    return text.size();
}

// A file that begins with a line feed completes the carriage return to one line end; its first
// line is then not there.
long ScriptText::InsertFileBehind(long lineEnd, const QString& markerInFront, const QString& path,
                                  std::FILE* file, bool& isWhole)
{
    isWhole = true;
    if (m_isReadOnly) {
        std::fclose(file);
        return 0;
    }
    const long length = Length();
    const int line = LineOf(lineEnd);
    const int lines = m_control.GetLineCount(1);
    const bool modified = m_control.GetModified();
    m_control.InsertText(lineEnd, u"\r", 1);
    Insert(LineStart(line), markerInFront);
    const long behind = lineEnd + 1 + markerInFront.size();
    m_control.GotoPos(behind, 1);
    const long before = Length();
    // The script's own file keeps its encoding, whatever the included one is in.
    const int encoding = m_control.GetEncoding();
    const bool hasMark = m_control.GetWriteEncodingSig();
    isWhole = m_control.InsertFile(file, FileEncodeConverter::encUnknown);
    m_control.SetEncoding(encoding);
    m_control.SetWriteEncodingSig(hasMark);
    m_control.SetModified(modified);
    const long inserted = Length() - before;
    Changed(behind - 1, 0, inserted + 1);
    const bool joins = inserted > 0 && m_control.GetCharAt(behind, 1) == u'\n';
    m_map.InsertFile(line, m_control.GetLineCount(1) - lines, path, joins ? 1 : 0);
    return Length() - length;
}
