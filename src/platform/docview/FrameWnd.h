// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFrameWnd: the window around views. A plain QWidget stands behind it, or the QMainWindow that it
/// is attached to.
#pragma once

#include "platform/docview/SelfOwnedWnd.h"

#include <QPointer>

class CDocument;
class CView;
struct CCreateContext;

/// Made with new, and goes with its window. A frame may stand inside another one, as a tab of the
/// main window does: give it that place in PlaceFrame.
class ZN_API CFrameWnd : public CSelfOwnedWnd
{
public:
    CFrameWnd() = default; ///< without a window

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass(); ///< the record of this class
    /// A new one, which goes with its document or window.
    static CObject* CreateObject() { return new CFrameWnd; }

    /// Makes the window and, for a context with a view class, the view. False if either fails; then
    /// the frame is on its way out.
    virtual bool LoadFrame(CCreateContext* context);

    /// The view that has, or had last, the input focus. Null if there is none, or it is gone.
    CView* GetActiveView() const;
    void SetActiveView(CView* view);              ///< null: none
    virtual CDocument* GetActiveDocument() const; ///< that of the active view; null: none
    /// The frame inside this one that was active last, else this one.
    CFrameWnd* GetActiveFrame();
    CFrameWnd* GetParentFrame() const; ///< null: it stands in none

    using CCmdTarget::OnCmdMsg;
    /// The active frame inside, the active view with its document, the frame itself, the
    /// application.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;

    /// Every view inside hears of its document's contents; then the first one is made active.
    void InitialUpdateFrame(CDocument* document, bool visible);
    virtual void ActivateFrame(); ///< brings it to the front
    /// The title of the active document, as the window's own; :1, :2 if it has several frames.
    virtual void OnUpdateFrameTitle();

    /// Views and frames inside go first.
    void DestroyWindow() override;

protected:
    /// The widget of a frame; it goes where the host wants it.
    virtual HWND MakeWidget();
    /// Fills the window. False gives up on the frame.
    virtual bool OnCreateClient(CCreateContext* context);
    CView* CreateView(CCreateContext* context); ///< null if it failed
    void RecalcLayout(HWND client);             ///< makes the client fill the window

    void OnClose(); ///< asks the document

    const MessageMap& GetMessageMap() const override;

private:
    int Route(UINT id, int code, void* extra, CommandHandlerInfo* info);

    // By window: what is gone reads as null.
    QPointer<QWidget> m_activeView;
    QPointer<QWidget> m_activeFrame;
};

/// The innermost frame around a window, or null.
ZN_API CFrameWnd* FrameAround(HWND window);
