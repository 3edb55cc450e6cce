// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/TextSearch.h"

#include "engine/search/AnchoredText.h"
#include "engine/search/ExpressionTranslator.h"
#include "platform/text/Utf8.h"
#include "search/files/TextCounts.h"

#include <QChar>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

using engine::search::Budget;
namespace flag = engine::search::flag;

enum class WordClass
{
    Space,
    NewLine,
    Word,
    Punctuation,
};

WordClass ClassOf(char32_t character)
{
    if (character < 0x80) {
        if (character == '\r' || character == '\n')
            return WordClass::NewLine;
        if (character <= ' ')
            return WordClass::Space;
        const auto byte = static_cast<unsigned char>(character);
        return std::isalnum(byte) || byte == '_' ? WordClass::Word : WordClass::Punctuation;
    }
    switch (QChar::category(character)) {
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return WordClass::NewLine;
    case QChar::Separator_Space:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return WordClass::Space;
    case QChar::Punctuation_Connector:
    case QChar::Punctuation_Dash:
    case QChar::Punctuation_Open:
    case QChar::Punctuation_Close:
    case QChar::Punctuation_InitialQuote:
    case QChar::Punctuation_FinalQuote:
    case QChar::Punctuation_Other:
    case QChar::Symbol_Math:
    case QChar::Symbol_Currency:
    case QChar::Symbol_Modifier:
    case QChar::Symbol_Other:
        return WordClass::Punctuation;
    default:
        return WordClass::Word;
    }
}

bool IsInside(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The character that begins at a place of well-formed text.
char32_t CharacterAt(std::string_view text, std::size_t at)
{
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = platform::utf8::LengthByLead(lead);
    if (length <= 1 || at + length > text.size())
        return lead;
    char32_t character = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        character = character << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3F);
    return character;
}

WordClass ClassAt(std::string_view text, std::size_t at)
{
    return ClassOf(CharacterAt(text, at));
}

WordClass ClassBefore(std::string_view text, std::size_t at)
{
    do
        --at;
    while (at > 0 && IsInside(text[at]));
    return ClassAt(text, at);
}

bool CanBeEdge(WordClass kind)
{
    return kind == WordClass::Word || kind == WordClass::Punctuation;
}

bool IsStart(std::string_view text, std::size_t at)
{
    if (at >= text.size())
        return false;
    if (at == 0)
        return true;
    const WordClass kind = ClassAt(text, at);
    return CanBeEdge(kind) && kind != ClassBefore(text, at);
}

bool IsEnd(std::string_view text, std::size_t at)
{
    if (at == 0)
        return false;
    if (at >= text.size())
        return true;
    const WordClass kind = ClassBefore(text, at);
    return CanBeEdge(kind) && kind != ClassAt(text, at);
}

// A search that is stopped has no time left, whenever it began to count.
thread_local const std::atomic<bool>* t_stop = nullptr;
thread_local double t_passed = 0;

double Clock()
{
    constexpr double kEnough = 1000;
    if (t_stop && t_stop->load(std::memory_order_relaxed))
        t_passed += kEnough;
    return engine::search::ThreadSeconds() + t_passed;
}

constexpr std::size_t kTextOverlap = 256 * 1024;        // bytes, and the text sought
constexpr std::size_t kExpressionOverlap = 1024 * 1024; // bytes
constexpr std::size_t kLongestMatch = 8 * 1024 * 1024;  // that waits for its end
constexpr double kSeconds = 2;
constexpr double kBriefSeconds = 0.1;

// Nothing for what is found faster without.
std::optional<engine::search::LiteralScan> RequiredInLine(const FileSearchRequest& request,
                                                          const std::string& sought)
{
    using namespace engine::search;
    if (!request.regExp || request.perlSyntax || AnchoredText::Of(sought, false))
        return std::nullopt;
    const auto translation =
        ExpressionTranslator({.matchCase = request.matchCase}).Translate(sought);
    constexpr std::size_t kTooCommon = 1; // characters
    if (!translation || !translation->staysInLine || translation->required.size() <= kTooCommon ||
        !LiteralScan::Suits(translation->required, request.matchCase))
        return std::nullopt;
    return LiteralScan(translation->required, request.matchCase);
}

} // namespace

