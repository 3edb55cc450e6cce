// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: what it remembers from one run to the next.
#include "control/EngineLooks.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/expanded/ExpandedScript.h"
#include "host/files/Prompts.h"
#include "host/finding/ResultsPane.h"
#include "host/folder/FolderPane.h"
#include "host/icons/FitScreen.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/script/ScriptView.h"
#include "host/session/Session.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::seconds kRest(2);

SessionPanes PanesOf(const ScriptFrame& frame)
{
    const bool isBelow = frame.IsSplit(Qt::Vertical);
    if (frame.IsSplit(Qt::Horizontal))
        return isBelow ? SessionPanes::Four : SessionPanes::Beside;
    return isBelow ? SessionPanes::Below : SessionPanes::One;
}

constexpr int kBookmark = 0; // the marker

// From one to the next, since this is asked whenever keys have rested.
QList<int> FoldsOf(CZNCoreEditorControlEx& editor)
{
    QList<int> lines;
    const auto next = [&editor](int line) {
        return static_cast<int>(editor.Call(engine::kNextFolded, static_cast<WPARAM>(line), 0, 1));
    };
    for (int line = next(0); line >= 0 && lines.size() < SessionFile::kMostLines;
         line = next(line + 1))
        lines << line;
    return lines;
}

QList<int> BookmarksOf(CZNCoreEditorControlEx& editor)
{
    QList<int> lines;
    for (int line = editor.MarkerNext(0, 1 << kBookmark, 1);
         line >= 0 && lines.size() < SessionFile::kMostLines;
         line = editor.MarkerNext(line + 1, 1 << kBookmark, 1))
        lines << line;
    return lines;
}

// A text that has changed meanwhile has a block there or not.
void Fold(CZNCoreEditorControlEx& editor, const QList<int>& lines)
{
    constexpr int kHeader = 0x2000;       // of a level
    constexpr long kFarthest = 4'000'000; // units that are styled for it at most
    if (lines.isEmpty())
        return;
    const int last = static_cast<int>(editor.GetLineCount(1)) - 1;
    const long end = editor.GetLineEndPosition(std::min(std::ranges::max(lines), last), 1);
    if (end > kFarthest)
        return;
    editor.Colorize(0, end, 1);
    for (const int line : lines) {
        if (line <= last && editor.GetFoldLevel(line, 1) & kHeader &&
            editor.GetFoldExpanded(line, 1))
            editor.ToggleFold(line, 1);
    }
}

// Empty: unknown.
QString NameOfLanguage(int language)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const bool isKnown = language >= 0 && language < languages.GetLanguageCount();
    return isKnown ? languages.GetLanguageName(language) : QString();
}

SessionFile Describe(const ScriptFrame& frame)
{
    CZNCoreEditorControlEx& editor = frame.Editor();
    SessionFile file;
    file.path = frame.Script()->GetPathName();
    file.encoding = frame.Script()->ChosenEncoding();
    file.caretLine = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    file.caretColumn =
        editor.GetCurrentPos(1) - editor.PositionFromLine(static_cast<int>(file.caretLine), 1);
    file.firstVisible = editor.DocLineFromVisible(editor.GetFirstVisibleLine(1), 1);
    file.readOnly = frame.Script()->IsReadOnly() && !frame.Script()->IsFileReadOnly();
    file.panes = PanesOf(frame);
    file.zoom = editor.GetZoom(1);
    file.language = NameOfLanguage(editor.GetCurrentLanguage());
    file.folds = FoldsOf(editor);
    file.bookmarks = BookmarksOf(editor);
    return file;
}

} // namespace

// A file that has gone meanwhile is passed over: nobody has asked for it.
void MainWindow::ResumeSession()
{
    const std::optional<Session> found = Session::Load(Session::DefaultPath());
    m_keepsSession = found || PutSessionAside();
    if (!m_app.GetMainWnd())
        return; // closed while that was told
    const Session session = found.value_or(Session());
    const bool isPlaced = !session.geometry.isEmpty() && restoreGeometry(session.geometry);
    if (!isPlaced && session.maximised) // at another scale
        setWindowState(windowState() | Qt::WindowMaximized);
    FitScreen(*this);
    if (QFileInfo(session.folder).isDir())
        m_folder->SetFolder(session.folder);
    if (!session.state.isEmpty())
        restoreState(session.state);
    m_showsMap = session.documentMap;
    ApplyViewToAll();
    m_expanded->hide(); // what it showed is gone
    for (ResultsPane* results : m_results)
        results->hide(); // likewise
    m_resumed.clear();
    std::size_t front = 0;
    for (int i = 0; i < session.files.size(); ++i) {
        if (!QFileInfo(session.files[i].path).isFile())
            continue;
        if (i == session.front)
            front = m_resumed.size();
        m_resumed.push_back({session.files[i], {}});
        m_app.AddToRecentFileList(session.files[i].path);
    }
    ResumeInFront(front);
    *m_places = PlaceHistory(); // nobody has gone from tab to tab
    NotePlace();
    m_sessionTimer->setSingleShot(true);
    m_sessionTimer->setInterval(kRest);
    connect(m_sessionTimer, &QTimer::timeout, this, &MainWindow::KeepSession);
    m_app.BeforeOpening([this](const QString& path) { ResumeOpened(path); });
    m_sinceResume.start();
    m_resumeTimer->setSingleShot(true);
    connect(m_resumeTimer, &QTimer::timeout, this, &MainWindow::ResumeAtLeisure,
            Qt::UniqueConnection);
    m_resumeTimer->start(0);
}

