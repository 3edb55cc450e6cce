// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/text/Raw.h"

namespace engine {

// The indicator that the text's host works with is back afterwards.
class IndicatorScope
{
public:
    IndicatorScope(const Raw& raw, int indicator)
        : m_raw(raw), m_before(static_cast<WPARAM>(raw.Send(Sci::SCI_GETINDICATORCURRENT)))
    {
        raw.Send(Sci::SCI_SETINDICATORCURRENT, static_cast<WPARAM>(indicator));
    }
    ~IndicatorScope() { m_raw.Send(Sci::SCI_SETINDICATORCURRENT, m_before); }
    IndicatorScope(const IndicatorScope&) = delete;
    IndicatorScope& operator=(const IndicatorScope&) = delete;

private:
    using Sci = QsciScintillaBase;
    using WPARAM = std::uintptr_t;
    const Raw& m_raw;
    WPARAM m_before;
};

// Of the document, whichever of its windows has drawn it.
inline bool IsDrawnAnywhere(const Raw& raw, int indicator)
{
    const auto number = static_cast<std::uintptr_t>(indicator);
    const auto end = raw.Send(QsciScintillaBase::SCI_INDICATOREND, number, std::intptr_t{0});
    return (end > 0 && end < raw.Length()) ||
           raw.Send(QsciScintillaBase::SCI_INDICATORVALUEAT, number, std::intptr_t{0}) != 0;
}

} // namespace engine
