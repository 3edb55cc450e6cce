// SPDX-License-Identifier: GPL-3.0-or-later
// Upper and lower case of what is selected, by Unicode's rules: a text may grow or shrink by it.
// The stock engine knows the letters of ASCII.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <unicode/ucasemap.h>

#include <algorithm>
#include <climits>
#include <string>
#include <utility>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;
using Mapping = int32_t (*)(const UCaseMap*, char*, int32_t, const char*, int32_t, UErrorCode*);

// No locale's rules: a script reads the same on every machine.
const UCaseMap* Rules()
{
    static const UCaseMap* const rules = [] {
        UErrorCode error = U_ZERO_ERROR;
        return ucasemap_open("", U_FOLD_CASE_DEFAULT, &error);
    }();
    return rules;
}

// The text as it was if it cannot be mapped.
std::string Mapped(std::string_view text, Mapping map)
{
    if (text.size() > INT_MAX / 4 || !Rules())
        return std::string(text);
    std::string mapped(text.size() + 16, '\0');
    for (;;) {
        UErrorCode error = U_ZERO_ERROR;
        const int32_t size = map(Rules(), mapped.data(), static_cast<int32_t>(mapped.size()),
                                 text.data(), static_cast<int32_t>(text.size()), &error);
        const bool fits = static_cast<std::size_t>(size) <= mapped.size();
        mapped.resize(static_cast<std::size_t>(size));
        if (fits)
            return U_SUCCESS(error) ? mapped : std::string(text);
    }
}

bool IsContinuation(char byte)
{
    return (byte & 0xC0) == 0x80;
}

// Bytes of the text and what they become.
struct Edit
{
    long start;
    long end;
    std::string text;

    long Growth() const { return static_cast<long>(text.size()) - (end - start); }
};

// Only what differs, in whole characters, so that the change is no longer than it has to be.
Edit Difference(long at, std::string_view before, std::string_view after)
{
    auto first = static_cast<std::size_t>(
        std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first -
        before.begin());
    while (first > 0 && ((first < before.size() && IsContinuation(before[first])) ||
                         (first < after.size() && IsContinuation(after[first]))))
        --first;
    const std::string_view oldRest = before.substr(first);
    const std::string_view newRest = after.substr(first);
    auto same = static_cast<std::size_t>(
        std::mismatch(oldRest.rbegin(), oldRest.rend(), newRest.rbegin(), newRest.rend()).first -
        oldRest.rbegin());
    while (same > 0 && IsContinuation(oldRest[oldRest.size() - same]))
        --same;
    const long start = at + static_cast<long>(first);
    return {start, start + static_cast<long>(oldRest.size() - same),
            std::string(newRest.substr(0, newRest.size() - same))};
}

// One end of a selection, by the messages that ask for it and set it.
struct Edge
{
    UINT set;
    UINT setVirtual;
    WPARAM selection;
    bool isOfRectangle;
    long position;
    LRESULT virtualSpace; // columns behind the line's end

    Edge(const Raw& raw, const UINT (&numbers)[4], WPARAM number, bool ofRectangle)
        : set(numbers[2]), setVirtual(numbers[3]), selection(number), isOfRectangle(ofRectangle),
          position(static_cast<long>(raw.Send(numbers[0], number))),
          virtualSpace(raw.Send(numbers[1], number))
    {}

    void Restore(const Raw& raw, UINT number, LRESULT value) const
    {
        if (isOfRectangle)
            raw.Send(number, static_cast<WPARAM>(value));
        else
            raw.Send(number, selection, value);
    }
};

constexpr UINT kAnchor[] = {Sci::SCI_GETSELECTIONNANCHOR, Sci::SCI_GETSELECTIONNANCHORVIRTUALSPACE,
                            Sci::SCI_SETSELECTIONNANCHOR, Sci::SCI_SETSELECTIONNANCHORVIRTUALSPACE};
constexpr UINT kCaret[] = {Sci::SCI_GETSELECTIONNCARET, Sci::SCI_GETSELECTIONNCARETVIRTUALSPACE,
                           Sci::SCI_SETSELECTIONNCARET, Sci::SCI_SETSELECTIONNCARETVIRTUALSPACE};