// Of several tabs of its file the first ones come first, since they are numbered.
void MainWindow::ResumeInFront(std::size_t index)
{
    if (index >= m_resumed.size())
        return;
    ResumedTab& tab = m_resumed[index];
    for (std::size_t i = 0; i < index; ++i) {
        if (m_resumed[i].file.path == tab.file.path)
            ResumeBehind(i);
    }
    if (!std::exchange(tab.isRead, true))
        tab.page = Resume(tab.file);
    if (tab.page)
        m_tabs->setCurrentWidget(tab.page);
    while (TabCount() == 0 && ResumeNext()) {}
}

// A file that is not opened is not asked about for each of its tabs.
void MainWindow::ResumeBehind(std::size_t index)
{
    ResumedTab& tab = m_resumed[index];
    if (std::exchange(tab.isRead, true))
        return;
    int place = 0;
    for (std::size_t i = 0; i < index; ++i)
        place = std::max(place, m_tabs->indexOf(m_resumed[i].page) + 1);
    const QPointer<MainWindow> self(this);
    {
        const ScriptTabs::Behind behind(*m_tabs, place);
        tab.page = Resume(tab.file);
    }
    if (!self || !m_app.GetMainWnd())
        return; // closed while something was asked
    for (ResumedTab& other : m_resumed)
        other.isRead = other.isRead || (!tab.page && other.file.path == tab.file.path);
    if (ScriptFrame* front = CurrentFrame())
        front->SetActiveView(front->View()); // whose commands are everybody's
}

bool MainWindow::IsResuming() const
{
    return std::ranges::any_of(m_resumed, [](const ResumedTab& tab) { return !tab.isRead; });
}

bool MainWindow::ResumeNext()
{
    const auto next = std::ranges::find(m_resumed, false, &ResumedTab::isRead);
    if (next == m_resumed.end() || !m_app.GetMainWnd())
        return false;
    ResumeBehind(static_cast<std::size_t>(next - m_resumed.begin()));
    return true;
}

void MainWindow::FinishResuming()
{
    const QPointer<MainWindow> self(this);
    while (self && ResumeNext()) {}
}

// Not before the script in front has been painted, nor into a question, a menu or a drag.
void MainWindow::ResumeAtLeisure()
{
    constexpr std::chrono::milliseconds kLater(50);
    constexpr qint64 kLongest = 3000; // milliseconds until a window that nobody sees is no reason
    const QWindow* window = windowHandle();
    const bool isPainted = window && window->isExposed();
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
        QGuiApplication::mouseButtons() || (!isPainted && !m_sinceResume.hasExpired(kLongest))) {
        m_resumeTimer->start(kLater);
        return;
    }
    const QPointer<MainWindow> self(this);
    if (ResumeNext() && self)
        m_resumeTimer->start(0);
}

void MainWindow::ResumeOpened(const QString& path)
{
    const QFileInfo opened(path);
    const auto tab = std::ranges::find_if(m_resumed, [&opened](const ResumedTab& each) {
        return !each.isRead && QFileInfo(each.file.path) == opened;
    });
    if (tab != m_resumed.end())
        ResumeBehind(static_cast<std::size_t>(tab - m_resumed.begin()));
}

// What cannot be read is not written over. False if it stays in the way.
bool MainWindow::PutSessionAside()
{
    const QString path = Session::DefaultPath();
    const QString aside = Session::PutAside(path);
    const QString text = tr("What was open last cannot be read. ");
    if (aside.isEmpty())
        GetPrompts().Tell(this, text + tr("It is not kept this time, so that “%1” "
                                          "stays as it is.")
                                           .arg(QDir::toNativeSeparators(path)));
    else
        GetPrompts().Tell(this,
                          text + tr("It is in “%1” now.").arg(QDir::toNativeSeparators(aside)));
    return !aside.isEmpty();
}

