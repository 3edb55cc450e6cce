// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What the framework raises.
#pragma once

#include "common/Export.h"

#include <QString>

#include <exception>
#include <stdexcept>

/// An argument outside what the operation takes.
class CInvalidArgException : public std::invalid_argument
{
public:
    using std::invalid_argument::invalid_argument;
};

/// What went wrong with a file.
class ZN_API CFileException : public std::exception
{
public:
    /// What went wrong, as a number that texts are found by.
    enum Cause : int
    {
        none = 0,              ///< nothing that is known
        genericException = 1,  ///< something that has no number here
        fileNotFound = 2,      ///< nothing has that name
        badPath = 3,           ///< a folder of the path is missing, or is none
        tooManyOpenFiles = 4,  ///< the process may open no further ones
        accessDenied = 5,      ///< the permissions forbid it
        sharingViolation = 11, ///< another program has locked it
        diskFull = 13          ///< there is no room
    };

    /// With the file's name, for the message.
    explicit CFileException(int cause = none, long osError = -1, const QString& path = QString())
        : m_cause(cause), m_lOsError(osError), m_strFileName(path)
    {}
    /// The cause of an error number of the system.
    static CFileException FromErrno(int number, const QString& path);

    QString GetErrorMessage() const; ///< a sentence with the file's name
    /// Says no more than its kind; GetErrorMessage tells it.
    const char* what() const noexcept override { return "file exception"; }

    int m_cause;           ///< a Cause
    long m_lOsError;       ///< errno, -1 if there is none
    QString m_strFileName; ///< as it was given
};
