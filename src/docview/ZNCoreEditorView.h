// CZNCoreEditorView: the view of an edited file. It owns the control that fills it and passes on
// what the control tells, to the control itself and to the document.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/docview/View.h"

class ZN_API CZNCoreEditorView : public CView, public CZNCoreEditorControlExCallback
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    ~CZNCoreEditorView() override;
    static const CRuntimeClass* GetThisClass();
    static CObject* CreateObject();

    CZNCoreEditorControlEx* GetCoreEditorControl() { return &m_coreEditor; }
    CZNCoreEditorControlEx& GetCoreEditorControlRef() { return m_coreEditor; }

    bool ReloadFile(); // false without a document, or if its file cannot be read

    int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void OnInitialUpdate() override;
    void OnActivateView(int activate, CView* activated, CView* deactivated) override;
    void OnUpdate(CView* sender, std::intptr_t hint, CObject* object) override;

protected:
    // The callback is kept for a derived class, and stays the caller's.
    explicit CZNCoreEditorView(CZNCoreEditorControlExCallback* callback = nullptr);

    int OnCreate(CCreateContext* context);
    void OnSize(int cx, int cy);
    void OnSetFocus(HWND previous);

    const MessageMap& GetMessageMap() const override;

    CZNCoreEditorControlEx m_coreEditor;
    int m_initialized = 0;
    CZNCoreEditorControlExCallback* m_callback;
};
