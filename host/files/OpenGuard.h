// SPDX-License-Identifier: GPL-3.0-or-later
// OpenGuard: remembers which files were being opened when a workbench died, so that a file which
// brings it down is not opened at the next start without a question.
//
// Each workbench writes the paths that it is opening into a file of its own, which it keeps locked
// as long as it lives. The system gives the lock back however a process ends, so that a file
// without a lock is a dead one's, and that of a workbench which runs beside this one is not.
#pragma once

#include <QString>
#include <QStringList>

class OpenGuard
{
public:
    // The marks stand in that folder, which need not exist. With an empty one nothing is guarded.
    explicit OpenGuard(const QString& folder);
    ~OpenGuard(); // an orderly end leaves no marks
    OpenGuard(const OpenGuard&) = delete;
    OpenGuard& operator=(const OpenGuard&) = delete;

    static QString DefaultFolder(); // among the workbench's data; empty if there is no place for it

    // A path is marked as long as this exists: from before the file is opened until it has been
    // shown. Then it is no suspect any more, either.
    class Mark
    {
    public:
        Mark(Mark&& other) noexcept;
        Mark& operator=(Mark&& other) noexcept;
        ~Mark();

    private:
        friend class OpenGuard;
        Mark(OpenGuard* guard, const QString& path) : m_guard(guard), m_path(path) {}

        OpenGuard* m_guard; // null once moved from
        QString m_path;
    };
    // Returns once the mark is on disk, so that it outlives a machine that comes to a halt, too.
    // The guard outlives the mark.
    [[nodiscard]] Mark Open(const QString& path);

    // What the runs that ended before this one died on, without doubles. The paths are this guard's
    // from the construction on: if it dies as well, the next start tells them again.
    QStringList DiedOn() const { return m_suspects; }
    bool IsSuspect(const QString& path) const; // one of these, however it is spelt
    void Acquit(const QString& path);          // the person has decided not to open it

private:
    void TakeOverMarks();
    void Release(const QString& path);
    bool Forget(const QString& path);
    bool MakeFile();
    void Write(bool durably);

    QString m_folder;
    QString m_name; // of the own file; empty until something is to be written
    int m_file = -1;
    QStringList m_opening; // a path as often as it is being opened
    QStringList m_suspects;
};

// What is asked before a file is opened that a run died on.
QString OpenAgainQuestion(const QString& path);
