// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/CallAt.h"

#include "completion/NameText.h"
#include "completion/ScriptReader.h"
#include "completion/Utf8Text.h"

#include <algorithm>

namespace completion {
namespace {

using engine::analysis::TextSpans;
using engine::analysis::Token;
using engine::analysis::TokenKind;

constexpr long kBefore = 4096; // units in front of the caret that are surely looked at

struct Open
{
    Token name; // no bytes for a parenthesis that no name stands before
    int commas = 0;
};

bool IsBlank(TokenKind kind)
{
    return kind == TokenKind::Blank || kind == TokenKind::LineEnd ||
           kind == TokenKind::LineComment || kind == TokenKind::BlockComment ||
           kind == TokenKind::Command;
}

bool IsName(const TextSpans& text, const Token& token)
{
    if (token.kind == TokenKind::QuotedName)
        return true;
    return token.kind == TokenKind::Word &&
           NameWordOf(text.Copy(token.start, token.end)) == NameWord::Other;
}

class CallReader
{
public:
    void Take(const ScriptReader& reader)
    {
        const Token& token = reader.Last();
        if (reader.Machine().BeganPart()) {
            m_open.assign(1, {});
            m_last = {};
        }
        for (const NameEvent& event : reader.Names()) {
            if (event.kind == NameKind::RoutineUse)
                m_open.assign(1, {.name = token});
        }
        if (IsBlank(token.kind))
            return;
        if (token.kind == TokenKind::Operator && token.Length() == 1)
            TakeOperator(reader.Text(), static_cast<char>(reader.Text().At(token.start)));
        m_last = token;
    }

    const Open* Innermost() const
    {
        const auto open = std::find_if(m_open.rbegin(), m_open.rend(),
                                       [](const Open& each) { return each.name.Length() > 0; });
        // A parenthesis without a name groups; one with a name of its own is the call.
        return open != m_open.rend() && (open == m_open.rbegin() || open->name.Length() > 0)
                   ? &*open
                   : nullptr;
    }

private:
    void TakeOperator(const TextSpans& text, char byte)
    {
        if (byte == '(') {
            // What EXEC names may have its parameters in parentheses.
            if (m_open.back().name.Length() > 0 && m_open.back().name.start == m_last.start)
                m_open.pop_back();
            m_open.push_back({.name = IsName(text, m_last) ? m_last : Token{}});
        } else if (byte == ')' && m_open.size() > 1) {
            m_open.pop_back();
        } else if (byte == ',') {
            ++m_open.back().commas;
        }
        if (m_open.empty())
            m_open.assign(1, {});
    }

    std::vector<Open> m_open{1};
    Token m_last;
};

} // namespace

Call CallAt(const ScriptIndex& index, const ScriptIndex::Read& read, long caret)
{
    const auto* dialect = index.Dialect();
    if (!dialect)
        return {};
    const ScriptIndex::Start start = index.StartBefore(std::max(0L, caret - kBefore));
    const long from = std::min(start.position + start.entry.skip, caret);
    std::u16string units;
    read(from, caret, units);
    const std::string utf8 = ToUtf8(units);
    const TextSpans text(utf8);
    ScriptReader reader(*dialect, text, 0, start.entry.scan, start.entry.names);
    CallReader calls;
    while (reader.Next())
        calls.Take(reader);
    const Open* open = calls.Innermost();
    if (!open || open->name.end == text.Size())
        return {};
    const std::string name = PlainName(text, open->name.start, open->name.end);
    UnitCounter counter(utf8);
    return {QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), open->commas,
            from + counter.At(open->name.start)};
}

} // namespace completion
