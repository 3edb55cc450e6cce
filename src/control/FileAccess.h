// SPDX-License-Identifier: GPL-3.0-or-later
// Files by their wide path, as a load needs them.
#pragma once

#include "control/FilePointer.h"
#include "control/FileStamp.h"

#include <QByteArray>

// The path as the platform takes it, empty for null.
QByteArray NativePath(const char16_t* path);

FileStamp StampOf(const char16_t* path);

// False also if one of them cannot be read.
bool HaveSameBytes(const char16_t* path, const char16_t* otherPath);

// Whether something stands at the path.
bool PathExists(const char16_t* path);

// Null for whatever is not a regular file or cannot be read, with the reason in errno: a folder, a
// device and a pipe are refused, as EISDIR, since a read from them fails late or never ends. A file
// of more than 2 GB is refused as EFBIG.
FilePointer OpenForReading(const char16_t* path);

// Whether every byte from where the file stands is ASCII. The file is at its start afterwards.
bool IsAscii(std::FILE* file);

// 0 if the file cannot tell.
long long SizeOf(std::FILE* file);
