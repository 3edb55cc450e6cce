// SPDX-License-Identifier: GPL-3.0-or-later
// Autosave copies on disk and their notes in the application profile. Knows no control and no text.
#pragma once

#include "control/FileStamp.h"

#include <QString>

#include <functional>
#include <optional>

namespace autosave {

// The folder of the copies, with a separator at its end. Empty if it cannot be told.
QString BackupFolder(bool create);

// An empty file for a copy; without a folder among the temporary files, where nobody looks for it
// after a crash. Empty if it cannot be made.
QString MakeCopyFile(const QString& folder);

// The note says which file a copy stands for.
void WriteNote(const QString& copyPath, const QString& documentPath);
void RemoveNote(const QString& copyPath);
QString NoteOf(const QString& copyPath); // empty if there is none

// Beside the note: what the file was when the text was read from it or saved to it, and the code
// page that the encoding 0 stands for in it; 0: the system's.
struct Origin
{
    FileStamp stamp;
    int codePage = 0;

    bool operator==(const Origin&) const = default;
};

void WriteOrigin(const QString& copyPath, const Origin& origin);
void RemoveOrigin(const QString& copyPath);
std::optional<Origin> OriginOf(const QString& copyPath);

// Takes the text out of a copy that is not needed any more, so that a process which dies before it
// has removed note and copy leaves one that counts as unwritten.
void EmptyCopy(const QString& copyPath);

// The copy itself, and what a process that died while it wrote has left beside it.
void RemoveCopy(const QString& copyPath);

// The name of the first copy in the folder that is noted for the document and that the caller
// takes, in the order of the file system, and that is still there then. Empty if there is none. A
// note without a file does not count, nor does a file without a note.
QString FindCopy(const QString& documentPath,
                 const std::function<bool(const QString& copyPath)>& take);

// Takes away what dead processes have left that holds no text: copies that were begun and never
// written, their notes, and parts of a write beside a copy. What is claimed stays, and where nobody
// can tell what is claimed, everything does.
void RemoveUnwritten();

} // namespace autosave
