// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/ScriptView.h"

#include "control/EngineRecords.h"
#include "control/LongLine.h"
#include "editing/language/EditorCompletion.h"
#include "editing/looks/DesktopWatch.h"
#include "editing/operations/Macro.h"
#include "editing/operations/ScrollRange.h"
#include "host/commands/CommandKeys.h"
#include "host/commands/WorkbenchCommands.h"
#include "host/completion/MacroCommands.h"
#include "host/completion/TemplateInsertion.h"
#include "host/completion/TemplateStore.h"
#include "host/files/FileDrops.h"
#include "host/preferences/Appearance.h"
#include "host/script/BatchMark.h"
#include "host/script/FileWatch.h"
#include "host/script/MenuKey.h"
#include "host/script/NameAtCaret.h"
#include "host/script/ScriptDoc.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/FrameWnd.h"
#include "platform/windows/Mouse.h"

#include <QApplication>
#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScriptView)
};

// Long enough that held keys are not each followed, short enough that nobody sees it.
constexpr std::chrono::milliseconds kRest(100);
constexpr std::chrono::milliseconds kAtOnce(0); // behind what is under way

} // namespace

const CRuntimeClass* ScriptView::GetThisClass()
{
    static const CRuntimeClass own = {"ScriptView", CZNCoreEditorView::GetThisClass(),
                                      &ScriptView::CreateObject};
    return &own;
}

ScriptView::ScriptView()
{
    m_coreEditor.SetUserSettingsFirst(true);
    m_rest.setSingleShot(true);
    QObject::connect(&m_rest, &QTimer::timeout, &m_rest, [this] { FollowAtRest(); });
}

ScriptView::~ScriptView() = default;

ScriptDoc* ScriptView::Script() const
{
    return dynamic_cast<ScriptDoc*>(GetDocument());
}

int ScriptView::OnCreate(CCreateContext* context)
{
    if (CZNCoreEditorView::OnCreate(context) == -1)
        return -1;
    m_coreEditor.SetCarefulFiles(true);
    m_coreEditor.SetOffersCopies(false); // the workbench has a list of them
    m_coreEditor.SetScrollWidth(1, 1);
    m_coreEditor.SetScheme(appearance::Current());
    DefineBatchMark(m_coreEditor);
    new DesktopWatch(*m_coreEditor.GetSafeHwnd(), [this] { DefineBatchMark(m_coreEditor); });
    m_coreEditor.GetSafeHwnd()->setAccessibleName(Texts::tr("Script"));
    FileDrops::Take(*m_coreEditor.GetSafeHwnd());
    new NameClicks(*this); // goes with the editor's window
    new FileWatch(*m_coreEditor.GetSafeHwnd(), [this] { LookAtFile(); }); // the same
    m_menuKey = new MenuKey(*m_coreEditor.GetSafeHwnd());
    if (ScriptDoc* script = Script()) {
        script->OnViewMade(*this);
        m_completion = std::make_unique<EditorCompletion>(m_coreEditor, script->Names());
        m_completion->SetOpensWhileTyping(true);
        (*m_completion)->SetOtherScripts([script] {
            std::vector<completion::OtherScript> others;
            for (ScriptDoc* other : script->OpenBeside())
                others.push_back({&other->Names(), other->Name()});
            return others;
        });
        new TemplateKeys(*this, *m_completion); // goes with the editor's window
    }
    return 0;
}

void ScriptView::OnDestroy()
{
    m_rest.stop();
    m_completion.reset();
    if (ScriptDoc* script = Script())
        script->OnViewGoes(*this);
}

void ScriptView::OnInitialUpdate()
{
    CZNCoreEditorView::OnInitialUpdate();
    ScriptDoc* script = Script();
    if (!script)
        return;
    script->OnViewShown();
    FollowAfter(kAtOnce);
}

void ScriptView::FollowScheme(const QString& name)
{
    m_coreEditor.SetScheme(name);
    DefineBatchMark(m_coreEditor);
}

