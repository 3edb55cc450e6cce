// SPDX-License-Identifier: GPL-3.0-or-later
// A file as a command line or a tool's message names it, with the place in it to show: a.sql:120.
#pragma once

#include <QString>

#include <functional>

struct FilePlace
{
    QString path;
    long line = 0;   // from 1; 0: the word names none
    long column = 0; // from 1; 0: the word names none
};

// The word is the path itself where a file of that name is there, and where it ends in no number.
// Otherwise path:line and path:line:column, as compilers and searches print them, are taken apart,
// and a colon at the end is left out. A single letter before the colon stays with it, as a drive
// does, unless it is a file. Numbers beyond an int are the largest int. Says nothing about whether
// the path is there: a file that is missing is missing under the name without the number.
FilePlace ParseFilePlace(const QString& word);
// The same with another notion of which files are there.
FilePlace ParseFilePlace(const QString& word,
                         const std::function<bool(const QString& path)>& exists);
