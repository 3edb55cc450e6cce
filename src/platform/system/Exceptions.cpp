// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Exceptions.h"

#include <QCoreApplication>

#include <cerrno>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CFileException)
};

} // namespace

CFileException CFileException::FromErrno(int number, const QString& path)
{
    struct Row
    {
        int number;
        Cause cause;
    };
    static constexpr Row kRows[] = {
        {ENOENT, fileNotFound},      {ENOTDIR, badPath},
        {ENAMETOOLONG, badPath},     {ELOOP, badPath},
        {EINVAL, badPath},           {EACCES, accessDenied},
        {EPERM, accessDenied},       {EROFS, accessDenied},
        {EISDIR, accessDenied},      {EMFILE, tooManyOpenFiles},
        {ENFILE, tooManyOpenFiles},  {EWOULDBLOCK, sharingViolation},
        {ETXTBSY, sharingViolation}, {ENOSPC, diskFull},
        {EDQUOT, diskFull},          {EFBIG, diskFull},
    };
    for (const Row& row : kRows) {
        if (row.number == number)
            return CFileException(row.cause, number, path);
    }
    return CFileException(genericException, number, path);
}

QString CFileException::GetErrorMessage() const
{
    switch (m_cause) {
    case fileNotFound:
        return Texts::tr("%1 was not found.").arg(m_strFileName);
    case badPath:
        return Texts::tr("%1 is not a valid path.").arg(m_strFileName);
    case tooManyOpenFiles:
        return Texts::tr("%1 could not be opened: too many files are open.").arg(m_strFileName);
    case accessDenied:
        return Texts::tr("%1 cannot be accessed.").arg(m_strFileName);
    case sharingViolation:
        return Texts::tr("%1 is in use by another program.").arg(m_strFileName);
    case diskFull:
        return Texts::tr("The disk is full: %1.").arg(m_strFileName);
    default:
        return Texts::tr("An error occurred while accessing %1.").arg(m_strFileName);
    }
}