void ScriptView::ShowAs(ScriptView& other)
{
    CZNCoreEditorControlEx& editor = other.m_coreEditor;
    const int top = editor.GetFirstVisibleLine(1);
    m_coreEditor.SetZoom(editor.GetZoom(1), 1);
    m_coreEditor.SetDocumentMap(editor.IsDocumentMapVisible());
    m_coreEditor.SetScrollWidth(editor.GetScrollWidth(1), 1);
    m_coreEditor.SetSel(editor.GetAnchor(1), editor.GetCurrentPos(1), 1);
    m_coreEditor.LineScroll(0, top - m_coreEditor.GetFirstVisibleLine(1), 1);
}

void ScriptView::OnSetFocus(HWND previous)
{
    CView::OnSetFocus(previous);
    m_coreEditor.SetFocus();
    LookAtFileIn(std::chrono::milliseconds::zero()); // when the window says whose tab it shows
}

// Not while a button is down: a question would keep its release from the editor, which would go on
// to select whatever is passed by.
void ScriptView::LookAtFile()
{
    constexpr std::chrono::milliseconds kSoon(20);
    ScriptDoc* script = Script();
    if (!script)
        return;
    if (IsLeftButtonDown()) {
        LookAtFileIn(kSoon);
        return;
    }
    script->OnFocus();
}

void ScriptView::LookAtFileIn(std::chrono::milliseconds time)
{
    QWidget* window = GetSafeHwnd();
    QTimer::singleShot(time, window, [this, window] {
        if (AttachedWnd(window) == this)
            LookAtFile();
    });
}

int ScriptView::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    // The find bar's, which the frame has: the editor itself would open the dialogs.
    // The preferences are the application's.
    constexpr UINT kOfTheFrame[] = {57636, 57640, 57641, command::Preferences};
    if (CZNCoreEditorView::OnCmdMsg(id, code, extra, info))
        return 1;
    return std::ranges::find(kOfTheFrame, id) == std::end(kOfTheFrame) &&
           m_coreEditor.OnCmdMsg(id, code, extra, info);
}

int ScriptView::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (CZNCoreEditorView::OnCommand(wParam, lParam))
        return 1;
    CFrameWnd* frame = GetParentFrame();
    return frame ? frame->OnCommand(wParam, lParam) : 0;
}

int ScriptView::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->wParam == Qt::Key_Escape && !HasSomethingToEnd())
        OnCommand(command::CloseFind, 0);
    if (message->message == WM_KEYDOWN &&
        CommandKeys::IsSpokenFor(QKeyCombination::fromCombined(static_cast<int>(message->wParam) |
                                                               static_cast<int>(message->lParam))))
        return 1; // the menu's command is not possible
    return CZNCoreEditorView::PreTranslateMessage(message);
}

bool ScriptView::HasSomethingToEnd()
{
    return m_incrementalForward || m_incrementalReverse || m_coreEditor.AutoCActive(1) ||
           m_coreEditor.CallTipActive(1);
}

// Of the views of a text one tells what has changed.
void ScriptView::TellChange(const SCNotification& record)
{
    ScriptDoc* script = record.nmhdr.code == notify::Modified ? Script() : nullptr;
    if (script && script->Names().Editor() == &m_coreEditor)
        script->Names().OnModified(record);
    if (!script || record.linesAdded == 0 || script->FirstView() != this)
        return;
    const int line = m_coreEditor.LineFromPosition(record.position, 1);
    const bool isAtStart = m_coreEditor.PositionFromLine(line, 1) == record.position;
    Q_EMIT script->LinesMoved(isAtStart ? line : line + 1, static_cast<int>(record.linesAdded));
}

void ScriptView::CompleteWord()
{
    if (m_completion && *m_completion)
        (*m_completion)->Open();
}

void ScriptView::ShowCall()
{
    if (m_completion && *m_completion)
        (*m_completion)->ShowCall();
}

