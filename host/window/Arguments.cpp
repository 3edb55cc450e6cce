// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/Arguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Arguments)
};

} // namespace

Arguments ParseArguments(const QStringList& commandLine)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Texts::tr("Opens SQL scripts, one tab for each."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  Texts::tr("Shows this text."));
    const QCommandLineOption newWindow(
        {QStringLiteral("n"), QStringLiteral("new-window")},
        Texts::tr("Opens a window of its own, not a tab in the workbench that runs."));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        Texts::tr("Writes a picture of the window and exits."),
                                        QStringLiteral("FILE"));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     Texts::tr("Tells which version this is."));
    parser.addOptions({help, version, newWindow, screenshot});
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        Texts::tr("Scripts to open, each at a line and a column: a.sql:120:7."),
        QStringLiteral("[FILE[:LINE[:COLUMN]]...]"));

    Arguments arguments;
    if (!parser.parse(commandLine))
        arguments.error = parser.errorText();
    else if (parser.isSet(screenshot) && parser.value(screenshot).isEmpty())
        arguments.error = Texts::tr("--screenshot needs the name of a file.");
    if (parser.isSet(help))
        arguments.help = parser.helpText();
    else if (parser.isSet(version))
        arguments.help = QStringLiteral("znworkbench " ZN_VERSION);
    arguments.files = parser.positionalArguments();
    arguments.newWindow = parser.isSet(newWindow);
    arguments.screenshot = parser.value(screenshot);
    return arguments;
}
