// SPDX-License-Identifier: GPL-3.0-or-later
// znscript batches: the batches of scripts, as the editor's analysis tells them apart.
#include "editing/language/FileLanguages.h"
#include "platform/base/Units.h"
#include "script/Arguments.h"
#include "script/Commands.h"
#include "script/Problems.h"
#include "script/ScriptFile.h"

#include <cstdio>

namespace {

// A client program sends nothing for a batch without a statement, so none is listed.
void ListBatch(CZNCoreEditorControlEx& control, const QString& path, long start, long end)
{
    std::vector<PartitionInfo> statements;
    control.PartitionGetAll(statements, static_cast<int>(start), static_cast<int>(end), 1);
    if (statements.empty())
        return;
    const int first = control.LineFromPosition(start, 1) + 1;
    const int last = control.LineFromPosition(statements.back().nSecond, 1) + 1;
    std::printf("%s:%d: lines %d-%d, %zu statement%s\n", path.toLocal8Bit().constData(), first,
                first, last, statements.size(), statements.size() == 1 ? "" : "s");
}

// False if the script's language has no batches. The line of a separator belongs to the batch
// before it, and comments may draw it out, so each line behind one is asked for its batch.
bool ListBatches(CZNCoreEditorControlEx& control, const QString& path)
{
    long start = 0;
    long end = 0;
    if (!control.DoFindBatch(0, 0, start, end, 1))
        return false;
    ListBatch(control, path, start, end);
    for (int line = control.LineFromPosition(end, 1) + 1; line < control.GetLineCount(1); ++line) {
        const long position = control.PositionFromLine(line, 1);
        const long before = start;
        control.DoFindBatch(position, position, start, end, 1);
        if (start == before)
            continue;
        ListBatch(control, path, start, end);
        line = control.LineFromPosition(end, 1);
    }
    return true;
}

bool ListBatchesOf(const QString& path, const Arguments& arguments)
{
    ScriptFile file;
    if (!arguments.language.isEmpty())
        file.SetLanguage(arguments.language);
    else if (path == kStandardInput)
        file.SetLanguage(QStringLiteral("SQL"));
    else
        file.SetLanguage(LanguageOfFile(path));
    if (const QString problem = file.Read(path); !problem.isEmpty()) {
        Report(path, problem);
        return false;
    }
    if (arguments.separator)
        file.Control().SetBatchSeparator(Units(*arguments.separator), 0, 1);
    if (!arguments.terminator.isEmpty())
        file.Control().SetStatementTerminator(Units(arguments.terminator), 1);
    if (ListBatches(file.Control(), path))
        return true;
    Report(path, QStringLiteral("its language has no batches; --language names another"));
    return false;
}

} // namespace

int Batches(const Arguments& arguments)
{
    if (!arguments.language.isEmpty() && !ScriptFile().SetLanguage(arguments.language)) {
        ReportUnknownLanguage(arguments.language);
        return kWrongUsage;
    }
    int result = kSuccess;
    for (const QString& path : arguments.files) {
        if (!ListBatchesOf(path, arguments))
            result = kProblems;
    }
    return result;
}
