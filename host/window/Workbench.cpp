// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/Workbench.h"

#include "editing/language/Library.h"
#include "host/commands/WorkbenchCommands.h"
#include "host/files/Encodings.h"
#include "host/files/Places.h"
#include "host/files/Prompts.h"
#include "host/preferences/Appearance.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "looks/Schemes.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/windows/Disposal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench)
};

// Window, untitled, new, filter, ending.
QString Strings()
{
    const QString script = Texts::tr("Script");
    return QStringLiteral("znworkbench\n%1 \n%1\n%2\n.sql")
        .arg(script, Texts::tr("SQL scripts (*.sql)"));
}

QWidget* WindowOf(const CWinApp& app)
{
    const CWnd* main = app.GetMainWnd();
    return main ? main->GetSafeHwnd() : nullptr;
}

QString FolderToStartIn(const ScriptDoc* script)
{
    return script && !script->GetPathName().isEmpty() ? QFileInfo(script->GetPathName()).path()
                                                      : QDir::currentPath();
}

} // namespace

Workbench::Workbench(Keeps keeps)
    : m_keeps(keeps), m_guard(keeps == Keeps::Places ? OpenGuard::DefaultFolder() : QString()),
      m_recent(places::SettingsPath()), m_preferences(
                                            [this] {
                                                for (ScriptDoc* script : Scripts())
                                                    Q_EMIT script->LanguageChanged();
                                            },
                                            [this](const QString& scheme) { ChooseScheme(scheme); })
{
    if (m_keeps == Keeps::Places)
        appearance::SetCurrent(appearance::Load(places::SettingsPath()));
    AddDocTemplate(std::make_unique<CMultiDocTemplate>(Strings(), ScriptDoc::GetThisClass(),
                                                       ScriptFrame::GetThisClass(),
                                                       ScriptView::GetThisClass()));
}

// What is not to be saved goes with its script: until then nothing is lost, whatever fails.
int Workbench::SaveAllModified()
{
    std::vector<QPointer<ScriptDoc>> changed;
    QStringList names;
    for (ScriptDoc* script : Scripts()) {
        if (script->IsModified()) {
            changed.emplace_back(script);
            names << script->Name();
        }
    }
    if (changed.size() < 2)
        return CWinApp::SaveAllModified();
    const CWnd* main = GetMainWnd();
    const auto choices = GetPrompts().WhichToSave(main ? main->GetSafeHwnd() : nullptr, names);
    if (!choices || !GetMainWnd())
        return 0;
    for (std::size_t i = 0; i < changed.size(); ++i) {
        const bool isToSave = choices->value(static_cast<qsizetype>(i), true);
        if (isToSave && changed[i] && !changed[i]->DoFileSave())
            return 0;
    }
    return 1;
}

Workbench::~Workbench()
{
    CloseAllDocuments();
    if (CWnd* main = GetMainWnd())
        main->DestroyWindow();
    Disposal::Run();
    appearance::SetCurrent(zncoreeditor::kDesktopScheme); // the application outlives this
}

std::vector<ScriptDoc*> Workbench::Scripts() const
{
    std::vector<ScriptDoc*> scripts;
    for (CDocument* document : GetTemplates().front()->GetDocuments()) {
        if (auto* script = dynamic_cast<ScriptDoc*>(document))
            scripts.push_back(script);
    }
    return scripts;
}

ScriptDoc* Workbench::ActiveScript() const
{
    const auto* main = dynamic_cast<CFrameWnd*>(GetMainWnd());
    return main ? dynamic_cast<ScriptDoc*>(main->GetActiveDocument()) : nullptr;
}

ScriptDoc* Workbench::FindOpen(const QString& path) const
{
    CDocument* open = nullptr;
    GetTemplates().front()->MatchDocType(path, open);
    return dynamic_cast<ScriptDoc*>(open);
}

// A file that brought the last run down is not to bring down this one without a word.
bool Workbench::MayOpen(const QString& path)
{
    if (!m_guard.IsSuspect(path) ||
        GetPrompts().Confirm(WindowOf(*this), OpenAgainQuestion(path), Texts::tr("&Open")))
        return true;
    m_guard.Acquit(path);
    return false;
}

