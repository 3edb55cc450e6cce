// CView: a window that shows a document. A plain QWidget stands behind it.
#pragma once

#include "platform/docview/SelfOwnedWnd.h"

#include <cstdint>

class CDocument;
class CFrameWnd;

// Made by a frame, with new. It leaves its document when its window goes.
class ZN_API CView : public CSelfOwnedWnd
{
public:
    CView() = default;
    ~CView() override;

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();

    // Makes the window inside the parent's, with WM_CREATE, where the view joins the document of
    // the context. 0 if that was refused: then the view is on its way out.
    int CreateView(CWnd* parent, CCreateContext* context);
    // The same inside any widget, which need not be a window of the framework.
    int CreateViewIn(HWND parent, CCreateContext* context);

    CDocument* GetDocument() const { return m_pDocument; } // null once the document is closed
    CFrameWnd* GetParentFrame() const;                     // null outside of a frame

    using CCmdTarget::OnCmdMsg;
    // The view's own table, then the document's.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;

    // Once, when the document has its contents and the window its place.
    virtual void OnInitialUpdate();
    // When the frame's active view changes; either view may be null.
    virtual void OnActivateView(int activate, CView* activated, CView* deactivated);
    virtual void OnUpdate(CView* sender, std::intptr_t hint, CObject* object);

    void PostNcDestroy() override;

protected:
    int OnCreate(CCreateContext* context); // 0, or -1 to give up
    void OnDestroy() {}
    // The input focus has come into the view, to itself or to a window inside. The view has become
    // the active one of its frame.
    void OnSetFocus(HWND /*previous*/) {}

    const MessageMap& GetMessageMap() const override;

private:
    friend class CDocument; // sets m_pDocument as it adds and removes

    CDocument* m_pDocument = nullptr;
};
