// TargetFile: the file that a save writes, in place or beside its target.
#pragma once

#include <QByteArray>

#include <cstdio>
#include <memory>

// Written in place, the target is emptied when it is opened, and a failure leaves a part of the
// text. Written beside it, the target stays whole until Close has put a complete file in its
// place; a process that dies before leaves the target and a hidden file with the ending ".tmp".
class TargetFile
{
public:
    TargetFile() = default;
    TargetFile(const TargetFile&) = delete;
    TargetFile& operator=(const TargetFile&) = delete;
    ~TargetFile(); // what was not closed is given up

    bool OpenInPlace(const QByteArray& path);
    // Follows symbolic links and keeps owner and permissions of a target that exists. A device or
    // a pipe is written in place. False also for a folder and for a target that is read-only; errno
    // tells why.
    bool OpenBeside(const QByteArray& path);

    // False if the bytes could not be written whole. Then, and for every later failure, Close is
    // false.
    bool Write(const void* bytes, std::size_t count);
    // False if anything of the text has not reached the target.
    bool Close();

private:
    bool Adopt(int descriptor);
    bool CreateBeside(int mode);
    bool Publish();

    std::unique_ptr<char[]> m_buffer;
    std::FILE* m_file = nullptr;
    QByteArray m_target;
    QByteArray m_temporary; // empty when written in place
    bool m_failed = false;
};