bool PieceText::IsWord(long start, long end) const
{
    return IsStart(bytes, static_cast<std::size_t>(start)) &&
           IsEnd(bytes, static_cast<std::size_t>(end));
}

std::string PieceText::WordCharacters() const
{
    std::string words;
    for (int c = 0; c < 0x80; ++c) {
        if (ClassOf(static_cast<char32_t>(c)) == WordClass::Word)
            words += static_cast<char>(c);
    }
    return words;
}

TextSearch::TextSearch(const FileSearchRequest& request, const std::atomic<bool>& stop)
    : m_request(request), m_stop(stop), m_sought(request.text.toUtf8().toStdString()),
      m_replacement(request.replacement.toUtf8().toStdString()),
      m_overlap(request.regExp ? kExpressionOverlap : kTextOverlap + m_sought.size()),
      m_flags((request.wholeWord ? flag::WholeWord : 0) |
              (request.matchCase ? flag::MatchCase : 0) | (request.regExp ? flag::Expression : 0) |
              (request.regExp && request.perlSyntax ? flag::Native : 0)),
      m_searcher(m_text, {kSeconds, Clock}), m_required(RequiredInLine(request, m_sought))
{}

void TextSearch::Begin()
{
    t_stop = &m_stop;
    if (m_ranAway && !m_isBrief) {
        m_isBrief = true;
        std::destroy_at(&m_searcher);
        std::construct_at(&m_searcher, m_text, Budget::Limit{kBriefSeconds, Clock});
    }
    m_text.bytes.clear();
    m_place = {};
    m_from = 0;
    m_count = 0;
    m_ranAway = false;
    m_lineText.clear();
    m_lineFrom = m_lineTo = 0;
}

// Counting line ends needs the byte behind the place.
void TextSearch::MoveTo(std::size_t at)
{
    const std::string_view text = m_text.bytes;
    if (const long ends = LineEndsIn(text, m_place.at, at); ends > 0) {
        m_place.line += ends;
        std::size_t last = at;
        while (!IsLineEnd(text, last - 1))
            --last;
        m_place.lineStart = last;
        m_place.column = UnitsIn(text.substr(last, at - last));
    } else {
        m_place.column += UnitsIn(text.substr(m_place.at, at - m_place.at));
    }
    m_place.at = at;
}

FileMatch TextSearch::Describe(std::size_t start, std::size_t end)
{
    // A cut of a long line begins at a step of it, so that matches near each other share one text.
    constexpr std::size_t kStep = 128;
    constexpr std::size_t kLongest = 512;
    const std::string_view text = m_text.bytes;
    MoveTo(start);
    FileMatch match;
    match.line = m_place.line;
    match.column = m_place.column;
    match.length = UnitsIn(text.substr(start, end - start));
    std::size_t from = m_place.lineStart;
    if (start - from > kStep) {
        from += (start - from) / kStep * kStep - kStep / 2;
        while (from < start && IsInside(text[from]))
            ++from;
    }
    // The next match of a line has the same text.
    if (m_lineText.isNull() || from != m_lineFrom || start > m_lineTo) {
        const std::size_t most = std::min(text.size(), from + kLongest);
        std::size_t to = std::min(start, most);
        while (to < most && text[to] != '\r' && text[to] != '\n')
            ++to;
        while (to > start && to < text.size() && IsInside(text[to]))
            --to;
        m_lineText = TextOf(text.substr(from, to - from));
        m_lineFrom = from;
        m_lineTo = to;
        m_lineColumn = m_place.column - UnitsIn(text.substr(from, start - from));
    }
    match.text = m_lineText;
    match.textColumn = m_lineColumn;
    if (m_request.replaces)
        match.replacement = m_request.regExp ? TextOf(m_searcher.Substituted(m_replacement))
                                             : m_request.replacement;
    return match;
}

void TextSearch::Drop(std::size_t bytes)
{
    MoveTo(bytes);
    m_text.bytes.drop(bytes);
    m_place.at = 0;
    m_place.lineStart = 0;
    m_from -= static_cast<long>(bytes);
    m_lineText = QString();
    m_lineFrom = m_lineTo = 0;
}

