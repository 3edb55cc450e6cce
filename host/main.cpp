// SPDX-License-Identifier: GPL-3.0-or-later
// znworkbench: an example host. It opens SQL scripts in tabs, edits and saves them.
#include "control/ZNCoreEditorControl.h"
#include "host/icons/Icons.h"
#include "host/icons/Style.h"
#include "host/translations/Translations.h"
#include "host/window/Arguments.h"
#include "host/window/MainWindow.h"
#include "host/window/Screenshot.h"
#include "host/window/Workbench.h"

#include <QApplication>

#include <cstdio>

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

int RunInteractively(const QStringList& files)
{
    Workbench app(Workbench::Keeps::Places);
    auto* window = new MainWindow(app);
    window->show();
    app.ChooseWhatToRecover();
    if (app.GetMainWnd())
        window->ResumeSession();
    if (app.GetMainWnd())
        window->OpenPlaces(files);
    if (app.GetMainWnd())
        app.Recover();
    if (!app.GetMainWnd())
        return 0; // closed while a question stood
    if (window->TabCount() == 0)
        app.NewScript();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
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
    return RunInteractively(arguments.files);
}
