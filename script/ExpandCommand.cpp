// SPDX-License-Identifier: GPL-3.0-or-later
// znscript expand: a script as it is to be run.
#include "preprocess/CompileManager.h"
#include "preprocess/Leftovers.h"
#include "script/Arguments.h"
#include "script/Commands.h"
#include "script/Problems.h"
#include "script/ScriptFile.h"

#include <QFileInfo>

namespace {

QString NameOf(const SourceLine& place, const QString& script)
{
    return place.path.isEmpty() ? script : place.path;
}

// Where the failed line stands in its own file, and by way of which files it came.
void ReportFailures(CZNCoreEditorControlEx& control, const QString& script)
{
    const SourceMap& map = zncoreeditor::GetCompileManager()->GetSourceMap();
    for (const auto& [line, message] : control.GetIncludeDirectiveErrorMessageAndLine()) {
        const SourceLine place = map.Locate(line);
        Report(NameOf(place, script), place.line, message);
        for (const SourceLine& site : map.IncludedFrom(line))
            Report(NameOf(site, script), site.line, QStringLiteral("included from here"));
    }
}

// True if there are any.
bool ReportLeftovers(CZNCoreEditorControlEx& control, const QString& script)
{
    const SourceMap& map = zncoreeditor::GetCompileManager()->GetSourceMap();
    const std::vector<Leftover> found = FindLeftovers(control);
    for (const Leftover& one : found) {
        const SourceLine place = map.Locate(control.LineFromPosition(one.start, 1));
        Report(NameOf(place, script), place.line, one.text);
    }
    return !found.empty();
}

// The folders that are looked through, the script's own first.
QString SearchPath(const Arguments& arguments)
{
    if (!arguments.scriptFolder)
        return arguments.searchPath;
    const QString& script = arguments.files.front();
    const QString own = script == kStandardInput ? QStringLiteral(".") : QFileInfo(script).path();
    return own + u';' + arguments.searchPath;
}

// An included file may hold what is no text, of which the editor keeps what comes before.
bool ReportIncludedFiles()
{
    ScriptFile file;
    bool areWhole = true;
    for (const QString& path : zncoreeditor::GetCompileManager()->GetSourceMap().Files()) {
        const QString problem = file.Read(path);
        if (!problem.isEmpty())
            Report(path, problem);
        areWhole = areWhole && problem.isEmpty();
    }
    const QStringList& cut = zncoreeditor::GetCompileManager()->GetCutFiles();
    if (areWhole && !cut.isEmpty())
        Report(cut.front(), QStringLiteral("not all of it could be read"));
    return areWhole && cut.isEmpty();
}

// The line that was commented out ends in a lone carriage return before the text of its file.
// Where that counts as no line end, the comment would take in the file's first line.
void UnifyLineEnds(CZNCoreEditorControlEx& control, int lineEnds)
{
    control.SetEOLMode(lineEnds, 1);
    control.ConvertEOLs(lineEnds, 1);
}

} // namespace

int Expand(const Arguments& arguments)
{
    ScriptFile file;
    const QString language =
        arguments.language.isEmpty() ? QStringLiteral("SQL") : arguments.language;
    if (!file.SetLanguage(language)) {
        ReportUnknownLanguage(language);
        return kWrongUsage;
    }
    const QString& script = arguments.files.front();
    if (const QString problem = file.Read(script); !problem.isEmpty()) {
        Report(script, problem);
        return kProblems;
    }
    CZNCoreEditorControlEx& control = file.Control();
    const int lineEnds = arguments.lineEnds.value_or(file.LineEndMode());
    control.SetDatasourceSearchPath(SearchPath(arguments));
    zncoreeditor::GetCompileManager()->SetPredefined(arguments.variables);
    QString text;
    control.GetWindowTextW(text);
    if (control.HasPreprocessorErrors()) {
        ReportFailures(control, script);
        return kProblems;
    }
    if (!ReportIncludedFiles() || (arguments.strict && ReportLeftovers(control, script)))
        return kProblems;
    UnifyLineEnds(control, lineEnds);
    const int encoding = arguments.encoding.value_or(control.GetEncoding());
    if (const int line = file.FirstLineBeyond(encoding); line >= 0) {
        const SourceLine place = zncoreeditor::GetCompileManager()->GetSourceMap().Locate(line);
        Report(NameOf(place, script), place.line,
               QStringLiteral("a character is not in windows-1252"));
        return kProblems;
    }
    const bool mark =
        arguments.encoding ? arguments.mark : arguments.mark || control.GetWriteEncodingSig();
    const QString problem = file.Write(arguments.output, encoding, mark);
    if (!problem.isEmpty())
        Report(arguments.output.isEmpty() ? QStringLiteral("znscript") : arguments.output, problem);
    return problem.isEmpty() ? kSuccess : kProblems;
}
