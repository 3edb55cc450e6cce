// SPDX-License-Identifier: GPL-3.0-or-later
// Any script in any dialect, edited anyhow: what is kept equals what a fresh look at the text
// gives, behind the edits that the input chooses and behind the last, and every answer lies in the
// text.
#include "tests/engine/analysis/ScriptUnderTest.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using engine::analysis::ScriptUnderTest;
using engine::analysis::Span;

namespace {

constexpr const char* kDialects[] = {"sql",    "transact-sql", "ase",       "iq",         "db2",
                                     "oracle", "mysql",        "interbase", "postgresql", "sqlite"};

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

// Takes the input from its front; zeros behind its end.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_at(data), m_end(data + size) {}

    bool IsEmpty() const { return m_at == m_end; }
    std::size_t Byte() { return IsEmpty() ? 0 : *m_at++; }
    std::size_t Below(std::size_t most) { return most == 0 ? 0 : (Byte() << 8 | Byte()) % most; }
    std::string Bytes(std::size_t most)
    {
        const std::size_t size = std::min(most, static_cast<std::size_t>(m_end - m_at));
        const std::string bytes(m_at, m_at + size);
        m_at += size;
        return bytes;
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
};

void CheckAnswers(ScriptUnderTest& script, long position)
{
    const long size = static_cast<long>(script.Text().size());
    const auto text = script.Spans();
    const Span batch = script.Analysis().BatchAt(text, position);
    Require(batch.start >= 0 && batch.start <= batch.end && batch.end <= size);
    const auto statement = script.Analysis().StatementAt(text, position);
    if (statement)
        Require(statement->start >= batch.start && statement->start < statement->end &&
                statement->end <= batch.end);
    script.Analysis().CatalogAt(text, position);
}

// Gives whether to look afresh behind it.
bool Edit(ScriptUnderTest& script, Input& input)
{
    constexpr std::size_t kLongest = 8 * 1024; // a fresh look takes as long as the text
    const std::size_t kind = input.Byte();
    const std::size_t at = input.Below(script.Text().size() + 1);
    const std::size_t left = script.Text().size() - at;
    if (kind % 4 == 0) {
        script.Erase(static_cast<long>(at), static_cast<long>(std::min(left, kind / 4 + 1)));
    } else {
        const std::string bytes = input.Bytes(1 + kind / 8);
        std::string text;
        const bool repeats = kind % 64 == 1 && script.Text().size() + 200 * bytes.size() < kLongest;
        for (std::size_t times = repeats ? 200 : 1; times > 0; --times)
            text += bytes; // tokens that are longer than any is kept whole
        script.Insert(static_cast<long>(at), text);
    }
    CheckAnswers(script, static_cast<long>(at));
    return kind >= 192;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const char* dialect = kDialects[input.Byte() % std::size(kDialects)];
    const std::size_t stretch = 1 + input.Byte();
    ScriptUnderTest script(dialect, input.Bytes(size / 2));
    script.SetStretch(static_cast<long>(stretch));
    do {
        if (Edit(script, input) || input.IsEmpty())
            Require(script.Everything() == script.Fresh().Everything());
    } while (!input.IsEmpty());
    return 0;
}
