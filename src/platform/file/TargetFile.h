// SPDX-License-Identifier: GPL-3.0-or-later
// TargetFile: the file that a save writes, in place or beside its target.
#pragma once

#include <QByteArray>

#include <cstdio>
#include <memory>

// Written in place, the target is emptied when it is opened, and a failure leaves a part of the
// text. Written beside it, the target stays whole until Close has put a complete file in its
// place; a process that dies before leaves the target and a hidden file, which the next one that
// writes the target takes away.
class TargetFile
{
public:
    TargetFile() = default;
    TargetFile(const TargetFile&) = delete;
    TargetFile& operator=(const TargetFile&) = delete;
    ~TargetFile(); // what was not closed is given up

    bool OpenInPlace(const QByteArray& path);
    // Follows symbolic links and keeps owner, permissions and attributes of a target that exists. A
    // device or a pipe is written in place. False also for a folder and for a target that is
    // read-only.
    bool OpenBeside(const QByteArray& path);

    // Whether Close has to write over a regular file, since no other can take its place: it has
    // further names, or its folder takes no new file. A failure leaves it as it was, a process that
    // dies meanwhile a mixture.
    bool WritesOver() const { return m_existing >= 0; }

    // False if the bytes could not be written whole. Then, and for every later failure, Close is
    // false.
    bool Write(const void* bytes, std::size_t count);
    // False if anything of the text has not reached the target.
    bool Close();

    int Error() const { return m_error; } // the errno of the first failure, 0 if there is none

    // Takes away what processes that died have left beside the file.
    static void RemoveAbandoned(const QByteArray& path);

private:
    bool Adopt(int descriptor);
    bool CreateBeside(int mode);
    bool WriteOverLater();
    bool Publish();
    bool Fail(); // false always
    void DropTemporary();

    std::unique_ptr<char[]> m_buffer;
    std::FILE* m_file = nullptr;
    QByteArray m_target;
    QByteArray m_temporary; // empty when written in place
    int m_existing = -1;    // the target, while it is to be written over
    int m_error = 0;
};
