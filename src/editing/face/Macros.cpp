// SPDX-License-Identifier: GPL-3.0-or-later
// The face's macros: the process's one, as the views have it.
#include "editing/face/Private.h"
#include "editing/operations/Macro.h"

#include <memory>

void ZNCoreEditorWidget::Private::Record(bool records)
{
    if (!IsInItsThread() || records == q.isRecording() || !m_control->GetSafeHwnd())
        return;
    if (records && IsMacroRecording()) // in another editor
        return;
    if (records) {
        FreeMacro();
        m_control->StartRecord(1);
    } else {
        m_control->StopRecord(1);
    }
    m_records = records;
    SetMacroRecording(records);
    Q_EMIT q.recordingChanged(records);
}

bool ZNCoreEditorWidget::isRecording() const
{
    return d->m_records && IsMacroRecording();
}

bool ZNCoreEditorWidget::hasMacro() const
{
    return GetMacroHead() && !IsMacroRecording();
}

void ZNCoreEditorWidget::startRecording()
{
    d->Record(true);
}

void ZNCoreEditorWidget::stopRecording()
{
    d->Record(false);
}

// A slot that hears of the changes finds no macro that it could take away meanwhile.
void ZNCoreEditorWidget::playMacro(int times)
{
    if (!d->IsInItsThread() || !hasMacro() || times <= 0)
        return;
    std::unique_ptr<MacroHolder> macro(GetMacroHead());
    SetMacroHead(nullptr);
    d->Run([&](CZNCoreEditorControlEx& control) {
        control.BeginUndoAction(1);
        for (int i = 0; i < times; ++i)
            control.PerformMacro(macro.get());
        control.EndUndoAction(1);
        if (!GetMacroHead() && !IsMacroRecording())
            SetMacroHead(macro.release());
        return 0;
    });
}
