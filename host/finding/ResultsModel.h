// SPDX-License-Identifier: GPL-3.0-or-later
// ResultsModel: files, and below each the matches in it, which can be chosen to be replaced; behind
// them what was not searched or not replaced.
#pragma once

#include "search/files/FileSearch.h"

#include <QAbstractItemModel>
#include <QHash>

class ResultsModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role
    {
        MatchStart = Qt::UserRole, // in the shown text, -1 for anything but a match
        MatchLength,
        ReplacementLength, // the replacement stands behind the match; -1: there is none
    };

    using QAbstractItemModel::QAbstractItemModel;

    void Clear(bool replaces); // with the matches to choose from
    void Add(FoundFile&& file);
    void AddNotes(const QStringList& notes);

    // The matches of a file are others by now. What is the same stays the same row.
    // Gives the first row that is another.
    int SetMatches(int row, std::vector<FileMatch> matches);

    int FileCount() const { return static_cast<int>(m_files.size()); }
    const FoundFile& File(int row) const { return m_files[static_cast<std::size_t>(row)].found; }
    int RowOf(const QString& path) const { return m_rows.value(path, -1); }
    const FoundFile* FileAt(const QModelIndex& index) const;  // null for a note
    const FileMatch* MatchAt(const QModelIndex& index) const; // null for anything else
    const std::vector<bool>& Left(int row) const; // the matches that are not to be replaced

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& /*parent*/) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Entry
    {
        FoundFile found;
        std::vector<bool> left; // of each match
        long leftCount = 0;
    };

    bool IsNote(const QModelIndex& index) const;
    QVariant FileData(const Entry& entry, int role) const;
    QVariant MatchData(const Entry& entry, std::size_t row, int role) const;
    QModelIndex Top(int row) const { return index(row, 0, {}); }

    std::vector<Entry> m_files;
    QHash<QString, int> m_rows; // of the paths
    QStringList m_notes;
    bool m_replaces = false;
};