// The base may close the view; then nothing is left to follow.
// The command ends a recording in the view that it is given in alone.
bool ScriptView::EndsRecording(const SCNotification& record)
{
    if (record.nmhdr.code != notify::MacroRecord || IsMacroRecording())
        return false;
    m_coreEditor.StopRecord(1);
    return true;
}

int ScriptView::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const bool isOwn = m_coreEditor.IsBaseEditorNotify(lParam);
    if (isOwn && EndsRecording(*reinterpret_cast<const SCNotification*>(lParam)))
        return 1;
    if (isOwn)
        TellChange(*reinterpret_cast<const SCNotification*>(lParam));
    const int known = CZNCoreEditorView::OnNotify(wParam, lParam, result);
    ScriptDoc* script = GetSafeHwnd() ? Script() : nullptr;
    if (!isOwn || !script)
        return known;
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    if (m_completion)
        m_completion->OnNotify(record);
    constexpr int kTextBits = modification::InsertText | modification::DeleteText;
    switch (record.nmhdr.code) {
    case notify::SavePointReached:
    case notify::SavePointLeft:
        Q_EMIT script->StateChanged(); // at once: the keys for saving may be next in line
        break;
    case notify::Modified:
        if (record.modificationType & kTextBits)
            script->OnTextChanged();
        FollowAfter(kRest);
        break;
    case notify::ModifyAttemptReadOnly:
        if (!m_incrementalForward && !m_incrementalReverse) // which keep the text as it is
            script->TellReadOnly();
        break;
    case engine::kLongLineShown:
        Q_EMIT script->Told(
            Texts::tr("Line %L1 is very long: behind column %L2 its text is drawn coarsely")
                .arg(record.line + 1)
                .arg(record.length));
        break;
    case notify::UpdateUi:
    case notify::Zoom:
        FollowAfter(kRest);
        break;
    default:
        break;
    }
    return known;
}

// The bar of the view that was active is not that of this one.
void ScriptView::OnActivateView(int activate, CView* activated, CView* deactivated)
{
    CZNCoreEditorView::OnActivateView(activate, activated, deactivated);
    if (!activate || !GetSafeHwnd())
        return;
    ForgetBatchMark(m_coreEditor);
    FollowAfter(kAtOnce);
}

// A load, a replacement of all or a held key brings many notifications; the window follows once.
void ScriptView::FollowAfter(std::chrono::milliseconds rest)
{
    if (!m_rest.isActive() || m_rest.intervalAsDuration() > rest)
        m_rest.start(rest);
}

// While a box keeps people from the window, as that of what takes long does, the text may change on
// and on, and each look at it would read all of what has been changed.
void ScriptView::FollowAtRest()
{
    if (QApplication::activeModalWidget())
        m_rest.start(kRest);
    else
        FollowNow();
}

// Of several views of a text the one that was active last has the bar.
void ScriptView::FollowNow()
{
    m_rest.stop();
    ScriptDoc* script = GetSafeHwnd() ? Script() : nullptr;
    const CFrameWnd* frame = script ? GetParentFrame() : nullptr;
    if (!frame)
        return;
    if (frame->GetActiveView() == this && GetSafeHwnd()->isVisible())
        MarkBatch(m_coreEditor);
    FitScrollRange();
    Q_EMIT script->StateChanged();
}

// The whole screen after a scroll, else the line that is being typed in.
void ScriptView::FitScrollRange()
{
    const int first = m_coreEditor.GetFirstVisibleLine(1);
    if (std::exchange(m_measuredFrom, first) != first) {
        const int from = m_coreEditor.DocLineFromVisible(first, 1);
        FitScrollWidth(m_coreEditor, from, from + m_coreEditor.LinesOnScreen(1));
    } else {
        const int line = m_coreEditor.LineFromPosition(m_coreEditor.GetCurrentPos(1), 1);
        FitScrollWidth(m_coreEditor, line, line);
    }
}

