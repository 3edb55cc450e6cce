// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/CaretPlaces.h"

namespace engine {
namespace {

using Sci = QsciScintillaBase;

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
    for (std::size_t i = 0; i < m_ranges.size(); ++i) {
        const auto [anchor, caret, anchorBlanks, caretBlanks] = m_ranges[i];
        if (i == 0)
            tell(Sci::SCI_SETEMPTYSELECTION, caret);
        tell(i == 0 ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION, caret, anchor);
        tell(Sci::SCI_SETSELECTIONNANCHORVIRTUALSPACE, static_cast<long>(i), anchorBlanks);
        tell(Sci::SCI_SETSELECTIONNCARETVIRTUALSPACE, static_cast<long>(i), caretBlanks);
    }
    tell(Sci::SCI_SETMAINSELECTION, static_cast<long>(m_main));
}

} // namespace engine
