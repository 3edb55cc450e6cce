// SPDX-License-Identifier: GPL-3.0-or-later
// What a person is told of a copy that a crash has left, and what becomes of it.
#pragma once

#include "control/LeftCopies.h"

#include <QDateTime>
#include <QString>

enum class RecoveryChoice
{
    Recover,
    Discard,
    Later, // the copy stays, and is shown again at the next start
};

struct RecoverableCopy
{
    enum class State
    {
        Unchanged,  // the file is the one that the text was read from
        Changed,    // others have written to it since
        Deleted,    // there is no file any more
        Unreadable, // there is something that cannot be read
        NeverNamed, // there never was a file
    };

    QString path;     // of the copy
    QString document; // of the file; empty for a script that never had one
    QString name;     // of the file without its folder, or the title of the script
    QString language; // of a script that never had a file; empty if it is not known
    QDateTime copyTime;
    QDateTime fileTime; // of the last change; invalid if there is no file
    State state = State::Unchanged;
    int codePage = 0; // of copy and file, if they are no Unicode; 0: the system's
};

RecoverableCopy Describe(const LeftCopies::Copy& copy);

// What the copies of a script without a file are noted under.
QString UntitledName(const QString& title, const QString& language);

// "5 minutes ago", for what lies a week back at most; else the date.
QString AgeOf(const QDateTime& time, const QDateTime& now);
QString TextOf(RecoverableCopy::State state);
