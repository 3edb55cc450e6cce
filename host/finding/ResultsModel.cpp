// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/ResultsModel.h"

#include <algorithm>
#include <iterator>

namespace {

QString LineNumber(const FileMatch& match)
{
    return QString::number(match.line + 1) + QStringLiteral(":  ");
}

} // namespace

void ResultsModel::Clear()
{
    beginResetModel();
    m_files.clear();
    m_rows.clear();
    endResetModel();
}

void ResultsModel::Add(FoundFile&& file)
{
    const auto known = m_rows.constFind(file.path);
    if (known == m_rows.constEnd()) {
        const int row = static_cast<int>(m_files.size());
        beginInsertRows({}, row, row);
        m_rows.insert(file.path, row);
        m_files.push_back(std::move(file));
        endInsertRows();
        return;
    }
    FoundFile& into = m_files[static_cast<std::size_t>(*known)];
    into.count += file.count;
    const QModelIndex top = index(*known, 0, {});
    if (!file.matches.empty()) {
        const int first = static_cast<int>(into.matches.size());
        beginInsertRows(top, first, first + static_cast<int>(file.matches.size()) - 1);
        std::ranges::move(file.matches, std::back_inserter(into.matches));
        endInsertRows();
    }
    Q_EMIT dataChanged(top, top);
}

const FoundFile* ResultsModel::FileAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return nullptr;
    const std::size_t row =
        index.internalId() ? index.internalId() - 1 : static_cast<std::size_t>(index.row());
    return &m_files[row];
}

const FileMatch* ResultsModel::MatchAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == 0)
        return nullptr;
    return &FileAt(index)->matches[static_cast<std::size_t>(index.row())];
}

// The number inside an index is 0 for a file, and for a match that of its file's row and 1.
QModelIndex ResultsModel::index(int row, int column, const QModelIndex& parent) const
{
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex ResultsModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == 0)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr{0});
}

int ResultsModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_files.size());
    return parent.internalId() ? 0 : static_cast<int>(FileAt(parent)->matches.size());
}

QVariant ResultsModel::data(const QModelIndex& index, int role) const
{
    const FoundFile* file = FileAt(index);
    if (!file)
        return {};
    const FileMatch* match = MatchAt(index);
    if (!match) {
        if (role == Qt::DisplayRole)
            return QStringLiteral("%1  (%2)").arg(file->path, QString::number(file->count));
        return role == MatchStart ? QVariant(-1) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return LineNumber(*match) + match->text;
    case MatchStart:
        return static_cast<int>(LineNumber(*match).size() + match->column - match->textColumn);
    case MatchLength:
        return static_cast<int>(match->length);
    default:
        return {};
    }
}
