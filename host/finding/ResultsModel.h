// SPDX-License-Identifier: GPL-3.0-or-later
// ResultsModel: files, and below each the matches in it.
#pragma once

#include "search/files/FileSearch.h"

#include <QAbstractItemModel>
#include <QHash>

class ResultsModel final : public QAbstractItemModel
{
public:
    enum Role
    {
        MatchStart = Qt::UserRole, // in the shown text, -1 for a file
        MatchLength,
    };

    using QAbstractItemModel::QAbstractItemModel;

    void Clear();
    void Add(FoundFile&& file);

    const FoundFile* FileAt(const QModelIndex& index) const;
    const FileMatch* MatchAt(const QModelIndex& index) const; // null for a file

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& /*parent*/) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<FoundFile> m_files;
    QHash<QString, int> m_rows; // of the paths
};
