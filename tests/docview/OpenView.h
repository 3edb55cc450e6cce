// SPDX-License-Identifier: GPL-3.0-or-later
// A view with what it keeps for its subclasses opened.
#pragma once

#include "control/EngineRecords.h"
#include "docview/ZNCoreEditorView.h"

class OpenView final : public CZNCoreEditorView
{
public:
    static CObject* CreateObject() { return new OpenView; }
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"OpenView", CZNCoreEditorView::GetThisClass(),
                                          &CreateObject};
        return &own;
    }

    using CZNCoreEditorView::GetCommandMap;
    using CZNCoreEditorView::m_accelerators;
    using CZNCoreEditorView::m_incrementalForward;
    using CZNCoreEditorView::m_incrementalReverse;
    using CZNCoreEditorView::m_initialized;
    using CZNCoreEditorView::m_pageStarts;
    using CZNCoreEditorView::m_savedReadOnly;
    using CZNCoreEditorView::m_searchText;

    static constexpr UINT kControl = 28161;

    // What the view makes of a notification of its control's.
    int Hear(UINT code, int bits = 0, UINT id = kControl)
    {
        SCNotification record;
        record.nmhdr = {m_coreEditor.GetSafeHwnd(), id, code};
        record.modificationType = bits;
        LRESULT result = 0;
        return OnNotify(id, reinterpret_cast<LPARAM>(&record), &result);
    }
};