// A file that is open already gets a further tab.
ScriptFrame* MainWindow::OpenAgain(const SessionFile& file)
{
    const ScriptTabs::Behind* behind = m_tabs->AddingBehind();
    const ScriptDoc* open = m_app.FindOpen(file.path);
    if (auto* shown =
            open ? dynamic_cast<ScriptFrame*>(open->FirstView()->GetParentFrame()) : nullptr)
        shown->NewView();
    else if (!(behind ? m_app.OpenResumed(file.path, file.encoding)
                      : m_app.OpenScript(file.path, file.encoding)))
        return nullptr;
    return behind ? ScriptFrame::Of(behind->Page()) : CurrentFrame();
}

QWidget* MainWindow::Resume(const SessionFile& file)
{
    const bool isOpen = m_app.FindOpen(file.path) != nullptr;
    ScriptFrame* frame = OpenAgain(file);
    if (!frame || !frame->Script())
        return nullptr;
    CZNCoreEditorControlEx& editor = frame->Editor();
    if (file.zoom != 0)
        editor.SetZoom(file.zoom, 1);
    // What was chosen for another file in the folder meanwhile is not this one's.
    if (const int language = LanguageNamed(file.language, -1);
        language >= 0 && language != editor.GetCurrentLanguage())
        frame->Script()->SetLanguage(language);
    if (!isOpen) { // bookmarks are the text's, not the tab's
        for (const int line : file.bookmarks) {
            if (!(editor.MarkerGet(line, 1) & 1 << kBookmark))
                editor.ToggleBookmark(line); // which F2 knows of
        }
    }
    frame->View()->GoToLine(file.caretLine);
    if (const int line = editor.GetCurLineNumber(); line == file.caretLine)
        editor.GotoPos(std::min(editor.PositionFromLine(line, 1) + file.caretColumn,
                                long{editor.GetLineEndPosition(line, 1)}),
                       1);
    Fold(editor, file.folds);
    const int top = editor.VisibleFromDocLine(static_cast<int>(file.firstVisible), 1);
    editor.LineScroll(0, top - editor.GetFirstVisibleLine(1), 1);
    if (file.readOnly)
        editor.SetReadOnly(1, 1);
    if (file.panes == SessionPanes::Below || file.panes == SessionPanes::Four)
        frame->Split(Qt::Vertical);
    if (file.panes == SessionPanes::Beside || file.panes == SessionPanes::Four)
        frame->Split(Qt::Horizontal);
    frame->Script()->StateChanged();
    return frame->GetSafeHwnd();
}

void MainWindow::NoteLeft(const QWidget* page)
{
    constexpr qsizetype kMost = 50;
    const ScriptFrame* frame = ScriptFrame::Of(page);
    if (!frame || !frame->Script() || frame->Script()->GetPathName().isEmpty())
        return;
    const SessionFile file = Describe(*frame);
    m_left.removeIf([&file](const SessionFile& other) { return other.path == file.path; });
    m_left << file;
    if (m_left.size() > kMost)
        m_left.removeFirst();
}

// At its place, with its folds and bookmarks.
void MainWindow::ReopenAsLeft(const QString& path)
{
    const auto left = std::ranges::find(m_left, path, &SessionFile::path);
    if (left == m_left.end()) {
        m_app.OpenDocumentFile(path);
        return;
    }
    // On its way to where it was left the caret is nowhere that anybody has been.
    NotePlace();
    const PlaceHistory before = *m_places;
    Resume(m_left.takeAt(left - m_left.begin()));
    *m_places = before;
    NotePlace();
}

void MainWindow::KeepSessionSoon()
{
    if (m_keepsSession)
        m_sessionTimer->start();
}

void MainWindow::KeepSession()
{
    Session session;
    QList<const QWidget*> pages;
    for (int i = 0; i < TabCount(); ++i) {
        const ScriptFrame* frame = FrameAt(i);
        if (!frame || frame->Script()->GetPathName().isEmpty())
            continue;
        session.files << Describe(*frame);
        pages << m_tabs->widget(i);
    }
    AddUnread(session, pages);
    session.geometry = saveGeometry();
    session.maximised = isMaximized();
    session.state = saveState();
    session.documentMap = m_showsMap;
    session.folder = m_folder->Folder();
    session.Store(Session::DefaultPath());
}

// Each behind the one that it stood behind. The pages are those of the session's files.
void MainWindow::AddUnread(Session& session, QList<const QWidget*> pages) const
{
    qsizetype place = 0;
    for (const ResumedTab& tab : m_resumed) {
        if (tab.isRead) {
            place = std::max(place, pages.indexOf(tab.page.data()) + 1);
        } else {
            session.files.insert(place, tab.file);
            pages.insert(place++, nullptr);
        }
    }
    session.front = std::max(0, static_cast<int>(pages.indexOf(m_tabs->currentWidget())));
}

void MainWindow::EndSession()
{
    if (std::exchange(m_keepsSession, false)) {
        m_sessionTimer->stop();
        KeepSession();
    }
}
