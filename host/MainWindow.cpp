#include "host/MainWindow.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "host/AutosaveDialog.h"
#include "host/EditorTab.h"
#include "host/ExpandedScript.h"
#include "host/LanguageMenu.h"
#include "host/OptionsDialog.h"
#include "host/ProblemPane.h"
#include "host/Prompts.h"
#include "host/ScriptChecker.h"
#include "host/StatusIndicators.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QTabWidget>

#include <algorithm>

namespace {

constexpr int kProblemsHeight = 110; // pixels, of some four lines

// The file behind a path whichever way it is written; the path itself while there is no file.
QString SameFile(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

} // namespace

MainWindow::MainWindow(Prompts& prompts)
    : m_prompts(prompts), m_tabs(new QTabWidget(this)), m_status(new StatusIndicators(statusBar())),
      m_problems(new ProblemPane(this)), m_expanded(new ExpandedScript(this))
{
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    m_tabs->setDocumentMode(true);
    setCentralWidget(m_tabs);
    addDockWidget(Qt::BottomDockWidgetArea, m_problems);
    resizeDocks({m_problems}, {kProblemsHeight}, Qt::Vertical);
    connect(m_problems, &ProblemPane::Chosen, this, [this](long start, long end) {
        if (EditorTab* tab = CurrentTab())
            tab->SelectRange(start, end);
    });
    addDockWidget(Qt::RightDockWidgetArea, m_expanded);
    m_expanded->hide();
    connect(m_expanded, &ExpandedScript::SourceChosen, this, &MainWindow::ShowSource);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        UpdateAll();
        ListProblems();
        if (EditorTab* tab = CurrentTab())
            tab->setFocus();
    });
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MainWindow::CloseTab);

    BuildMenus();
    // Asked when it changes only: on some platforms each question goes to another program.
    const auto readClipboard = [this] {
        const QMimeData* content = QGuiApplication::clipboard()->mimeData();
        m_clipboardHasText = content && content->hasText();
        UpdateCommands();
    };
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, readClipboard);
    readClipboard();
    resize(1100, 720);
    UpdateAll();
}

MainWindow::~MainWindow()
{
    // The tabs go after this part of the window does, and tell of it.
    m_tabs->disconnect(this);
    for (int i = 0; i < TabCount(); ++i)
        TabAt(i)->disconnect(this);
    for (int i = 0; i < TabCount(); ++i)
        TabAt(i)->Checker().disconnect(this);
}

EditorTab* MainWindow::CurrentTab() const
{
    return TabAt(m_tabs->currentIndex());
}

EditorTab* MainWindow::TabAt(int index) const
{
    return qobject_cast<EditorTab*>(m_tabs->widget(index));
}

int MainWindow::TabCount() const
{
    return m_tabs->count();
}

void MainWindow::ShowTab(int index)
{
    m_tabs->setCurrentIndex(index);
}

EditorTab* MainWindow::AddTab()
{
    auto* tab = new EditorTab(QStringLiteral("Script %1").arg(++m_untitledCount), m_tabs);
    connect(tab, &EditorTab::StateChanged, this, [this, tab] { OnTabChanged(tab); });
    connect(&tab->Checker(), &ScriptChecker::ProblemsChanged, this, [this, tab] {
        if (tab == CurrentTab())
            ListProblems();
    });
    connect(tab, &EditorTab::LanguageChanged, this, [this, tab] {
        ApplyView(*tab);
        OnTabChanged(tab);
    });
    ApplyView(*tab);
    return tab;
}

void MainWindow::NewScript()
{
    EditorTab* tab = AddTab();
    m_tabs->setCurrentIndex(m_tabs->addTab(tab, {}));
    OnTabChanged(tab);
}

