// SPDX-License-Identifier: GPL-3.0-or-later
// znscript: scripts in build and deployment pipelines. It shows nothing and needs no display.
#include "common/Translations.h"
#include "control/ZNCoreEditorControl.h"
#include "platform/windows/Questions.h"
#include "script/Arguments.h"
#include "script/Commands.h"
#include "script/Problems.h"

#include <QApplication>

#include <cstdio>

namespace {

// What the editor would ask or tell a person; nobody sits here. What it tells is also known from
// its results, which the commands report with the name of the file.
class NoPerson final : public IUserQuestions
{
public:
    NoPerson() { SetUserQuestions(this); }
    ~NoPerson() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND /*owner*/, const QString& text, Buttons buttons) override
    {
        if (buttons == Buttons::Ok)
            return Answer::Ok;
        Report(QStringLiteral("znscript"), text);
        return Answer::No;
    }
};

struct Command
{
    const char* name;
    int (*run)(const Arguments& arguments);
};

constexpr Command kCommands[] = {
    {"expand", Expand},
    {"batches", Batches},
    {"convert", Convert},
    {"detect", Detect},
};

// The standard error is for problems with scripts; what Qt has to say of the environment is none.
void KeepQtSilent(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg)
        Report(QStringLiteral("znscript"), text);
}

// The first control loads the engine.
bool EngineIsThere()
{
    const CZNCoreEditorControl control;
    return CZNCoreEditorControl::m_hEditorDllHandle != nullptr;
}

int Run(const Arguments& arguments)
{
    for (const Command& command : kCommands) {
        if (arguments.command == QLatin1String(command.name))
            return command.run(arguments);
    }
    return kWrongUsage;
}

// A full disk or a reader that is gone shows at the last of it, if not before.
int EndOutput(int result)
{
    if (result != kSuccess || (std::fflush(stdout) == 0 && !std::ferror(stdout)))
        return result;
    Report(QStringLiteral("znscript"), QStringLiteral("the output cannot be written"));
    return kProblems;
}

} // namespace

int main(int argc, char** argv)
{
    // Whoever reads the messages of a pipeline, a program or a person far away, reads them in one
    // language everywhere.
    zncoreeditor::SetUiLanguage(QStringLiteral("en"));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(KeepQtSilent);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("znscript"));

    const Arguments arguments = ParseArguments(QApplication::arguments());
    if (!arguments.help.isEmpty()) {
        std::printf("%s\n", qPrintable(arguments.help.trimmed()));
        return EndOutput(kSuccess);
    }
    if (!arguments.error.isEmpty()) {
        Report(QStringLiteral("znscript"), arguments.error);
        return kWrongUsage;
    }
    const NoPerson nobody;
    if (!EngineIsThere()) {
        Report(QStringLiteral("znscript"),
               QStringLiteral("libZNBaseEditor.so has to stand beside libZNCoreEditor.so, or in "
                              "the folder ZNCoreEditor there"));
        return kNoEditor;
    }
    return EndOutput(Run(arguments));
}
