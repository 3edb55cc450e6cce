#include "preprocess/ScriptText.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/Units.h"
#include "preprocess/language/SourceMap.h"
#include "preprocess/language/Styles.h"
#include "search/FindReplaceManager.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace {

constexpr int kContainerLexer = 0; // the host styles the text
constexpr const char16_t* kDialectProperty = u"sql.dialect";
constexpr int kAllStyleBits = 0x1F;
constexpr long kSmallBlock = 128; // a change is mostly over within two lines
constexpr long kLargeBlock = 1024 * 1024;

constexpr long kPeek = 64;         // units read to tell whether a line has begun
constexpr long kLongestName = 128; // with its points, of those that the lexers know

bool IsApart(QChar unit)
{
    return unit != u'\0' && QStringView(u" \t.,;()=").contains(unit);
}

bool IsQuote(QChar unit)
{
    return unit == u'\'' || unit == u'"';
}

bool IsWordUnit(QChar unit)
{
    return unit.unicode() < 0x80 && (unit.isLetterOrNumber() || unit == u'_');
}

bool IsWord(const QString& text)
{
    return std::all_of(text.begin(), text.end(), IsWordUnit);
}

// Ends no quoted string, and no variable in it has to be told from one outside.
bool CanBeQuoted(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar unit) {
        return IsQuote(unit) || unit < u' ' || unit == u'\\' || unit == u'&';
    });
}

// Whether a script may have statements end with a text of its choice, which may hold a quote.
bool HasDelimiters(CZNCoreEditorControlEx& control, int lexer)
{
    constexpr int kDb2 = 4, kGeneric = 9, kDb2ForZOs = 10, kMySql = 14, kInterBase = 15;
    if (lexer != kGeneric) // its dialects are told apart by a property
        return lexer == kDb2 || lexer == kDb2ForZOs || lexer == kMySql || lexer == kInterBase;
    std::array<char16_t, 32> name{};
    const int length = control.GetProperty(kDialectProperty, nullptr, 1);
    if (length >= static_cast<int>(name.size()))
        return true;
    control.GetProperty(kDialectProperty, name.data(), 1);
    const QStringView dialect(name.data());
    return !dialect.isEmpty() && dialect != u"sql" && dialect != u"postgresql" &&
           dialect != u"sqlite";
}

// Where a place is after a change.
long Moved(long place, long at, long removed, long inserted)
{
    return place > at ? std::max(at, place - removed) + inserted : place;
}

} // namespace

ScriptText::ScriptText(CZNCoreEditorControlEx& control, SourceMap& map)
    : m_control(control), m_finder(*zncoreeditor::GetFindReplaceManager()), m_map(map),
      m_lexer(control.GetLexer(1)), m_tellsPlaces(TellsCommentsAndStrings(m_lexer)),
      m_keepsLines(m_tellsPlaces && m_lexer != kContainerLexer && !HasDelimiters(control, m_lexer)),
      m_styled(control.GetEndStyled(1)), m_stale(m_styled), m_known(m_styled), m_block(kSmallBlock)
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
    if (position >= m_sureEnd)
        StyleTo(position);
    return StyledPlaceOf(position);
}

