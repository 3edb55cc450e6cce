// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/CaretContext.h"

#include "completion/NameText.h"
#include "completion/ScriptReader.h"
#include "completion/Utf8Text.h"

#include <algorithm>

namespace completion {
namespace {

using engine::analysis::TextSpans;
using engine::analysis::Token;
using engine::analysis::TokenKind;
using Place = ProposalQuery::Place;

constexpr long kBefore = 8192; // units in front of the caret that are surely looked at
constexpr long kBehind = 4096;

QString ToText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool IsBlank(TokenKind kind)
{
    return kind == TokenKind::Blank || kind == TokenKind::LineEnd ||
           kind == TokenKind::LineComment || kind == TokenKind::BlockComment ||
           kind == TokenKind::CodeComment;
}

bool IsWordUnit(QChar unit)
{
    return unit.isLetterOrNumber() || unit == u'_' || unit.isSurrogate();
}

// Any text: the letters before the caret.
CaretContext PlainContext(const ScriptIndex::Read& read, long caret)
{
    constexpr long kLongestWord = 256;
    const long from = std::max(0L, caret - kLongestWord);
    std::u16string units;
    read(from, caret, units);
    std::size_t start = units.size();
    while (start > 0 && IsWordUnit(QChar(units[start - 1])))
        --start;
    CaretContext context;
    context.query.typed = QString(reinterpret_cast<const QChar*>(units.data()) + start,
                                  static_cast<qsizetype>(units.size() - start));
    context.query.start = from + static_cast<long>(start);
    context.query.caret = caret;
    return context;
}

// Reads the script around a caret.
class ContextReader
{
public:
    ContextReader(const ScriptIndex& index, const ScriptIndex::Read& read, long caret)
        : m_start(index.StartBefore(std::max(0L, caret - kBefore))), m_caret(caret),
          m_dialect(*index.Dialect()), m_names(m_start.entry.names)
    {
        std::u16string units;
        const long from = std::min(m_start.position + m_start.entry.skip, caret);
        read(from, caret, units);
        m_before = ToUtf8(units);
        m_from = from;
        read(caret, std::min(caret + kBehind, index.Size()), units);
        m_behind = ToUtf8(units);
    }

    CaretContext Read()
    {
        ReadBefore();
        ReadBehind();
        KeepPart();
        m_context.query.caret = m_caret;
        return std::move(m_context);
    }

private:
    struct Found
    {
        ScriptName name;
        int part;
        long end; // in the text before the caret, -1 behind it
    };

    void ReadBefore()
    {
        const TextSpans text(m_before);
        ScriptReader reader(m_dialect, text, 0, m_start.entry.scan, m_names);
        UnitCounter units(m_before);
        NameState atWord = m_names;
        Token last;
        while (reader.Next()) {
            atWord = m_names;
            Take(reader);
            last = reader.Last();
            if (!IsBlank(last.kind))
                m_tokens.push_back(last);
            if (m_tokens.size() > kRemembered * 2)
                m_tokens.erase(m_tokens.begin(),
                               m_tokens.end() - static_cast<std::ptrdiff_t>(kRemembered));
        }
        FindWord(text, !reader.Scan().InCode(), last, units, atWord);
    }

    void FindWord(const TextSpans& text, bool isOpen, const Token& last, UnitCounter& units,
                  const NameState& atWord)
    {
        ProposalQuery& query = m_context.query;
        bool isWord = last.kind == TokenKind::Word || last.kind == TokenKind::Variable;
        if (last.kind == TokenKind::QuotedName && IsUnclosed(text, last)) {
            m_context.quote = QChar(text.At(last.start));
            isWord = true;
        } else if (last.kind == TokenKind::Operator && last.Length() == 1 &&
                   m_dialect.variableLeads.find(static_cast<char>(text.At(last.start))) !=
                       std::string_view::npos) {
            isWord = true;
        }
        const NameMachine machine(m_dialect, isWord ? atWord : m_names);
        query.place = machine.WantsOwnName()   ? Place::OwnName
                      : machine.WantsTable()   ? Place::Table
                      : machine.WantsRoutine() ? Place::Routine
                                               : Place::Anywhere;
        if (last.kind == TokenKind::LineComment ||
            (last.kind == TokenKind::BlockComment && (isOpen || IsUnclosed(text, last))))
            query.place = Place::Comment;
        else if (last.kind == TokenKind::Command)
            query.place = Place::String;
        else if (last.kind == TokenKind::String && DollarTag(text, last) == 0 &&
                 (isOpen || IsUnclosed(text, last)))
            query.place = Place::String;
        else if (last.kind == TokenKind::Number)
            query.place = Place::OwnName;

        long start = text.Size();
        if (isWord) {
            start = last.start;
            query.typed = ToText(text.Copy(start + (m_context.quote.isNull() ? 0 : 1), last.end));
        } else if (query.place == Place::Comment || query.place == Place::String) {
            start = PlainStart(text);
            query.typed = ToText(text.Copy(start, text.Size()));
        }
        query.start = m_from + units.At(start);
        if (isWord || query.typed.isEmpty())
            ReadQualifier(text, start);
    }

