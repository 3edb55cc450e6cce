// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: searches through files, and what a search as one types shows in the status bar.
#include "docview/SearchStatus.h"
#include "docview/ZNCoreEditorView.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/files/Encodings.h"
#include "host/finding/FoundTexts.h"
#include "host/finding/ResultsPane.h"
#include "host/finding/SearchPlace.h"
#include "host/problems/ProblemPane.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/MainFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "search/FindReplaceManager.h"
#include "search/dialogs/FindInFilesDlg.h"

#include <QPointer>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>

namespace {

QString NameOf(const ScriptDoc& script)
{
    const QString& path = script.GetPathName();
    return path.isEmpty() ? script.Name() : path;
}

} // namespace

// Counting costs a pass through the text, so it waits until nobody types, and a long text is spared
// it.
class MainWindow::SearchLine final : public ISearchStatus
{
public:
    explicit SearchLine(QStatusBar* bar) : m_bar(bar)
    {
        constexpr int kRest = 100; // milliseconds
        SetSearchStatus(this);
        m_rest.setSingleShot(true);
        m_rest.setInterval(kRest);
        QObject::connect(&m_rest, &QTimer::timeout, [this] { Count(); });
    }
    ~SearchLine() override { SetSearchStatus(nullptr); }

    void Show(CZNCoreEditorView& view, const SearchStatus& status) override
    {
        m_rest.stop();
        if (!m_bar)
            return;
        m_text = status.text;
        if (m_text.isEmpty())
            m_bar->clearMessage();
        else
            m_bar->showMessage(m_text);
        m_view = view.GetSafeHwnd();
        if (status.isFound)
            m_rest.start();
    }

private:
    void Count()
    {
        constexpr int kMost = 1000;
        constexpr long kLongText = 4 * 1024 * 1024;
        auto* view = m_view ? dynamic_cast<CZNCoreEditorView*>(AttachedWnd(m_view)) : nullptr;
        if (!m_bar || !view || view->GetCoreEditorControl()->GetLength(1) >= kLongText)
            return;
        const int count = view->CountIncrementalMatches(kMost);
        if (count > 0)
            m_bar->showMessage(m_text +
                               (count < kMost
                                    ? MainWindow::tr("   %n matches", nullptr, count)
                                    : MainWindow::tr("   %n matches and more", nullptr, count)));
    }

    QPointer<QStatusBar> m_bar;
    QPointer<QWidget> m_view;
    QString m_text;
    QTimer m_rest;
};

class MainWindow::FoundTexts final : public IFoundTexts
{
public:
    explicit FoundTexts(MainWindow& window) : m_window(window) {}

    CZNCoreEditorControlEx* EditorOf(const QString& path) const override
    {
        const ScriptDoc* script = Of(path);
        return script ? &script->FirstView()->GetCoreEditorControlRef() : nullptr;
    }

    CZNCoreEditorControlEx* Open(const QString& path) override
    {
        if (const ScriptDoc* script = Of(path)) {
            if (CFrameWnd* frame = script->FirstView()->GetParentFrame())
                frame->ActivateFrame();
        } else if (!m_window.m_app.OpenDocumentFile(path)) {
            return nullptr;
        }
        const ScriptFrame* frame = m_window.CurrentFrame();
        return frame ? &frame->Editor() : nullptr;
    }

    std::vector<OpenText> All() const override
    {
        m_window.FinishResuming();
        std::vector<OpenText> texts;
        for (const ScriptDoc* script : m_window.m_app.Scripts())
            texts.push_back(
                {NameOf(*script), script->FirstView()->GetCoreEditorControlRef().GetText()});
        return texts;
    }

private:
    const ScriptDoc* Of(const QString& path) const
    {
        for (const ScriptDoc* script : m_window.m_app.Scripts()) {
            if (NameOf(*script) == path && script->FirstView())
                return script;
        }
        return nullptr;
    }

    MainWindow& m_window;
};

std::shared_ptr<void> MainWindow::MakeSearchLine()
{
    return std::make_shared<SearchLine>(statusBar());
}

