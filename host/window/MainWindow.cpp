// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: tabs and what is shown of them. The menus stand in MainWindowCommands, what is
// remembered between two runs in MainWindowSession.
#include "host/window/MainWindow.h"

#include "host/commands/CommandKeys.h"
#include "host/expanded/ExpandedScript.h"
#include "host/files/FileDrops.h"
#include "host/files/FilePlace.h"
#include "host/files/LanguageMemory.h"
#include "host/files/Prompts.h"
#include "host/files/RecentFiles.h"
#include "host/finding/FindBar.h"
#include "host/finding/ResultsPane.h"
#include "host/folder/FolderPane.h"
#include "host/options/OptionsDialog.h"
#include "host/outline/OutlinePane.h"
#include "host/problems/ProblemPane.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/script/ScriptView.h"
#include "host/session/AutosaveDialog.h"
#include "host/window/LanguageMenu.h"
#include "host/window/MainFrame.h"
#include "host/window/MenuKeys.h"
#include "host/window/PaneTabs.h"
#include "host/window/Reasons.h"
#include "host/window/StatusIndicators.h"
#include "host/window/Workbench.h"
#include "platform/services/OptionsServer.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kProblemsHeight = 110; // pixels, of some four lines
constexpr int kMessageTime = 4000;   // milliseconds in the status bar
constexpr int kExpandedWidth = 460;  // pixels, of some fifty characters

QString NotStored(const QString& what)
{
    return MainWindow::tr("%1 could not be written to the settings; the disk may be full. It holds "
                          "until the workbench ends.")
        .arg(what);
}

// Of a file, with "~" for the person's own; empty for none.
QString ShortFolder(const QString& path)
{
    if (path.isEmpty())
        return {};
    const QString folder = QFileInfo(path).absolutePath();
    const QString home = QDir::homePath();
    if (folder == home || folder.startsWith(home + u'/'))
        return u'~' + folder.mid(home.size());
    return folder;
}

// Neither a character, nor a key that moves the caret or takes a character away.
bool MayBeOfAMenu(const QKeyEvent& key)
{
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return true;
    const bool types = !key.text().isEmpty() && key.text().front().isPrint();
    const bool edits = key.key() >= Qt::Key_Tab && key.key() <= Qt::Key_Enter;
    const bool moves = key.key() >= Qt::Key_Home && key.key() <= Qt::Key_Alt;
    return !types && !edits && !moves;
}

// Whether the key is that of a command which would change the script, if that could be.
bool IsOfAReadOnlyScript(const QKeyEvent& key, QMenuBar& menus, CZNCoreEditorControlEx& editor)
{
    const QKeySequence pressed(key.keyCombination());
    return std::ranges::any_of(CommandsOf(menus), [&](const QAction* action) {
        return !action->isEnabled() && action->shortcuts().contains(pressed) &&
               IsDisabledAsReadOnly(action->objectName(), editor);
    });
}

} // namespace

MainWindow::MainWindow(Workbench& app)
    : m_app(app), m_frame(new MainFrame(*this)), m_tabs(new ScriptTabs(this)),
      m_status(new StatusIndicators(statusBar())), m_problems(new ProblemPane(this)),
      m_expanded(new ExpandedScript(this)), m_sessionTimer(new QTimer(this)),
      m_resumeTimer(new QTimer(this))
{
    PaneTabs::Take(*this);
    m_find = new FindBar([this] { return CurrentEditor(); });
    connect(m_find, &FindBar::Told, this,
            [this](const QString& text) { statusBar()->showMessage(text, kMessageTime); });
    auto* center = new QWidget(this);
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tabs);
    layout->addWidget(m_find);
    setCentralWidget(center);
    addDockWidget(Qt::BottomDockWidgetArea, m_problems);
    resizeDocks({m_problems}, {kProblemsHeight}, Qt::Vertical);
    m_problems->toggleViewAction()->setObjectName(QStringLiteral("problems"));
    m_problems->hide(); // until it is asked for: the text has the marks, the status bar the count
    connect(m_problems, &ProblemPane::Chosen, this, [this](long start, long end) {
        if (const ScriptFrame* frame = CurrentFrame())
            frame->View()->SelectRange(start, end);
    });
    addDockWidget(Qt::RightDockWidgetArea, m_expanded);
    m_expanded->hide();
    m_expanded->toggleViewAction()->setObjectName(QStringLiteral("expandedScriptPane"));
    connect(m_expanded->toggleViewAction(), &QAction::triggered, this, [this](bool isShown) {
        m_expanded->hide();
        if (isShown) // with the script as it is by now
            ExpandScript();
    });
    BuildResults();
    BuildSidebars();
    connect(m_expanded, &ExpandedScript::SourceChosen, this, &MainWindow::ShowSource);
    connect(m_tabs, &ScriptTabs::Added, this, &MainWindow::OnTabAdded);
    connect(m_tabs, &ScriptTabs::AllWanted, this, &MainWindow::FinishResuming);
    connect(m_tabs, &ScriptTabs::Leaving, this, &MainWindow::NoteLeft);
    connect(m_tabs, &ScriptTabs::currentChanged, this, &MainWindow::OnCurrentChanged);
    connect(m_tabs->tabBar(), &QTabBar::tabMoved, this, &MainWindow::KeepSessionSoon);
    connect(m_tabs, &ScriptTabs::tabCloseRequested, this, &MainWindow::CloseTab);
    for (QDockWidget* pane : findChildren<QDockWidget*>()) {
        auto* back = new QShortcut(Qt::Key_Escape, pane);
        back->setContext(Qt::WidgetWithChildrenShortcut);
        connect(back, &QShortcut::activated, this, [this, pane] {
            if (pane == m_expanded) // a look at the script, which is over
                pane->hide();
            GoToScript();
        });
    }
    FileDrops::Take(*this);
    FileDrops::Take(*m_tabs->tabBar());

    BuildPlaces();
    BuildMenus();
    connect(m_status, &StatusIndicators::Chosen, this, &MainWindow::OpenField);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &MainWindow::UpdateCommands);
    resize(1100, 720);
    UpdateAll();
}

