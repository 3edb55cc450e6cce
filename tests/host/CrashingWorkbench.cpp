// A workbench in which somebody types into the given script, and which is killed as soon as the
// copy of that has been written.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/EditorTab.h"
#include "host/MainWindow.h"
#include "platform/Timer.h"
#include "tests/host/ScriptedPrompts.h"

#include <QApplication>

#include <csignal>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("znworkbench"));
    ScriptedPrompts prompts;
    MainWindow window(prompts);
    window.show();
    if (!window.OpenScript(QApplication::arguments().at(1)).isEmpty())
        return 1;
    CZNCoreEditorControl& editor = window.CurrentTab()->Editor();
    editor.ReplaceSel(u"-- typed\n", 1);
    constexpr UINT kAutosave = 100;
    if (TimerInterval(editor.GetSafeHwnd(), kAutosave) == 0)
        return 2; // autosave is off
    SendMessage(editor.GetSafeHwnd(), WM_TIMER, kAutosave, 0);
    return std::raise(SIGKILL);
}
