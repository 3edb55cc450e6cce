// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/services/LongWork.h"

#include <utility>

namespace {

ILongWork*& Host()
{
    static ILongWork* host = nullptr;
    return host;
}

} // namespace

ILongWork::~ILongWork() = default;

void SetLongWork(ILongWork* host)
{
    Host() = host;
}

LongWork::LongWork(HWND owner, QString what) : m_owner(owner), m_what(std::move(what))
{
    m_begun.start();
}

LongWork::~LongWork()
{
    if (m_asked && m_asked == Host())
        m_asked->Ends();
}

bool LongWork::Ask(int hundredths)
{
    if (!Host() || m_isStopped || m_begun.elapsed() < Host()->Patience())
        return !m_isStopped;
    m_asked = Host();
    m_isStopped = !m_asked->GoesOn(m_owner, m_what, hundredths);
    return !m_isStopped;
}

void LongWork::TellHost()
{
    if (!Host() || m_begun.elapsed() < Host()->Patience())
        return;
    m_asked = Host();
    m_asked->Tells(m_owner, m_what, m_steps);
}