// The tabs go after this part of the window does, and tell of it.
MainWindow::~MainWindow()
{
    m_app.BeforeOpening({});
    m_tabs->disconnect(this);
    m_outline->disconnect(this);
    m_folder->disconnect(this);
    for (ScriptDoc* script : m_app.Scripts())
        script->disconnect(this);
}

ScriptFrame* MainWindow::CurrentFrame() const
{
    return FrameAt(m_tabs->currentIndex());
}

// A frame whose script has gone is on its way out.
ScriptFrame* MainWindow::FrameAt(int index) const
{
    ScriptFrame* frame = ScriptFrame::Of(m_tabs->widget(index));
    return frame && frame->Script() ? frame : nullptr;
}

CZNCoreEditorControlEx* MainWindow::CurrentEditor() const
{
    const ScriptFrame* frame = CurrentFrame();
    return frame ? &frame->Editor() : nullptr;
}

int MainWindow::TabCount() const
{
    return m_tabs->count();
}

void MainWindow::ShowTab(int index)
{
    m_tabs->setCurrentIndex(index);
}

// One that is named and not there may be a slip, or one to begin.
bool MainWindow::OfferNewFile(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() || info.isSymLink() || !QFileInfo(info.absolutePath()).isDir())
        return true;
    if (!GetPrompts().Confirm(this, tr("There is no “%1”.").arg(path), tr("&Create")))
        return false;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return true;
    GetPrompts().Tell(this, tr("“%1” cannot be created: %2").arg(path, file.errorString()));
    return false;
}

bool MainWindow::OpenPlaces(const QStringList& words)
{
    bool opened = true;
    QPointer<QWidget> first;
    for (const QString& word : words) {
        const FilePlace place = ParseFilePlace(word);
        const bool isWanted = OfferNewFile(place.path);
        const ScriptFrame* frame =
            isWanted && m_app.OpenDocumentFile(place.path) ? CurrentFrame() : nullptr;
        if (frame && place.line > 0)
            frame->View()->GoToLine(place.line - 1);
        if (frame && place.column > 1)
            frame->View()->GoToColumn(place.column - 1);
        if (frame && !first)
            first = frame->GetSafeHwnd();
        opened = opened && frame;
    }
    if (first)
        m_tabs->setCurrentWidget(first);
    return opened;
}

void MainWindow::OpenForLaterStart(const QStringList& words, const QByteArray& token)
{
    m_app.Asked() << words;
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token); // which Qt takes along
    setWindowState(windowState() & ~Qt::WindowMinimized);
    QWidget* front = QApplication::activeModalWidget();
    if (!front)
        front = this;
    front->raise();
    front->activateWindow();
    OpenAsked();
}

// A window that is on its way out leaves it to the next one.
void MainWindow::OpenAsked()
{
    if (!m_app.GetMainWnd() || QApplication::activeModalWidget())
        return;
    for (const QStringList& words : std::exchange(m_app.Asked(), {}))
        OpenPlaces(words);
}