std::optional<engine::search::Range> TextSearch::Find(long from, long to)
{
    const long stopped = m_searcher.Stopped();
    const auto found = m_searcher.Find(m_sought, m_flags, from, to);
    m_ranAway |= m_searcher.Stopped() != stopped;
    return found;
}

// The next match from m_from on, which goes along over lines that have none. A line that the piece
// ends within may still become one that has.
std::optional<engine::search::Range> TextSearch::FindNext(bool isLast)
{
    constexpr int kLinesBetween = 256; // two looks at the clock
    const std::string_view text = m_text.bytes;
    const auto size = static_cast<long>(text.size());
    if (!m_required)
        return Find(m_from, size);
    double begun = -1;
    for (int lines = 1;; ++lines) {
        const auto hit = m_required->First(text, static_cast<std::size_t>(m_from));
        if (!hit)
            return std::nullopt;
        if (static_cast<long>(hit.start) >= m_lineEnd) {
            const std::size_t end = text.find('\n', hit.end);
            m_lineIsWhole = isLast || end != text.npos;
            m_lineEnd = end == text.npos ? size : static_cast<long>(end);
            if (end != text.npos && text[end - 1] == '\r')
                --m_lineEnd;
        }
        const auto from = static_cast<std::size_t>(m_from);
        const auto* before =
            static_cast<const char*>(memrchr(text.data() + from, '\n', hit.start - from));
        const long start = before ? static_cast<long>(before - text.data()) + 1 : m_from;
        // Where the match ends may stand in what follows.
        m_waits = !m_lineIsWhole && text.size() - hit.start < kLongestMatch;
        if (m_waits)
            return std::nullopt;
        const auto found = Find(start, m_lineEnd);
        if (found || m_ranAway || !m_lineIsWhole)
            return found;
        m_from = m_lineEnd;
        if (lines % kLinesBetween == 0) {
            const double now = Clock();
            if (begun < 0)
                begun = now;
            m_ranAway = now - begun > (m_isBrief ? kBriefSeconds : kSeconds);
            if (m_ranAway)
                return std::nullopt;
        }
    }
}

// What starts near the end of a piece waits for the next one. A match of nothing is not found again
// at its place.
long TextSearch::Search(bool isLast, long skip, std::vector<FileMatch>& matches)
{
    const std::size_t size = m_text.bytes.size();
    std::size_t cut = size;
    m_lineText = QString(); // it may have ended with the piece
    m_lineEnd = 0;
    m_waits = false;
    if (!isLast) {
        cut = size > m_overlap ? size - m_overlap : 0;
        while (cut > 0 && IsInside(m_text.bytes[cut]))
            --cut;
    }
    const long before = m_count;
    while (!m_stop.load(std::memory_order_relaxed) && !m_ranAway &&
           m_from <= static_cast<long>(size)) {
        const auto found = FindNext(isLast);
        if (!found || (!isLast && found->start >= static_cast<long>(cut)))
            break;
        // It may go on in the next piece.
        if (!isLast && found->end == static_cast<long>(size) &&
            size - static_cast<std::size_t>(found->start) < kLongestMatch) {
            cut = static_cast<std::size_t>(found->start);
            break;
        }
        if (m_count++ >= skip && !m_request.countOnly)
            matches.push_back(Describe(static_cast<std::size_t>(found->start),
                                       static_cast<std::size_t>(found->end)));
        m_from = found->end;
        if (found->end == found->start) {
            ++m_from;
            while (m_from < static_cast<long>(size) &&
                   IsInside(m_text.bytes[static_cast<std::size_t>(m_from)]))
                ++m_from;
        }
    }
    if (!isLast) {
        if (m_waits)
            cut = std::min(cut, static_cast<std::size_t>(m_from));
        m_from = std::max(m_from, static_cast<long>(cut));
        // Enough stays in front for what looks back.
        if (cut > kTextOverlap) {
            std::size_t drop = cut - kTextOverlap;
            while (drop > 0 && IsInside(m_text.bytes[drop]))
                --drop;
            drop = std::max(drop, m_place.at);
            if (drop <= static_cast<std::size_t>(m_from))
                Drop(drop);
        }
    }
    return m_count - before;
}
