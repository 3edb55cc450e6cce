// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/Arguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace {

struct Named
{
    int number;
    const char* name;
};

constexpr Named kEncodings[] = {
    {6, "utf-8"},     {2, "utf-16le"},     {4, "utf-16be"}, {8, "utf-32le"},
    {10, "utf-32be"}, {0, "windows-1252"}, {11, "utf-8"},
};

constexpr Named kLineEnds[] = {{3, "lf"}, {1, "crlf"}, {2, "cr"}};

enum Option : unsigned
{
    Path = 1,
    Define = 2,
    Encoding = 4,
    Output = 8,
    Language = 16,
    To = 32,
    Mark = 64,
    Eol = 128,
    Separator = 256,
    Terminator = 512,
    ScriptFolder = 1024,
    Strict = 2048,
};

struct OptionRow
{
    Option option;
    const char* name;
    const char* value; // null: it takes none
    const char* text;
};

// clang-format off
constexpr OptionRow kOptions[] = {
    {Path,      "path",      "DIR;DIR",    "Folders for included files, looked through in order. The script's own folder is not one of them without --script-folder."},
    {ScriptFolder, "script-folder", nullptr, "Included files are looked for beside the script first; for the standard input, in the current folder."},
    {Strict,    "strict",    nullptr,      "Variables that nothing defines and definitions that define nothing are problems, and nothing is written."},
    {Define,    "define",    "NAME=VALUE", "The variable &&NAME has this value, whatever the script defines. May be given several times."},
    {Encoding,  "encoding",  "ENCODING",   "The encoding of the result; that of the script if it is not given."},
    {Output,    "output",    "FILE",       "Where the result goes; to the standard output if it is not given."},
    {Language,  "language",  "NAME",       "The language of the script, as the editor's menu names it. If it is not given: SQL to expand and for the standard input, else what the file's name tells."},
    {To,        "to",        "ENCODING",   "The encoding that the files get."},
    {Mark,      "mark",      nullptr,      "The files get a byte-order mark."},
    {Separator, "separator", "TEXT",       "What stands alone on a line between two batches; that of the language if it is not given, none if it is empty."},
    {Terminator, "terminator", "TEXT",     "What ends a statement until the script says other; a semicolon if it is not given."},
    {Eol,       "eol",       "MODE",       "The line ends that the result gets: lf, crlf or cr."},
};

struct CommandRow
{
    const char* name;
    unsigned options;
    const char* files;
    const char* text;
    const char* more; // below the options; null: nothing
};

constexpr const char* kSyntax =
    "\n"
    "In a script:\n"
    "  #include NAME           The text of the file stands below the line. NAME may stand in <> or\n"
    "                          in double quotes. A line that was met before is not expanded again.\n"
    "  #define &&NAME VALUE    From here on &&NAME stands for VALUE, in strings too. NAME has\n"
    "                          letters, digits and _, and differs by case; its first definition\n"
    "                          counts. VALUE may end in another variable.\n"
    "Lines that were dealt with become comments. Nothing in a comment is looked at. A variable\n"
    "that was used above its definition has none.\n";

constexpr CommandRow kCommands[] = {
    {"expand",  Path | ScriptFolder | Strict | Define | Encoding | Mark | Output | Language | Eol, "FILE",
     "Writes a script with its #include and #define lines and its && variables expanded.", kSyntax},
    {"batches", Language | Separator | Terminator, "FILE...",
     "Lists the batches of scripts, a line for each, by the line that they start on.", nullptr},
    {"convert", To | Mark | Eol, "FILE...", "Brings files to an encoding, each in its place; the standard input to the standard output.", nullptr},
    {"detect",  0, "FILE...", "Tells the encoding and the line ends of files, a line for each.", nullptr},
};
// clang-format on

constexpr const char* kOverview =
    "Usage: znscript COMMAND [options] FILE...\n"
    "Prepares SQL scripts for build and deployment pipelines.\n"
    "\n"
    "Commands:\n"
    "  expand   Writes a script with its #include and #define lines and its && variables "
    "expanded.\n"
    "  batches  Lists the batches of scripts by the line that they start on.\n"
    "  convert  Brings files to an encoding, each in its place.\n"
    "  detect   Tells the encoding and the line ends of files, a line for each.\n"
    "\n"
    "znscript COMMAND --help tells the options of a command, znscript --version which one it is.\n"
    "A FILE of - is the standard input.\n"
    "Encodings: utf-8, utf-16le, utf-16be, utf-32le, utf-32be, windows-1252. Line ends: lf, crlf,\n"
    "cr.\n"
    "Problems go to the standard error as file:line: message. The exit code is 0 if there were\n"
    "none, 1 if there were, 2 if the command line is wrong, 3 if the editor cannot be loaded.";

std::optional<int> NumberOf(std::span<const Named> names, const QString& name)
{
    const auto found = std::find_if(names.begin(), names.end(), [&](const Named& row) {
        return name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0;
    });
    return found != names.end() ? std::optional(found->number) : std::nullopt;
}

const char* NameOf(std::span<const Named> names, int number, const char* otherwise)
{
    const auto found = std::find_if(names.begin(), names.end(),
                                    [=](const Named& row) { return row.number == number; });
    return found != names.end() ? found->name : otherwise;
}

bool IsName(QStringView name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar unit) {
        return unit.unicode() < 0x80 && (unit.isLetterOrNumber() || unit == u'_');
    });
}

