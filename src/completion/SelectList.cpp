// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/SelectList.h"

#include "completion/NameText.h"
#include "completion/ScriptReader.h"

#include <algorithm>

namespace completion {
namespace {

using engine::analysis::TextSpans;
using engine::analysis::Token;
using engine::analysis::TokenKind;
using W = NameWord;

constexpr int kDeepest = 4; // queries in queries

struct Table
{
    QString name;
    QString alias;
    std::vector<SelectItem> items; // of a query
};

QString NameAt(const TextSpans& text, long start, long end)
{
    const std::string name = PlainName(text, start, end);
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

class ListReader
{
public:
    enum class Phase
    {
        Before, // the AS
        Head,   // between it and the query
        Items,
        From,
        Done,
    };

    ListReader(const engine::analysis::SqlDialect& dialect, std::string_view utf8, Phase phase,
               int deep)
        : m_dialect(dialect), m_utf8(utf8), m_reader(dialect, TextSpans(utf8)), m_phase(phase),
          m_deep(deep)
    {}

    std::vector<SelectItem> Read()
    {
        while (m_phase != Phase::Done && m_reader.Next()) {
            const Token& token = m_reader.Last();
            if (token.kind == TokenKind::Terminator)
                break;
            for (const NameEvent& event : m_reader.Names())
                TakeName(event);
            if (token.kind != TokenKind::Blank && token.kind != TokenKind::LineEnd &&
                token.kind != TokenKind::LineComment && token.kind != TokenKind::BlockComment)
                TakeToken(token);
        }
        EndItem();
        return ReplaceStars();
    }

private:
    W WordAt(const Token& token) const
    {
        return token.kind == TokenKind::Word
                   ? NameWordOf(m_reader.Text().Copy(token.start, token.end))
                   : W::Other;
    }
    bool Is(const Token& token, char byte) const
    {
        return token.kind == TokenKind::Operator && token.Length() == 1 &&
               m_reader.Text().At(token.start) == static_cast<unsigned char>(byte);
    }
    bool IsName(const Token& token) const
    {
        return token.kind == TokenKind::QuotedName ||
               (token.kind == TokenKind::Word && MayBeName(WordAt(token)));
    }

    void TakeToken(const Token& token)
    {
        if (Is(token, '(')) {
            m_base += m_phase == Phase::Head && !m_hasWith;
            if (m_phase == Phase::From && m_depth == m_base)
                m_inner = token.end;
            if (m_depth++ == m_base && m_phase == Phase::Items)
                m_item.push_back(token);
            return;
        }
        if (Is(token, ')')) {
            if (--m_depth < m_base)
                m_phase = Phase::Done;
            return;
        }
        if (m_depth != m_base)
            return;
        const W word = WordAt(token);
        switch (m_phase) {
        case Phase::Before:
            if (word == W::As)
                m_phase = Phase::Head;
            return;
        case Phase::Head:
            m_hasWith = m_hasWith || word == W::With; // whose queries stand in parentheses
            if (word == W::Select)
                m_phase = Phase::Items;
            return;
        case Phase::Items:
            if (IsOneOf(word, {W::From, W::Into, W::Union, W::Except, W::Intersect, W::Minus,
                               W::Where, W::Order, W::Go, W::Limit})) {
                EndItem();
                m_phase = word == W::From || word == W::Into ? Phase::From : Phase::Done;
            } else if (Is(token, ',')) {
                EndItem();
            } else if (!m_item.empty() || !IsModifier(token, word)) {
                m_item.push_back(token);
            }
            return;
        case Phase::From:
            if (IsOneOf(word, {W::Union, W::Except, W::Intersect, W::Minus, W::Where, W::Go,
                               W::Group, W::Order}))
                m_phase = Phase::Done;
            return;
        case Phase::Done:
            return;
        }
    }

    // DISTINCT, ALL, TOP and its number, before the first item.
    bool IsModifier(const Token& token, W word)
    {
        const bool wasTop = m_isTop;
        m_isTop = word == W::Top;
        return m_isTop || word == W::Distinct || (wasTop && token.kind == TokenKind::Number) ||
               NameAt(m_reader.Text(), token.start, token.end)
                       .compare(QLatin1String("all"), Qt::CaseInsensitive) == 0;
    }

    void EndItem()
    {
        if (!m_item.empty())
            AddItem();
        m_item.clear();
    }

    void AddItem()
    {
        const TextSpans& text = m_reader.Text();
        const Token& last = m_item.back();
        if (Is(last, '*') && (m_item.size() == 1 || Is(*(m_item.end() - 2), '.'))) {
            const Token* of = m_item.size() > 2 ? &*(m_item.end() - 3) : nullptr;
            m_items.push_back({{}, of ? NameAt(text, of->start, of->end) : QString()});
            m_isStar.push_back(true);
            return;
        }
        const Token* name = nullptr;
        if (m_dialect.brackets && m_item.size() > 2 && IsName(m_item[0]) && Is(m_item[1], '='))
            name = m_item.data();
        else if (IsName(last) && (m_item.size() == 1 || EndsExpression(*(m_item.end() - 2))))
            name = &last;
        if (name) {
            m_items.push_back(
                {NameAt(text, name->start, name->end), {}, IsQuotedName(text, name->start)});
            m_isStar.push_back(false);
        }
    }

    // What stands in front of an alias, or of a column behind its table.
    bool EndsExpression(const Token& token) const
    {
        return token.kind != TokenKind::Operator || Is(token, '.') || Is(token, '(');
    }

    // Behind FROM, and not in what stands there in parentheses.
    void TakeName(const NameEvent& event)
    {
        if (m_phase != Phase::From || m_depth != m_base)
            return;
        const QString name = NameAt(m_reader.Text(), event.start, event.end);
        if (event.kind == NameKind::TableUse)
            m_tables.push_back({name, {}, {}});
        else if (event.kind == NameKind::Alias && !m_tables.empty())
            m_tables.back().alias = name;
        else if (event.kind == NameKind::DerivedAlias)
            m_tables.push_back({{}, name, ItemsOfInner()});
    }

    std::vector<SelectItem> ItemsOfInner() const
    {
        if (m_deep == 0)
            return {};
        const auto text = m_utf8.substr(static_cast<std::size_t>(m_inner));
        return ListReader(m_dialect, text, Phase::Head, m_deep - 1).Read();
    }

    std::vector<SelectItem> ReplaceStars() const
    {
        std::vector<SelectItem> items;
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (!m_isStar[i]) {
                items.push_back(m_items[i]);
                continue;
            }
            const QString& of = m_items[i].star;
            for (const Table& table : m_tables) {
                const QString& called = table.alias.isEmpty() ? table.name : table.alias;
                if (!of.isEmpty() && called.compare(of, Qt::CaseInsensitive) != 0)
                    continue;
                if (!table.name.isEmpty())
                    items.push_back({{}, table.name});
                items.insert(items.end(), table.items.begin(), table.items.end());
            }
        }
        return items;
    }

    const engine::analysis::SqlDialect& m_dialect;
    std::string_view m_utf8;
    ScriptReader m_reader;
    Phase m_phase;
    int m_deep;       // how many queries in this one are read
    long m_inner = 0; // the text in the last parenthesis behind FROM
    int m_depth = 0;
    int m_base = 0; // the depth of the query
    bool m_hasWith = false;
    bool m_isTop = false;
    std::vector<Token> m_item; // a parenthesis for all that is in it
    std::vector<SelectItem> m_items;
    std::vector<bool> m_isStar;
    std::vector<Table> m_tables;
};

} // namespace

std::vector<SelectItem> SelectListBehindAs(const engine::analysis::SqlDialect& dialect,
                                           std::string_view utf8)
{
    return ListReader(dialect, utf8, ListReader::Phase::Before, kDeepest).Read();
}

std::vector<SelectItem> SelectListOf(const engine::analysis::SqlDialect& dialect,
                                     std::string_view utf8)
{
    return ListReader(dialect, utf8, ListReader::Phase::Head, kDeepest).Read();
}

} // namespace completion
