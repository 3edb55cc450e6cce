// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/printing/PrintInfo.h"

#include <algorithm>

CPrintInfo::CPrintInfo() : m_pPD(new CPrintDialog) {}

CPrintInfo::~CPrintInfo()
{
    delete m_pPD;
}

UINT CPrintInfo::GetFromPage() const
{
    return m_pPD->PrintRange() ? std::max<UINT>(m_pPD->m_pd.nFromPage, GetMinPage()) : GetMinPage();
}

UINT CPrintInfo::GetToPage() const
{
    return m_pPD->PrintRange() ? std::min<UINT>(m_pPD->m_pd.nToPage, GetMaxPage()) : GetMaxPage();
}
