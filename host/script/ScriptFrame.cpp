// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/ScriptFrame.h"

#include "host/commands/WorkbenchCommands.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptView.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/CreateContext.h"
#include "platform/docview/DocTemplate.h"
#include "platform/windows/Disposal.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <vector>

namespace {

// Which of the script's tabs it is; empty if there is one only.
QString NumberOf(const CFrameWnd* frame, const CDocument& document)
{
    std::vector<const CFrameWnd*> frames;
    for (const CView* view : document.GetViews()) {
        const CFrameWnd* around = view->GetParentFrame();
        if (around && std::find(frames.begin(), frames.end(), around) == frames.end())
            frames.push_back(around);
    }
    const auto place = std::find(frames.begin(), frames.end(), frame) - frames.begin();
    return frames.size() > 1 ? QStringLiteral(":%1").arg(place + 1) : QString();
}

void UpdateTitles(const CDocument& document)
{
    for (const CView* view : document.GetViews()) {
        if (CFrameWnd* frame = view->GetParentFrame())
            frame->OnUpdateFrameTitle();
    }
}

} // namespace

const CRuntimeClass* ScriptFrame::GetThisClass()
{
    static const CRuntimeClass own = {"ScriptFrame", CFrameWnd::GetThisClass(),
                                      &ScriptFrame::CreateObject};
    return &own;
}

ScriptFrame* ScriptFrame::Of(const QWidget* page)
{
    return dynamic_cast<ScriptFrame*>(AttachedWnd(const_cast<QWidget*>(page)));
}

// It gets its tab when it has something to show.
HWND ScriptFrame::MakeWidget()
{
    ScriptTabs* tabs = ScriptTabs::OfMainWindow();
    auto* page = new QWidget(tabs);
    page->setEnabled(!tabs || !tabs->AddingBehind());
    return page;
}

bool ScriptFrame::OnCreateClient(CCreateContext* context)
{
    constexpr int kMost = 2; // rows, and columns
    if (!m_panes.Create(GetSafeHwnd(), kMost, kMost, *context))
        return false;
    RecalcLayout(m_panes.GetSafeHwnd());
    return true;
}

ScriptView* ScriptFrame::View() const
{
    return dynamic_cast<ScriptView*>(m_panes.GetActivePane());
}

ScriptDoc* ScriptFrame::Script() const
{
    const ScriptView* view = View();
    return view ? view->Script() : nullptr;
}

CZNCoreEditorControlEx& ScriptFrame::Editor() const
{
    return View()->GetCoreEditorControlRef();
}

TabCaption ScriptFrame::Caption() const
{
    ScriptDoc* script = Script();
    if (!script)
        return {};
    TabCaption caption;
    caption.name = script->Name() + NumberOf(this, *script);
    if (script->IsReadOnly())
        caption.marks = QCoreApplication::translate("ScriptFrame", " (Read Only)");
    caption.path = QDir::toNativeSeparators(script->GetPathName());
    caption.isModified = script->IsModified() != 0;
    return caption;
}

bool ScriptFrame::IsSplit() const
{
    return IsSplit(Qt::Vertical) || IsSplit(Qt::Horizontal);
}

bool ScriptFrame::IsSplit(Qt::Orientation orientation) const
{
    return (orientation == Qt::Vertical ? m_panes.GetRowCount() : m_panes.GetColumnCount()) > 1;
}

void ScriptFrame::Split(Qt::Orientation orientation)
{
    if (IsSplit(orientation) || !Script())
        return;
    int row = 0;
    int column = 0;
    if (!m_panes.GetActivePane(&row, &column))
        return;
    // Dividing two panes makes two: the keys go to the one out of the pane that had them.
    if (orientation == Qt::Vertical ? m_panes.SplitRow(0) : m_panes.SplitColumn(0))
        m_panes.SetActivePane(orientation == Qt::Vertical ? 1 : row,
                              orientation == Qt::Vertical ? column : 1);
}

void ScriptFrame::Unsplit(Qt::Orientation orientation)
{
    int row = 0;
    int column = 0;
    if (!m_panes.GetActivePane(&row, &column))
        return;
    if (orientation == Qt::Vertical)
        m_panes.DeleteRow(1 - row);
    else
        m_panes.DeleteColumn(1 - column);
}

void ScriptFrame::ToggleSplit(Qt::Orientation orientation)
{
    if (IsSplit(orientation))
        Unsplit(orientation);
    else
        Split(orientation);
}

