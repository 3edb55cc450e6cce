// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/analysis/ScriptUnderTest.h"

namespace engine::analysis {
namespace {

std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r\n");
    const auto last = text.find_last_not_of(" \t\r\n");
    return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

} // namespace

ScriptUnderTest::ScriptUnderTest(const SqlDialect& dialect, std::string text)
    : m_rules{&dialect, SeparatorOf(dialect)}, m_text(std::move(text)),
      m_partitioner(m_rules, static_cast<long>(m_text.size()))
{}

void ScriptUnderTest::SetStretch(long bytes)
{
    m_partitioner = Partitioner(m_rules, static_cast<long>(m_text.size()), bytes);
}

void ScriptUnderTest::SetSeparator(BatchSeparator separator)
{
    m_rules.separator = std::move(separator);
    m_partitioner = Partitioner(m_rules, static_cast<long>(m_text.size()));
}

void ScriptUnderTest::SetTerminator(const std::string& terminator)
{
    m_rules.terminator = Terminator(terminator);
    m_partitioner = Partitioner(m_rules, static_cast<long>(m_text.size()));
}

void ScriptUnderTest::Insert(long position, const std::string& bytes)
{
    m_text.insert(static_cast<std::size_t>(position), bytes);
    m_gap = position + static_cast<long>(bytes.size());
    m_partitioner.Inserted(position, static_cast<long>(bytes.size()));
}

void ScriptUnderTest::Erase(long position, long bytes)
{
    m_text.erase(static_cast<std::size_t>(position), static_cast<std::size_t>(bytes));
    m_gap = position;
    m_partitioner.Deleted(position, bytes);
}

TextSpans ScriptUnderTest::Spans() const
{
    const std::string_view text = m_text;
    const auto gap = static_cast<std::size_t>(m_gap);
    return {text.substr(0, gap), text.substr(gap)};
}

std::string ScriptUnderTest::TextOf(const Span& span) const
{
    return m_text.substr(static_cast<std::size_t>(span.start),
                         static_cast<std::size_t>(span.end - span.start));
}

std::vector<std::string> ScriptUnderTest::Statements()
{
    std::vector<std::string> statements;
    m_partitioner.ForEachStatement(Spans(), {0, static_cast<long>(m_text.size())},
                                   [&](const Span& span) { statements.push_back(TextOf(span)); });
    return statements;
}

std::vector<std::string> ScriptUnderTest::Batches()
{
    std::vector<std::string> batches;
    Span last{-1, -1};
    for (long at = 0; at <= static_cast<long>(m_text.size()); ++at) {
        const Span span = m_partitioner.BatchAt(Spans(), at);
        if (span != last)
            batches.push_back(Trimmed(TextOf(span)));
        last = span;
    }
    return batches;
}

std::string ScriptUnderTest::StatementAt(long position)
{
    const auto span = m_partitioner.StatementAt(Spans(), position);
    return span ? TextOf(*span) : "none";
}

std::string ScriptUnderTest::CatalogAt(long position)
{
    return m_partitioner.CatalogAt(Spans(), position).value_or("none");
}

std::string ScriptUnderTest::Everything()
{
    std::string all;
    const auto add = [&](const char* what, const Span& span) {
        all += what + std::to_string(span.start) + '-' + std::to_string(span.end) + ' ';
    };
    const long size = static_cast<long>(m_text.size());
    m_partitioner.ForEachStatement(Spans(), {0, size}, [&](const Span& span) { add("s", span); });
    Span last{-1, -1};
    for (long at = 0; at <= size; at = at < size && last.end > at ? last.end : at + 1) {
        const Span span = m_partitioner.BatchAt(Spans(), at);
        if (span != last)
            add("\nb", span);
        last = span;
    }
    for (long at = 0; at <= size; at += 1 + size / 16) {
        const auto statement = m_partitioner.StatementAt(Spans(), at);
        add("\na", statement.value_or(Span{-1, -1}));
        all += CatalogAt(at);
    }
    return all;
}

ScriptUnderTest ScriptUnderTest::Fresh() const
{
    ScriptUnderTest fresh(*m_rules.dialect, m_text);
    fresh.SetSeparator(m_rules.separator);
    return fresh;
}

} // namespace engine::analysis
