// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/FileAccess.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QByteArray NativePath(const char16_t* path)
{
    return path ? QFile::encodeName(QString::fromUtf16(path)) : QByteArray();
}

FileStamp StampOf(const char16_t* path)
{
    struct stat status;
    if (stat(NativePath(path).constData(), &status) != 0)
        return {};
    return {status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

bool HaveSameBytes(const char16_t* path, const char16_t* otherPath)
{
    const FilePointer one = OpenForReading(path);
    const FilePointer other = OpenForReading(otherPath);
    std::array<char, 8192> first;
    std::array<char, 8192> second;
    while (one && other) {
        const std::size_t count = std::fread(first.data(), 1, first.size(), one.get());
        if (std::fread(second.data(), 1, second.size(), other.get()) != count ||
            !std::equal(first.begin(), first.begin() + static_cast<std::ptrdiff_t>(count),
                        second.begin()) ||
            std::ferror(one.get()) || std::ferror(other.get()))
            return false;
        if (count == 0)
            return true;
    }
    return false;
}

bool PathExists(const char16_t* path)
{
    struct stat status;
    return stat(NativePath(path).constData(), &status) == 0;
}

FilePointer OpenForReading(const char16_t* path)
{
    // Without O_NONBLOCK the opening of a pipe waits for its writer.
    const int descriptor =
        open(NativePath(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (descriptor < 0)
        return nullptr;
    struct stat status;
    int reason = 0;
    if (fstat(descriptor, &status) != 0)
        reason = errno;
    else if (!S_ISREG(status.st_mode))
        reason = EISDIR;
    else if (status.st_size > INT_MAX) // positions are ints
        reason = EFBIG;
    else if (std::FILE* file = fdopen(descriptor, "rb"))
        return FilePointer(file);
    else
        reason = errno;
    close(descriptor);
    errno = reason;
    return nullptr;
}

bool IsAscii(std::FILE* file)
{
    std::array<char, 8192> block;
    bool ascii = true;
    while (ascii) {
        const std::size_t count = std::fread(block.data(), 1, block.size(), file);
        if (count == 0)
            break;
        ascii = std::none_of(block.begin(), block.begin() + count,
                             [](char byte) { return byte & 0x80; });
    }
    std::rewind(file);
    return ascii;
}

long long SizeOf(std::FILE* file)
{
    struct stat status;
    return fstat(fileno(file), &status) == 0 ? static_cast<long long>(status.st_size) : 0;
}
