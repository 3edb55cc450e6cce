// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: printing. The engine lays the pages out and draws them; here is kept
// where each of them begins.
#include "editing/ZNCoreEditorControlEx.h"

#include "common/Globals.h"
#include "control/EngineRecords.h"
#include "editing/operations/PrintStyle.h"
#include "platform/printing/PrintInfo.h"
#include "platform/printing/PrinterDC.h"
#include "platform/services/ResourceLoader.h"
#include "platform/system/Exceptions.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// No selection, no page numbers, copies made by the device, no choice of a file.
constexpr UINT kDialogFlags =
    PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIES | PD_HIDEPRINTTOFILE;

QString DocumentName()
{
    constexpr UINT kProductName = 57344;
    const QString name = QCoreApplication::applicationName();
    return name.isEmpty() ? zncoreeditor::GetResourceLoader().LoadString(kProductName) : name;
}

} // namespace

int CZNCoreEditorControlEx::BeginPrintJob(CPrinterDC& dc, CPrintInfo& info, int& goesOn)
{
    CPrintDialog dialog(kDialogFlags);
    const int choice = dialog.DoModal(GetSafeHwnd());
    if (choice == kDialogCancel)
        return choice;
    dc.Attach(dialog.CreatePrinterDC());
    dc.m_bPrinting = true;
    goesOn = dc.StartDocW(DocumentName());
    info.m_rectDraw = PrintableArea(dc);
    OnBeginPrinting(&dc, &info);
    return choice;
}

// A document that could not be begun is printed nevertheless, as far as its pages can.
void CZNCoreEditorControlEx::Print()
{
    CPrinterDC dc;
    CPrintInfo info;
    int goesOn = 0;
    if (BeginPrintJob(dc, info, goesOn) == kDialogCancel)
        return;
    ApplyPrintColours(*this);
    ApplyPrintFont(*this);
    for (UINT page = info.GetMinPage(); page <= info.GetMaxPage() && goesOn; ++page) {
        dc.StartPage();
        info.m_nCurPage = page;
        OnPrint(&dc, &info);
        goesOn = dc.EndPage() > 0;
    }
    OnEndPrinting(&dc, &info);
    if (goesOn)
        dc.EndDoc();
    else
        dc.AbortDoc();
    dc.DeleteDC();
}

int CZNCoreEditorControlEx::OnPreparePrinting(CPrintInfo* info)
{
    if (IsSelection()) {
        UINT& flags = info->m_pPD->m_pd.Flags;
        flags = (flags & ~PD_NOSELECTION) | PD_SELECTION;
    }
    CPrinterDC dc;
    CPrintInfo own;
    int goesOn = 0;
    return BeginPrintJob(dc, own, goesOn) == kDialogCancel ? 0 : goesOn;
}

void CZNCoreEditorControlEx::OnBeginPrinting(CDC* dc, CPrintInfo* info)
{
    const CharacterRange selection = GetSelection();
    const auto length = static_cast<int>(GetLength(1));
    CharacterRange range{0, length};
    if (info->m_pPD->PrintSelection())
        range = {std::max(selection.cpMin, 0), std::min(selection.cpMax - 1, length)};
    RangeToFormat record = PrintRecord(dc, PrintableArea(*dc));
    SetPrintMagnification(-1, 1);
    SetPrintWrapMode(1, 1);
    m_pageStarts.clear();
    for (int start = range.cpMin; start < range.cpMax;) {
        m_pageStarts.push_back(static_cast<unsigned>(start));
        record.chrg = {start, range.cpMax};
        const auto next = static_cast<int>(FormatRange(0, &record, 1));
        if (next <= start) // a page that holds no character: the rest stays on it
            break;
        start = next;
    }
    m_pageStarts.push_back(static_cast<unsigned>(range.cpMax));
    FormatRange(0, nullptr, 1);
    info->SetMaxPage(static_cast<UINT>(m_pageStarts.size() - 1));
}

void CZNCoreEditorControlEx::OnPrint(CDC* dc, CPrintInfo* info)
{
    RangeToFormat record = PrintRecord(dc, info->m_rectDraw);
    record.chrg = {0, static_cast<int>(GetLength(1))};
    if (!m_pageStarts.empty()) {
        const std::size_t page = std::size_t{info->m_nCurPage} - 1;
        if (page >= m_pageStarts.size())
            throw CInvalidArgException("no such page");
        record.chrg = {static_cast<int>(m_pageStarts[page]), static_cast<int>(m_pageStarts.back())};
    }
    SetPrintMagnification(-1, 1);
    SetPrintWrapMode(1, 1);
    PrintPage(*this, record);
}

void CZNCoreEditorControlEx::OnEndPrinting(CDC* /*dc*/, CPrintInfo* /*info*/)
{
    m_pageStarts.clear();
}
