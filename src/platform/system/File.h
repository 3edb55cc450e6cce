// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFile: a file by its wide path, and what the system knows about one. The system's own calls
/// stand behind it, since share modes and attributes are no matter of QFile.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"
#include "platform/system/Exceptions.h"

#include <QString>

#include <cstdint>

/// Times are seconds since the epoch.
struct CFileStatus
{
    std::int64_t m_mtime = 0;      ///< last written
    std::int64_t m_atime = 0;      ///< last read
    std::int64_t m_size = 0;       ///< bytes
    unsigned char m_attribute = 0; ///< readOnly, or 0

    static constexpr unsigned char readOnly = 1; ///< the bit of m_attribute
};

/// Where facts about files come from. A test passes its own.
class ZN_API IFileFacts
{
public:
    virtual ~IFileFacts(); ///< to be taken back by SetFileFacts before
    /// False if there is no such file; the record stays as it was then.
    virtual bool GetStatus(const QString& path, CFileStatus& status) const;
};

/// Takes effect at once and stays the caller's; null brings back the file system.
ZN_API void SetFileFacts(const IFileFacts* facts);

/// A regular file, closed when this goes.
class ZN_API CFile
{
public:
    /// One of each row, put together with |.
    enum OpenFlags : UINT
    {
        modeRead = 0x0000,       ///< to be read
        modeWrite = 0x0001,      ///< to be written
        modeReadWrite = 0x0002,  ///< both
        shareExclusive = 0x0010, ///< nobody else opens it
        shareDenyWrite = 0x0020, ///< nobody else writes it
        shareDenyRead = 0x0030,  ///< nobody else reads it
        shareDenyNone = 0x0040,  ///< anybody may
        modeCreate = 0x1000      ///< empties a file that is there
    };

    CFile() = default; ///< not open
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    ~CFile(); ///< closes, whatever became of it

    /// False for what is no regular file as well; the error, which may be null, tells why. A share
    /// mode is an advisory lock: it holds among programs that ask for one, and only where the file
    /// system has locks.
    bool Open(const QString& path, UINT flags, CFileException* error = nullptr);

    UINT Read(void* buffer, UINT count);        ///< bytes read; raises CFileException
    void Write(const void* buffer, UINT count); ///< all of them, or raises CFileException
    std::int64_t GetLength() const;             ///< in bytes
    void Close(); ///< raises CFileException if what was written has not arrived
    void Abort(); ///< closes, whatever became of it

    /// False if there is no such file; the record stays as it was then.
    static bool GetStatus(const QString& path, CFileStatus& status);
    static void Remove(const QString& path); ///< raises CFileException

private:
    int m_descriptor = -1;
    QString m_path;
};

/// The attribute word of a file, bit 0: read-only, which is a file that nobody may write by its
/// permissions, or not this user. All ones if there is no such file.
inline constexpr std::uint32_t FILE_ATTRIBUTE_READONLY = 1;
inline constexpr std::uint32_t INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF; ///< there is no such file
ZN_API std::uint32_t GetFileAttributesW(const QString& path);        ///< follows links
/// Bit 0 set takes the permission to write from everybody, clear gives it to the owner.
ZN_API bool SetFileAttributesW(const QString& path, std::uint32_t attributes);
