// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of znscript. Each gives the program's exit code.
#pragma once

struct Arguments;

enum ExitCode : int
{
    kSuccess = 0,
    kProblems = 1,
    kWrongUsage = 2,
    kNoEditor = 3,
};

int Expand(const Arguments& arguments);
int Convert(const Arguments& arguments);
int Batches(const Arguments& arguments);
int Detect(const Arguments& arguments);
