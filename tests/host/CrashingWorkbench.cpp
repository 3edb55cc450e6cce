// SPDX-License-Identifier: GPL-3.0-or-later
// A workbench in which somebody types into the given script, and which is killed as soon as the
// copy of that has been written. With a second word it is killed as soon as a file that it opens
// makes it say something.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/script/ScriptFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "platform/windows/Timer.h"
#include "tests/host/ScriptedPrompts.h"

#include <QApplication>

#include <csignal>

namespace {

class Death final : public IUserQuestions
{
public:
    Answer Ask(HWND /*owner*/, const QString& /*text*/, Buttons /*buttons*/) override
    {
        std::raise(SIGKILL);
        return Answer::No;
    }
};

int DieOpening(const QString& path)
{
    Death death;
    SetUserQuestions(&death);
    Workbench app(Workbench::Keeps::Places);
    auto* window = new MainWindow(app);
    window->show();
    app.OpenDocumentFile(path);
    SetUserQuestions(nullptr);
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("znworkbench"));
    if (argc > 2)
        return DieOpening(QApplication::arguments().at(1));
    const ScriptedPrompts prompts;
    Workbench app(Workbench::Keeps::Nothing);
    auto* window = new MainWindow(app);
    window->show();
    if (!app.OpenDocumentFile(QApplication::arguments().at(1)))
        return 1;
    CZNCoreEditorControl& editor = window->CurrentFrame()->Editor();
    editor.ReplaceSel(u"-- typed\n", 1);
    constexpr UINT kAutosave = 100;
    if (TimerInterval(editor.GetSafeHwnd(), kAutosave) == 0)
        return 2; // autosave is off
    SendMessage(editor.GetSafeHwnd(), WM_TIMER, kAutosave, 0);
    return std::raise(SIGKILL);
}