void MainWindow::OpenRecent(const QString& path)
{
    if (QFileInfo::exists(path))
        m_app.OpenDocumentFile(path);
    else if (GetPrompts().Confirm(this, RecentFileIsGoneQuestion(path), tr("&Remove")))
        m_app.Recent().Remove(path);
}

void MainWindow::OnTabAdded(QWidget* page)
{
    if (const ScriptFrame* frame = ScriptFrame::Of(page); frame && frame->Script())
        Follow(*frame->Script());
    KeepSessionSoon();
}

// A script has one set of connections, whatever the number of its tabs.
void MainWindow::Follow(ScriptDoc& script)
{
    script.disconnect(this);
    FollowPlaces(script);
    connect(&script, &ScriptDoc::StateChanged, this, [this, &script] { OnScriptChanged(script); });
    connect(&script, &ScriptDoc::TextChanged, this, [this, &script] {
        TellResults(script);
        if (CurrentFrame() && CurrentFrame()->Script() == &script)
            m_find->OnTextChanged();
    });
    script.Names().disconnect(this);
    connect(&script.Names(), &completion::LiveIndex::Finished, this,
            [this, &script] { OnNamesRead(script); });
    connect(&script, &ScriptDoc::MenuOpened, this, [this](QMenu* menu) {
        SpeakAsMenus(*menu, *this);
        ExplainEntries(*menu, CurrentEditor());
    });
    connect(&script, &ScriptDoc::Told, this, [this](const QString& text) {
        statusBar()->showMessage(text, StatusIndicators::kSentenceTime);
    });
    connect(&script, &ScriptDoc::ProblemsChanged, this, [this, &script] {
        const ScriptFrame* frame = CurrentFrame();
        if (frame && frame->Script() == &script) {
            ListProblems();
            m_status->Show(frame);
        }
    });
    connect(&script, &ScriptDoc::LanguageChanged, this, [this, &script] {
        ApplyView(script);
        OnScriptChanged(script);
    });
    ApplyView(script);
    OnScriptChanged(script);
    ListProblems();
}

void MainWindow::OnCurrentChanged()
{
    statusBar()->clearMessage(); // which is of the script that was in front
    GoToScript();
    NotePlace();
    UpdateAll();
    ListProblems();
    UpdateOutlineSoon();
    KeepSessionSoon();
    TellOfScripts();
}

void MainWindow::CloseTab(int index)
{
    if (const ScriptFrame* frame = FrameAt(index))
        SendMessage(frame->GetSafeHwnd(), WM_CLOSE, 0, 0);
}

void MainWindow::ApplyView(const ScriptDoc& script)
{
    for (CView* view : script.GetViews()) {
        auto* shown = dynamic_cast<ScriptView*>(view);
        if (!shown)
            continue;
        CZNCoreEditorControlEx& editor = shown->GetCoreEditorControlRef();
        if (m_showWhitespace)
            editor.SetViewWS(*m_showWhitespace ? 1 : 0, 1);
        if (m_showLineEnds)
            editor.SetViewEOL(*m_showLineEnds, 1);
        if (m_wrapLines)
            editor.SetWrapMode(*m_wrapLines ? 1 : 0, 1);
        editor.SetDocumentMap(m_showsMap);
    }
}

void MainWindow::ApplyViewToAll()
{
    for (const ScriptDoc* script : m_app.Scripts())
        ApplyView(*script);
}

void MainWindow::SetLanguage(int language)
{
    const ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return;
    frame->Script()->SetLanguage(language);
    if (const QString& path = frame->Script()->GetPathName(); !path.isEmpty())
        languages::Remember(path, LanguageOf(*frame->Script()));
}

void MainWindow::ChangeOptions()
{
    OptionsDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.Store();
    if (!CZNOptionsServer::GetObjectW()->WasStored())
        GetPrompts().Tell(this, NotStored(tr("What you chose")));
    FollowOptions();
}

void MainWindow::ChangeAutosave()
{
    AutosaveDialog dialog(this, AutosaveSettings::Load());
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!dialog.Settings().Store())
        GetPrompts().Tell(this, NotStored(tr("The choice about autosave")));
    for (const ScriptDoc* script : m_app.Scripts())
        dialog.Settings().ApplyTo(script->FirstView()->GetCoreEditorControlRef());
}

void MainWindow::FollowOptions()
{
    for (ScriptDoc* script : m_app.Scripts())
        script->FollowOptions();
}