QString MainWindow::OpenScript(const QString& path)
{
    if (const int index = IndexOfFile(path); index >= 0) {
        ShowTab(index);
        return {};
    }
    EditorTab* tab = AddTab();
    if (const QString problem = tab->Load(path); !problem.isEmpty()) {
        delete tab;
        return problem;
    }
    // The empty script that the window began with makes room.
    EditorTab* previous = CurrentTab();
    m_tabs->setCurrentIndex(m_tabs->addTab(tab, {}));
    if (previous && previous->IsUntouched())
        delete previous;
    OnTabChanged(tab);
    return {};
}

int MainWindow::IndexOfFile(const QString& path) const
{
    const QString file = SameFile(path);
    for (int i = 0; i < TabCount(); ++i) {
        if (!TabAt(i)->Path().isEmpty() && SameFile(TabAt(i)->Path()) == file)
            return i;
    }
    return -1;
}

QString MainWindow::FolderToStartIn() const
{
    const EditorTab* tab = CurrentTab();
    return tab && !tab->Path().isEmpty() ? QFileInfo(tab->Path()).path() : QDir::currentPath();
}

void MainWindow::Open()
{
    for (const QString& path : m_prompts.FilesToOpen(this, FolderToStartIn())) {
        if (const QString problem = OpenScript(path); !problem.isEmpty())
            m_prompts.Tell(this, problem);
    }
}

bool MainWindow::Save()
{
    return SaveTab(*CurrentTab());
}

bool MainWindow::SaveAs()
{
    return SaveTabAs(*CurrentTab());
}

bool MainWindow::SaveTab(EditorTab& tab)
{
    return tab.Path().isEmpty() ? SaveTabAs(tab) : WriteTab(tab, tab.CurrentTarget());
}

bool MainWindow::SaveTabAs(EditorTab& tab)
{
    SaveTarget proposal = tab.CurrentTarget();
    if (proposal.path.isEmpty())
        proposal.path = QDir(FolderToStartIn()).filePath(tab.Name() + QStringLiteral(".sql"));
    const std::optional<SaveTarget> target = m_prompts.WhereToSave(this, proposal);
    return target && WriteTab(tab, *target);
}

bool MainWindow::WriteTab(EditorTab& tab, const SaveTarget& target)
{
    const bool sameFile = !tab.Path().isEmpty() && SameFile(target.path) == SameFile(tab.Path());
    if (sameFile && tab.Editor().WasCutShort() &&
        !m_prompts.Confirm(this,
                           QStringLiteral("Only the first part of “%1” could be read. Saving it "
                                          "under its own name loses the rest of the file.")
                               .arg(tab.Name()),
                           QStringLiteral("Overwrite")))
        return false;
    if (!tab.CanHold(target.encoding) &&
        !m_prompts.Confirm(
            this,
            QStringLiteral("“%1” has characters that windows-1252 lacks. They become "
                           "question marks in the file. Save As with a Unicode "
                           "encoding keeps them.")
                .arg(tab.Name()),
            QStringLiteral("Save with Question Marks")))
        return false;
    const QString problem = tab.Save(target);
    if (!problem.isEmpty())
        m_prompts.Tell(this, problem);
    return problem.isEmpty();
}

bool MainWindow::MayLose(EditorTab& tab)
{
    if (!tab.IsModified())
        return true;
    m_tabs->setCurrentWidget(&tab);
    switch (m_prompts.BeforeLosing(this, tab.Name())) {
    case LoseChanges::Save:
        return SaveTab(tab);
    case LoseChanges::Discard:
        return true;
    default:
        return false;
    }
}

void MainWindow::CloseScript()
{
    CloseTab(m_tabs->currentIndex());
}

void MainWindow::CloseTab(int index)
{
    EditorTab* tab = TabAt(index);
    if (!tab || !MayLose(*tab))
        return;
    delete tab;
    UpdateAll();
}

void MainWindow::Quit()
{
    close();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    for (int i = 0; i < TabCount(); ++i) {
        if (!MayLose(*TabAt(i))) {
            event->ignore();
            return;
        }
    }
    event->accept();
}

