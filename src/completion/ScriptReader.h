// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptReader: the SQL in a text token by token, with the names in it. A line that is the client
// program's and no SQL comes as one Command, and what stands between two tags of dollars is read as
// code.
// Positions count bytes.
#pragma once

#include "completion/NameMachine.h"

#include <vector>

namespace completion {

class ScriptReader
{
public:
    using SqlScanner = engine::analysis::SqlScanner;
    using Token = engine::analysis::Token;
    using TextSpans = engine::analysis::TextSpans;

    ScriptReader(const engine::analysis::SqlDialect& dialect, TextSpans text, long position = 0,
                 engine::analysis::ScanState scan = {}, const NameState& names = {})
        : m_scanner(dialect, text, position, scan), m_machine(dialect, names)
    {}

    // The next token, long ones cut as SqlScanner does it. False at the text's end, and at the
    // limit.
    bool Next(long limit = SqlScanner::kNoLimit);

    const Token& Last() const { return m_token; }
    const std::vector<NameEvent>& Names() const { return m_names; } // that the last token told
    const NameMachine& Machine() const { return m_machine; }
    const TextSpans& Text() const { return m_scanner.Text(); }
    long Position() const { return m_scanner.Position(); }
    const engine::analysis::ScanState& Scan() const { return m_scanner.State(); }

private:
    bool IsClients(const Token& token);

    SqlScanner m_scanner;
    engine::analysis::ClientRest m_rest;
    NameMachine m_machine;
    Token m_token;
    std::vector<NameEvent> m_names;
};

} // namespace completion