void MainWindow::BuildResults()
{
    m_foundTexts = std::make_shared<FoundTexts>(*this);
    for (const char* title : {QT_TR_NOOP("Find Results"), QT_TR_NOOP("Find Results 2")}) {
        auto* pane = new ResultsPane(tr(title), *m_foundTexts, this);
        pane->setObjectName(QString(QLatin1String(title)).remove(u' '));
        addDockWidget(Qt::BottomDockWidgetArea, pane);
        pane->hide();
        const bool isFirst = m_results.empty();
        pane->toggleViewAction()->setObjectName(isFirst ? QStringLiteral("findResults")
                                                        : QStringLiteral("findResults2"));
        pane->toggleViewAction()->setVisible(isFirst); // the other one once there is something
        connect(pane, &ResultsPane::Chosen, this, &MainWindow::ShowMatch);
        m_results.push_back(pane);
    }
    tabifyDockWidget(m_problems, m_results[0]); // each has the window's whole width
    tabifyDockWidget(m_results[0], m_results[1]);
    m_shownResults = m_results[0];
    m_searchLine = MakeSearchLine();
}

void MainWindow::FindInFiles()
{
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    const ScriptFrame* frame = CurrentFrame();
    const ScriptDoc* script = frame ? frame->Script() : nullptr;
    ProposePlace(manager, script ? script->GetPathName() : QString());
    CFindInFilesDlg dialog(m_frame);
    if (CZNCoreEditorControlEx* editor = CurrentEditor())
        dialog.m_text = editor->GetFindString();
    if (dialog.DoModal() != IDOK)
        return;
    constexpr int kInOpenFiles = 2;
    FileSearchRequest request;
    request.text = manager.GetFind();
    request.wholeWord = manager.GetWholeWord();
    request.matchCase = manager.GetMatchCase();
    request.regExp = manager.GetRegExp();
    request.perlSyntax = manager.GetPerlSyntax();
    request.countOnly = manager.GetCountOnly();
    request.subFolders = manager.GetSubFolders();
    request.types = manager.GetFileType();
    request.codePage = DefaultCodePage();
    request.folders = dialog.m_aFolders;
    request.openOnly = manager.GetFindIn() == kInOpenFiles;
    request.open = m_foundTexts->All();
    m_shownResults = m_results[manager.GetOutputPane2() ? 1 : 0];
    m_shownResults->Search(std::move(request));
    ShowResults();
}

// Where the pane comes to the front in an area of a few lines it gets more; the height that it has
// afterwards is a person's.
void MainWindow::ShowResults()
{
    constexpr int kFewLines = 130;      // pixels
    constexpr int kResultsHeight = 260; // of some nine lines
    const bool isShown = m_shownResults->isVisible();
    m_shownResults->toggleViewAction()->setVisible(true);
    m_shownResults->show();
    m_shownResults->raise();
    if (!isShown && !m_shownResults->isFloating() && m_shownResults->height() < kFewLines)
        resizeDocks({m_shownResults}, {std::min(kResultsHeight, height() / 3)}, Qt::Vertical);
}

void MainWindow::NextResult()
{
    m_shownResults->GoOn(true);
}

void MainWindow::PreviousResult()
{
    m_shownResults->GoOn(false);
}

void MainWindow::StopSearch()
{
    for (ResultsPane* pane : m_results)
        pane->Stop();
}

void MainWindow::TellResults(const ScriptDoc& script)
{
    const QString name = NameOf(script);
    for (ResultsPane* pane : m_results)
        pane->OnTextChanged(name);
}

void MainWindow::TellOfScripts()
{
    for (ResultsPane* pane : m_results)
        pane->OnScriptsChanged();
}

// In the script that has come to the front. A place that it has no longer is the nearest that it
// has.
void MainWindow::ShowMatch(long line, long column, long length)
{
    const ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return;
    CZNCoreEditorControlEx& editor = frame->Editor();
    const long start = editor.PositionFromLine(static_cast<int>(line), 1);
    const long from =
        std::min(start < 0 ? editor.GetLength(1) : start + column, editor.GetLength(1));
    frame->View()->SelectRange(from, std::min(from + length, editor.GetLength(1)));
}
