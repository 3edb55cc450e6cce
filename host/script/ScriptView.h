// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptView: an editor for a script, with what the workbench adds to it: the bar beside the batch,
// a scroll range that fits, files that are dropped on it.
#pragma once

#include "docview/ZNCoreEditorView.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <memory>

class EditorCompletion;
class MenuKey;
class ScriptDoc;
struct SCNotification;

class ScriptView final : public CZNCoreEditorView
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();
    static CObject* CreateObject() { return new ScriptView; }

    ScriptDoc* Script() const; // null once it is closed

    using CZNCoreEditorView::OnCmdMsg;
    // The view's table and the document's, then what an editor knows that stands alone.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;
    // A key's command that is none of these is the frame's.
    int OnCommand(WPARAM wParam, LPARAM lParam) override;
    int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    // Escape closes the find bar too, unless it has a list or a search of the editor's to end.
    int PreTranslateMessage(MSG* message) override;
    void OnInitialUpdate() override;
    int OnPreparePrinting(CPrintInfo* info) override; // the selection is offered, not chosen
    // All of a selection, and finding the pages can be stopped.
    void OnBeginPrinting(CDC* dc, CPrintInfo* info) override;
    void OnPrint(CDC* dc, CPrintInfo* info) override; // with head and foot, if they are wanted
    void OnActivateView(int activate, CView* activated, CView* deactivated) override;

    void OpenNamed(const QString& name); // a file or an address; the person hears if there is none
    void SelectRange(long start, long end); // and shows it
    void GoToLine(long line);               // from 0, and shows it
    void GoToColumn(long column);           // of the caret's line, from 0, as far as it goes
    void FollowScheme(const QString& name);
    void FollowNow();               // what is shown around it, which else waits until the keys rest
    void ShowAs(ScriptView& other); // place, selection, zoom and map
    EditorCompletion* Completion() const { return m_completion.get(); } // null without a window
    QString CaretText();                                                // line and column, from 1
    QString Catalog(); // the database in force at the caret, empty if unknown

protected:
    int OnCreate(CCreateContext* context);
    void OnDestroy();
    void OnSetFocus(HWND previous);
    void OnContextMenu(CWnd* window, CPoint point);

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

private:
    QPoint MenuPlaceAtCaret(); // on the screen
    long SelectedCount();      // UTF-16 units
    ScriptView();
    ~ScriptView() override;
    void LookAtFile(); // and asks about what others did to it
    void LookAtFileIn(std::chrono::milliseconds time);
    bool EndsRecording(const SCNotification& record);
    void TellChange(const SCNotification& record);
    void FollowAfter(std::chrono::milliseconds rest);
    void GiveRoomAround(int topBefore);
    void FollowAtRest();
    void FitScrollRange();
    void CloseFrame();
    void SaveAsPdf();
    void SaveAsHtml();
    void CopyWithColours();
    void CompleteWord();
    void ShowCall();
    void ChooseTemplate();
    void EditTemplates();
    void RecordMacro();
    void OpenAtCaret();
    void AskForLine();
    bool HasSomethingToEnd();

    std::unique_ptr<EditorCompletion> m_completion;
    QString m_printTime;         // of the job under way; empty: without head and foot
    QTimer m_rest;               // runs while there is something to follow
    int m_measuredFrom = -1;     // the first line on screen when lines were last measured
    QPointer<MenuKey> m_menuKey; // goes with the editor's window
};
