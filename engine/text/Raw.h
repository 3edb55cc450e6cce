// SPDX-License-Identifier: GPL-3.0-or-later
// The stock engine by number, over its direct function. Positions and lengths count bytes of UTF-8.
#pragma once

#include "platform/text/VectorState.h"

#include <Qsci/qsciscintillabase.h>

#include <cstdint>
#include <string_view>

namespace engine {

class Raw
{
public:
    using Sci = QsciScintillaBase;

    explicit Raw(const QsciScintillaBase& widget)
        : m_function(reinterpret_cast<Function>(
              widget.SendScintillaPtrResult(Sci::SCI_GETDIRECTFUNCTION))),
          m_instance(reinterpret_cast<std::intptr_t>(
              widget.SendScintillaPtrResult(Sci::SCI_GETDIRECTPOINTER)))
    {}

    std::intptr_t Send(unsigned message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) const
    {
        platform::ClearUpperHalves();
        return m_function(m_instance, message, wParam, lParam);
    }

    std::intptr_t Send(unsigned message, std::uintptr_t wParam, const void* lParam) const
    {
        return Send(message, wParam, reinterpret_cast<std::intptr_t>(lParam));
    }

    long Length() const { return static_cast<long>(Send(Sci::SCI_GETLENGTH)); }
    long LineCount() const { return static_cast<long>(Send(Sci::SCI_GETLINECOUNT)); }

    // The bytes between two positions inside the text. Good until the next message.
    std::string_view Bytes(long start, long end) const
    {
        const auto size = static_cast<std::size_t>(end - start);
        return {reinterpret_cast<const char*>(Send(Sci::SCI_GETRANGEPOINTER,
                                                   static_cast<std::uintptr_t>(start),
                                                   static_cast<std::intptr_t>(size))),
                size};
    }

private:
    using Function = std::intptr_t (*)(std::intptr_t, unsigned, std::uintptr_t, std::intptr_t);

    Function m_function;
    std::intptr_t m_instance;
};

} // namespace engine
