// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of znworkbench.
#pragma once

#include <QString>
#include <QStringList>

struct Arguments
{
    QStringList files;      // as they were given: ParseFilePlace takes a line off
    bool newWindow = false; // of its own, beside the workbench that runs
    QString screenshot;     // where the picture goes; empty without --screenshot
    QString help;           // the text to show, empty without --help and --version
    QString error;          // what is wrong with the command line, empty if nothing is
};

// The first of the given texts is the program's name.
Arguments ParseArguments(const QStringList& commandLine);
