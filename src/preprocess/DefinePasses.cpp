// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/DefinePasses.h"

#include "preprocess/language/VariableTable.h"

#include <algorithm>

namespace {

const QString kSigil = QStringLiteral("&&");
constexpr std::size_t kMostRanges = 16 * 1024; // neighbours are joined beyond, to bound the memory
constexpr long kPeek = 64;                     // units read to tell a line or a name

} // namespace

DefinePasses::DefinePasses(ScriptText& text, VariableTable& table, QString word,
                           bool& directivesFound)
    : m_text(text), m_table(table), m_word(std::move(word)), m_directivesFound(directivesFound)
{}

void DefinePasses::Run(long start, long freshEnd)
{
    m_text.SearchFor(m_word, true, false);
    if (m_table.IsEmpty() && !DefinitionStands(start, freshEnd))
        m_again.insert(m_again.begin(), {FromEnd(start), FromEnd(freshEnd)});
    else
        Pass(start, freshEnd);
}

void DefinePasses::Pass(long start, long freshEnd)
{
    m_text.SearchFor(kSigil, true, false);
    m_marker = m_text.CommentMarker();
    m_previous.clear();
    m_line = Line();
    m_next = start;
    m_changed.clear();
    for (const Range& range : TakeRanges(start, freshEnd)) {
        if (Visit(range))
            continue;
        m_unseen = FromEnd(m_lineStart);
        m_lineChanged = false;
        break;
    }
    LeaveLine();
    KeepForNextPass();
    // Here, where it is near: the next change comes far in front of the last. Behind that no hit
    // was left, so nothing has to be visited for it.
    m_text.SettleStyles();
}

// Asked only while the table is empty, so no pass has changed the text yet.
bool DefinePasses::DefinitionStands(long start, long freshEnd)
{
    const long length = m_text.Length();
    if (m_wordAt && length - *m_wordAt >= start)
        return true;
    long end = length;
    if (m_wordFree)
        end = std::min<long>(length, std::max(freshEnd, length - *m_wordFree) + m_word.size());
    const long found = m_text.Find(start, end);
    m_wordFree = length - start;
    m_wordAt.reset();
    if (found >= 0) {
        m_wordFree.reset();
        m_wordAt = length - found;
    }
    return found >= 0;
}

// What this pass has to visit, in order; the list for the next one begins empty.
DefinePasses::Ranges DefinePasses::TakeRanges(long start, long freshEnd)
{
    const long length = m_text.Length();
    if (!m_unseen) {
        m_again.clear();
        m_unseen = 0;
        return {{length - start, 0}};
    }
    const long settled = std::max(freshEnd, m_text.SettleStyles());
    Ranges ranges{{length - start, length - m_text.LineEnd(m_text.LineOf(settled))}};
    const auto add = [&ranges](const Range& range) {
        if (range.from >= ranges.back().to) // no hit may fall between two that touch
            ranges.back().to = std::min(ranges.back().to, range.to);
        else if (range.to < range.from)
            ranges.push_back(range);
    };
    for (const Range& range : m_again)
        add(range);
    add({*m_unseen, 0});
    m_again.clear();
    m_unseen = 0;
    return ranges;
}

// False if a definition of another form ends the pass.
bool DefinePasses::Visit(Range range)
{
    m_next = std::max(m_next, m_text.Length() - range.from);
    for (;;) {
        const long end = m_text.Length() - range.to;
        const long hit = m_next < end ? m_text.Find(m_next, end) : -1;
        if (hit >= 0) {
            if (!VisitHit(hit))
                return false;
            continue;
        }
        // What was changed may have turned comments into text, or text into comments, below.
        const long settled = range.to > 0 ? m_text.SettleStyles() : 0;
        if (settled <= end)
            return true;
        range.to = FromEnd(m_text.LineEnd(m_text.LineOf(settled)));
    }
}

bool DefinePasses::VisitHit(long hit)
{
    const int line = m_text.LineOf(hit);
    const long lineStart = m_text.LineStart(line);
    const long lineEnd = m_text.LineEnd(line);
    EnterLine(lineStart);
    m_commentLength = 0;
    const ScriptText::Place place = m_text.PlaceOf(hit);
    if (place == ScriptText::Place::Code && IsDefinition(lineStart, lineEnd)) {
        if (!VisitDefinition(hit, lineStart, lineEnd))
            return false;
    } else if (place != ScriptText::Place::Comment) {
        VisitUse(hit, lineEnd);
    }
    m_next = hit + m_commentLength + kSigil.size();
    return true;
}

