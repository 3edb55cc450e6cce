// SPDX-License-Identifier: GPL-3.0-or-later
// Messages that search: over the target, from the anchor and in a range. What is found in between,
// the target and its flags are this engine's own.
#include "control/ExpressionCheck.h"
#include "control/Recording.h"
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <QScopeGuard>

#include <algorithm>
#include <new>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// The text beside a count of units; a negative count means up to the terminator.
std::u16string_view CountedText(WPARAM length, LPARAM text)
{
    const auto* units = reinterpret_cast<const char16_t*>(text);
    const auto count = static_cast<long>(static_cast<int>(length));
    if (!units || count < 0)
        return TerminatedText(units);
    return {units, static_cast<std::size_t>(count)};
}

template <long SearchTarget::*Edge>
LRESULT SetTargetEdge(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.target.*Edge = std::max(0L, engine.Bytes(static_cast<LPARAM>(wParam)));
    return 0;
}

template <long SearchTarget::*Edge>
LRESULT GetTargetEdge(Engine& engine, WPARAM, LPARAM)
{
    return engine.Units(engine.target.*Edge);
}

LRESULT TargetFromSelection(Engine& engine, WPARAM, LPARAM)
{
    engine.target.start = static_cast<long>(engine.raw.Send(Sci::SCI_GETSELECTIONSTART));
    engine.target.end = static_cast<long>(engine.raw.Send(Sci::SCI_GETSELECTIONEND));
    return 0;
}

LRESULT SetSearchFlags(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.target.flags = static_cast<int>(wParam);
    return 0;
}

LRESULT GetSearchFlags(Engine& engine, WPARAM, LPARAM)
{
    return engine.target.flags;
}

LRESULT SearchInTarget(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    SearchTarget& target = engine.target;
    if (const std::u16string_view sought = CountedText(wParam, lParam); sought != target.sought) {
        target.sought = sought;
        target.soughtBytes = Utf8Text(sought).View();
    }
    const auto found =
        engine.searcher.Find(target.soughtBytes, target.flags, target.start, target.end);
    if (!found)
        return -1;
    target.start = found->start;
    const long start = engine.Units(target.start);
    target.end = found->end; // apart from the start: reading both at once would wait for them
    return start;
}

LRESULT FindText(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    auto* record = reinterpret_cast<TextToFind*>(lParam);
    if (!record || !record->lpstrText)
        return -1;
    const Utf8Text sought(TerminatedText(record->lpstrText));
    const auto toBytes = [&engine](int position) {
        return position < 0 ? engine.raw.Length() : engine.Bytes(position);
    };
    const auto found =
        engine.searcher.Find(sought.View(), static_cast<int>(wParam), toBytes(record->chrg.cpMin),
                             toBytes(record->chrg.cpMax));
    if (!found)
        return -1;
    record->chrgText.cpMin = static_cast<int>(engine.Units(found->start));
    record->chrgText.cpMax = static_cast<int>(engine.Units(found->end));
    return record->chrgText.cpMin;
}

// The stock engine records the message for a macro.
LRESULT SearchAnchor(Engine& engine, WPARAM, LPARAM)
{
    engine.raw.Send(Sci::SCI_SEARCHANCHOR);
    engine.searchAnchor = static_cast<long>(engine.raw.Send(Sci::SCI_GETSELECTIONSTART));
    return 0;
}

// From the anchor, which stays, to the text's end or start. The match becomes the selection, with
// the caret at its start.
LRESULT SearchFromAnchor(Engine& engine, UINT number, WPARAM flags, LPARAM text)
{
    if (engine.recording)
        engine.reporter.Tell(
            notify::MacroRecord,
            {.message = static_cast<int>(number), .wParam = flags, .lParam = text});
    const Utf8Text sought(TerminatedText(reinterpret_cast<const char16_t*>(text)));
    const long to = number == message::SearchNext ? engine.raw.Length() : 0;
    const auto found =
        engine.searcher.Find(sought.View(), static_cast<int>(flags), engine.searchAnchor, to);
    if (!found)
        return -1;
    engine.raw.Send(Sci::SCI_SETCURRENTPOS, static_cast<WPARAM>(found->start));
    engine.raw.Send(Sci::SCI_SETANCHOR, static_cast<WPARAM>(found->end));
    return engine.Units(found->start);
}

