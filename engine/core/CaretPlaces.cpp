// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/CaretPlaces.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// What is selected is painted as another program's until the display's server is told of it, which
// the stock engine does for few messages.
void ClaimSelection(const Raw& raw)
{
    const std::intptr_t main = raw.Send(Sci::SCI_GETMAINSELECTION);
    const auto blanks = [&](unsigned message) {
        return raw.Send(message, static_cast<std::uintptr_t>(main));
    };
    if (!raw.Send(Sci::SCI_GETSELECTIONEMPTY) &&
        blanks(Sci::SCI_GETSELECTIONNANCHORVIRTUALSPACE) == 0 &&
        blanks(Sci::SCI_GETSELECTIONNCARETVIRTUALSPACE) == 0)
        raw.Send(Sci::SCI_SETANCHOR, static_cast<std::uintptr_t>(raw.Send(Sci::SCI_GETANCHOR)));
}

bool IsCaret(const std::array<long, 4>& range)
{
    return range[0] == range[1];
}

} // namespace

CaretPlaces::CaretPlaces(const Raw& raw)
    : m_ranges(static_cast<std::size_t>(raw.Send(Sci::SCI_GETSELECTIONS))),
      m_main(static_cast<std::size_t>(raw.Send(Sci::SCI_GETMAINSELECTION))),
      m_isRectangle(raw.Send(Sci::SCI_SELECTIONISRECTANGLE) != 0)
{
    const auto ask = [&raw](unsigned message, std::size_t number = 0) {
        return static_cast<long>(raw.Send(message, number));
    };
    if (m_isRectangle)
        m_corners = {ask(Sci::SCI_GETRECTANGULARSELECTIONANCHOR),
                     ask(Sci::SCI_GETRECTANGULARSELECTIONCARET),
                     ask(Sci::SCI_GETRECTANGULARSELECTIONANCHORVIRTUALSPACE),
                     ask(Sci::SCI_GETRECTANGULARSELECTIONCARETVIRTUALSPACE)};
    for (std::size_t i = 0; i < m_ranges.size(); ++i)
        m_ranges[i] = {ask(Sci::SCI_GETSELECTIONNANCHOR, i), ask(Sci::SCI_GETSELECTIONNCARET, i),
                       ask(Sci::SCI_GETSELECTIONNANCHORVIRTUALSPACE, i),
                       ask(Sci::SCI_GETSELECTIONNCARETVIRTUALSPACE, i)};
}

void CaretPlaces::PutBack(const Raw& raw) const
{
    const auto tell = [&raw](unsigned message, long value, long other = 0) {
        raw.Send(message, static_cast<std::uintptr_t>(value), other);
    };
    if (m_isRectangle) {
        const auto [anchor, caret, anchorBlanks, caretBlanks] = m_corners;
        tell(Sci::SCI_SETEMPTYSELECTION, anchor);
        tell(Sci::SCI_SETRECTANGULARSELECTIONANCHOR, anchor);
        tell(Sci::SCI_SETRECTANGULARSELECTIONCARET, caret);
        tell(Sci::SCI_SETRECTANGULARSELECTIONANCHORVIRTUALSPACE, anchorBlanks);
        tell(Sci::SCI_SETRECTANGULARSELECTIONCARETVIRTUALSPACE, caretBlanks);
        return;
    }
    // Edits may have brought a caret to the edge of a selection, which takes it in when it is
    // added, and would be cut by it.
    std::vector<std::size_t> order(m_ranges.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_partition(order.begin(), order.end(),
                          [this](std::size_t i) { return IsCaret(m_ranges[i]); });
    bool isFirst = true;
    const auto last = [&raw] { return static_cast<long>(raw.Send(Sci::SCI_GETSELECTIONS)) - 1; };
    long main = 0;
    for (const std::size_t i : order) {
        const auto [anchor, caret, anchorBlanks, caretBlanks] = m_ranges[i];
        if (isFirst)
            tell(Sci::SCI_SETEMPTYSELECTION, caret);
        tell(std::exchange(isFirst, false) ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION, caret,
             anchor);
        tell(Sci::SCI_SETSELECTIONNANCHORVIRTUALSPACE, last(), anchorBlanks);
        tell(Sci::SCI_SETSELECTIONNCARETVIRTUALSPACE, last(), caretBlanks);
        if (i == m_main)
            main = last();
    }
    tell(Sci::SCI_SETMAINSELECTION, std::min(main, last()));
    ClaimSelection(raw);
}

} // namespace engine