constexpr UINT kRectangleAnchor[] = {
    Sci::SCI_GETRECTANGULARSELECTIONANCHOR, Sci::SCI_GETRECTANGULARSELECTIONANCHORVIRTUALSPACE,
    Sci::SCI_SETRECTANGULARSELECTIONANCHOR, Sci::SCI_SETRECTANGULARSELECTIONANCHORVIRTUALSPACE};
constexpr UINT kRectangleCaret[] = {
    Sci::SCI_GETRECTANGULARSELECTIONCARET, Sci::SCI_GETRECTANGULARSELECTIONCARETVIRTUALSPACE,
    Sci::SCI_SETRECTANGULARSELECTIONCARET, Sci::SCI_SETRECTANGULARSELECTIONCARETVIRTUALSPACE};

std::vector<Edge> EdgesOf(const Raw& raw)
{
    if (raw.Send(Sci::SCI_SELECTIONISRECTANGLE))
        return {Edge(raw, kRectangleAnchor, 0, true), Edge(raw, kRectangleCaret, 0, true)};
    std::vector<Edge> edges;
    const auto count = static_cast<WPARAM>(raw.Send(Sci::SCI_GETSELECTIONS));
    for (WPARAM i = 0; i < count; ++i) {
        edges.emplace_back(raw, kAnchor, i, false);
        edges.emplace_back(raw, kCaret, i, false);
    }
    return edges;
}

// In the order of the text.
std::vector<Edit> EditsOf(const Raw& raw, Mapping map)
{
    std::vector<Edit> edits;
    const auto count = static_cast<WPARAM>(raw.Send(Sci::SCI_GETSELECTIONS));
    for (WPARAM i = 0; i < count; ++i) {
        const auto start = static_cast<long>(raw.Send(Sci::SCI_GETSELECTIONNSTART, i));
        const auto end = static_cast<long>(raw.Send(Sci::SCI_GETSELECTIONNEND, i));
        const std::string_view before = raw.Bytes(start, end);
        const std::string after = Mapped(before, map);
        if (after != before)
            edits.push_back(Difference(start, before, after));
    }
    std::sort(edits.begin(), edits.end(),
              [](const Edit& a, const Edit& b) { return a.start < b.start; });
    return edits;
}

// What was selected stays selected.
LRESULT ChangeCase(Engine& engine, UINT number, Mapping map)
{
    if (engine.recording)
        engine.reporter.Tell(notify::MacroRecord, {.message = static_cast<int>(number)});
    const Raw& raw = engine.raw;
    if (raw.Send(Sci::SCI_GETREADONLY))
        return 0;
    const std::vector<Edit> edits = EditsOf(raw, map);
    if (edits.empty())
        return 0;
    std::vector<Edge> edges = EdgesOf(raw);
    for (Edge& edge : edges) {
        const long before = edge.position;
        for (const Edit& edit : edits)
            edge.position += edit.end <= before ? edit.Growth() : 0;
    }
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        raw.Send(Sci::SCI_SETTARGETRANGE, static_cast<WPARAM>(edit->start), edit->end);
        raw.Send(Sci::SCI_REPLACETARGET, edit->text.size(), edit->text.data());
    }
    for (const Edge& edge : edges)
        edge.Restore(raw, edge.set, edge.position);
    for (const Edge& edge : edges)
        edge.Restore(raw, edge.setVirtual, edge.virtualSpace);
    raw.Send(Sci::SCI_ENDUNDOACTION);
    return 0;
}

LRESULT UpperCase(Engine& engine, WPARAM, LPARAM)
{
    return ChangeCase(engine, message::UpperCase, ucasemap_utf8ToUpper);
}

LRESULT LowerCase(Engine& engine, WPARAM, LPARAM)
{
    return ChangeCase(engine, message::LowerCase, ucasemap_utf8ToLower);
}

constexpr HandlerRow kRows[] = {
    {message::UpperCase, UpperCase},
    {message::LowerCase, LowerCase},
};

} // namespace

std::span<const HandlerRow> CaseHandlers()
{
    return kRows;
}

} // namespace engine
