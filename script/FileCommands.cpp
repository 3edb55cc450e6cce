// SPDX-License-Identifier: GPL-3.0-or-later
// znscript convert and detect: files in their encodings.
#include "script/Arguments.h"
#include "script/Commands.h"
#include "script/Problems.h"
#include "script/ScriptFile.h"

#include <cstdio>

namespace {

// Empty, or what kept the file as it was.
bool ConvertFile(const QString& path, const Arguments& arguments)
{
    ScriptFile file;
    if (const QString problem = file.Read(path); !problem.isEmpty()) {
        Report(path, problem);
        return false;
    }
    if (const int line = file.FirstLineChanged(); line >= 0) {
        Report(path, line, QStringLiteral("a character is half of a pair, which cannot be kept"));
        return false;
    }
    if (const int line = file.FirstLineBeyond(*arguments.encoding); line >= 0) {
        Report(path, line, QStringLiteral("a character is not in windows-1252"));
        return false;
    }
    if (arguments.lineEnds)
        file.Control().ConvertEOLs(*arguments.lineEnds, 1);
    const QString target = path == kStandardInput ? QString() : path;
    const QString problem = file.Write(target, *arguments.encoding, arguments.mark);
    if (!problem.isEmpty())
        Report(path, problem);
    return problem.isEmpty();
}

bool DetectFile(const QString& path)
{
    ScriptFile file;
    if (const QString problem = file.Read(path); !problem.isEmpty()) {
        Report(path, problem);
        return false;
    }
    const int encoding = file.Control().GetEncoding();
    const bool mark = file.Control().GetWriteEncodingSig() && encoding != 0;
    std::printf("%s: %s%s, line ends: %s\n", path.toLocal8Bit().constData(),
                NameOfEncoding(encoding), mark ? " with mark" : "", qPrintable(file.LineEnds()));
    return true;
}

} // namespace

int Convert(const Arguments& arguments)
{
    int result = kSuccess;
    for (const QString& path : arguments.files) {
        if (!ConvertFile(path, arguments))
            result = kProblems;
    }
    return result;
}

int Detect(const Arguments& arguments)
{
    int result = kSuccess;
    for (const QString& path : arguments.files) {
        if (!DetectFile(path))
            result = kProblems;
    }
    return result;
}