bool DefinePasses::VisitDefinition(long hit, long lineStart, long lineEnd)
{
    const QString line = ReadLine(lineStart, lineEnd);
    const qsizetype comment = line.indexOf(m_marker);
    m_directivesFound = true;
    const auto definition = directive::ReadDefinition(
        QStringView(line).left(comment < 0 ? line.size() : comment), m_word);
    if (!definition)
        return false;
    m_lineChanged = true; // or it waits, and is to be visited again all the same
    const bool isSame = line.constData() == m_previous.constData() ||
                        line.compare(m_previous, Qt::CaseInsensitive) == 0;
    bool isFinished = false;
    if (isSame) {
        isFinished = ResolveReference(hit, *definition);
    } else if (!definition->value.contains(kSigil)) {
        m_table.Insert(definition->name, definition->value);
        isFinished = true;
    }
    if (isFinished)
        CommentOut(lineStart);
    m_previous = ReadLine(lineStart, m_text.LineEnd(m_text.LineOf(lineStart)));
    return true;
}

// Replaces the first variable in the definition's value. True if that was all it waited for; then
// it is in the table.
bool DefinePasses::ResolveReference(long hit, const directive::Definition& definition)
{
    const auto reference = directive::FirstReference(definition.value);
    if (!reference)
        return false;
    const QString value = m_table.Lookup(reference->name);
    if (value.isEmpty())
        return false;
    Replace(hit, reference->name, value);
    if (reference->pieces == 1)
        m_table.Insert(definition.name, value);
    else if (reference->pieces == 2 && !reference->leads)
        m_table.Insert(definition.name, reference->prefix + value);
    else
        return false;
    return true;
}

void DefinePasses::CommentOut(long lineStart)
{
    m_commentLength = m_text.Insert(lineStart, m_marker);
}

// A use may stand in a string.
void DefinePasses::VisitUse(long hit, long lineEnd)
{
    QString word = kSigil;
    for (bool goesOn = true; goesOn;) {
        const long from = hit + word.size();
        const QString piece = m_text.Text(from, std::min(lineEnd, from + kPeek));
        const auto end = std::find_if_not(piece.begin(), piece.end(), [](QChar unit) {
            return directive::IsNameCharacter(unit.unicode());
        });
        word.append(piece.constData(), end - piece.begin());
        goesOn = !piece.isEmpty() && end == piece.end();
    }
    if (word.size() == kSigil.size())
        return;
    if (const auto variable = m_table.LongestDefined(word))
        Replace(hit, variable->name, variable->value);
}

void DefinePasses::Replace(long hit, const QString& name, const QString& value)
{
    const int lastLine = m_text.LineOf(std::min<long>(m_text.Length(), hit + 2 * name.size()));
    const bool maySpread = lastLine != m_text.LineOf(hit);
    if (m_text.Replace(hit, name, value) > 1 && maySpread)
        m_changed.push_back({m_lineStart, hit + 2 * (name.size() + value.size())});
    m_text.SearchFor(kSigil, true, false);
    m_lineChanged = true;
}

bool DefinePasses::IsDefinition(long lineStart, long lineEnd)
{
    if (m_line.start == lineStart && m_line.changes == m_text.Changes())
        return m_line.isDefinition;
    const long peekEnd = std::min(lineEnd, lineStart + kPeek);
    const QString front = m_text.Text(lineStart, peekEnd);
    const QStringView trimmed = directive::TrimmedLeft(front);
    const bool tellsAll = peekEnd == lineEnd || trimmed.size() > m_word.size();
    if (tellsAll && !directive::IsDefinition(trimmed.left(m_word.size() + 1), m_word))
        return false;
    ReadLine(lineStart, lineEnd);
    return m_line.isDefinition;
}

// The line from its first character that is no blank on.
const QString& DefinePasses::ReadLine(long lineStart, long lineEnd)
{
    if (m_line.start != lineStart || m_line.changes != m_text.Changes()) {
        const QString text = m_text.Text(lineStart, lineEnd);
        const QStringView trimmed = directive::TrimmedLeft(text);
        const bool isWhole = trimmed.size() == text.size();
        m_line = {lineStart, m_text.Changes(), isWhole ? text : trimmed.toString(),
                  directive::IsDefinition(trimmed, m_word)};
    }
    return m_line.text;
}

void DefinePasses::EnterLine(long lineStart)
{
    if (lineStart == m_lineStart)
        return;
    LeaveLine();
    m_lineStart = lineStart;
}

void DefinePasses::LeaveLine()
{
    if (m_lineChanged)
        m_changed.push_back({m_lineStart, m_text.LineEnd(m_text.LineOf(m_lineStart))});
    m_lineChanged = false;
    m_lineStart = -1;
}

// Neighbours are joined where there are too many: to visit more than need be changes nothing.
void DefinePasses::KeepForNextPass()
{
    const std::size_t step = m_changed.size() / kMostRanges + 1;
    const long length = m_text.Length();
    for (std::size_t i = 0; i < m_changed.size(); i += step) {
        const Range& last = m_changed[std::min(i + step, m_changed.size()) - 1];
        m_again.push_back({length - m_changed[i].from, length - std::min(last.to, length)});
    }
    Ranges().swap(m_changed);
}
