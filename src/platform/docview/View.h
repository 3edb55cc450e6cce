// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CView: a window that shows a document. A plain QWidget stands behind it.
#pragma once

#include "platform/docview/SelfOwnedWnd.h"

#include <cstdint>

class CDC;
class CDocument;
class CFrameWnd;
class CPrintInfo;
class QPrinter;

/// Made by a frame, with new. It leaves its document when its window goes.
class ZN_API CView : public CSelfOwnedWnd
{
public:
    CView() = default; ///< without a window
    ~CView() override;

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass(); ///< the record of this class

    /// Makes the window inside the parent's, with WM_CREATE, where the view joins the document of
    /// the context. 0 if that was refused: then the view is on its way out.
    int CreateView(CWnd* parent, CCreateContext* context);
    /// The same inside any widget, which need not be a window of the framework.
    int CreateViewIn(HWND parent, CCreateContext* context);

    CDocument* GetDocument() const { return m_pDocument; } ///< null once the document is closed
    CFrameWnd* GetParentFrame() const;                     ///< null outside of a frame

    using CCmdTarget::OnCmdMsg;
    /// The view's own table, then the document's.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;

    /// Once, when the document has its contents and the window its place.
    virtual void OnInitialUpdate();
    /// When the frame's active view changes; either view may be null.
    virtual void OnActivateView(int activate, CView* activated, CView* deactivated);
    /// Another view or the document tells of a change; paints the window again.
    virtual void OnUpdate(CView* sender, std::intptr_t hint, CObject* object);

    /// Printing. A view prepares, finds its pages in OnBeginPrinting and says in the info how many
    /// there are, and draws the info's page.
    virtual int OnPreparePrinting(CPrintInfo* info); ///< 0: nothing is printed
    /// Once for each job, when there is something to draw on.
    virtual void OnBeginPrinting(CDC* dc, CPrintInfo* info);
    virtual void OnPrint(CDC* dc, CPrintInfo* info);       ///< draws the info's page
    virtual void OnEndPrinting(CDC* dc, CPrintInfo* info); ///< once for each job
    int DoPreparePrinting(CPrintInfo* info); ///< asks for a printer; 0 if the user thought better
    void OnFilePrint();                      ///< asks for a printer
    void OnFilePrintDirect();                ///< on the printer that is used unasked
    /// The pages that a preview can keep. False if there are more.
    bool DrawPreview(QPrinter& paper);

    void PostNcDestroy() override;

protected:
    int OnCreate(CCreateContext* context); ///< 0, or -1 to give up
    void OnDestroy() {}                    ///< nothing here
    /// The input focus has come into the view, to itself or to a window inside. The view has become
    /// the active one of its frame.
    void OnSetFocus(HWND /*previous*/) {}

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

private:
    friend class CDocument; // sets m_pDocument as it adds and removes

    void PrintWith(CPrintInfo& info);

    CDocument* m_pDocument = nullptr;
};

/// Shows the view's pages on the screen, until the user has seen them.
ZN_API void BCGPPrintPreview(CView* view);
