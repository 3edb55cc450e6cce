// SPDX-License-Identifier: GPL-3.0-or-later
// What znscript was asked to do, from its command line.
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>

struct EncodingName
{
    int encoding = 0; // a number of FileEncodeConverter
    const char* name = nullptr;
};

struct Arguments
{
    QString command;   // "expand", "batches", "convert" or "detect"
    QStringList files; // "-": the standard input
    QString searchPath;
    std::map<QString, QString> variables; // with their ampersands
    std::optional<int> encoding;          // none: that of the file
    std::optional<int> lineEnds;          // a mode of the editor; none: those of the file
    bool mark = false;
    QString language;                 // empty: that of the command or of the file's name
    QString terminator;               // of statements; empty: ;
    std::optional<QString> separator; // of batches; none: that of the language
    QString output;                   // empty: the standard output
    bool scriptFolder = false;        // included files may stand beside the script
    bool strict = false;              // what the pre-processor leaves behind is a problem

    QString help;  // not empty: it, or the version, is asked for
    QString error; // not empty: a sentence that tells what is wrong
};

Arguments ParseArguments(const QStringList& commandLine);

// The name on the command line; "?" for a number that is no encoding's.
const char* NameOfEncoding(int encoding);
