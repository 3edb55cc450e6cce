// SPDX-License-Identifier: GPL-3.0-or-later
// Autosave copies on disk and their notes in the application profile. Knows no control and no text.
#pragma once

#include <QString>

#include <functional>

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
