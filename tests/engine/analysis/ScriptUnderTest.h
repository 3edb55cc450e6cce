// SPDX-License-Identifier: GPL-3.0-or-later
// A script that is edited and asked about, with its text in two runs as the engine has it.
#pragma once

#include "engine/analysis/Partitioner.h"

#include <string>
#include <vector>

namespace engine::analysis {

class ScriptUnderTest
{
public:
    ScriptUnderTest(const SqlDialect& dialect, std::string text);
    ScriptUnderTest(int lexer, std::string text)
        : ScriptUnderTest(*DialectOfLexer(lexer), std::move(text))
    {}
    ScriptUnderTest(const char* dialect, std::string text)
        : ScriptUnderTest(*DialectByName(dialect), std::move(text))
    {}

    // Shorter stretches: more places where one meets the next.
    void SetStretch(long bytes);
    void SetSeparator(BatchSeparator separator);
    void SetTerminator(const std::string& terminator); // that the script begins with
    void Insert(long position, const std::string& bytes);
    void Erase(long position, long bytes);

    const std::string& Text() const { return m_text; }
    long Find(const std::string& words) const { return static_cast<long>(m_text.find(words)); }
    TextSpans Spans() const; // the gap is where the last change was
    Partitioner& Analysis() { return m_partitioner; }

    std::string TextOf(const Span& span) const;
    std::vector<std::string> Statements();
    std::vector<std::string> Batches();     // blanks at their ends left out
    std::string StatementAt(long position); // "none" if there is none
    std::string CatalogAt(long position);   // "none" likewise

    // All that can be asked, as text: equal for equal partitions.
    std::string Everything();

    // A partitioner that has only seen the text as it stands.
    ScriptUnderTest Fresh() const;

private:
    ScriptRules m_rules;
    std::string m_text;
    long m_gap = 0;
    Partitioner m_partitioner;
};

} // namespace engine::analysis
