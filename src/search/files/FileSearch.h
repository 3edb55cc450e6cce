// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFileSearch: a search through files, without a window, on threads of its own. It finds in a file
/// what the find manager finds in an editor that has opened it with care.
#pragma once

#include "common/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// A text that an editor holds; it is searched in the place of its file.
struct OpenText
{
    QString path; ///< empty: it has no file
    QString text; ///< all of it
};

/// What is looked for, how, and where.
struct FileSearchRequest
{
    QString text;            ///< what is looked for
    bool wholeWord = false;  ///< nothing inside of a word
    bool matchCase = false;  ///< letters as they are written
    bool regExp = false;     ///< the text is an expression
    bool perlSyntax = false; ///< of the expression
    bool countOnly = false;  ///< matches are counted, and not described
    bool replaces = false;   ///< each match tells what it would become
    QString replacement;     ///< an expression's has \\1 to \\9

    bool openOnly = false;      ///< the open texts, and no files
    std::vector<OpenText> open; ///< the texts that editors hold
    QStringList folders;        ///< where files are looked for
    QString types;              ///< patterns of names, parted by ';' or ','; none: all files
    bool subFolders = true;     ///< folders below, too
    int codePage = 0;           ///< of files that are no Unicode; 0: the system's

    int threads = 0; ///< 0: as many as the machine has processors
};

/// Lines count from 0, columns and lengths UTF-16 units.
struct FileMatch
{
    long line = 0;       ///< of the match's start
    long column = 0;     ///< of the match's start
    long length = 0;     ///< over line ends, too
    long textColumn = 0; ///< where in the line the text begins
    QString text;        ///< the line, or of a long one what is around the match
    QString replacement; ///< where the request replaces

    bool operator==(const FileMatch&) const = default; ///< whether both say the same
};

/// A file may come several times, with the matches that follow.
struct FoundFile
{
    QString path;                   ///< of the file; empty for an open text without one
    QByteArray name;                ///< the path as the file system has it, which need not be UTF-8
    bool isOpen = false;            ///< an editor's text was searched in its place
    std::vector<FileMatch> matches; ///< in the order of the text
    long count = 0;                 ///< of the matches, described or not
};

/// Why something was not searched.
enum class FileNote
{
    Binary,       ///< zeros in what is no text
    Unreadable,   ///< it may not be read, is gone, or ended early
    NotAFile,     ///< a device, a pipe, a socket
    Loop,         ///< a link to a folder that is searched already
    NoExpression, ///< what is sought is none: in the place of the path stands why
    RanAway,      ///< the expression went on for too long: what is left of the text is not searched
};

/// What a search has come to.
struct FileSearchTotals
{
    long files = 0;         ///< searched to their end
    long found = 0;         ///< of them with matches
    long long bytes = 0;    ///< of the files that were searched
    long long matches = 0;  ///< in all of them
    long failures = 0;      ///< files and folders that could not be read
    long skipped = 0;       ///< what is no text, no file, or searched already
    bool isStopped = false; ///< before it was done
};

/// Called on threads of the search, one call at a time.
class ZN_API IFileSearchListener
{
public:
    virtual ~IFileSearchListener(); ///< outlives the search

    virtual void OnFound(FoundFile&& file) = 0; ///< takes the matches over
    /// RanAway comes once, NoExpression alone.
    virtual void OnNote(FileNote note, const QString& path) = 0;
    virtual void OnDone(const FileSearchTotals& totals) = 0; ///< the last call
};

/// All matches in one text, found on the calling thread. What is open and which files are meant
/// plays no part.
ZN_API std::vector<FileMatch> MatchesIn(const QString& text, const FileSearchRequest& request);

/// One search, which runs once.
class ZN_API CFileSearch
{
public:
    /// The listener stays the caller's, and outlives the search.
    CFileSearch(FileSearchRequest request, IFileSearchListener& listener);
    CFileSearch(const CFileSearch&) = delete;
    CFileSearch& operator=(const CFileSearch&) = delete;
    ~CFileSearch(); ///< stops, and waits for the last call

    void Start();                    ///< returns at once
    void Stop();                     ///< returns at once; what is found already is still told
    void Wait();                     ///< until the last call is over
    FileSearchTotals Totals() const; ///< so far, from any thread

private:
    class Job;
    std::unique_ptr<Job> m_job;
};
