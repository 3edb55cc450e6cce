// SPDX-License-Identifier: GPL-3.0-or-later
// A workbench in which somebody types into the given scripts (--new: one without a name; --text and
// --language: what is typed, and in what; --others: what others write to the file after it was
// read), and which is killed as soon as the copies of that have been written. With --recover it
// first brings back what the last one left. With "opening" behind the script it is killed while it
// opens it.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "platform/windows/Timer.h"
#include "tests/host/ScriptedPrompts.h"

#include <QApplication>
#include <QEvent>
#include <QFile>

#include <csignal>

namespace {

// As soon as an editor comes, which is in the midst of opening.
class DeathAtAnEditor final : public QObject
{
protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Polish && watched->inherits("QsciScintillaBase"))
            std::raise(SIGKILL);
        return QObject::eventFilter(watched, event);
    }
};

int DieOpening(const QString& path)
{
    DeathAtAnEditor death;
    Workbench app(Workbench::Keeps::Places);
    auto* window = new MainWindow(app);
    window->show();
    qApp->installEventFilter(&death);
    app.OpenDocumentFile(path);
    return 1;
}

// Of each script the autosave, as its time had come.
int Die(const MainWindow& window)
{
    constexpr UINT kAutosave = 100;
    for (int i = 0; i < window.TabCount(); ++i) {
        const HWND editor = window.FrameAt(i)->Editor().GetSafeHwnd();
        if (TimerInterval(editor, kAutosave) == 0)
            return 2; // autosave is off
        SendMessage(editor, WM_TIMER, kAutosave, 0);
    }
    return std::raise(SIGKILL);
}

int TypeAndDie(Workbench& app, MainWindow& window, ScriptedPrompts& prompts,
               const QStringList& words)
{
    std::u16string text = u"-- typed\n";
    QByteArray others;
    int language = -1;
    for (int i = 0; i < words.size(); ++i) {
        if (words[i] == QLatin1String("--text"))
            text = words[++i].toStdU16String();
        else if (words[i] == QLatin1String("--language"))
            language = words[++i].toInt();
        else if (words[i] == QLatin1String("--others"))
            others = words[++i].toUtf8();
    }
    for (int i = 0; i < words.size(); ++i) {
        if (words[i] == QLatin1String("--text") || words[i] == QLatin1String("--language") ||
            words[i] == QLatin1String("--others")) {
            ++i;
            continue;
        }
        if (words[i] == QLatin1String("--recover")) {
            prompts.recovery = RecoveryChoice::Recover;
            app.ChooseWhatToRecover();
            app.Recover();
            continue;
        }
        if (words[i] == QLatin1String("--new"))
            app.NewScript();
        else if (!app.OpenDocumentFile(words[i]))
            return 1;
        if (QFile file(words[i]); !others.isEmpty() && file.open(QIODevice::Append))
            file.write(others);
        if (language >= 0)
            window.CurrentFrame()->Script()->SetLanguage(language);
        window.CurrentFrame()->Editor().ReplaceSel(text.c_str(), 1);
    }
    return Die(window);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("znworkbench"));
    const QStringList words = QApplication::arguments().mid(1);
    if (words.contains(QLatin1String("opening")))
        return DieOpening(words.at(0));
    ScriptedPrompts prompts;
    Workbench app(Workbench::Keeps::Nothing);
    auto* window = new MainWindow(app);
    window->show();
    return TypeAndDie(app, *window, prompts, words);
}
