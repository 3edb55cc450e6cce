// SPDX-License-Identifier: GPL-3.0-or-later
// CopyClaim: tells the autosave copy of a control that is alive from one that a crash has left.
#pragma once

#include <QByteArray>
#include <QString>

// A claim is a lock that the system gives back when its process ends, however it ends. So a note
// without a claim is a crash's, even if another process has got the number of the one that died.
// The lock is one byte of a file that stays in the folder, at a place made from the copy's name:
// the copy itself cannot carry it, because each write puts another file in its place.
class CopyClaim
{
public:
    CopyClaim() = default;
    CopyClaim(const CopyClaim&) = delete;
    CopyClaim& operator=(const CopyClaim&) = delete;
    ~CopyClaim() { Release(); }

    // Gives back what was claimed before, unless it is this copy. False if the copy is claimed, by
    // this process or another. True also where the file system knows no locks: better to offer the
    // copy of a document that is open elsewhere than to keep a crash's copy from its owner.
    bool Take(const QString& copyPath);
    void Release();
    bool IsHeld() const { return m_file >= 0; } // false also if the file system knows no locks

private:
    bool Holds(const QByteArray& path) const;

    int m_file = -1;
    QByteArray m_path;
};
