// SPDX-License-Identifier: GPL-3.0-or-later
// ResultsModel: files, and below each the matches in it, which can be chosen to be replaced; behind
// them what was not searched or not replaced.
#pragma once

#include "search/files/FileSearch.h"

#include <QAbstractItemModel>
#include <QCollator>
#include <QHash>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

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

    enum class Place
    {
        Disk,   // alone
        Script, // open, and as saved
        UnsavedScript,
    };
    using PlaceOf = std::function<Place(const QString& path)>; // by now

    // Without a function all files are open scripts.
    explicit ResultsModel(QObject* parent, PlaceOf placeOf = {});

    void Clear(bool replaces); // with the matches to choose from
    // Files stand in the order of their names, whichever comes first. Gives the row of this one.
    int Add(FoundFile&& file);
    void AddNotes(const QStringList& notes);

    // The matches of a file are others by now. What is the same stays the same row.
    // Gives the first row that is another.
    int SetMatches(int row, std::vector<FileMatch> matches);
    void SetReplaced(int row, Place place); // where that was done
    void EndPreview();                      // the matches stand for themselves

    int FileCount() const { return static_cast<int>(m_files.size()); }
    const FoundFile& File(int row) const { return At(row).found; }
    int RowOf(const QString& path) const;                     // -1: it is not there
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
        std::optional<Place> replacedIn;
        QCollatorSortKey order; // of its path
    };

    bool IsNote(const QModelIndex& index) const;
    QString StateOf(const Entry& entry) const;
    QVariant FileData(const Entry& entry, int role) const;
    QVariant MatchData(const Entry& entry, std::size_t row, int role) const;
    QModelIndex Top(int row) const { return index(row, 0, {}); }
    const Entry& At(int row) const
    {
        return m_files[static_cast<std::size_t>(m_order[static_cast<std::size_t>(row)])];
    }
    Entry& At(int row) { return const_cast<Entry&>(std::as_const(*this).At(row)); }
    const Entry& EntryOf(const QModelIndex& index) const; // of a file or a match
    void TellOfAll(int row);
    int RowFor(const QCollatorSortKey& order, int number) const;

    // An index holds the number of its file, which stays, and not its row.
    std::vector<Entry> m_files; // as they came
    std::vector<int> m_order;   // their numbers, by row
    QHash<QString, int> m_numbers;
    PlaceOf m_placeOf;
    QCollator m_collator;
    QStringList m_notes;
    bool m_replaces = false;
};
