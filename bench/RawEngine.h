// SPDX-License-Identifier: GPL-3.0-or-later
// The stock engine, as fast as it can be had: notifications masked, storage allocated ahead.
#pragma once

#include <Qsci/qsciscintillabase.h>

#include <cstdint>
#include <string_view>

namespace bench {

class RawEngine
{
public:
    using Sci = QsciScintillaBase;

    RawEngine();

    std::intptr_t Send(unsigned message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) const
    {
        return m_function(m_instance, message, wParam, lParam);
    }
    std::intptr_t Send(unsigned message, std::uintptr_t wParam, const void* lParam) const
    {
        return Send(message, wParam, reinterpret_cast<std::intptr_t>(lParam));
    }

    // The whole text in blocks of 8 KB, without undo.
    void Load(std::string_view text) const;

    Sci& Widget() { return m_widget; }

private:
    using Function = std::intptr_t (*)(std::intptr_t, unsigned, std::uintptr_t, std::intptr_t);

    Sci m_widget;
    Function m_function;
    std::intptr_t m_instance;
};

} // namespace bench
