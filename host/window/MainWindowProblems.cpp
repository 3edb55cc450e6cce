// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: what is wrong with the script in front.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/problems/ProblemPane.h"
#include "host/problems/ScriptChecker.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "host/window/StatusIndicators.h"

#include <QStatusBar>

#include <algorithm>

void MainWindow::ListProblems()
{
    m_problems->Clear();
    const ScriptFrame* frame = CurrentFrame();
    const ScriptChecker* checker = frame ? frame->Script()->Checker() : nullptr;
    if (!checker)
        return;
    const std::vector<ScriptProblem>& problems = checker->Problems();
    for (const ScriptProblem& problem : problems)
        m_problems->Add(problem, frame->Editor().LineFromPosition(problem.start, 1),
                        static_cast<int>(frame->Editor().GetColumn(problem.start, 1)));
    if (problems.empty())
        m_problems->Say(checker->WhyNone());
    // A list that is made again has its current one still.
    const long start = frame->Editor().GetSelectionStart(1);
    const long end = frame->Editor().GetSelectionEnd(1);
    const auto selected =
        std::ranges::find_if(problems, [start, end](const ScriptProblem& problem) {
            return end > start && problem.start == start && problem.end == end;
        });
    if (selected != problems.end())
        m_problems->ShowCurrent(static_cast<int>(selected - problems.begin()));
}

// The first one behind the caret, from the end on the first of all; or the other way round.
void MainWindow::GoToProblem(bool forward)
{
    const ScriptFrame* frame = CurrentFrame();
    const ScriptChecker* checker = frame ? frame->Script()->Checker() : nullptr;
    if (!checker || checker->Problems().empty())
        return;
    const std::vector<ScriptProblem>& problems = checker->Problems();
    const long caret = frame->Editor().GetSelectionStart(1);
    const auto isBehind = [caret](const ScriptProblem& p) { return p.start > caret; };
    const auto isBefore = [caret](const ScriptProblem& p) { return p.start < caret; };
    auto next = problems.begin();
    if (forward) {
        const auto found = std::find_if(problems.begin(), problems.end(), isBehind);
        next = found != problems.end() ? found : problems.begin();
    } else {
        const auto found = std::find_if(problems.rbegin(), problems.rend(), isBefore);
        next = std::prev(found != problems.rend() ? found.base() : problems.end());
    }
    frame->View()->SelectRange(next->start, next->end);
    statusBar()->showMessage(next->text, StatusIndicators::kSentenceTime);
    m_problems->ShowCurrent(static_cast<int>(next - problems.begin()));
}