// Empty if all is well.
QString TakeVariables(const QStringList& definitions, Arguments& arguments)
{
    for (const QString& definition : definitions) {
        const qsizetype equals = definition.indexOf(u'=');
        QString name = equals < 0 ? QString() : definition.first(equals);
        if (name.startsWith(QLatin1String("&&")))
            name.remove(0, 2);
        if (!IsName(name))
            return QStringLiteral("--define needs NAME=VALUE, and “%1” is not of that form.")
                .arg(definition);
        if (equals + 1 == definition.size()) // the table's sign for a name that nobody knows
            return QStringLiteral("--define needs a value, and “%1” has none.").arg(definition);
        arguments.variables.emplace(QLatin1String("&&") + name, definition.mid(equals + 1));
    }
    return {};
}

QString TakeNumber(const QCommandLineParser& parser, const char* option,
                   std::span<const Named> names, std::optional<int>& number)
{
    const QString name = parser.value(QLatin1String(option));
    if (name.isEmpty())
        return {};
    number = NumberOf(names, name);
    return number ? QString()
                  : QStringLiteral("--%1: there is no “%2”.").arg(QLatin1String(option), name);
}

QString TakeOptions(const QCommandLineParser& parser, unsigned options, Arguments& arguments)
{
    QString error;
    if (options & Path)
        arguments.searchPath = parser.value(QStringLiteral("path"));
    if (options & Output)
        arguments.output = parser.value(QStringLiteral("output"));
    if (options & Language)
        arguments.language = parser.value(QStringLiteral("language"));
    if (options & Separator && parser.isSet(QStringLiteral("separator")))
        arguments.separator = parser.value(QStringLiteral("separator"));
    if (options & Terminator)
        arguments.terminator = parser.value(QStringLiteral("terminator"));
    if (options & Mark)
        arguments.mark = parser.isSet(QStringLiteral("mark"));
    arguments.scriptFolder =
        options & ScriptFolder && parser.isSet(QStringLiteral("script-folder"));
    arguments.strict = options & Strict && parser.isSet(QStringLiteral("strict"));
    if (options & Define)
        error = TakeVariables(parser.values(QStringLiteral("define")), arguments);
    if (error.isEmpty() && options & Encoding)
        error = TakeNumber(parser, "encoding", kEncodings, arguments.encoding);
    if (error.isEmpty() && options & To)
        error = TakeNumber(parser, "to", kEncodings, arguments.encoding);
    if (error.isEmpty() && options & Eol)
        error = TakeNumber(parser, "eol", kLineEnds, arguments.lineEnds);
    return error;
}

QString WhatIsWrong(const Arguments& arguments, const CommandRow& command)
{
    if (arguments.files.isEmpty())
        return QStringLiteral("%1 needs a file.").arg(arguments.command);
    if (command.options & Output && arguments.files.size() > 1)
        return QStringLiteral("%1 takes one file.").arg(arguments.command);
    if (command.options & To && !arguments.encoding)
        return QStringLiteral("%1 needs --to ENCODING.").arg(arguments.command);
    const QByteArray terminator = arguments.terminator.toUtf8();
    if (terminator.size() > 15 || terminator.contains(' ') || terminator.contains('\t'))
        return QStringLiteral("--terminator takes up to 15 bytes without a blank.");
    if (arguments.mark && arguments.encoding == 0)
        return QStringLiteral("windows-1252 has no byte-order mark.");
    return {};
}

// The parser puts the options before the command, where they are not understood.
QString HelpText(const QCommandLineParser& parser, const CommandRow& command)
{
    const QString name = QLatin1String(command.name);
    return parser.helpText()
               .replace(QCoreApplication::arguments().front(), QLatin1String("znscript"))
               .replace(QLatin1String("[options] ") + name, name + QLatin1String(" [options]")) +
           QLatin1String(command.more);
}

QString Sentence(const QString& text)
{
    return text.endsWith(u'.') ? text : text + u'.';
}

void ParseCommand(const QStringList& commandLine, const CommandRow& command, Arguments& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(command.text));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this text."));
    parser.addOption(help);
    for (const OptionRow& row : kOptions) {
        if (command.options & row.option)
            parser.addOption(QCommandLineOption(QLatin1String(row.name), QLatin1String(row.text),
                                                QLatin1String(row.value)));
    }
    parser.addPositionalArgument(QLatin1String(command.name), QString(),
                                 QLatin1String(command.name));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("What is to be read."),
                                 QLatin1String(command.files));
    const bool isParsed = parser.parse(commandLine);
    arguments.files = parser.positionalArguments().mid(1);
    if (parser.isSet(help))
        arguments.help = HelpText(parser, command);
    else if (!isParsed)
        arguments.error = Sentence(parser.errorText());
    else
        arguments.error = TakeOptions(parser, command.options, arguments);
    if (arguments.help.isEmpty() && arguments.error.isEmpty())
        arguments.error = WhatIsWrong(arguments, command);
}

} // namespace

Arguments ParseArguments(const QStringList& commandLine)
{
    Arguments arguments;
    arguments.command = commandLine.value(1);
    const auto* command =
        std::find_if(std::begin(kCommands), std::end(kCommands), [&](const CommandRow& row) {
            return arguments.command == QLatin1String(row.name);
        });
    if (command != std::end(kCommands))
        ParseCommand(commandLine, *command, arguments);
    else if (arguments.command == QLatin1String("--help") ||
             arguments.command == QLatin1String("-h"))
        arguments.help = QLatin1String(kOverview);
    else if (arguments.command == QLatin1String("--version"))
        arguments.help = QStringLiteral("znscript " ZN_VERSION);
    else if (arguments.command.isEmpty())
        arguments.error = QStringLiteral("There is no command. znscript --help tells them.");
    else
        arguments.error = QStringLiteral("There is no command “%1”. znscript --help tells them.")
                              .arg(arguments.command);
    return arguments;
}

const char* NameOfEncoding(int encoding)
{
    return NameOf(kEncodings, encoding, "?");
}
