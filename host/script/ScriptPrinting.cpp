// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptView: its pages, with a head and a foot. The finding of them can be stopped as the printing
// can.
#include "host/script/ScriptView.h"

#include "control/EngineRecords.h"
#include "editing/operations/PrintStyle.h"
#include "host/printing/HeadAndFoot.h"
#include "host/printing/WorkbenchPrinter.h"
#include "host/script/ScriptDoc.h"
#include "platform/printing/PrintInfo.h"
#include "platform/services/OptionsServer.h"
#include "platform/windows/DeviceContext.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScriptPrinting)
};

} // namespace

// All of the text, unless somebody chooses the selection in the dialog: it is often no more than
// the match that was found last, and a preview has no such choice.
int ScriptView::OnPreparePrinting(CPrintInfo* info)
{
    UINT& flags = info->m_pPD->m_pd.Flags;
    if (m_coreEditor.IsSelection())
        flags &= ~PD_NOSELECTION;
    return DoPreparePrinting(info);
}

// The character at a range's end belongs to it. The base takes a selection of one character for
// none, and finds pages without a word.
void ScriptView::OnBeginPrinting(CDC* dc, CPrintInfo* info)
{
    CharacterRange range{0, static_cast<int>(m_coreEditor.GetLength(1))};
    if (info->m_pPD->PrintSelection())
        range = m_coreEditor.GetSelection();
    range.cpMax = std::max(range.cpMax - 1, range.cpMin);
    ApplyPrintStyle(true);
    const bool hasHead =
        dc->GetSafeHdc() && CZNOptionsServer::GetObjectW()->GetBool(headandfoot::kOption);
    m_printTime = hasHead ? QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat)
                          : QString();
    const RECT page = PrintableArea(*dc);
    RangeToFormat record =
        PrintRecord(dc, hasHead ? headandfoot::TextArea(*dc->GetSafeHdc(), page) : page);
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

// How many pages there are is not known where a preview has stopped to look for them.
void ScriptView::OnPrint(CDC* dc, CPrintInfo* info)
{
    const RECT page = info->m_rectDraw;
    if (!m_printTime.isEmpty())
        info->m_rectDraw = headandfoot::TextArea(*dc->GetSafeHdc(), page);
    CZNCoreEditorView::OnPrint(dc, info);
    info->m_rectDraw = page;
    if (m_printTime.isEmpty())
        return;
    const UINT last = info->GetMaxPage();
    const bool isWhole = !info->m_bPreview || last <= IPrintService::kMostPreviewed;
    const QString number = isWhole ? Texts::tr("Page %1 of %2").arg(info->m_nCurPage).arg(last)
                                   : Texts::tr("Page %1").arg(info->m_nCurPage);
    const ScriptDoc* script = Script();
    headandfoot::Draw(*dc->GetSafeHdc(), page,
                      {script ? script->Name() : QString(), number, m_printTime});
}
