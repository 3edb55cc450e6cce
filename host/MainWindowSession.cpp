// MainWindow: what it remembers from one run to the next.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/ExpandedScript.h"
#include "host/MainWindow.h"
#include "host/ScriptDoc.h"
#include "host/ScriptFrame.h"
#include "host/ScriptTabs.h"
#include "host/ScriptView.h"
#include "host/Session.h"
#include "host/Workbench.h"

#include <QFileInfo>
#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::seconds kRest(2);

SessionFile Describe(const ScriptFrame& frame)
{
    CZNCoreEditorControlEx& editor = frame.Editor();
    SessionFile file;
    file.path = frame.Script()->GetPathName();
    file.encoding = frame.Script()->ChosenEncoding();
    file.caretLine = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    file.firstVisible = editor.DocLineFromVisible(editor.GetFirstVisibleLine(1), 1);
    file.readOnly = frame.Script()->IsReadOnly() && !frame.Script()->IsFileReadOnly();
    return file;
}

} // namespace

// A file that has gone meanwhile is passed over: nobody has asked for it.
void MainWindow::ResumeSession()
{
    const Session session = Session::Load(Session::DefaultPath());
    if (!session.geometry.isEmpty())
        restoreGeometry(session.geometry);
    if (!session.state.isEmpty())
        restoreState(session.state);
    m_expanded->hide(); // what it showed is gone
    for (const SessionFile& file : session.files) {
        if (QFileInfo(file.path).isFile())
            Resume(file);
    }
    const QString front =
        session.front < session.files.size() ? session.files[session.front].path : QString();
    for (int i = 0; i < TabCount(); ++i) {
        if (FrameAt(i) && FrameAt(i)->Script()->GetPathName() == front)
            ShowTab(i);
    }
    m_keepsSession = true;
    m_sessionTimer->setSingleShot(true);
    m_sessionTimer->setInterval(kRest);
    connect(m_sessionTimer, &QTimer::timeout, this, &MainWindow::KeepSession);
}

void MainWindow::Resume(const SessionFile& file)
{
    if (!m_app.OpenScript(file.path, file.encoding))
        return;
    const ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return;
    CZNCoreEditorControlEx& editor = frame->Editor();
    frame->View()->GoToLine(file.caretLine);
    const int top = editor.VisibleFromDocLine(static_cast<int>(file.firstVisible), 1);
    editor.LineScroll(0, top - editor.GetFirstVisibleLine(1), 1);
    if (file.readOnly)
        editor.SetReadOnly(1, 1);
    frame->Script()->StateChanged();
}

void MainWindow::KeepSessionSoon()
{
    if (m_keepsSession)
        m_sessionTimer->start();
}

// A script with two tabs is open once.
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
    session.Store(Session::DefaultPath());
}

void MainWindow::EndSession()
{
    if (std::exchange(m_keepsSession, false)) {
        m_sessionTimer->stop();
        KeepSession();
    }
}
