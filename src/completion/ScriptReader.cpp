// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptReader.h"

#include "completion/NameText.h"

namespace completion {

using engine::analysis::ClientLineAt;
using engine::analysis::ClientWord;
using engine::analysis::kNoClient;
using engine::analysis::Terminator;
using engine::analysis::TokenKind;

bool ScriptReader::Next(long limit)
{
    if (m_scanner.Position() >= limit)
        return false;
    m_token = m_scanner.Next(limit);
    if (m_token.kind == TokenKind::End)
        return false;
    if (IsClients(m_token))
        m_token = m_scanner.TakeLine(limit, m_rest);
    m_names.clear();
    m_machine.Take(Text(), m_token, m_names);
    if (const long tag = DollarTag(Text(), m_token); tag != 0)
        m_scanner.Restart(m_token.start + tag);
    return true;
}

// What a client's line says is no SQL, and a quote in it opens nothing.
bool ScriptReader::IsClients(const Token& token)
{
    const auto& dialect = m_scanner.Dialect();
    const NameState& names = m_machine.Now();
    if (dialect.client == &kNoClient || names.previous != NameWord::Begins ||
        names.before != NameState::Before::LineEnd || token.resumed ||
        (token.kind != TokenKind::Word && token.kind != TokenKind::Operator))
        return false;
    const auto line = ClientLineAt(dialect, Text(), token, true, Terminator(std::string_view(";")));
    if (line.kind != ClientWord::Text && line.kind != ClientWord::Remark)
        return false;
    m_scanner.Restart(line.behind);
    m_rest = line.rest;
    return true;
}

} // namespace completion
