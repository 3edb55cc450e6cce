// SPDX-License-Identifier: GPL-3.0-or-later
// What became of a file that was to be opened or saved.
#pragma once

#include "common/Export.h"

#include <QString>

enum class FileProblem : int
{
    None,
    NoEngine,     // there is no editor to hold its text
    Missing,      // nothing has that name
    NoFile,       // a folder, a device or a pipe has it
    NotReadable,  // it may not be read, or the reading failed
    TooLarge,     // it has more bytes than the engine can count
    CutShort,     // its text is there up to a place that could not be read, and no further
    NoFolder,     // the folder it is to be put into is missing
    NotWritable,  // it may not be written
    NoRoom,       // the disk is full
    NotConverted, // the encoding cannot hold the text
    NotWritten,   // the writing failed for another reason
};

struct ZN_API FileResult
{
    FileProblem problem = FileProblem::None;
    QString path;

    // What a read or a write that failed with errno means.
    static FileProblem OfRead(int error);
    static FileProblem OfWrite(int error);

    explicit operator bool() const { return problem == FileProblem::None; }
    QString Reason() const; // one sentence for a person; empty if there is no problem
};
