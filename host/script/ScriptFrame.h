// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptFrame: a tab of the main window, with panes of a script.
#pragma once

#include "docview/ZNCoreEditorSplitter.h"
#include "host/script/ScriptTabs.h"
#include "platform/docview/FrameWnd.h"

class CZNCoreEditorControlEx;
class ScriptDoc;
class ScriptView;

// A pane that is made shows the place of the one that is divided.
class ScriptPanes final : public CZNCoreEditorSplitter
{
protected:
    void OnPaneMade(CView& made, CView& divided) override;
};

class ScriptFrame final : public CFrameWnd
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();
    static CObject* CreateObject() { return new ScriptFrame; }

    static ScriptFrame* Of(const QWidget* page); // null if the page is not that of a frame

    ScriptDoc* Script() const; // null once it is closed
    ScriptView* View() const;  // the active pane; null once it is closed
    CZNCoreEditorControlEx& Editor() const;
    TabCaption Caption() const;

    bool IsSplit() const; // in either direction
    bool IsSplit(Qt::Orientation orientation) const;
    void Split(Qt::Orientation orientation);   // two rows, or columns, of what is one so far
    void Unsplit(Qt::Orientation orientation); // the row or column of the active pane stays
    void NewView();                            // in a tab of its own, which comes to the front

    using CFrameWnd::OnCmdMsg;
    // As any frame's, then what the frame around it runs: a menu inside a view comes here.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;

    void BecomeActive(); // commands go here
    void ActivateFrame() override;
    void OnUpdateFrameTitle() override;
    void DestroyWindow() override;

protected:
    HWND MakeWidget() override;
    bool OnCreateClient(CCreateContext* context) override;
    const CommandMap& GetCommandMap() const override;

private:
    void ToggleSplit(Qt::Orientation orientation);
    template <Qt::Orientation Orientation>
    static void UpdateSplit(CCmdTarget& target, CCmdUI& ui);

    ScriptPanes m_panes;
};
