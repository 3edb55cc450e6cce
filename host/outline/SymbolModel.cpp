// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/outline/SymbolModel.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace {

bool IsSame(const Symbol& one, const Symbol& other)
{
    return one.kind == other.kind && one.isInside == other.isInside && one.name == other.name;
}

} // namespace

// Which of the old symbols is which of the new ones: those in front of the first difference, those
// behind the last, and between them one for one where as many stand there in the same shape.
struct SymbolModel::Change
{
    Change(const std::vector<Symbol>& before, const std::vector<Symbol>& now)
        : oldCount(static_cast<int>(before.size())), newCount(static_cast<int>(now.size()))
    {
        const auto least = std::min(before.size(), now.size());
        const auto limit = static_cast<std::ptrdiff_t>(least);
        front = static_cast<int>(
            std::mismatch(before.begin(), before.begin() + limit, now.begin(), IsSame).first -
            before.begin());
        back = static_cast<int>(
            std::mismatch(before.rbegin(), before.rbegin() + (limit - front), now.rbegin(), IsSame)
                .first -
            before.rbegin());
        isReplaced =
            oldCount == newCount &&
            std::equal(before.begin() + front, before.end() - back, now.begin() + front,
                       [](const Symbol& a, const Symbol& b) { return a.isInside == b.isInside; });
    }

    bool IsNone() const { return oldCount == newCount && front == oldCount; }

    int Of(int symbol) const
    {
        if (symbol < front || isReplaced)
            return symbol;
        return symbol >= oldCount - back ? symbol + newCount - oldCount : -1;
    }

    int oldCount;
    int newCount;
    int front = 0;
    int back = 0;
    bool isReplaced = false;
};

void SymbolModel::Show(std::vector<Symbol> symbols)
{
    Rebuild(std::move(symbols), m_words);
}

void SymbolModel::Filter(const QString& words)
{
    if (words != m_words)
        Rebuild(m_symbols, words);
}

// All at once, since what differs may be rows of both levels.
void SymbolModel::Rebuild(std::vector<Symbol> symbols, const QString& words)
{
    const Change change(m_symbols, symbols);
    if (change.IsNone() && words == m_words) {
        m_symbols = std::move(symbols);
        return;
    }
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<int> kept;
    for (const QModelIndex& index : before)
        kept.push_back(SymbolAt(index));
    m_symbols = std::move(symbols);
    m_words = words;
    FillRows();
    QModelIndexList now;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const int symbol = kept[i] < 0 ? -1 : change.Of(kept[i]);
        now << IndexOf(symbol, before[static_cast<qsizetype>(i)].column());
    }
    changePersistentIndexList(before, now);
    Q_EMIT layoutChanged();
}

void SymbolModel::FillRows()
{
    m_rows.clear();
    m_inside.clear();
    const auto fits = [this](int symbol) {
        return m_words.isEmpty() || m_symbols[static_cast<std::size_t>(symbol)].name.contains(
                                        m_words, Qt::CaseInsensitive);
    };
    const int count = static_cast<int>(m_symbols.size());
    for (int outer = 0; outer < count;) {
        Row row{outer, static_cast<int>(m_inside.size())};
        int next = outer + 1;
        for (; next < count && m_symbols[static_cast<std::size_t>(next)].isInside; ++next) {
            if (fits(next))
                m_inside.push_back(next);
        }
        row.insideCount = static_cast<int>(m_inside.size()) - row.firstInside;
        if (row.insideCount > 0 || fits(outer))
            m_rows.push_back(row);
        outer = next;
    }
}

int SymbolModel::SymbolAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return -1;
    const auto outer = static_cast<std::size_t>(index.internalId());
    if (outer == 0)
        return m_rows[static_cast<std::size_t>(index.row())].symbol;
    const int inside = m_rows[outer - 1].firstInside + index.row();
    return m_inside[static_cast<std::size_t>(inside)];
}

QModelIndex SymbolModel::IndexOf(int symbol, int column) const
{
    const auto behind = std::ranges::upper_bound(m_rows, symbol, {}, &Row::symbol);
    if (symbol < 0 || behind == m_rows.begin())
        return {};
    const auto row = std::prev(behind);
    const auto number = static_cast<int>(row - m_rows.begin());
    if (row->symbol == symbol)
        return createIndex(number, column, quintptr{0});
    const auto first = m_inside.begin() + row->firstInside;
    const auto found = std::find(first, first + row->insideCount, symbol);
    if (found == first + row->insideCount)
        return {};
    return createIndex(static_cast<int>(found - first), column, static_cast<quintptr>(number) + 1);
}

const Symbol* SymbolModel::At(const QModelIndex& index) const
{
    const int symbol = SymbolAt(index);
    return symbol < 0 ? nullptr : &m_symbols[static_cast<std::size_t>(symbol)];
}

QModelIndex SymbolModel::IndexAt(long position) const
{
    const auto startOf = [this](int symbol) {
        return m_symbols[static_cast<std::size_t>(symbol)].start;
    };
    const auto behind = std::ranges::upper_bound(
        m_rows, position, {}, [&](const Row& row) { return startOf(row.symbol); });
    if (behind == m_rows.begin())
        return {};
    const auto row = std::prev(behind);
    const auto first = m_inside.begin() + row->firstInside;
    const auto inside =
        std::ranges::upper_bound(first, first + row->insideCount, position, {}, startOf);
    return IndexOf(inside == first ? row->symbol : *std::prev(inside), kName);
}

// Of something inside it is the number of the row around it, from 1.
QModelIndex SymbolModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= kColumns)
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex SymbolModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == 0)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, kName, quintptr{0});
}

int SymbolModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_rows.size());
    if (parent.internalId() != 0 || parent.column() != kName)
        return 0;
    return m_rows[static_cast<std::size_t>(parent.row())].insideCount;
}

QVariant SymbolModel::data(const QModelIndex& index, int role) const
{
    const Symbol* symbol = At(index);
    if (!symbol)
        return {};
    if (role == Qt::DisplayRole)
        return index.column() == kName ? symbol->name : KindText(*symbol);
    if (role == Qt::ToolTipRole && index.column() == kName)
        return symbol->name;
    if (role == Qt::ForegroundRole && index.column() == kKind)
        return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    return {};
}

QVariant SymbolModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return section == kName ? tr("Name") : tr("Kind");
}
