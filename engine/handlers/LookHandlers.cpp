// SPDX-License-Identifier: GPL-3.0-or-later
// Messages of what the engine draws by itself (control/EngineLooks.h).
#include "control/EngineLooks.h"

#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"
#include "engine/looks/DocumentMap.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace engine {
namespace {

LRESULT SetLooks(Engine& engine, WPARAM, LPARAM lParam)
{
    engine.looks.Set(reinterpret_cast<const Looks*>(lParam));
    engine.looks.SetAnyCase(engine.colouring->IsSql());
    return 0;
}

LRESULT ShowMatches(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text sought(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    engine.looks.ShowMatches(std::string(sought.View()), static_cast<int>(wParam));
    return 0;
}

LRESULT ShowMatchesWithin(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const long from = engine.Bytes(static_cast<LPARAM>(wParam));
    const long to = engine.Bytes(lParam);
    engine.looks.ShowMatchesWithin(
        from < 0 ? std::nullopt : std::optional(search::Range{from, std::max(from, to)}));
    return 0;
}

LRESULT MatchesFrom(Engine& engine, WPARAM, LPARAM)
{
    const auto& range = engine.looks.MatchesWithin();
    return range ? engine.Units(range->start) : -1;
}

LRESULT MatchesTo(Engine& engine, WPARAM, LPARAM)
{
    const auto& range = engine.looks.MatchesWithin();
    return range ? engine.Units(range->end) : -1;
}

LRESULT SetViewEOL(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.looks.ShowLineEnds(wParam != 0);
    return 0;
}

LRESULT GetViewEOL(Engine& engine, WPARAM, LPARAM)
{
    return engine.looks.ShowsLineEnds();
}

LRESULT NextFolded(Engine& engine, WPARAM wParam, LPARAM)
{
    return engine.raw.Send(QsciScintillaBase::SCI_CONTRACTEDFOLDNEXT, wParam);
}

LRESULT ShowDocumentMap(Engine& engine, WPARAM wParam, LPARAM)
{
    if (wParam && !engine.map)
        engine.map = new DocumentMap(engine.window, engine.raw, engine.setMapRoom);
    else if (!wParam && engine.map)
        std::exchange(engine.map, nullptr)->End();
    engine.reporter.HearStyles(engine.map != nullptr);
    return 0;
}

LRESULT IsDocumentMapShown(Engine& engine, WPARAM, LPARAM)
{
    return engine.map ? 1 : 0;
}

constexpr HandlerRow kRows[] = {
    {kSetLooks, SetLooks},
    {kShowMatches, ShowMatches},
    {kShowMatchesWithin, ShowMatchesWithin},
    {kMatchesFrom, MatchesFrom},
    {kMatchesTo, MatchesTo},
    {kNextFolded, NextFolded},
    {message::SetViewEOL, SetViewEOL},
    {message::GetViewEOL, GetViewEOL},
    {kShowDocumentMap, ShowDocumentMap},
    {kIsDocumentMapShown, IsDocumentMapShown},
};

} // namespace

std::span<const HandlerRow> LookHandlers()
{
    return kRows;
}

} // namespace engine
