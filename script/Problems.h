// SPDX-License-Identifier: GPL-3.0-or-later
// Problems on the standard error, a line for each: file:line: message.
#pragma once

#include <QString>

void Report(const QString& file, const QString& message);
void Report(const QString& file, long line, const QString& message); // lines count from 0

void ReportUnknownLanguage(const QString& name);
