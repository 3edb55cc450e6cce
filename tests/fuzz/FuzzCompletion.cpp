// SPDX-License-Identifier: GPL-3.0-or-later
// Any script in any dialect, edited anyhow: the index is that of a fresh one, and what is proposed
// at a caret keeps inside the text.
#include "completion/CallAt.h"
#include "completion/Definitions.h"
#include "completion/ScriptSource.h"
#include "tests/completion/IndexedText.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace completion;

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
    long Below(long most)
    {
        const auto number = static_cast<long>(Byte() << 8 | Byte());
        return most == 0 ? 0 : number % most;
    }
    std::u16string Text(std::size_t most)
    {
        const auto size = std::min(most, static_cast<std::size_t>(m_end - m_at));
        const QString text =
            QString::fromUtf8(reinterpret_cast<const char*>(m_at), static_cast<qsizetype>(size));
        m_at += size;
        return text.toStdU16String();
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
};

// Editors change whole characters.
long Whole(const std::u16string& text, long place)
{
    const auto at = static_cast<std::size_t>(place);
    const bool isLow = at > 0 && at < text.size() && (text[at] & 0xFC00) == 0xDC00 &&
                       (text[at - 1] & 0xFC00) == 0xD800;
    return isLow ? place - 1 : place;
}

void Ask(IndexedText& script, long caret)
{
    script.Index().Freshen(script.Reader(), caret);
    CaretContext context = ContextAt(script.Index(), script.Reader(), caret);
    const ProposalQuery query = context.query;
    Require(query.start >= 0 && query.start <= caret && query.caret == caret);
    Require(query.start + query.typed.size() <= caret);
    ScriptSource source(script.Index(), script.Reader());
    source.SetContext(std::move(context));
    std::vector<Proposal> proposals;
    source.Propose(query, proposals);
    for (const Proposal& each : BestOf(std::move(proposals), query.typed, 50))
        Require(!each.text.isEmpty());
    const Call call = CallAt(script.Index(), script.Reader(), caret);
    Require(!call.IsOne() || (call.position >= 0 && call.position < caret && call.argument >= 0));
    for (const auto& argument : SignatureIn(script.Index(), script.Reader(), call.name).arguments)
        Require(argument.first <= argument.second);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const auto* dialect =
        engine::analysis::DialectByName(kDialects[input.Byte() % std::size(kDialects)]);
    const bool isPlain = input.Byte() % 8 == 0;
    IndexedText script(isPlain ? nullptr : dialect, input.Text(200),
                       16 + static_cast<long>(input.Byte()));
    while (!input.IsEmpty()) {
        const std::size_t kind = input.Byte();
        const long place = Whole(script.Text(), input.Below(script.Length() + 1));
        const long end = Whole(script.Text(), std::min(place + input.Below(64), script.Length()));
        if (kind % 3 == 0)
            script.Delete(place, std::max(end - place, 0L));
        else
            script.Insert(place, input.Text(kind % 32));
        if (kind % 5 == 0)
            Ask(script, Whole(script.Text(), std::min(place, script.Length())));
    }
    script.Finish();
    Require(script.Told() == script.Afresh());
    Ask(script, Whole(script.Text(), script.Length() / 2));
    return 0;
}
