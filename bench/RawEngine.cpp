// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/RawEngine.h"

#include <algorithm>

namespace bench {

RawEngine::RawEngine()
    : m_function(
          reinterpret_cast<Function>(m_widget.SendScintillaPtrResult(Sci::SCI_GETDIRECTFUNCTION))),
      m_instance(reinterpret_cast<std::intptr_t>(
          m_widget.SendScintillaPtrResult(Sci::SCI_GETDIRECTPOINTER)))
{
    Send(Sci::SCI_SETCODEPAGE, Sci::SC_CP_UTF8);
    Send(Sci::SCI_SETMODEVENTMASK, 0);
}

void RawEngine::Load(std::string_view text) const
{
    constexpr std::size_t kBlock = 8192;
    Send(Sci::SCI_CLEARALL);
    Send(Sci::SCI_SETUNDOCOLLECTION, 0);
    Send(Sci::SCI_ALLOCATE, text.size());
    for (std::size_t at = 0; at < text.size(); at += kBlock)
        Send(Sci::SCI_ADDTEXT, std::min(kBlock, text.size() - at), text.data() + at);
    Send(Sci::SCI_SETUNDOCOLLECTION, 1);
    Send(Sci::SCI_SETSAVEPOINT);
}

} // namespace bench