// From the script over what is shown around it and back, for somebody without a mouse.
void MainWindow::NextArea()
{
    const QWidgetList areas = {m_tabs,
                               m_find,
                               m_expanded->TextArea(),
                               m_expanded->ErrorArea(),
                               m_problems->ListArea(),
                               m_results[0],
                               m_results[1],
                               m_outline->ListArea(),
                               m_folder->ListArea()};
    // Those behind others are visible to Qt, on the left of the window.
    const auto isShown = [this](const QWidget& area) {
        return area.isVisible() &&
               (area.window() != this || area.mapTo(this, area.rect().bottomRight()).x() >= 0);
    };
    const QWidget* focus = focusWidget();
    qsizetype at = 0;
    for (qsizetype i = 0; i < areas.size(); ++i) {
        if (focus && (areas[i] == focus || areas[i]->isAncestorOf(focus)))
            at = i;
    }
    do
        at = (at + 1) % areas.size();
    while (!isShown(*areas[at]));
    if (areas[at] != m_tabs)
        areas[at]->setFocus(Qt::TabFocusReason);
    else
        GoToScript();
}

void MainWindow::GoToScript()
{
    if (ScriptFrame* frame = CurrentFrame())
        frame->BecomeActive();
}

void MainWindow::ExpandScript()
{
    if (const ScriptFrame* frame = CurrentFrame()) {
        if (m_expanded->Shows(*frame->Script(), frame->Editor())) {
            m_expanded->hide();
            return;
        }
        m_expanded->Expand(*frame->Script(), frame->Editor());
        if (m_expanded->isHidden())
            resizeDocks({m_expanded}, {kExpandedWidth}, Qt::Horizontal);
        m_expanded->show();
    }
}

void MainWindow::ShowSource(const QString& path, long line)
{
    ScriptDoc* script = m_expanded->Script();
    CFrameWnd* frame = script ? script->FirstView()->GetParentFrame() : nullptr;
    if (!path.isEmpty()) {
        if (!m_app.OpenDocumentFile(path))
            return;
    } else if (frame) {
        frame->ActivateFrame();
    } else {
        return;
    }
    if (ScriptFrame* current = CurrentFrame()) {
        current->Editor().GotoLine(static_cast<int>(line), 1);
        current->View()->SetFocus();
    }
}

void MainWindow::OnScriptChanged(ScriptDoc& script)
{
    KeepSessionSoon();
    TellOfScripts();
    for (const CView* view : script.GetViews()) {
        if (CFrameWnd* frame = view->GetParentFrame())
            frame->OnUpdateFrameTitle();
    }
    const ScriptFrame* frame = CurrentFrame();
    if (frame && frame->Script() == &script) {
        NotePlaceSoon();
        UpdateAll();
        UpdateOutlineSoon();
    }
}

// The mark of a change is Qt's, so that desktops which show it in a way of their own can.
void MainWindow::UpdateTitle()
{
    const ScriptFrame* frame = CurrentFrame();
    ScriptDoc* script = frame ? frame->Script() : nullptr;
    const bool isModified = script && script->IsModified();
    QString caption = frame ? frame->Caption().Text() : QString();
    if (isModified)
        caption += u' ';
    const auto verbatim = [](QString text) {
        return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    };
    // Scripts of one name are told apart by their folders.
    const QString folder = script ? ShortFolder(script->GetPathName()) : QString();
    QString title = QStringLiteral("znworkbench");
    if (frame)
        title = verbatim(caption) + QStringLiteral("[*] – ") +
                (folder.isEmpty() ? QString() : verbatim(folder) + QStringLiteral(" – ")) + title;
    setWindowTitle(title);
    setWindowModified(isModified);
}

bool MainWindow::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        MayBeOfAMenu(static_cast<const QKeyEvent&>(*event))) {
        FollowNow();
        const ScriptFrame* frame = CurrentFrame();
        if (frame &&
            IsOfAReadOnlyScript(static_cast<const QKeyEvent&>(*event), *menuBar(), frame->Editor()))
            frame->Script()->TellReadOnly();
    }
    if (event->type() == QEvent::WindowUnblocked) // behind the question, not within it
        QMetaObject::invokeMethod(this, &MainWindow::OpenAsked, Qt::QueuedConnection);
    return QMainWindow::event(event);
}

void MainWindow::FollowNow()
{
    if (const ScriptFrame* frame = CurrentFrame())
        frame->View()->FollowNow();
}

void MainWindow::UpdateAll()
{
    const ScriptFrame* frame = CurrentFrame();
    UpdateTitle();
    m_status->Show(frame);
    m_languages->ShowLanguage(frame ? frame->Script()->Language() : -1);
    m_folder->SetFront(frame ? frame->Script()->GetPathName() : QString());
    UpdateCommands();
}
