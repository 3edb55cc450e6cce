// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptView: its pages. The finding of them can be stopped as the printing can.
#include "host/script/ScriptView.h"

#include "control/EngineRecords.h"
#include "editing/operations/PrintStyle.h"
#include "host/printing/WorkbenchPrinter.h"
#include "platform/printing/PrintInfo.h"
#include "platform/windows/DeviceContext.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScriptPrinting)
};

} // namespace

// The character at a range's end belongs to it. The base takes a selection of one character for
// none, and finds pages without a word.
void ScriptView::OnBeginPrinting(CDC* dc, CPrintInfo* info)
{
    CharacterRange range{0, static_cast<int>(m_coreEditor.GetLength(1))};
    if (info->m_pPD->PrintSelection())
        range = m_coreEditor.GetSelection();
    range.cpMax = std::max(range.cpMax - 1, range.cpMin);
    ApplyPrintStyle(true);
    RangeToFormat record = PrintRecord(dc, PrintableArea(*dc));
    m_pageStarts.clear();
    for (int start = range.cpMin; start <= range.cpMax;) {
        if (info->m_bPreview && m_pageStarts.size() > IPrintService::kMostPreviewed)
            break; // one more than is shown
        m_pageStarts.push_back(static_cast<unsigned>(start));
        record.chrg = {start, range.cpMax};
        const auto next = static_cast<int>(m_coreEditor.FormatRange(0, &record, 1));
        const QString step = Texts::tr("Finding page %1").arg(m_pageStarts.size() + 1);
        info->m_bContinuePrinting = WorkbenchPrinter::GoesOn(
            GetSafeHwnd(), step, next - range.cpMin, range.cpMax - range.cpMin);
        if (next <= start || !info->m_bContinuePrinting)
            break;
        start = next;
    }
    m_pageStarts.push_back(static_cast<unsigned>(range.cpMax));
    m_coreEditor.FormatRange(0, nullptr, 1);
    info->SetMaxPage(static_cast<UINT>(std::max<std::size_t>(m_pageStarts.size() - 1, 1)));
}
