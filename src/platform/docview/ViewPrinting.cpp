// SPDX-License-Identifier: GPL-3.0-or-later
// CView: the way of a document to paper, from the command to the last page.
#include "platform/docview/View.h"

#include "platform/docview/Document.h"
#include "platform/printing/PrintInfo.h"
#include "platform/printing/PrintService.h"
#include "platform/printing/PrinterDC.h"
#include "platform/windows/Disposal.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace {

RECT AllOf(const CDC& dc)
{
    return {0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES)};
}

} // namespace

int CView::OnPreparePrinting(CPrintInfo* info)
{
    return DoPreparePrinting(info);
}

void CView::OnBeginPrinting(CDC* /*dc*/, CPrintInfo* /*info*/) {}

void CView::OnPrint(CDC* /*dc*/, CPrintInfo* /*info*/) {}

void CView::OnEndPrinting(CDC* /*dc*/, CPrintInfo* /*info*/) {}

int CView::DoPreparePrinting(CPrintInfo* info)
{
    if (info->m_bPreview)
        return 1;
    if (info->m_bDirect && info->m_pPD->GetDefaults())
        return 1;
    return info->m_pPD->DoModal(GetSafeHwnd()) == kDialogOk;
}

void CView::OnFilePrint()
{
    CPrintInfo info;
    PrintWith(info);
}

void CView::OnFilePrintDirect()
{
    CPrintInfo info;
    info.m_bDirect = true;
    PrintWith(info);
}

// The window may be closed while a dialog or the progress of the job is shown; the view itself
// stays until the call is over.
void CView::PrintWith(CPrintInfo& info)
{
    const FrameworkCall call;
    if (!OnPreparePrinting(&info) || !GetSafeHwnd())
        return;
    CPrinterDC dc;
    dc.Attach(info.m_pPD->CreatePrinterDC());
    if (!dc.Job())
        return;
    dc.m_bPrinting = true;
    const QString file = dc.Job()->File();
    OnBeginPrinting(&dc, &info);
    bool isWell = dc.StartDocW(GetDocument() ? GetDocument()->GetTitle() : QString()) > 0;
    bool isStopped = false;
    const UINT last = info.GetToPage();
    for (UINT page = info.GetFromPage(); isWell && page <= last; ++page) {
        isStopped = !GetPrintService().OnPage(GetSafeHwnd(), page, last) || !GetSafeHwnd();
        if (isStopped || !info.m_bContinuePrinting)
            break;
        info.m_nCurPage = page;
        info.m_rectDraw = AllOf(dc);
        isWell = dc.StartPage() > 0;
        if (isWell)
            OnPrint(&dc, &info);
        isWell = isWell && dc.EndPage() > 0;
    }
    OnEndPrinting(&dc, &info);
    if (isWell && !isStopped)
        isWell = dc.EndDoc() > 0;
    else
        dc.AbortDoc();
    dc.DeleteDC();
    GetPrintService().OnDone(GetSafeHwnd(), isWell, file);
}

bool CView::DrawPreview(QPrinter& paper)
{
    QPainter painter;
    if (!GetSafeHwnd() || !painter.begin(&paper))
        return true;
    CDC dc(painter);
    dc.m_bPrinting = true;
    CPrintInfo info;
    info.m_bPreview = true;
    info.m_rectDraw = AllOf(dc);
    if (!OnPreparePrinting(&info))
        return true;
    OnBeginPrinting(&dc, &info);
    const UINT first = info.GetMinPage();
    const UINT last = std::min(info.GetMaxPage(), first + IPrintService::kMostPreviewed - 1);
    for (UINT page = first; page <= last; ++page) {
        if (page > first && !paper.newPage())
            break;
        info.m_nCurPage = page;
        OnPrint(&dc, &info);
        if (!info.m_bContinuePrinting)
            break;
    }
    const bool isWhole = last == info.GetMaxPage();
    OnEndPrinting(&dc, &info);
    return isWhole;
}

void BCGPPrintPreview(CView* view)
{
    const FrameworkCall call;
    const CDocument* document = view->GetDocument();
    GetPrintService().Preview(view->GetSafeHwnd(), document ? document->GetTitle() : QString(),
                              [view](QPrinter& paper) { return view->DrawPreview(paper); });
}
