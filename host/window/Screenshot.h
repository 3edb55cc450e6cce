// SPDX-License-Identifier: GPL-3.0-or-later
// A picture of the workbench's window without anyone in front of it.
#pragma once

#include <QString>
#include <QStringList>

// Opens the scripts, the first of them in front, and writes the picture. Whatever a person would be
// told goes to the standard error stream. 0 if every script opened and the picture was written.
int TakeScreenshot(const QStringList& files, const QString& picture);