void ScriptPanes::OnPaneMade(CView& made, CView& divided)
{
    CZNCoreEditorSplitter::OnPaneMade(made, divided);
    auto* view = dynamic_cast<ScriptView*>(&made);
    auto* from = dynamic_cast<ScriptView*>(&divided);
    if (!view || !from || !view->GetSafeHwnd())
        return;
    view->ShowAs(*from);
    if (CFrameWnd* frame = view->GetParentFrame())
        frame->SetActiveView(view);
}

void ScriptFrame::NewView()
{
    ScriptDoc* script = Script();
    CDocTemplate* docTemplate = script ? script->GetDocTemplate() : nullptr;
    CFrameWnd* frame = docTemplate ? docTemplate->CreateNewFrame(script, this) : nullptr;
    if (!frame)
        return;
    ScriptView* other = View();
    frame->InitialUpdateFrame(script, true);
    if (auto* view = dynamic_cast<ScriptView*>(frame->GetActiveView()))
        view->ShowAs(*other);
    UpdateTitles(*script);
}

int ScriptFrame::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    if (CFrameWnd::OnCmdMsg(id, code, extra, info))
        return 1;
    CFrameWnd* outer = GetParentFrame();
    return outer ? outer->CCmdTarget::OnCmdMsg(id, code, extra, info) : 0;
}

void ScriptFrame::BecomeActive()
{
    if (ScriptView* view = View()) {
        SetActiveView(view);
        view->SetFocus();
    }
}

void ScriptFrame::ActivateFrame()
{
    ScriptTabs* tabs = ScriptTabs::OfMainWindow();
    if (!tabs || !GetSafeHwnd())
        return;
    tabs->Show(GetSafeHwnd());
    OnUpdateFrameTitle();
    if (tabs->currentWidget() == GetSafeHwnd())
        BecomeActive();
}

void ScriptFrame::OnUpdateFrameTitle()
{
    ScriptTabs* tabs = ScriptTabs::OfMainWindow();
    if (tabs && Script() && GetSafeHwnd())
        tabs->SetCaption(GetSafeHwnd(), Caption());
}

// The tabs of the same script that are left have other numbers.
void ScriptFrame::DestroyWindow()
{
    const FrameworkCall call;
    const HWND page = GetSafeHwnd();
    ScriptDoc* script = Script();
    ScriptTabs* tabs = ScriptTabs::OfMainWindow();
    if (page && tabs)
        Q_EMIT tabs->Leaving(page);
    CFrameWnd::DestroyWindow();
    if (page && tabs)
        tabs->Remove(page);
    if (script && !script->IsClosed())
        UpdateTitles(*script);
}

template <Qt::Orientation Orientation>
void ScriptFrame::UpdateSplit(CCmdTarget& target, CCmdUI& ui)
{
    const auto& frame = static_cast<ScriptFrame&>(target);
    ui.Enable(frame.Script() != nullptr);
    ui.SetCheck(frame.IsSplit(Orientation) ? 1 : 0);
}

const CommandMap& ScriptFrame::GetCommandMap() const
{
    using Frame = ScriptFrame;
    // clang-format off
    static constexpr CommandEntry kCommands[] = {
        {ID_WINDOW_NEW, [](CCmdTarget& t) { static_cast<Frame&>(t).NewView(); }},
        {command::SplitBelow,   [](CCmdTarget& t) { static_cast<Frame&>(t).ToggleSplit(Qt::Vertical); }},
        {command::SplitBeside,  [](CCmdTarget& t) { static_cast<Frame&>(t).ToggleSplit(Qt::Horizontal); }},
        {command::PreviousPane, [](CCmdTarget& t) { static_cast<Frame&>(t).m_panes.ActivateNext(true); }},
        {command::OtherPane,    [](CCmdTarget& t) { static_cast<Frame&>(t).m_panes.ActivateNext(); }},
    };
    static constexpr UpdateEntry kUpdates[] = {
        {command::SplitBelow,  &UpdateSplit<Qt::Vertical>},
        {command::SplitBeside, &UpdateSplit<Qt::Horizontal>},
        {command::PreviousPane, [](CCmdTarget& t, CCmdUI& ui) { ui.Enable(static_cast<Frame&>(t).IsSplit()); }},
        {command::OtherPane,   [](CCmdTarget& t, CCmdUI& ui) { ui.Enable(static_cast<Frame&>(t).IsSplit()); }},
    };
    // clang-format on
    static const CommandMap map = {&CFrameWnd::GetCommandMap(), kCommands, kUpdates};
    return map;
}
