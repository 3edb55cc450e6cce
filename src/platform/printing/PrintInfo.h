// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CPrintInfo: what a document and the framework tell each other while it is printed.
#pragma once

#include "platform/printing/PrintDialog.h"

/// What a document and the framework tell each other while it is printed.
class ZN_API CPrintInfo
{
public:
    CPrintInfo();  ///< of a document with pages from 1 on
    ~CPrintInfo(); ///< the dialog goes
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    /// Pages count from 1; the numbers of a dialog have 16 bits.
    void SetMinPage(UINT page) { m_pPD->m_pd.nMinPage = static_cast<std::uint16_t>(page); }
    /// The last page that there is.
    void SetMaxPage(UINT page) { m_pPD->m_pd.nMaxPage = static_cast<std::uint16_t>(page); }
    UINT GetMinPage() const { return m_pPD->m_pd.nMinPage; } ///< the first page that there is
    UINT GetMaxPage() const { return m_pPD->m_pd.nMaxPage; } ///< the last page that there is
    /// What was chosen to be printed, within the pages that there are.
    UINT GetFromPage() const;
    UINT GetToPage() const; ///< the last one of them

    CPrintDialog* const m_pPD;       ///< owned
    bool m_bPreview = false;         ///< on the screen
    bool m_bDirect = false;          ///< without a dialog
    bool m_bContinuePrinting = true; ///< cleared by a view that has no further page
    UINT m_nCurPage = 1;             ///< the page to be drawn, from 1
    RECT m_rectDraw;                 ///< device pixels
};
