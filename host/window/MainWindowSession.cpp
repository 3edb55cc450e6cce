// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: what it remembers from one run to the next.
#include "control/EngineLooks.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/expanded/ExpandedScript.h"
#include "host/files/Prompts.h"
#include "host/finding/ResultsPane.h"
#include "host/folder/FolderPane.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/script/ScriptView.h"
#include "host/session/Session.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QScreen>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <chrono>

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

SessionFile Describe(const ScriptFrame& frame)
{
    CZNCoreEditorControlEx& editor = frame.Editor();
    SessionFile file;
    file.path = frame.Script()->GetPathName();
    file.encoding = frame.Script()->ChosenEncoding();
    file.caretLine = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    file.firstVisible = editor.DocLineFromVisible(editor.GetFirstVisibleLine(1), 1);
    file.readOnly = frame.Script()->IsReadOnly() && !frame.Script()->IsFileReadOnly();
    file.panes = PanesOf(frame);
    file.zoom = editor.GetZoom(1);
    file.folds = FoldsOf(editor);
    file.bookmarks = BookmarksOf(editor);
    return file;
}

// The screen may be a smaller one than the last time, or have a larger scale.
void FitScreen(QWidget& window)
{
    constexpr QMargins kFrame(4, 30, 4, 4); // at most, of a window manager's
    const QRect room = window.screen()->availableGeometry().marginsRemoved(kFrame);
    QRect place = window.geometry();
    if (window.isMaximized() || window.isFullScreen() || room.contains(place))
        return;
    place.setSize(place.size().boundedTo(room.size()));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    window.setGeometry(place);
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
    if (!session.geometry.isEmpty())
        restoreGeometry(session.geometry);
    FitScreen(*this);
    if (QFileInfo(session.folder).isDir())
        m_folder->SetFolder(session.folder);
    if (!session.state.isEmpty())
        restoreState(session.state);
    m_showsMap = session.documentMap;
    ApplyViewToAll();
    m_expanded->hide(); // what it showed is gone
    for (ResultsPane* results : m_results)
        results->hide();   // likewise
    QSet<QString> refused; // for all of their tabs
    QPointer<QWidget> front;
    for (int i = 0; i < session.files.size(); ++i) {
        const SessionFile& file = session.files[i];
        if (!QFileInfo(file.path).isFile() || refused.contains(file.path))
            continue;
        if (!Resume(file))
            refused.insert(file.path);
        else if (i == session.front)
            front = m_tabs->currentWidget();
    }
    if (front)
        m_tabs->setCurrentWidget(front);
    *m_places = PlaceHistory(); // nobody has gone from tab to tab
    NotePlace();
    m_sessionTimer->setSingleShot(true);
    m_sessionTimer->setInterval(kRest);
    connect(m_sessionTimer, &QTimer::timeout, this, &MainWindow::KeepSession);
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
bool MainWindow::Resume(const SessionFile& file)
{
    ScriptDoc* open = m_app.FindOpen(file.path);
    if (auto* shown =
            open ? dynamic_cast<ScriptFrame*>(open->FirstView()->GetParentFrame()) : nullptr)
        shown->NewView();
    else if (!m_app.OpenScript(file.path, file.encoding))
        return false;
    ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return false;
    CZNCoreEditorControlEx& editor = frame->Editor();
    if (file.zoom != 0)
        editor.SetZoom(file.zoom, 1);
    if (!open) { // bookmarks are the text's, not the tab's
        for (const int line : file.bookmarks) {
            if (!(editor.MarkerGet(line, 1) & 1 << kBookmark))
                editor.ToggleBookmark(line); // which F2 knows of
        }
    }
    frame->View()->GoToLine(file.caretLine);
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
    return true;
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
    if (left == m_left.end())
        m_app.OpenDocumentFile(path);
    else
        Resume(m_left.takeAt(left - m_left.begin()));
}

void MainWindow::KeepSessionSoon()
{
    if (m_keepsSession)
        m_sessionTimer->start();
}

void MainWindow::KeepSession()
{
    Session session;
    for (int i = 0; i < TabCount(); ++i) {
        const ScriptFrame* frame = FrameAt(i);
        if (!frame || frame->Script()->GetPathName().isEmpty())
            continue;
        if (i == m_tabs->currentIndex())
            session.front = static_cast<int>(session.files.size());
        session.files << Describe(*frame);
    }
    session.geometry = saveGeometry();
    session.state = saveState();
    session.documentMap = m_showsMap;
    session.folder = m_folder->Folder();
    session.Store(Session::DefaultPath());
}

void MainWindow::EndSession()
{
    if (std::exchange(m_keepsSession, false)) {
        m_sessionTimer->stop();
        KeepSession();
    }
}
