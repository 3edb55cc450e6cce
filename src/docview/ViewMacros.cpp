// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: the macro that it records and plays.
#include "docview/ZNCoreEditorView.h"

#include "docview/dialogs/InputBox.h"
#include "editing/operations/Macro.h"
#include "platform/services/LongWork.h"

#include <QCoreApplication>

#include <cstdint>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorView)
};

} // namespace

int CZNCoreEditorView::IsRecording() const
{
    return IsMacroRecording();
}

int CZNCoreEditorView::CanPlay() const
{
    return GetMacroHead() && !IsMacroRecording() ? 1 : 0;
}

// The flag is the process's: it may have been set for another view, which is gone.
void CZNCoreEditorView::OnToolsRecordmacro()
{
    if (IsMacroRecording()) {
        m_coreEditor.StopRecord(1);
        SetMacroRecording(0);
        return;
    }
    FreeMacro();
    m_coreEditor.StartRecord(1);
    SetMacroRecording(1);
}

void CZNCoreEditorView::OnToolsPlayrecording()
{
    if (CanPlay())
        PlayMacro(1);
}

void CZNCoreEditorView::OnToolsRepeatcommand()
{
    if (!GetMacroHead())
        return;
    CInputBox box(Texts::tr("Enter no of times to repeat"), QString(), 0, Texts::tr("Repeat Macro"),
                  nullptr);
    if (box.DoModal() == IDOK)
        PlayMacro(m_textUtil.TextToInt(box.m_value));
}

void CZNCoreEditorView::PlayMacro(int times)
{
    if (times <= 0)
        return;
    constexpr int kAll = 100;
    LongWork work(m_coreEditor.GetSafeHwnd(), Texts::tr("Repeating the macro"));
    m_coreEditor.BeginUndoAction(1);
    for (int i = 0; i < times && work.LongStep(static_cast<int>(std::int64_t{i} * kAll / times));
         ++i)
        m_coreEditor.PerformMacro(GetMacroHead());
    m_coreEditor.EndUndoAction(1);
}

void CZNCoreEditorView::OnUpdateToolsRecordmacro(CCmdUI& ui)
{
    ui.SetText(IsMacroRecording() ? Texts::tr("Stop Record\tCtrl+Shift+R")
                                  : Texts::tr("Record Macro\tCtrl+Shift+R"));
}

void CZNCoreEditorView::OnUpdateToolsPlayrecording(CCmdUI& ui)
{
    ui.Enable(CanPlay());
}

void CZNCoreEditorView::OnUpdateToolsRepeatcommand(CCmdUI& ui)
{
    ui.Enable(CanPlay());
}