ScriptText::Place ScriptText::StyledPlaceOf(long position) const
{
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

// From where the engine's styles end, which it keeps true through edits: behind a change it goes on
// to the old end once a line begins as it did before.
void ScriptText::StyleBlock(long to)
{
    const bool isHosts = m_lexer == kContainerLexer;
    const long from = isHosts ? m_styled : m_control.GetEndStyled(1);
    long end = LineStart(LineOf(std::min(to, Length())) + 1);
    if (end <= from || end > Length())
        end = Length();
    if (m_styled < m_known)
        m_restyled = std::max(m_restyled, end);
    m_control.Colorize(from, end, 1);
    m_styled = isHosts ? end : std::max(end, static_cast<long>(m_control.GetEndStyled(1)));
    m_block = std::min(m_block * 2, kLargeBlock);
    if (m_styled >= m_known)
        m_known = m_stale = m_styled;
}

void ScriptText::Changed(long at, long removed, long inserted)
{
    ++m_changes;
    m_sureEnd = -1;
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

// Whether the rest of the line is styled the same with the value in the use's place. A line of many
// uses would else be styled as many times: 88 s for 16,000 uses in 770 KB. The lines below are
// styled again all the same, since words tell where statements begin, and with them the lines that
// are for a client program.
bool ScriptText::KeepsLine(long position, long length, const QString& value) const
{
    if (!m_keepsLines || position < 2 || m_finder.GetRegExp() || m_finder.GetTransform())
        return false;
    const QString around =
        Text(position - 2, position) + Text(position + length, position + length + 1);
    if (around.size() != 3 || !HasBegun(position))
        return false;
    const QChar before = around[1];
    const QChar behind = around[2];
    if (IsApart(before) && IsApart(behind) && IsWord(value))
        return behind != u'.' || !MayPrefixAString(position + length);
    // Directly in quotes of which the first begins the string, without a prefix.
    return IsQuote(before) && behind == before && CanBeQuoted(value) && IsApart(around[0]) &&
           StyledPlaceOf(position) == Place::String &&
           StyledPlaceOf(position - 1) == Place::String &&
           StyledPlaceOf(position - 2) == Place::Code;
}

// Whether the line has something in front of the position, and that is no comment: its first word
// may make it a client program's, as REM does.
bool ScriptText::HasBegun(long position) const
{
    const long start = LineStart(LineOf(position));
    const QString front = Text(start, std::min(position, start + kPeek));
    const auto* const first =
        std::find_if_not(front.begin(), front.end(), [](QChar unit) { return unit <= u' '; });
    return first != front.end() && StyledPlaceOf(start + (first - front.begin())) != Place::Comment;
}

// Whether the names that points join from here on may end in the q of q'...': a lexer that knows
// them as one name would not see the prefix.
bool ScriptText::MayPrefixAString(long position) const
{
    const QString names = Text(position, std::min(Length(), position + kLongestName));
    const auto* const end = std::find_if_not(
        names.begin(), names.end(), [](QChar unit) { return unit == u'.' || IsWordUnit(unit); });
    return end == names.end() || !IsApart(*end);
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
    const long length = Length();
    const int lines = m_control.GetLineCount(1);
    const bool keepsLine = KeepsLine(position, what.size(), with);
    m_finder.SetFind(what);
    m_finder.SetReplace(with);
    m_finder.SetWholeWord(false);
    m_finder.SetMatchCase(true);
    const int count = ReplaceAllFrom(position, what.size(), with);
    if (count > 0) {
        const long reach =
            std::min<long>(count == 1 ? what.size() : 2 * what.size(), length - position);
        Changed(position, reach, reach + Length() - length);
        if (count == 1 && keepsLine)
            m_sureEnd = LineEnd(LineOf(position));
        m_map.InsertExpansion(LineOf(position), m_control.GetLineCount(1) - lines);
    }
    return count;
}

// What the finder does in a selection, with the same end. It is left to the finder only where it is
// set to more than plain texts, as whoever searched last may have left it: it shows the caret after
// each, which lays out the line, in seconds for one of megabytes.
int ScriptText::ReplaceAllFrom(long start, long length, const QString& with)
{
    if (m_finder.GetRegExp() || m_finder.GetTransform()) {
        m_control.SetSel(start, start + length, 1);
        return m_finder.ReplaceAll(&m_control, true);
    }
    long end = start + length;
    int count = 0;
    m_control.SetDoingReplaceAll(true, 1);
    m_control.BeginUndoAction(1);
    long hit = Find(start, end);
    while (hit >= 0) {
        ++count;
        const long taken = m_control.GetTargetEnd(1) - m_control.GetTargetStart(1);
        const long put = m_control.ReplaceTarget(static_cast<int>(with.size()), Units(with), 1);
        end += std::labs(put - taken);
        hit = Find(hit + put, std::min(end, Length()));
    }
    m_control.EndUndoAction(1);
    m_control.SetDoingReplaceAll(false, 1);
    m_control.SetAnchor(start, 1);
    m_control.SetCurrentPos(std::min(end, Length()), 1);
    return count;
}

void ScriptText::Insert(long position, const QString& text)
{
    m_control.InsertText(position, Units(text), 1);
    Changed(position, 0, text.size());
}

// A file that begins with a line feed completes the carriage return to one line end; its first
// line is then not there.
long ScriptText::InsertFileBehind(long lineEnd, const QString& markerInFront, const QString& path)
{
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
    m_control.InsertFile(Units(path), FileEncodeConverter::encUnknown);
    m_control.SetEncoding(encoding);
    m_control.SetWriteEncodingSig(hasMark);
    m_control.SetModified(modified);
    const long inserted = Length() - before;
    Changed(behind - 1, 0, inserted + 1);
    const bool joins = inserted > 0 && m_control.GetCharAt(behind, 1) == u'\n';
    m_map.InsertFile(line, m_control.GetLineCount(1) - lines, path, joins ? 1 : 0);
    return Length() - length;
}
