// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: printing. It keeps pages of its own and leaves those of its control alone.
#include "docview/ZNCoreEditorView.h"

#include "control/EngineRecords.h"
#include "editing/operations/PrintStyle.h"
#include "platform/printing/PrintInfo.h"
#include "platform/system/Exceptions.h"
#include "platform/windows/DeviceContext.h"

#include <algorithm>

int CZNCoreEditorView::OnPreparePrinting(CPrintInfo* info)
{
    if (m_coreEditor.IsSelection()) {
        UINT& flags = info->m_pPD->m_pd.Flags;
        flags = (flags & ~PD_NOSELECTION) | PD_SELECTION;
    }
    return DoPreparePrinting(info);
}

// Where no font is wanted the engine is told so once for a job, at its beginning.
void CZNCoreEditorView::ApplyPrintStyle(bool isBeginning)
{
    m_coreEditor.SetPrintWrapMode(1, 1);
    ApplyPrintColours(m_coreEditor);
    if (!ApplyPrintFont(m_coreEditor) && isBeginning)
        m_coreEditor.PrintStyleSetFont(u"", 1);
}

void CZNCoreEditorView::OnBeginPrinting(CDC* dc, CPrintInfo* info)
{
    const CharacterRange selection = m_coreEditor.GetSelection();
    const auto length = static_cast<int>(m_coreEditor.GetLength(1));
    CharacterRange range{0, length};
    if (info->m_pPD->PrintSelection())
        range = {std::max(selection.cpMin, 0), std::min(selection.cpMax - 1, length)};
    RangeToFormat record = PrintRecord(dc, dc ? PrintableArea(*dc) : RECT{});
    ApplyPrintStyle(true);
    m_pageStarts.clear();
    for (int start = range.cpMin; start < range.cpMax;) {
        m_pageStarts.push_back(static_cast<unsigned>(start));
        record.chrg = {start, range.cpMax};
        const auto next = static_cast<int>(m_coreEditor.FormatRange(0, &record, 1));
        if (next <= start) // a page that holds no character: the rest stays on it
            break;
        start = next;
    }
    m_pageStarts.push_back(static_cast<unsigned>(range.cpMax));
    m_coreEditor.FormatRange(0, nullptr, 1);
    const auto entries = static_cast<UINT>(m_pageStarts.size());
    info->SetMaxPage(entries == 1 ? 1 : entries - 1); // an empty text has an empty page
}

void CZNCoreEditorView::OnPrint(CDC* dc, CPrintInfo* info)
{
    RangeToFormat record = PrintRecord(dc, info->m_rectDraw);
    const std::size_t page = std::size_t{info->m_nCurPage} - 1;
    if (page >= m_pageStarts.size())
        throw CInvalidArgException("no such page");
    record.chrg = {static_cast<int>(m_pageStarts[page]), static_cast<int>(m_pageStarts.back())};
    ApplyPrintStyle(false);
    PrintPage(m_coreEditor, record);
}

void CZNCoreEditorView::OnEndPrinting(CDC* /*dc*/, CPrintInfo* /*info*/)
{
    m_pageStarts.clear();
}

void CZNCoreEditorView::OnFilePrintPreview()
{
    BCGPPrintPreview(this);
}
