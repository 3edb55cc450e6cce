// SPDX-License-Identifier: GPL-3.0-or-later
// What was open in the window: read at the start, written whenever it changes. Data alone: it opens
// no file and knows no window.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

enum class SessionPanes : int
{
    One,
    Below,
    Beside,
    Four,
};

// A tab. A file with several tabs is there as often.
struct SessionFile
{
    // Of folds, and of bookmarks: more than anybody looks after, and little enough to read.
    static constexpr int kMostLines = 1000;

    QString path;          // absolute
    int encoding = -1;     // a number of host/files/Encodings.h; -1: detect it
    long caretLine = 0;    // lines count from 0, and may lie behind the end of a file that changed
    long caretColumn = 0;  // units; may lie behind the line's end
    long firstVisible = 0; // the line at the top of the window
    bool readOnly = false; // by the user's choice
    SessionPanes panes = SessionPanes::One;
    QString language; // by its name in the registry; empty: as the file is opened
    int zoom = 0;     // points that the letters are larger, as the engine counts
    QList<int> folds; // lines that a hidden block begins with; may lie behind the end, as others
    QList<int> bookmarks; // lines

    bool operator==(const SessionFile&) const = default;
};

struct Session
{
    // More than anybody has open, and little enough to read.
    static constexpr int kMostFiles = 1000;

    QList<SessionFile> files; // in the order of the tabs
    int front = 0;            // the tab in front; 0 if there is none
    QByteArray geometry;      // as QWidget::saveGeometry gives it, which checks it on the way back
    bool maximised = false;   // which the geometry tells as well, but for a screen of another size
    QByteArray state;         // as QMainWindow::saveState gives it
    bool documentMap = false; // it is shown
    QString folder;           // of the pane beside the scripts, absolute; empty: none yet

    bool operator==(const Session&) const = default;

    QByteArray ToBytes() const;
    // Nothing in the bytes is trusted: what is out of range has its default, an entry without a
    // usable path is left out. Bytes that cannot be read at all are an empty session.
    static Session FromBytes(const QByteArray& bytes);

    // In a file of its own, which is replaced as a whole or stays as it was. False if it could not
    // be written.
    bool Store(const QString& path) const;
    // Empty if there is none; nothing if what stands there cannot be read or is no session.
    static std::optional<Session> Load(const QString& path);
    // Puts what cannot be read out of the way; where it is then. Empty if it stays.
    static QString PutAside(const QString& path);

    static QString DefaultPath(); // among the workbench's data; empty if there is no place for it
};
