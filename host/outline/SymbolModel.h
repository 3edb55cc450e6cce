// SPDX-License-Identifier: GPL-3.0-or-later
// The symbols of a script as rows: what is created, and inside of it columns and parameters. A text
// that changes keeps what is open and chosen in a view of it, as far as it is still there.
#pragma once

#include "host/outline/Symbols.h"

#include <QAbstractItemModel>

#include <vector>

class SymbolModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        kName,
        kKind,
        kColumns
    };

    using QAbstractItemModel::QAbstractItemModel;

    // In the order of the text. Tells of nothing if only their places differ.
    void Show(std::vector<Symbol> symbols);
    // Only what has the words in its name, and what that stands in.
    void Filter(const QString& words);

    bool IsEmpty() const { return m_symbols.empty(); }
    bool IsFiltered() const { return !m_words.isEmpty(); }
    const Symbol* At(const QModelIndex& index) const; // null for none
    // Of those that are shown the last that begins at the place or in front of it.
    QModelIndex IndexAt(long position) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex&) const override { return kColumns; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    // Numbers of symbols. What is inside stands behind one another in m_inside.
    struct Row
    {
        int symbol = 0;
        int firstInside = 0;
        int insideCount = 0;
    };

    struct Change;
    void Rebuild(std::vector<Symbol> symbols, const QString& words);
    void FillRows();
    int SymbolAt(const QModelIndex& index) const; // -1: none
    QModelIndex IndexOf(int symbol, int column) const;

    std::vector<Symbol> m_symbols;
    std::vector<Row> m_rows;
    std::vector<int> m_inside;
    QString m_words;
};
