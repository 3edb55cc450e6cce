// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/SourceMap.h"

#include <algorithm>

void SourceMap::Clear()
{
    m_files = {{QString(), -1, 0}};
    m_runs = {{0, 0, 0, false}};
}

std::size_t SourceMap::RunAt(long line) const
{
    const auto behind =
        std::upper_bound(m_runs.begin(), m_runs.end(), std::max(line, 0L),
                         [](long wanted, const Run& run) { return wanted < run.first; });
    return static_cast<std::size_t>(behind - m_runs.begin()) - 1;
}

long SourceMap::SourceLineIn(const Run& run, long line) const
{
    return run.stays ? run.sourceLine : run.sourceLine + line - run.first;
}

// The run that begins directly below the line.
std::size_t SourceMap::SplitBehind(long line)
{
    const std::size_t at = RunAt(line);
    if (at + 1 < m_runs.size() && m_runs[at + 1].first == line + 1)
        return at + 1;
    const Run run = m_runs[at];
    m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                  Run{line + 1, run.file, SourceLineIn(run, line + 1), run.stays});
    return at + 1;
}

void SourceMap::InsertFile(long below, long lines, const QString& path, long firstLine)
{
    if (lines <= 0)
        return;
    const Run& site = m_runs[RunAt(below)];
    m_files.push_back({path, site.file, SourceLineIn(site, below)});
    const std::size_t at = SplitBehind(below);
    for (std::size_t i = at; i < m_runs.size(); ++i)
        m_runs[i].first += lines;
    m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(at),
                  Run{below + 1, static_cast<int>(m_files.size()) - 1, firstLine, false});
}

void SourceMap::InsertExpansion(long below, long lines)
{
    if (lines <= 0)
        return;
    const Run site = m_runs[RunAt(below)];
    const std::size_t at = SplitBehind(below);
    for (std::size_t i = at; i < m_runs.size(); ++i)
        m_runs[i].first += lines;
    m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(at),
                  Run{below + 1, site.file, SourceLineIn(site, below), true});
}

SourceLine SourceMap::Locate(long line) const
{
    const Run& run = m_runs[RunAt(line)];
    return {m_files[static_cast<std::size_t>(run.file)].path,
            SourceLineIn(run, std::max(line, 0L))};
}

std::vector<SourceLine> SourceMap::IncludedFrom(long line) const
{
    std::vector<SourceLine> sites;
    int file = m_runs[RunAt(line)].file;
    while (m_files[static_cast<std::size_t>(file)].parent >= 0) {
        const File& entry = m_files[static_cast<std::size_t>(file)];
        sites.push_back({m_files[static_cast<std::size_t>(entry.parent)].path, entry.includeLine});
        file = entry.parent;
    }
    return sites;
}

std::set<QString> SourceMap::Files() const
{
    std::set<QString> paths;
    for (const File& file : m_files)
        paths.insert(file.path);
    paths.erase(QString()); // the script
    return paths;
}

long SourceMap::Find(const QString& path, long line) const
{
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        const Run& run = m_runs[i];
        if (m_files[static_cast<std::size_t>(run.file)].path != path || line < run.sourceLine)
            continue;
        const bool isLast = i + 1 == m_runs.size();
        const long count = isLast ? -1 : m_runs[i + 1].first - run.first;
        const long offset = line - run.sourceLine;
        if (run.stays ? offset == 0 : isLast || offset < count)
            return run.first + (run.stays ? 0 : offset);
    }
    return -1;
}