void ScriptView::SelectRange(long start, long end)
{
    const int top = m_coreEditor.GetFirstVisibleLine(1);
    m_coreEditor.EnsureRangeVisible(static_cast<int>(start), static_cast<int>(end));
    m_coreEditor.SetSel(start, end, 1);
    GiveRoomAround(top);
    SetFocus();
}

// A place that was out of sight comes with a third of the window above it, not at its edge.
void ScriptView::GiveRoomAround(int topBefore)
{
    const int screen = m_coreEditor.LinesOnScreen(1);
    const int row = m_coreEditor.VisibleFromDocLine(m_coreEditor.GetCurLineNumber(), 1);
    if (row < topBefore || row >= topBefore + screen)
        m_coreEditor.LineScroll(0, row - screen / 3 - m_coreEditor.GetFirstVisibleLine(1), 1);
}

void ScriptView::GoToLine(long line)
{
    const int top = m_coreEditor.GetFirstVisibleLine(1);
    m_coreEditor.GotoLineEnsureVisible(static_cast<int>(line));
    GiveRoomAround(top);
}

// As tools count them, in characters whatever their width.
void ScriptView::GoToColumn(long column)
{
    const int line = m_coreEditor.LineFromPosition(m_coreEditor.GetCurrentPos(1), 1);
    const long end = m_coreEditor.GetLineEndPosition(line, 1);
    long position = m_coreEditor.PositionFromLine(line, 1);
    for (; column > 0 && position < end; --column)
        position = m_coreEditor.PositionAfter(position, 1);
    m_coreEditor.GotoPos(position, 1);
}

// Of a column without the line ends that stand between its lines in a copy.
long ScriptView::SelectedCount()
{
    if (m_coreEditor.SelectionIsRectangle(1)) {
        const QString text = m_coreEditor.GetSelText();
        return static_cast<long>(text.size() - text.count(u'\r') - text.count(u'\n'));
    }
    return m_coreEditor.GetSelText(nullptr, 1) - 1; // at all carets
}

QString ScriptView::CaretText()
{
    const long caret = m_coreEditor.GetCurrentPos(1);
    const QString place = Texts::tr("Line %1, column %2")
                              .arg(m_coreEditor.LineFromPosition(caret, 1) + 1)
                              .arg(m_coreEditor.GetColumn(caret, 1) + 1);
    const long selected = SelectedCount();
    return selected > 0 ? place + Texts::tr(" (%1 selected)").arg(selected) : place;
}

QString ScriptView::Catalog()
{
    const long caret = m_coreEditor.GetCurrentPos(1);
    return QStringView(m_coreEditor.GetCatalogForOffset(static_cast<int>(caret), 1)).toString();
}

void ScriptView::CloseFrame()
{
    if (CFrameWnd* frame = GetParentFrame())
        SendMessage(frame->GetSafeHwnd(), WM_CLOSE, 0, 0);
}

const MessageMap& ScriptView::GetMessageMap() const
{
    using View = ScriptView;
    static constexpr MessageEntry kEntries[] = {
        {WM_CREATE,
         [](CWnd& t, WPARAM, LPARAM l) -> LRESULT {
             return static_cast<View&>(t).OnCreate(reinterpret_cast<CCreateContext*>(l));
         }},
        {WM_DESTROY,
         [](CWnd& t, WPARAM, LPARAM) -> LRESULT {
             static_cast<View&>(t).OnDestroy();
             return 0;
         }},
        {WM_SETFOCUS,
         [](CWnd& t, WPARAM w, LPARAM) -> LRESULT {
             static_cast<View&>(t).OnSetFocus(reinterpret_cast<HWND>(w));
             return 0;
         }},
        {WM_CONTEXTMENU,
         [](CWnd& t, WPARAM w, LPARAM l) -> LRESULT {
             static_cast<View&>(t).OnContextMenu(AttachedWnd(reinterpret_cast<HWND>(w)),
                                                 PointOf(l));
             return 1;
         }},
    };
    static const MessageMap map = {&CZNCoreEditorView::GetMessageMap(), kEntries};
    return map;
}