    static bool IsUnclosed(const TextSpans& text, const Token& token)
    {
        if (token.cut)
            return true;
        const char first = static_cast<char>(text.At(token.start));
        const char last = static_cast<char>(text.At(token.end - 1));
        if (token.kind == TokenKind::BlockComment)
            return token.Length() < 4 || !(text.Has(token.end - 2, "*/"));
        if (token.Length() < 2)
            return true;
        return last != (first == '['                      ? ']'
                        : token.kind == TokenKind::String ? '\''
                                                          : first) &&
               last != '"';
    }

    static long PlainStart(const TextSpans& text)
    {
        long start = text.Size();
        const auto isWord = [&](unsigned char byte) {
            return byte >= 0x80 || byte == '_' || (byte >= '0' && byte <= '9') ||
                   (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        };
        while (start > 0 && isWord(text.At(start - 1)))
            --start;
        return start;
    }

    // The names in front of the points in front of the word.
    void ReadQualifier(const TextSpans& text, long start)
    {
        long at = start;
        for (auto token = m_tokens.rbegin(); token != m_tokens.rend(); ++token) {
            if (token->start >= start)
                continue;
            const auto name = std::next(token);
            if (token->end != at || token->Length() != 1 || text.At(token->start) != '.' ||
                name == m_tokens.rend() || name->end != token->start)
                return;
            if (name->kind != TokenKind::Word && name->kind != TokenKind::QuotedName &&
                name->kind != TokenKind::Variable)
                return;
            m_context.query.qualifier.prepend(ToText(PlainName(text, name->start, name->end)));
            at = name->start;
            ++token;
        }
    }

    // The statement up to where the next begins.
    void ReadBehind()
    {
        m_caretPart = m_part;
        m_isBehind = true;
        const TextSpans text(m_behind);
        long at = 0;
        while (at < text.Size() && IsWordByte(text.At(at)))
            ++at;
        m_context.rest = ToText(text.Copy(0, at));
        ScriptReader reader(m_dialect, text, at, {}, m_names);
        while (m_part == m_caretPart && reader.Next())
            Take(reader);
    }

    bool IsWordByte(unsigned char byte) const
    {
        return engine::analysis::BytesOf(m_dialect).inWord[byte];
    }

    void Take(const ScriptReader& reader)
    {
        m_names = reader.Machine().Now();
        if (reader.Machine().BeganPart())
            ++m_part;
        for (const NameEvent& event : reader.Names()) {
            ScriptName name{
                event.kind, ToText(PlainName(reader.Text(), event.start, event.end)), {}, 0, 0};
            m_found.push_back({std::move(name), m_part, m_isBehind ? -1 : event.end});
        }
    }

    void KeepPart()
    {
        QString table;
        for (const Found& found : m_found) {
            const ScriptName& name = found.name;
            switch (name.kind) {
            case NameKind::TableUse:
            case NameKind::InsertUse:
            case NameKind::AlterUse:
                table.clear(); // the index knows where these have their columns
                if (found.part == m_caretPart)
                    m_context.tables.push_back({name.name, {}});
                break;
            case NameKind::Alias:
                if (found.part == m_caretPart && !m_context.tables.empty())
                    m_context.tables.back().alias = name.name;
                break;
            case NameKind::DerivedAlias:
                if (found.part == m_caretPart)
                    m_context.tables.push_back({{}, name.name});
                break;
            case NameKind::Table:
            case NameKind::View:
                table.clear();
                break;
            case NameKind::Cte:
                KeepQuery(found);
                [[fallthrough]];
            case NameKind::Variable:
                table = name.name;
                m_context.locals.push_back(name);
                break;
            case NameKind::Parameter:
            case NameKind::Cursor:
                m_context.locals.push_back(name);
                break;
            case NameKind::Column:
                if (table.isEmpty())
                    break;
                m_context.locals.push_back(name);
                m_context.locals.back().parent = table;
                break;
            default:
                break;
            }
        }
    }

    // One that stands before the caret and names no columns has those of its query.
    void KeepQuery(const Found& found)
    {
        if (found.end < 0)
            return;
        const auto text = std::string_view(m_before).substr(static_cast<std::size_t>(found.end));
        m_context.queries.push_back({found.name.name, SelectListBehindAs(m_dialect, text)});
    }

    static constexpr std::size_t kRemembered = 16; // tokens, for the names in front of points

    ScriptIndex::Start m_start;
    long m_from = 0;
    long m_caret;
    const engine::analysis::SqlDialect& m_dialect;
    NameState m_names; // where the reading has come to
    std::string m_before;
    std::string m_behind;
    std::vector<Token> m_tokens;
    std::vector<Found> m_found;
    int m_part = 0;
    int m_caretPart = 0;
    bool m_isBehind = false; // the caret
    CaretContext m_context;
};

} // namespace

CaretContext ContextAt(const ScriptIndex& index, const ScriptIndex::Read& read, long caret)
{
    if (!index.Dialect())
        return PlainContext(read, caret);
    return ContextReader(index, read, caret).Read();
}

} // namespace completion
