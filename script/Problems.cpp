// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/Problems.h"

#include <cstdio>

namespace {

void PrintLine(const QString& text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

} // namespace

void Report(const QString& file, const QString& message)
{
    PrintLine(file + QLatin1String(": ") + message);
}

void Report(const QString& file, long line, const QString& message)
{
    PrintLine(file + u':' + QString::number(line + 1) + QLatin1String(": ") + message);
}

void ReportUnknownLanguage(const QString& name)
{
    Report(QStringLiteral("znscript"), QStringLiteral("there is no language “%1”").arg(name));
}