void MainWindow::ApplyView(const EditorTab& tab)
{
    tab.Editor().SetViewWS(m_showWhitespace ? 1 : 0, 1);
    tab.Editor().SetViewEOL(m_showLineEnds, 1);
    tab.Editor().SetWrapMode(m_wrapLines ? 1 : 0, 1);
}

void MainWindow::ApplyViewToAll()
{
    for (int i = 0; i < TabCount(); ++i)
        ApplyView(*TabAt(i));
}

void MainWindow::SetLanguage(int language)
{
    if (EditorTab* tab = CurrentTab())
        tab->SetLanguage(language);
}

void MainWindow::ChangeOptions()
{
    OptionsDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.Store();
    FollowOptions();
}

void MainWindow::ChangeAutosave()
{
    AutosaveDialog dialog(this, AutosaveSettings::Load());
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.Settings().Store();
    for (int i = 0; i < TabCount(); ++i)
        dialog.Settings().ApplyTo(TabAt(i)->Editor());
}

void MainWindow::FollowOptions()
{
    for (int i = 0; i < TabCount(); ++i)
        TabAt(i)->FollowOptions();
}

void MainWindow::ListProblems()
{
    m_problems->Clear();
    const EditorTab* tab = CurrentTab();
    if (!tab)
        return;
    for (const ScriptProblem& problem : tab->Checker().Problems())
        m_problems->Add(problem, tab->Editor().LineFromPosition(problem.start, 1));
}

// The first one behind the caret, from the end on the first of all.
void MainWindow::NextProblem()
{
    EditorTab* tab = CurrentTab();
    const std::vector<ScriptProblem>& problems = tab->Checker().Problems();
    if (problems.empty())
        return;
    const long caret = tab->Editor().GetSelectionStart(1);
    const auto behind = std::find_if(problems.begin(), problems.end(),
                                     [caret](const ScriptProblem& p) { return p.start > caret; });
    const ScriptProblem& next = behind != problems.end() ? *behind : problems.front();
    tab->SelectRange(next.start, next.end);
}

void MainWindow::ExpandScript()
{
    m_expanded->Expand(*CurrentTab());
    m_expanded->show();
}

void MainWindow::ShowSource(const QString& path, long line)
{
    EditorTab* script = m_expanded->Script();
    if (path.isEmpty() && script)
        m_tabs->setCurrentWidget(script);
    else if (path.isEmpty())
        return;
    else if (const QString problem = OpenScript(path); !problem.isEmpty())
        return m_prompts.Tell(this, problem);
    CZNCoreEditorControlEx& editor = CurrentTab()->Editor();
    editor.GotoLine(static_cast<int>(line), 1);
    CurrentTab()->setFocus();
}

void MainWindow::OnTabChanged(EditorTab* tab)
{
    UpdateCaptions(tab);
    if (tab == CurrentTab())
        UpdateAll();
}

void MainWindow::UpdateCaptions(EditorTab* tab)
{
    const int index = m_tabs->indexOf(tab);
    if (index < 0)
        return;
    // A single ampersand would mark the letter behind it.
    QString caption = tab->Name().replace(u'&', QLatin1String("&&"));
    if (tab->IsModified())
        caption += u'*';
    if (m_tabs->tabText(index) != caption)
        m_tabs->setTabText(index, caption);
    m_tabs->setTabToolTip(index, QDir::toNativeSeparators(tab->Path()));
}

void MainWindow::UpdateAll()
{
    const EditorTab* tab = CurrentTab();
    setWindowTitle(tab ? QStringLiteral("%1[*] – znworkbench").arg(tab->Name())
                       : QStringLiteral("znworkbench"));
    setWindowModified(tab && tab->IsModified());
    m_status->Show(tab);
    m_languages->ShowLanguage(tab ? tab->Language() : -1);
    UpdateCommands();
}