void Workbench::TellBeforeOpening(const QString& path) const
{
    if (m_beforeOpening && !m_isResuming)
        m_beforeOpening(path);
}

CDocument* Workbench::OpenDocumentFile(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    TellBeforeOpening(absolute);
    if (FindOpen(absolute))
        return CWinApp::OpenDocumentFile(absolute);
    if (!MayOpen(absolute))
        return nullptr;
    const FrameworkCall call;
    CDocument* document = OpenGuarded(absolute);
    if (auto* script = dynamic_cast<ScriptDoc*>(document); script && !m_isStarting)
        RecoverFor(*script);
    return document && !document->IsClosed() ? document : nullptr;
}

// The mark stays until the script has been painted. The empty script that the window began with
// makes room.
CDocument* Workbench::OpenGuarded(const QString& absolute)
{
    ScriptDoc* before = ActiveScript();
    const OpenGuard::Mark mark = m_guard.Open(absolute);
    CDocument* document = CWinApp::OpenDocumentFile(absolute);
    if (!document)
        return nullptr;
    if (before && before != document && !before->IsClosed() && before->IsUntouched())
        before->OnCloseDocument();
    if (QWidget* window = WindowOf(*this); window && window->isVisible())
        window->repaint();
    return document;
}

// What is to be recovered. What is for later is anybody's again.
QList<RecoverableCopy> Workbench::AskAbout(LeftCopies& copies)
{
    QList<RecoverableCopy> described;
    for (const LeftCopies::Copy& copy : copies.All())
        described << Describe(copy);
    QList<RecoverableCopy> chosen;
    if (described.isEmpty())
        return chosen;
    const QList<RecoveryChoice> choices = GetPrompts().WhatToRecover(WindowOf(*this), described);
    for (qsizetype i = 0; i < described.size(); ++i) {
        if (choices[i] == RecoveryChoice::Recover)
            chosen << described[i];
        else if (choices[i] == RecoveryChoice::Discard)
            copies.Discard(described[i].path);
    }
    return chosen;
}

void Workbench::ChooseWhatToRecover()
{
    m_isStarting = true;
    LeftCopies copies;
    m_toRecover = AskAbout(copies);
}

void Workbench::Recover()
{
    const QList<RecoverableCopy> chosen = std::exchange(m_toRecover, {});
    for (const RecoverableCopy& copy : chosen) {
        if (GetMainWnd())
            RecoverScript(copy);
    }
    m_isStarting = false;
}

// The script stays in its place if it is open. Without a file it begins as a script of its own.
void Workbench::RecoverScript(const RecoverableCopy& copy)
{
    const bool hasFile = copy.state == RecoverableCopy::State::Unchanged ||
                         copy.state == RecoverableCopy::State::Changed;
    if (!hasFile)
        NewScript();
    else if (!OpenDocumentFile(copy.document))
        return;
    ScriptDoc* script = ActiveScript();
    if (script && !script->Recover(copy) && !hasFile && !script->IsClosed())
        script->OnCloseDocument();
}

// The person who opens a file that another run has left a copy of.
void Workbench::RecoverFor(ScriptDoc& script)
{
    LeftCopies copies(script.GetPathName());
    const QList<RecoverableCopy> chosen = AskAbout(copies);
    for (const RecoverableCopy& copy : chosen) {
        copies.Release(copy.path);
        if (!script.IsClosed())
            script.Recover(copy);
    }
}

CDocument* Workbench::OpenResumed(const QString& path, int encoding)
{
    if (!MayOpen(path))
        return nullptr;
    const FrameworkCall call;
    const ScriptDoc::OpenAs as(encoding);
    const OpenGuard::Mark mark = m_guard.Open(path);
    m_isResuming = true;
    CDocument* document = CWinApp::OpenDocumentFile(path);
    m_isResuming = false;
    return document && !document->IsClosed() ? document : nullptr;
}

