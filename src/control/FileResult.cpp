// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/FileResult.h"

#include <QCoreApplication>

#include <cerrno>

namespace {

struct Row
{
    FileProblem problem;
    const char* sentence;
};

constexpr Row kSentences[] = {
    {FileProblem::NoEngine,
     QT_TRANSLATE_NOOP("FileResult", "The editing engine could not be loaded.")},
    {FileProblem::Missing, QT_TRANSLATE_NOOP("FileResult", "The file does not exist.")},
    {FileProblem::NoFile,
     QT_TRANSLATE_NOOP("FileResult", "This is a folder or a device, not a file with a text.")},
    {FileProblem::NotReadable,
     QT_TRANSLATE_NOOP("FileResult", "The file cannot be read. Check that you may read it.")},
    {FileProblem::TooLarge,
     QT_TRANSLATE_NOOP("FileResult",
                       "The file has more than 2 GB, which is more than can be edited.")},
    {FileProblem::CutShort,
     QT_TRANSLATE_NOOP("FileResult", "Only the first part of the file could be read.")},
    {FileProblem::NoFolder, QT_TRANSLATE_NOOP("FileResult", "The folder does not exist.")},
    {FileProblem::NotWritable, QT_TRANSLATE_NOOP("FileResult", "You may not write there.")},
    {FileProblem::NoRoom, QT_TRANSLATE_NOOP("FileResult", "The disk is full.")},
    {FileProblem::NotConverted,
     QT_TRANSLATE_NOOP("FileResult", "The encoding cannot hold all of the text.")},
    {FileProblem::NotWritten, QT_TRANSLATE_NOOP("FileResult", "The file could not be written.")},
    {FileProblem::NoName, QT_TRANSLATE_NOOP("FileResult", "No file was named. Choose one first.")},
    {FileProblem::WrongThread,
     QT_TRANSLATE_NOOP("FileResult", "The program used the editor outside of its GUI thread.")},
};

} // namespace

FileProblem FileResult::OfRead(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return FileProblem::Missing;
    case EISDIR:
    case ENXIO:
        return FileProblem::NoFile;
    case EFBIG:
        return FileProblem::TooLarge;
    default:
        return FileProblem::NotReadable;
    }
}

FileProblem FileResult::OfWrite(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return FileProblem::NoFolder;
    case EISDIR:
    case ENXIO:
        return FileProblem::NoFile;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return FileProblem::NotWritable;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FileProblem::NoRoom;
    default:
        return FileProblem::NotWritten;
    }
}

QString FileResult::Reason() const
{
    for (const Row& row : kSentences) {
        if (row.problem == problem)
            return QCoreApplication::translate("FileResult", row.sentence);
    }
    return QString();
}
