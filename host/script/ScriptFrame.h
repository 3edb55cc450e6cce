// ScriptFrame: a tab of the main window, with one view of a script or two panes of it.
#pragma once

#include "platform/docview/FrameWnd.h"

#include <QPointer>
#include <QString>

class CZNCoreEditorControlEx;
class QSplitter;
class ScriptDoc;
class ScriptView;

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
    QString Caption() const; // the name, which of several tabs, and what is to be known of it

    bool IsSplit() const;
    void Split(Qt::Orientation orientation);
    void Unsplit();                           // the active pane stays
    Qt::Orientation SplitOrientation() const; // of the panes, if it is split
    void NewView();                           // in a tab of its own, which comes to the front

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
    ScriptView* Pane(int index) const;
    ScriptView* OtherPane() const;
    void ToggleSplit(Qt::Orientation orientation);
    void GoToOtherPane();
    template <Qt::Orientation Orientation>
    static void UpdateSplit(CCmdTarget& target, CCmdUI& ui);

    QPointer<QSplitter> m_panes;
};
