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
        m_levels.resize(m_names.depth + std::size_t{1});
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
        SortTables();
        m_context.query.caret = m_caret;
        return std::move(m_context);
    }

private:
    struct Found
    {
        ScriptName name;
        int part;
        std::string_view behind; // the text behind the name
        std::string_view query;  // that an alias stands for
    };

    // Within a parenthesis, or outside of all.
    struct Level
    {
        int part = 0;   // the statement's, or the query's
        long open = -1; // where its text begins; -1: not in the text that is read
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
        m_context.behind = machine.Now().previous;
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
        m_context.beginsStatement = query.place == Place::Anywhere && machine.AtStatement();

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
        for (Level& level : m_levels) {
            m_parts.push_back(level.part);
            level.open = -1;
        }
        m_closed = -1;
        const TextSpans text(m_behind);
        long at = 0;
        while (at < text.Size() && IsWordByte(text.At(at)))
            ++at;
        m_context.rest = ToText(text.Copy(0, at));
        ScriptReader reader(m_dialect, text, at, {}, m_names);
        m_isOver = false;
        while (!m_isOver && reader.Next())
            Take(reader);
    }

    bool IsWordByte(unsigned char byte) const
    {
        return engine::analysis::BytesOf(m_dialect).inWord[byte];
    }

    void Take(const ScriptReader& reader)
    {
        m_names = reader.Machine().Now();
        const std::size_t levels = m_names.depth + std::size_t{1};
        for (; m_levels.size() > levels; m_levels.pop_back())
            m_closed = m_levels.back().open;
        if (m_levels.size() < levels)
            m_levels.resize(levels, {m_levels.back().part, reader.Last().end});
        if (reader.Machine().BeganPart() || reader.Machine().BeganQuery())
            m_levels.back().part = ++m_part;
        m_isOver = m_isOver || reader.Machine().BeganPart();
        for (const NameEvent& event : reader.Names())
            Take(reader.Text(), event);
    }

    void Take(const TextSpans& text, const NameEvent& event)
    {
        ScriptName name{event.kind, ToText(PlainName(text, event.start, event.end)), {}, 0, 0};
        name.isQuoted = IsQuotedName(text, event.start);
        const auto from = [&](long place) {
            return place >= 0 && place < text.Size() ? text.RunAt(place) : std::string_view();
        };
        m_found.push_back({std::move(name), m_levels.back().part, from(event.end), from(m_closed)});
    }

    // How far out the query is that something was found in: 0 for the caret's own, -1 for one that
    // the caret does not stand in.
    int DistanceOf(const Found& found) const
    {
        const auto part = std::find(m_parts.rbegin(), m_parts.rend(), found.part);
        return part != m_parts.rend() ? static_cast<int>(part - m_parts.rbegin()) : -1;
    }

    void KeepTable(const Found& found)
    {
        const int distance = DistanceOf(found);
        if (distance < 0)
            return;
        const ScriptName& name = found.name;
        if (name.kind == NameKind::Alias) {
            if (!m_tables.empty()) {
                m_tables.back().table.alias = name.name;
                m_tables.back().table.isAliasQuoted = name.isQuoted;
            }
        } else if (name.kind == NameKind::DerivedAlias) {
            m_tables.push_back(
                {distance, {{}, name.name, SelectListOf(m_dialect, found.query), name.isQuoted}});
        } else {
            m_tables.push_back({distance, {name.name, {}, {}}});
        }
    }

    void SortTables()
    {
        std::stable_sort(
            m_tables.begin(), m_tables.end(),
            [](const Scoped& one, const Scoped& other) { return one.distance < other.distance; });
        for (Scoped& each : m_tables)
            m_context.tables.push_back(std::move(each.table));
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
                KeepTable(found);
                break;
            case NameKind::Alias:
                KeepTable(found);
                break;
            case NameKind::DerivedAlias:
                table = name.name;
                KeepTable(found);
                break;
            case NameKind::Table:
            case NameKind::View:
                table.clear();
                break;
            case NameKind::Cte:
                m_context.queries.push_back(
                    {name.name, SelectListBehindAs(m_dialect, found.behind)});
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

    struct Scoped
    {
        int distance;
        ScopedTable table;
    };

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
    std::vector<Scoped> m_tables;
    std::vector<Level> m_levels; // where the reading has come to
    std::vector<int> m_parts;    // that the caret stands in
    long m_closed = -1;          // where the text in the last parenthesis began
    int m_part = 0;
    bool m_isOver = false; // a statement has ended, or a query that stands in no parenthesis
    CaretContext m_context;
};

// An alias of an outer query comes before the name of an inner one's table.
void TellTables(CaretContext& context)
{
    ProposalQuery& query = context.query;
    const auto means = [&](const QString& name) {
        return !query.qualifier.isEmpty() && !name.isEmpty() &&
               name.compare(query.qualifier.back(), Qt::CaseInsensitive) == 0;
    };
    const auto find = [&](QString ScopedTable::*name) {
        return std::ranges::find_if(context.tables, means, name);
    };
    auto meant = find(&ScopedTable::alias);
    if (meant == context.tables.end())
        meant = find(&ScopedTable::name);
    if (meant != context.tables.end())
        query.table = meant->name;
    for (const ScopedTable& table : context.tables) {
        if (!table.name.isEmpty() && !query.tables.contains(table.name))
            query.tables += table.name;
    }
}

} // namespace

CaretContext ContextAt(const ScriptIndex& index, const ScriptIndex::Read& read, long caret)
{
    if (!index.Dialect())
        return PlainContext(read, caret);
    CaretContext context = ContextReader(index, read, caret).Read();
    TellTables(context);
    return context;
}

} // namespace completion
