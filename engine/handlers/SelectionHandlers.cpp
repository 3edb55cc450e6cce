// SPDX-License-Identifier: GPL-3.0-or-later
// Messages of several selections (control/Selections.h).
#include "control/Selections.h"

#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kMostBlanks = 10 * 1000;

struct ByteEnds
{
    long anchor;
    long caret;
};

ByteEnds BytesOf(const Engine& engine, const SelectionEnds& ends)
{
    return {engine.Bytes(std::max(ends.anchor, 0)), engine.Bytes(std::max(ends.caret, 0))};
}

// A rectangle goes on being one until there is no selection any more.
void SelectOne(const Raw& raw, const ByteEnds& ends)
{
    const auto caret = static_cast<WPARAM>(ends.caret);
    raw.Send(Sci::SCI_SETEMPTYSELECTION, caret);
    raw.Send(Sci::SCI_SETSELECTION, caret, ends.anchor);
}

LRESULT GetSelections(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Raw& raw = engine.raw;
    const auto count = static_cast<WPARAM>(raw.Send(Sci::SCI_GETSELECTIONS));
    const auto main = static_cast<WPARAM>(raw.Send(Sci::SCI_GETMAINSELECTION));
    auto* ends = reinterpret_cast<SelectionEnds*>(lParam);
    for (WPARAM i = 0; ends && i < std::min(count, wParam); ++i) {
        const WPARAM number = (main + 1 + i) % count;
        const auto place = [&](UINT message) {
            return static_cast<int>(engine.Units(static_cast<long>(raw.Send(message, number))));
        };
        ends[i] = {place(Sci::SCI_GETSELECTIONNANCHOR), place(Sci::SCI_GETSELECTIONNCARET)};
    }
    return static_cast<LRESULT>(count);
}

// The stock engine would keep two carets at a place, and type twice there. The later one counts.
LRESULT SetSelections(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* ends = reinterpret_cast<const SelectionEnds*>(lParam);
    if (!ends || wParam == 0)
        return 0;
    std::set<std::pair<long, long>> places;
    std::vector<ByteEnds> once; // from the last
    for (WPARAM i = wParam; i-- > 0;) {
        const ByteEnds bytes = BytesOf(engine, ends[i]);
        if (places.emplace(bytes.anchor, bytes.caret).second)
            once.push_back(bytes);
    }
    SelectOne(engine.raw, once.back());
    once.pop_back();
    for (; !once.empty(); once.pop_back())
        engine.raw.Send(Sci::SCI_ADDSELECTION, static_cast<WPARAM>(once.back().caret),
                        once.back().anchor);
    return 0;
}

LRESULT SetColumns(Engine& engine, WPARAM, LPARAM lParam)
{
    const auto* corners = reinterpret_cast<const ColumnCorners*>(lParam);
    if (!corners)
        return 0;
    const Raw& raw = engine.raw;
    SelectOne(raw, BytesOf(engine, corners->ends));
    engine.columns.Begin();
    if (!engine.columns.AreSelected())
        return 0;
    const auto blanks = [](int count) {
        return static_cast<WPARAM>(std::clamp(count, 0, kMostBlanks));
    };
    raw.Send(Sci::SCI_SETRECTANGULARSELECTIONANCHORVIRTUALSPACE, blanks(corners->anchorBlanks));
    raw.Send(Sci::SCI_SETRECTANGULARSELECTIONCARETVIRTUALSPACE, blanks(corners->caretBlanks));
    return 0;
}

LRESULT GetColumns(Engine& engine, WPARAM, LPARAM lParam)
{
    auto* corners = reinterpret_cast<ColumnCorners*>(lParam);
    if (!corners || !engine.columns.AreSelected())
        return 0;
    const auto ask = [&engine](UINT message) {
        return static_cast<long>(engine.raw.Send(message));
    };
    const auto place = [&](UINT message) { return static_cast<int>(engine.Units(ask(message))); };
    corners->ends = {place(Sci::SCI_GETRECTANGULARSELECTIONANCHOR),
                     place(Sci::SCI_GETRECTANGULARSELECTIONCARET)};
    corners->anchorBlanks =
        static_cast<int>(ask(Sci::SCI_GETRECTANGULARSELECTIONANCHORVIRTUALSPACE));
    corners->caretBlanks = static_cast<int>(ask(Sci::SCI_GETRECTANGULARSELECTIONCARETVIRTUALSPACE));
    return 1;
}

constexpr HandlerRow kRows[] = {
    {kGetSelections, GetSelections},
    {kSetSelections, SetSelections},
    {kSetColumns, SetColumns},
    {kGetColumns, GetColumns},
};

} // namespace

std::span<const HandlerRow> SelectionHandlers()
{
    return kRows;
}

} // namespace engine
