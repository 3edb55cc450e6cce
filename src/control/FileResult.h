// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What became of a file that was to be opened or saved.
#pragma once

#include "common/Export.h"

#include <QString>

/// What kept a file from being opened or saved.
enum class FileProblem : int
{
    None,         ///< nothing: it is open, or saved
    NoEngine,     ///< there is no editor to hold its text
    Missing,      ///< nothing has that name
    NoFile,       ///< a folder, a device or a pipe has it
    NotReadable,  ///< it may not be read, or the reading failed
    TooLarge,     ///< it has more bytes than the engine can count
    CutShort,     ///< its text is there up to a place that could not be read, and no further
    NoFolder,     ///< the folder it is to be put into is missing
    NotWritable,  ///< it may not be written
    NoRoom,       ///< the disk is full
    NotConverted, ///< the encoding cannot hold the text
    NotWritten,   ///< the writing failed for another reason
    NoName,       ///< no file was named: a text that has none yet is saved under a name first
    WrongThread,  ///< the editor belongs to the GUI thread, and was asked in another
};

/// The outcome of an open or a save.
struct ZN_API FileResult
{
    FileProblem problem = FileProblem::None; ///< what went wrong
    QString path;                            ///< of the file that was asked for

    /// What a read or a write that failed with errno means.
    static FileProblem OfRead(int error);
    static FileProblem OfWrite(int error); ///< the same of a write

    /// True: nothing went wrong.
    explicit operator bool() const { return problem == FileProblem::None; }
    QString Reason() const; ///< one sentence for a person; empty if there is no problem
};
