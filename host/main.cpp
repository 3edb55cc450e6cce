// SPDX-License-Identifier: GPL-3.0-or-later
// znworkbench: an example host. It opens SQL scripts in tabs, edits and saves them.
#include "control/ZNCoreEditorControl.h"
#include "host/icons/FitScreen.h"
#include "host/icons/Icons.h"
#include "host/icons/Style.h"
#include "host/instance/RunningInstance.h"
#include "host/translations/Translations.h"
#include "host/window/Arguments.h"
#include "host/window/MainWindow.h"
#include "host/window/Screenshot.h"
#include "host/window/Workbench.h"

#include <QApplication>
#include <QPointer>

#include <cstdio>
#include <utility>

namespace {

void Print(std::FILE* stream, const QString& text)
{
    std::fprintf(stream, "%s\n", qPrintable(text));
}

// The first control loads the engine; without one every editor would stay empty.
bool EngineIsThere()
{
    const CZNCoreEditorControl control;
    return CZNCoreEditorControl::m_hEditorDllHandle != nullptr;
}

// The first window of a person keeps the session; one beside it does not. What later starts have
// asked for, and the window has not opened before it went, is left in asked.
int RunInteractively(const QStringList& files, RunningInstance& instance, bool keepsSession,
                     QList<QStringList>& asked)
{
    Workbench app(Workbench::Keeps::Places);
    const QPointer<MainWindow> window = new MainWindow(app);
    FitScreen(*window);
    window->show();
    app.ChooseWhatToRecover();
    if (app.GetMainWnd() && keepsSession)
        window->ResumeSession();
    if (app.GetMainWnd())
        window->OpenPlaces(files);
    if (app.GetMainWnd())
        app.Recover();
    if (!app.GetMainWnd())
        return 0; // closed while a question stood
    if (window->TabCount() == 0)
        app.NewScript();
    const QObject context; // of the connection, which this call outlives
    QObject::connect(&instance, &RunningInstance::Requested, &context,
                     [&](const RunningInstance::Request& request) {
                         if (window)
                             window->OpenForLaterStart(request.words, request.token);
                         else
                             app.Asked() << request.words;
                     });
    instance.Serve();
    const int result = QApplication::exec();
    instance.Pause();
    asked = app.Asked();
    return result;
}

// Somebody may start the program again while its window asks whether it may go: the next window
// is theirs.
int RunUntilNobodyAsks(QStringList files, RunningInstance& instance, bool keepsSession)
{
    for (;;) {
        QList<QStringList> asked;
        const int result = RunInteractively(files, instance, keepsSession, asked);
        if (asked.isEmpty() && !instance.HasWaiting())
            return result;
        files.clear();
        for (const QStringList& words : std::as_const(asked))
            files << words;
    }
}

int Run(const Arguments& arguments, const QByteArray& token)
{
    RunningInstance::Request request{{}, token};
    for (const QString& word : arguments.files)
        request.words << RunningInstance::Absolute(word);
    RunningInstance instance(arguments.newWindow ? QString() : RunningInstance::DefaultAddress());
    const RunningInstance::Role role = instance.Meet(request);
    if (role == RunningInstance::Role::Later)
        return 0;
    if (role == RunningInstance::Role::Unheard)
        Print(stderr, QCoreApplication::translate("main", "The workbench that runs does not "
                                                          "answer. This is a window beside it."));
    const bool keepsSession = role != RunningInstance::Role::Unheard && !arguments.newWindow;
    return RunUntilNobodyAsks(arguments.files, instance, keepsSession);
}

} // namespace

int main(int argc, char** argv)
{
    // Qt takes it for its own first window.
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("znworkbench"));
    QApplication::setWindowIcon(ApplicationIcon());
    InstallTranslations();
    Style::Install();

    const Arguments arguments = ParseArguments(QApplication::arguments());
    if (!arguments.help.isEmpty()) {
        Print(stdout, arguments.help);
        return 0;
    }
    if (!arguments.error.isEmpty()) {
        Print(stderr, arguments.error);
        return 2;
    }
    if (!EngineIsThere()) {
        Print(stderr, QCoreApplication::translate(
                          "main", "The editing engine cannot be loaded: libZNBaseEditor.so has to "
                                  "stand beside libZNCoreEditor.so, or in the folder ZNCoreEditor "
                                  "there."));
        return 3;
    }
    if (!arguments.screenshot.isEmpty())
        return TakeScreenshot(arguments.files, arguments.screenshot);
    return Run(arguments, token);
}
