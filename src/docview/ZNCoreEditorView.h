// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNCoreEditorView: the view of an edited file. It owns the control that fills it and stands
/// between what the host commands, what the engine tells, and the document that knows the file.
#pragma once

#include "common/TextUtil.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/docview/View.h"
#include "platform/windows/Accelerators.h"

#include <QString>
#include <QStringList>

#include <map>
#include <string>
#include <vector>

class CZNCoreEditorDoc;
struct AutoCompleteConfig;
struct SCROLLINFO;

/// Without a document, or with one of another class, everything that needs one does nothing.
class ZN_API CZNCoreEditorView : public CView, public CZNCoreEditorControlExCallback
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    ~CZNCoreEditorView() override;
    static const CRuntimeClass* GetThisClass(); ///< the record of this class
    static CObject* CreateObject(); ///< a new one, which goes with its document or window

    /// Never null; it has a window as long as the view has.
    CZNCoreEditorControlEx* GetCoreEditorControl() { return &m_coreEditor; }
    CZNCoreEditorControlEx& GetCoreEditorControlRef() { return m_coreEditor; } ///< the same

    using CView::OnCmdMsg;
    /// The view's table, then the document's. A command of the editor ends an incremental search.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;
    /// Gives 0 for what is not the control's.
    int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    int PreTranslateMessage(MSG* message) override;
    void OnInitialUpdate() override;
    void OnActivateView(int activate, CView* activated, CView* deactivated) override;
    void OnUpdate(CView* sender, std::intptr_t hint, CObject* object) override;

    /// Printing: the text alone. A selection is what the dialog begins with.
    int OnPreparePrinting(CPrintInfo* info) override;
    void OnBeginPrinting(CDC* dc, CPrintInfo* info) override;
    /// Raises CInvalidArgException for a page that is not there.
    void OnPrint(CDC* dc, CPrintInfo* info) override;
    void OnEndPrinting(CDC* dc, CPrintInfo* info) override;

    /// Opens what the caret stands on, an address by the desktop and a file by the application.
    /// False if it stands on nothing; whether there is such a thing is not looked at.
    bool OpenSelected();

    /// What a host shows in the margin of its own, as the control's.
    virtual void SetExtendedMargin(bool on);
    virtual void SetExtendedText(std::map<int, std::u16string>& texts); ///< texts by line, from 0
    /// Texts with a line for each line, of so many units.
    virtual void SetExtendedText(const char16_t* text, int length);

    bool ReloadFile(); ///< false without a document, or if its file cannot be read
    bool HasMatchingBrace() { return m_coreEditor.HasMatchingBrace(); } ///< as the control's
    /// Shows the line and marks it, and no other one. Lines count from 0.
    void SetSelectedLine(int line, int focus);

    /// True if an incremental search goes on with the command.
    bool HandleCommand(UINT id);
    /// What is typed during an incremental search: true if the search has used it up.
    bool HandleInputCharacter(UINT character, UINT repeat, UINT flags);
    /// Backspace during an incremental search; true if the search has used it up.
    bool HandleDeleteBack();
    void
    UpdateStatusMessage(); ///< composes the line of status, and tells who listens (SearchStatus)
    /// How many matches the text of the search has, and at most so many.
    int CountIncrementalMatches(int most);
    /// Starts a search, goes to its next match, or turns it round.
    void FindIncrementalForward();
    void FindIncrementalReverse(); ///< the same towards the start
    void StopIncrementalSearch();  ///< the text is as writable as it was before the search

    /// Puts a template in place of the selection, which comes back at the template's "^!", in one
    /// undo step. "^#" and "#^" enclose what the user is asked for; an answer that is refused costs
    /// its line. The lines are joined by line feeds, whatever the text has, and stand below the
    /// caret's column. An empty last line is taken off the array.
    void InsertStringArray(QStringList& lines);
    /// The line with the user's answers; empty if one was refused or a marker is not closed.
    QString GetInputValues(const char16_t* text);

    // The macro of the process (Macro.h)
    int IsRecording() const; ///< in whichever view
    int CanPlay() const;     ///< not while one is recorded

    // Commands and their rules, one pair for each row of the table
#define ZN_COMMAND(id, handler, action, update, rule)                                              \
    void handler();                                                                                \
    void update(CCmdUI& ui);
#define ZN_PLAIN(id, handler, action) void handler();
#define ZN_RULE(id, update, rule) void update(CCmdUI& ui);
#define ZN_OWN(id, handler, update)                                                                \
    void handler();                                                                                \
    void update(CCmdUI& ui);