// Closing means the tab, of which a script may have several. Delete in the menu is for a selection.
const CommandMap& ScriptView::GetCommandMap() const
{
    constexpr UINT kDelete = 53899;
    constexpr UINT kOpenAtCaret = 54026;
    constexpr UINT kCodeList = 53952;
    constexpr UINT kEditTemplates = 53950;
    constexpr UINT kRecordMacro = 53938;
    constexpr UINT kSaveMacro = 53990;
    constexpr UINT kLoadMacro = 53991;
    constexpr UINT kGoToLine = 54049;
    using View = ScriptView;
    // clang-format off
    static constexpr CommandEntry kCommands[] = {
        {ID_FILE_CLOSE, [](CCmdTarget& t) { static_cast<View&>(t).CloseFrame(); }},
        {command::SavePdf, [](CCmdTarget& t) { static_cast<View&>(t).SaveAsPdf(); }},
        {command::SaveHtml, [](CCmdTarget& t) { static_cast<View&>(t).SaveAsHtml(); }},
        {command::CopyWithColours, [](CCmdTarget& t) { static_cast<View&>(t).CopyWithColours(); }},
        {kOpenAtCaret, [](CCmdTarget& t) { static_cast<View&>(t).OpenAtCaret(); }},
        {kGoToLine, [](CCmdTarget& t) { static_cast<View&>(t).AskForLine(); }},
        {kCodeList, [](CCmdTarget& t) { static_cast<View&>(t).CompleteWord(); }},
        {command::ShowCall, [](CCmdTarget& t) { static_cast<View&>(t).ShowCall(); }},
        {command::InsertTemplate, [](CCmdTarget& t) { static_cast<View&>(t).ChooseTemplate(); }},
        {kEditTemplates, [](CCmdTarget& t) { static_cast<View&>(t).EditTemplates(); }},
        {kRecordMacro, [](CCmdTarget& t) { static_cast<View&>(t).RecordMacro(); }},
        {kSaveMacro, [](CCmdTarget& t) { SaveMacro(static_cast<View&>(t).GetSafeHwnd()); }},
        {kLoadMacro, [](CCmdTarget& t) { LoadMacro(static_cast<View&>(t).GetSafeHwnd()); }},
    };
    static constexpr UpdateEntry kUpdates[] = {
        {command::CopyWithColours, [](CCmdTarget& t, CCmdUI& ui) {
            ui.Enable(static_cast<View&>(t).m_coreEditor.IsSelection());
        }},
        {kCodeList, [](CCmdTarget& t, CCmdUI& ui) {
            ui.Enable(!static_cast<View&>(t).m_coreEditor.GetReadOnly(1));
        }},
        {command::InsertTemplate, [](CCmdTarget& t, CCmdUI& ui) {
            auto& editor = static_cast<View&>(t).m_coreEditor;
            ui.Enable(!editor.GetReadOnly(1) &&
                      !TemplateStore::Global().Of(editor.GetCurrentLanguage()).empty());
        }},
        {kSaveMacro, [](CCmdTarget&, CCmdUI& ui) { ui.Enable(CanSaveMacro()); }},
        {kLoadMacro, [](CCmdTarget& t, CCmdUI& ui) {
            ui.Enable(!static_cast<View&>(t).IsRecording());
        }},
        {kDelete, [](CCmdTarget& t, CCmdUI& ui) {
            auto& editor = static_cast<View&>(t).m_coreEditor;
            ui.Enable(editor.IsSelection() && !editor.GetReadOnly(1));
        }},
    };
    // clang-format on
    static const CommandMap map = {&CZNCoreEditorView::GetCommandMap(), kCommands, kUpdates};
    return map;
}
