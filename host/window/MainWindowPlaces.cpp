// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: back to where the caret was, and forward again.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "host/window/PlaceHistory.h"
#include "host/window/Workbench.h"

#include <QFileInfo>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace {

// A caret that pages through a script is nowhere yet.
constexpr std::chrono::milliseconds kRest(400);

std::uintptr_t IdOf(const ScriptDoc& script)
{
    return reinterpret_cast<std::uintptr_t>(&script);
}

} // namespace

void MainWindow::BuildPlaces()
{
    m_places = std::make_shared<PlaceHistory>();
    m_placeTimer = new QTimer(this);
    m_placeTimer->setSingleShot(true);
    m_placeTimer->setInterval(kRest);
    connect(m_placeTimer, &QTimer::timeout, this, &MainWindow::NotePlace);
}

void MainWindow::FollowPlaces(ScriptDoc& script)
{
    connect(&script, &ScriptDoc::LinesMoved, this, [this, id = IdOf(script)](int line, int added) {
        m_places->LinesMoved(id, line, added);
    });
    connect(&script, &QObject::destroyed, this,
            [places = m_places, id = IdOf(script)] { places->Closed(id); });
}

// At the caret of the script in front, behind that of the one which was in front until here.
void MainWindow::NotePlace()
{
    const ScriptFrame* before = m_placeTimer->isActive() ? ScriptFrame::Of(m_placePage) : nullptr;
    m_placeTimer->stop();
    const ScriptFrame* frame = CurrentFrame();
    if (before && before != frame && before->Script())
        NotePlaceIn(*before);
    if (frame)
        NotePlaceIn(*frame);
    m_placePage = m_tabs->currentWidget();
    UpdateCommands();
}

void MainWindow::NotePlaceIn(const ScriptFrame& frame)
{
    CZNCoreEditorControlEx& editor = frame.Editor();
    const long caret = editor.GetCurrentPos(1);
    const int line = editor.LineFromPosition(caret, 1);
    m_places->Visit({IdOf(*frame.Script()), frame.Script()->GetPathName(), line,
                     static_cast<int>(caret - editor.PositionFromLine(line, 1))});
}

void MainWindow::NotePlaceSoon()
{
    m_placeTimer->start();
}

bool MainWindow::CanGoForward() const
{
    return m_places->HasForward();
}

void MainWindow::GoBack()
{
    NotePlace();
    if (!m_places->HasBack())
        statusBar()->showMessage(tr("The caret was nowhere else before."), 4000);
    while (const auto place = m_places->Back()) {
        if (ShowPlace(*place))
            break;
    }
    UpdateCommands();
}

void MainWindow::GoForward()
{
    NotePlace();
    while (const auto place = m_places->Forward()) {
        if (ShowPlace(*place))
            break;
    }
    UpdateCommands();
}

// False if its script is no more.
bool MainWindow::ShowPlace(const PlaceHistory::Place& place)
{
    m_placePage.clear(); // which is left for a step, not for another way
    const std::vector<ScriptDoc*> scripts = m_app.Scripts();
    const auto open = std::ranges::find(scripts, place.script,
                                        [](const ScriptDoc* script) { return IdOf(*script); });
    if (open != scripts.end()) {
        if (CFrameWnd* frame = (*open)->FirstView()->GetParentFrame();
            !CurrentFrame() || CurrentFrame()->Script() != *open)
            frame->ActivateFrame();
    } else if (!QFileInfo(place.path).isFile() || !m_app.OpenDocumentFile(place.path)) {
        return false;
    }
    const ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return false;
    CZNCoreEditorControlEx& editor = frame->Editor();
    const int line = std::min(place.line, static_cast<int>(editor.GetLineCount(1)) - 1);
    const long at = std::min(editor.PositionFromLine(line, 1) + place.column,
                             editor.GetLineEndPosition(line, 1));
    frame->View()->SelectRange(at, at);
    return true;
}