#define ZN_OWN_PLAIN(id, handler) void handler();
#define ZN_OWN_RULED(id, handler, update, rule)                                                    \
    void handler();                                                                                \
    void update(CCmdUI& ui);
#define ZN_AGAIN(id, handler)
#define ZN_INDICATOR(id, update) void update(CCmdUI& ui);
#include "docview/ViewCommands.def"

    /// For a host's own numbers; no table here has them.
    void OnEditClear();
    void OnEditCodecomplete();        ///< DoAutoComplete
    void OnUpdateLineCol(CCmdUI& ui); ///< "Ln 1, Col 1"

protected:
    /// The callback is kept for a derived class, and stays the caller's.
    explicit CZNCoreEditorView(CZNCoreEditorControlExCallback* callback = nullptr);

    int OnCreate(CCreateContext* context);  ///< makes the control; -1 if it cannot be made
    void OnSize(UINT type, int cx, int cy); ///< the control fills the view
    void OnSetFocus(HWND previous); ///< gives it to the control, and looks for changes of the file
    /// With Control held fonts become larger or smaller.
    LRESULT OnMouseWheel(UINT flags, int delta, CPoint point);
    /// Shows the menu, whose commands go to the frame.
    void OnContextMenu(CWnd* window, CPoint point);
    /// The words of the text that begin with the word, whatever their case, put behind those of the
    /// list; the one at the caret is left out. Of a word its first 77 units.
    void GetWordsNear(const char16_t* word, int length, QStringList& list);
    /// What OnEditCodelist has found, for a host to show; does nothing here.
    virtual void ShowCodeList(const AutoCompleteConfig& config,
                              const std::vector<QString>& candidates);
    void DoAutoComplete();                 ///< shows the words that fit the one at the caret
    void CodeFillUp(const char16_t* text); ///< does nothing
    /// ZNBASEM_ON_EDITCHANGE: the document counts as modified, or no longer.
    LRESULT OnEditChange(WPARAM wParam, LPARAM lParam);
    /// What the engine asks and tells of a scroll bar. flags: kScrollVertical, kScrollRedraw.
    LRESULT OnGetScrollInfoMsg(SCROLLINFO* record, LPARAM flags);
    LRESULT OnSetScrollInfoMsg(const SCROLLINFO* record, LPARAM flags); ///< the same, to be set
    void OnHScroll(UINT code, UINT position, CWnd* bar);                ///< of the view's own bars
    void OnVScroll(UINT code, UINT position, CWnd* bar);                ///< of the bar on the right

    void ApplyPrintStyle(bool isBeginning); ///< of the options; isBeginning: once for each job

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

    CZNCoreEditorControlEx m_coreEditor;        ///< what fills the view
    CTextUtil m_textUtil;                       ///< text functions
    int m_initialized = 0;                      ///< the document's contents have been shown
    bool m_incrementalForward = false;          ///< a search towards the end goes on
    bool m_incrementalReverse = false;          ///< a search towards the start goes on
    bool m_incrementalMatchCase = false;        ///< whether case counts in it
    bool m_incrementalFound = false;            ///< whether its last step found something
    std::vector<unsigned> m_pageStarts;         ///< by page, and the end behind the last one
    QString m_searchText;                       ///< what it looks for
    QString m_lastSearchText;                   ///< what the one before looked for
    int m_savedSelStart = 0;                    ///< the selection before the search
    int m_savedSelEnd = 0;                      ///< the selection before the search
    int m_searchOrigin = 0;                     ///< where the search began
    int m_searchPos = 0;                        ///< where its last match stands
    CZNCoreEditorControlExCallback* m_callback; ///< null: nobody is asked
    int m_savedReadOnly = 0;                    ///< before the incremental search
    HACCEL m_accelerators;                      ///< the keys of the view

private:
    CZNCoreEditorDoc* EditDocument() const; // null if there is none of the class
    bool IsSearching() const
    {
        return m_incrementalForward || m_incrementalReverse;
    }
    void StartIncremental(bool forward);
    void FindIncremental(bool next);
    void SayNotFound();
    void RefreshBraces();
    void OnUpdateUi(const CZNCoreEditorDoc& document);
    bool IsBraceAt(long position);
    void UpdateLineEnd(CCmdUI& ui, int mode);
    QStringList KeywordsLike(const QString& word);
    void GoToCaretMarker(long start, long end);
    void PlayMacro(int times);
    void ToggleMargin(int margin, int width);
    void RepaintNeighbours(bool isVertical);
    void ScrollByBar(UINT message, UINT code, UINT position, CWnd* bar);
};