CDocument* Workbench::OpenScript(const QString& path, int encoding)
{
    TellBeforeOpening(path);
    if (ScriptDoc* open = FindOpen(path); open && encoding >= 0) {
        OpenDocumentFile(path);
        return open->Reopen(encoding) ? open : nullptr;
    }
    const ScriptDoc::OpenAs as(encoding);
    return OpenDocumentFile(path);
}

void Workbench::AddToRecentFileList(const QString& path)
{
    if (m_keeps == Keeps::Places && !m_isResuming)
        m_recent.Add(path);
}

void Workbench::OnOpen()
{
    for (const QString& path :
         GetPrompts().FilesToOpen(WindowOf(*this), FolderToStartIn(ActiveScript())))
        OpenDocumentFile(path);
}

void Workbench::OnOpenAs()
{
    // A script that looks wrong is the one that is meant most of the time.
    const ScriptDoc* script = ActiveScript();
    const bool hasFile = script && !script->GetPathName().isEmpty();
    const std::optional<OpenChoice> choice = GetPrompts().WhatToOpen(
        WindowOf(*this), hasFile ? script->GetPathName() : FolderToStartIn(script));
    if (!choice)
        return;
    TellBeforeOpening(choice->path);
    ScriptDoc* open = FindOpen(choice->path);
    if (!open || choice->encoding >= 0)
        OpenScript(choice->path, choice->encoding);
    else if (OpenDocumentFile(choice->path) == open && open->Reopen(choice->encoding))
        Q_EMIT open->Told(Texts::tr("%1 was read anew: it is %2")
                              .arg(open->Name(), EncodingName(open->CurrentTarget().encoding,
                                                              open->CurrentTarget().mark)));
}

void Workbench::ChooseScheme(const QString& name)
{
    // What is as the desktop looks at the palette; a scheme of a name does not, and is laid out
    // once.
    const bool byDesktop = name == zncoreeditor::kDesktopScheme;
    if (byDesktop)
        appearance::SetCurrent(name);
    if (m_keeps == Keeps::Places)
        appearance::Store(places::SettingsPath(), name);
    for (ScriptDoc* script : Scripts()) {
        for (CView* view : script->GetViews()) {
            if (auto* shown = dynamic_cast<ScriptView*>(view))
                shown->FollowScheme(name);
        }
    }
    if (!byDesktop)
        appearance::SetCurrent(name);
}

void Workbench::OpenPreferences()
{
    zncoreeditor::OnConfigurePreferences();
    for (ScriptDoc* script : Scripts())
        Q_EMIT script->LanguageChanged();
}

int Workbench::SaveAll()
{
    const FrameworkCall call;
    for (ScriptDoc* script : Scripts()) {
        if (!script->IsClosed() && script->IsModified() && !script->DoFileSave())
            return 0;
    }
    return 1;
}

bool Workbench::CanSaveAll() const
{
    const std::vector<ScriptDoc*> scripts = Scripts();
    return std::ranges::any_of(scripts,
                               [](ScriptDoc* script) { return script->IsModified() != 0; });
}

const CommandMap& Workbench::GetCommandMap() const
{
    using App = Workbench;
    // clang-format off
    static constexpr CommandEntry kCommands[] = {
        {ID_FILE_OPEN,     [](CCmdTarget& t) { static_cast<App&>(t).OnOpen(); }},
        {command::OpenAs,  [](CCmdTarget& t) { static_cast<App&>(t).OnOpenAs(); }},
        {command::SaveAll, [](CCmdTarget& t) { static_cast<App&>(t).SaveAll(); }},
        {command::Preferences, [](CCmdTarget& t) { static_cast<App&>(t).OpenPreferences(); }},
    };
    static constexpr UpdateEntry kUpdates[] = {
        {command::SaveAll, [](CCmdTarget& t, CCmdUI& ui) {
            ui.Enable(static_cast<const App&>(t).CanSaveAll());
        }},
    };
    // clang-format on
    static const CommandMap map = {&CWinApp::GetCommandMap(), kCommands, kUpdates};
    return map;
}
