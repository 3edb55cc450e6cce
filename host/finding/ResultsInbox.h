// SPDX-License-Identifier: GPL-3.0-or-later
// ResultsInbox: what a search through files has found, between its threads and the window.
#pragma once

#include "search/files/FileSearch.h"

#include <QStringList>

#include <deque>
#include <mutex>

class ResultsInbox final : public IFileSearchListener
{
public:
    void OnFound(FoundFile&& file) override
    {
        const std::lock_guard lock(m_lock);
        m_found.push_back(std::move(file));
    }
    void OnNote(FileNote note, const QString& path) override;
    void OnDone(const FileSearchTotals& /*totals*/) override
    {
        const std::lock_guard lock(m_lock);
        m_isDone = true;
    }

    // At most so many.
    QStringList TakeNotes(qsizetype most)
    {
        const std::lock_guard lock(m_lock);
        const QStringList notes = m_notes.mid(0, most);
        m_notes.remove(0, notes.size());
        return notes;
    }
    QString Fault() const
    {
        const std::lock_guard lock(m_lock);
        return m_fault;
    }
    bool Take(FoundFile& file)
    {
        const std::lock_guard lock(m_lock);
        if (m_found.empty())
            return false;
        file = std::move(m_found.front());
        m_found.pop_front();
        return true;
    }
    bool IsDone() const
    {
        const std::lock_guard lock(m_lock);
        return m_isDone && m_found.empty() && m_notes.isEmpty();
    }
    bool RanAway() const
    {
        const std::lock_guard lock(m_lock);
        return m_ranAway;
    }

private:
    mutable std::mutex m_lock;
    std::deque<FoundFile> m_found;
    QStringList m_notes;
    QString m_fault;
    bool m_isDone = false;
    bool m_ranAway = false;
};