template <UINT Number>
LRESULT SearchFromAnchor(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    return SearchFromAnchor(engine, Number, wParam, lParam);
}

// Gives the units of what the target became.
LRESULT ReplaceTargetRe(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text replacement(CountedText(wParam, lParam));
    const std::string text = engine.searcher.Substituted(replacement.View());
    engine.ReplaceTarget(text);
    if (engine.raw.Send(Sci::SCI_GETSTATUS) == Sci::SC_STATUS_BADALLOC) {
        engine.raw.Send(Sci::SCI_SETSTATUS, 0);
        throw std::bad_alloc();
    }
    return engine.Units(engine.target.end) - engine.Units(engine.target.start);
}

// The stock engine does not tell whether it records.
template <UINT Number, bool Recording>
LRESULT SetRecording(Engine& engine, WPARAM, LPARAM)
{
    engine.raw.Send(Number);
    engine.recording = Recording;
    engine.isInCommand = false;
    engine.wholeCharacters.RecordingBecame(Recording);
    return 0;
}

LRESULT RecordCommand(Engine& engine, WPARAM number, LPARAM)
{
    if (number == 0) {
        engine.recording |= std::exchange(engine.isInCommand, false);
        return 0;
    }
    if (!engine.recording)
        return 0;
    engine.reporter.Tell(notify::MacroRecord, {.message = static_cast<int>(number)});
    engine.recording = false;
    engine.isInCommand = true;
    return 1;
}

LRESULT TypeAtEach(Engine& engine, WPARAM, LPARAM text)
{
    if (!text || !(engine.columns.AreSelected() || engine.raw.Send(Sci::SCI_GETSELECTIONS) > 1))
        return 0;
    engine.EndRuns();
    engine.reporter.TellTyped(false);
    const auto told = qScopeGuard([&engine] { engine.reporter.TellTyped(true); });
    engine.type(TerminatedText(reinterpret_cast<const char16_t*>(text)));
    return 1;
}

LRESULT TellExpressionProblem(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    auto* record = reinterpret_cast<ExpressionProblem*>(lParam);
    if (!record || !record->text)
        return 0;
    const Utf8Text sought(TerminatedText(record->text));
    const auto problem = engine.searcher.ProblemOf(sought.View(), static_cast<int>(wParam));
    if (!problem)
        return 0;
    record->place = problem->place > sought.View().size()
                        ? -1
                        : static_cast<int>(CountUnits(sought.View().substr(0, problem->place)));
    std::ranges::fill(record->reason, u'\0');
    const auto length = std::min(problem->reason.size(), std::size(record->reason) - 1);
    std::copy_n(problem->reason.begin(), length, record->reason); // ASCII
    return 1;
}

constexpr HandlerRow kRows[] = {
    {kExpressionProblem, TellExpressionProblem},
    {kRecordCommand, RecordCommand},
    {kTypeAtEach, TypeAtEach},
    {message::SetTargetStart, SetTargetEdge<&SearchTarget::start>},
    {message::GetTargetStart, GetTargetEdge<&SearchTarget::start>},
    {message::SetTargetEnd, SetTargetEdge<&SearchTarget::end>},
    {message::GetTargetEnd, GetTargetEdge<&SearchTarget::end>},
    {message::TargetFromSelection, TargetFromSelection},
    {message::SetSearchFlags, SetSearchFlags},
    {message::GetSearchFlags, GetSearchFlags},
    {message::SearchInTarget, SearchInTarget},
    {message::FindTextW, FindText},
    {message::SearchAnchor, SearchAnchor},
    {message::SearchNext, SearchFromAnchor<message::SearchNext>},
    {message::SearchPrev, SearchFromAnchor<message::SearchPrev>},
    {message::ReplaceTargetRE, ReplaceTargetRe},
    {message::StartRecord, SetRecording<Sci::SCI_STARTRECORD, true>},
    {message::StopRecord, SetRecording<Sci::SCI_STOPRECORD, false>},
};

} // namespace

std::span<const HandlerRow> SearchHandlers()
{
    return kRows;
}

} // namespace engine
