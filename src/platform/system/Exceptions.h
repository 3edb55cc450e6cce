// SPDX-License-Identifier: GPL-3.0-or-later
// What the framework raises.
#pragma once

#include "common/Export.h"

#include <QString>

#include <exception>
#include <stdexcept>

// An argument outside what the operation takes.
class CInvalidArgException : public std::invalid_argument
{
public:
    using std::invalid_argument::invalid_argument;
};

// What went wrong with a file.
class ZN_API CFileException : public std::exception
{
public:
    enum Cause : int
    {
        none = 0,
        genericException = 1,
        fileNotFound = 2,
        badPath = 3,
        tooManyOpenFiles = 4,
        accessDenied = 5,
        sharingViolation = 11,
        diskFull = 13
    };

    explicit CFileException(int cause = none, long osError = -1, const QString& path = QString())
        : m_cause(cause), m_lOsError(osError), m_strFileName(path)
    {}
    // The cause of an error number of the system.
    static CFileException FromErrno(int number, const QString& path);

    QString GetErrorMessage() const; // a sentence with the file's name
    const char* what() const noexcept override { return "file exception"; }

    int m_cause;
    long m_lOsError; // errno, -1 if there is none
    QString m_strFileName;
};
