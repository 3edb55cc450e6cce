// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Where the lines of an expanded script came from. Lines count from 0. The script itself is the
/// file without a path.
#pragma once

#include "common/Export.h"

#include <QString>

#include <set>
#include <vector>

/// A line of a file.
struct SourceLine
{
    QString path;  ///< empty: the script
    long line = 0; ///< from 0

    bool operator==(const SourceLine&) const = default; ///< whether both say the same
};

/// Filled by a run, line by line.
class ZN_API SourceMap
{
public:
    SourceMap() { Clear(); } ///< every line is the script's own

    /// Every line is the script's own.
    void Clear();

    /// Below that line stand so many from the file, from its line firstLine on.
    void InsertFile(long below, long lines, const QString& path, long firstLine);

    /// Below that line stand so many that came out of it.
    void InsertExpansion(long below, long lines);

    /// Where a line of the expanded script came from. For one behind its end the count goes on.
    SourceLine Locate(long line) const;

    /// The include lines that brought it here, the innermost first; empty for the script's own.
    std::vector<SourceLine> IncludedFrom(long line) const;

    /// The files that were included, each once, in the order of their names.
    std::set<QString> Files() const;

    /// The expanded line that came from there, the first of several; -1 if there is none.
    long Find(const QString& path, long line) const;

private:
    struct File
    {
        QString path;
        int parent;       // -1: the script itself
        long includeLine; // in the parent
    };
    struct Run // of lines, up to the next run's first
    {
        long first;
        int file;
        long sourceLine;
        bool stays; // all its lines came from one
    };

    std::size_t RunAt(long line) const;
    long SourceLineIn(const Run& run, long line) const;
    std::size_t SplitBehind(long line);

    std::vector<File> m_files;
    std::vector<Run> m_runs; // never empty; the first begins at 0
};
