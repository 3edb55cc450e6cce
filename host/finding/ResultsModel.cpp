// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/ResultsModel.h"

#include <algorithm>

namespace {

// The number inside an index: 0 for a file and for the head of the notes, 1 for a note, and for a
// match that of its file and 2.
constexpr quintptr kTop = 0;
constexpr quintptr kNote = 1;
constexpr quintptr kFirstFile = 2;

QString LineNumber(const FileMatch& match)
{
    return QString::number(match.line + 1) + QStringLiteral(":  ");
}

// Its part of the line that is shown.
QString MatchedText(const FileMatch& match)
{
    return match.text.mid(match.column - match.textColumn, match.length);
}

QString OnOneLine(QString text)
{
    return text.replace(u'\n', QChar(0x21B5)).remove(u'\r');
}

// In "C" names have the order of codes alone; English has the one that all share.
QCollator OrderOfNames()
{
    const QLocale locale = QLocale().collation();
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

// Folder by folder: this character comes before all others.
QString InParts(QString path)
{
    constexpr char16_t kFirst = 0xFFFE;
    return path.replace(u'/', QChar(kFirst));
}

// Lines before a change may have become more or fewer.
bool IsSame(const FileMatch& a, const FileMatch& b)
{
    return a.text == b.text && a.column == b.column && a.length == b.length &&
           a.replacement == b.replacement;
}

} // namespace

ResultsModel::ResultsModel(QObject* parent, PlaceOf placeOf)
    : QAbstractItemModel(parent), m_placeOf(std::move(placeOf)), m_collator(OrderOfNames())
{}

void ResultsModel::Clear(bool replaces)
{
    beginResetModel();
    m_files.clear();
    m_order.clear();
    m_numbers.clear();
    m_notes.clear();
    m_replaces = replaces;
    endResetModel();
}

// The row of a file, or where one would be put in. Those of one order stand as they came.
int ResultsModel::RowFor(const QCollatorSortKey& order, int number) const
{
    const auto isBefore = [this, &order](int one, int other) {
        const int difference = m_files[static_cast<std::size_t>(one)].order.compare(order);
        return difference != 0 ? difference < 0 : one < other;
    };
    return static_cast<int>(std::lower_bound(m_order.begin(), m_order.end(), number, isBefore) -
                            m_order.begin());
}

int ResultsModel::RowOf(const QString& path) const
{
    const auto known = m_numbers.constFind(path);
    return known == m_numbers.constEnd()
               ? -1
               : RowFor(m_files[static_cast<std::size_t>(*known)].order, *known);
}

int ResultsModel::Add(FoundFile&& file)
{
    if (!m_numbers.contains(file.path)) {
        const int number = FileCount();
        QCollatorSortKey order = m_collator.sortKey(InParts(file.path));
        const int row = RowFor(order, number);
        beginInsertRows({}, row, row);
        m_numbers.insert(file.path, number);
        std::vector<bool> left(file.matches.size());
        m_files.push_back({std::move(file), std::move(left), 0, {}, std::move(order)});
        m_order.insert(m_order.begin() + row, number);
        endInsertRows();
        return row;
    }
    const int row = RowOf(file.path);
    Entry& into = At(row);
    into.found.count += file.count;
    const QModelIndex top = Top(row);
    if (!file.matches.empty()) {
        const int first = static_cast<int>(into.found.matches.size());
        beginInsertRows(top, first, first + static_cast<int>(file.matches.size()) - 1);
        std::ranges::move(file.matches, std::back_inserter(into.found.matches));
        into.left.resize(into.found.matches.size());
        endInsertRows();
    }
    Q_EMIT dataChanged(top, top);
    return row;
}

void ResultsModel::AddNotes(const QStringList& notes)
{
    if (notes.isEmpty())
        return;
    const int row = FileCount();
    if (m_notes.isEmpty()) {
        beginInsertRows({}, row, row);
        m_notes = {QString()}; // the head counts the others
        endInsertRows();
    }
    const int first = static_cast<int>(m_notes.size()) - 1;
    beginInsertRows(Top(row), first, first + static_cast<int>(notes.size()) - 1);
    m_notes += notes;
    endInsertRows();
    Q_EMIT dataChanged(Top(row), Top(row));
}

void ResultsModel::SetReplaced(int row, Place place)
{
    At(row).replacedIn = place;
    Q_EMIT dataChanged(Top(row), Top(row));
}

void ResultsModel::EndPreview()
{
    m_replaces = false;
    for (Entry& entry : m_files) {
        for (FileMatch& match : entry.found.matches)
            match.replacement.clear();
        entry.left.assign(entry.left.size(), false);
        entry.leftCount = 0;
    }
    for (int row = 0; row < FileCount(); ++row)
        TellOfAll(row);
}

void ResultsModel::TellOfAll(int row)
{
    const QModelIndex top = Top(row);
    Q_EMIT dataChanged(top, top);
    const int count = rowCount(top);
    if (count > 0)
        Q_EMIT dataChanged(index(0, 0, top), index(count - 1, 0, top));
}

int ResultsModel::SetMatches(int row, std::vector<FileMatch> matches)
{
    Entry& entry = At(row);
    std::vector<FileMatch>& old = entry.found.matches;
    const auto [oldEnd, newEnd] = std::ranges::mismatch(old, matches, IsSame);
    const auto first = oldEnd - old.begin();
    auto same = std::min(old.size(), matches.size()) - static_cast<std::size_t>(first);
    std::size_t behind = 0;
    while (behind < same &&
           IsSame(old[old.size() - 1 - behind], matches[matches.size() - 1 - behind]))
        ++behind;
    const int gone = static_cast<int>(old.size() - behind) - static_cast<int>(first);
    const int made = static_cast<int>(matches.size() - behind) - static_cast<int>(first);
    const QModelIndex top = Top(row);
    if (gone > 0) {
        beginRemoveRows(top, static_cast<int>(first), static_cast<int>(first) + gone - 1);
        old.erase(old.begin() + first, old.begin() + first + gone);
        entry.left.erase(entry.left.begin() + first, entry.left.begin() + first + gone);
        endRemoveRows();
    }
    if (made > 0) {
        beginInsertRows(top, static_cast<int>(first), static_cast<int>(first) + made - 1);
        entry.left.insert(entry.left.begin() + first, static_cast<std::size_t>(made), false);
        old.insert(old.begin() + first, static_cast<std::size_t>(made), {});
        std::ranges::copy(matches.begin() + first, matches.begin() + first + made,
                          old.begin() + first);
        endInsertRows();
    }
    old = std::move(matches); // lines are others
    entry.found.count = static_cast<long>(old.size());
    entry.leftCount = std::ranges::count(entry.left, true);
    Q_EMIT dataChanged(top, top);
    return static_cast<int>(first);
}

const ResultsModel::Entry& ResultsModel::EntryOf(const QModelIndex& index) const
{
    return index.internalId() == kTop ? At(index.row()) : m_files[index.internalId() - kFirstFile];
}

const FoundFile* ResultsModel::FileAt(const QModelIndex& index) const
{
    return index.isValid() && !IsNote(index) ? &EntryOf(index).found : nullptr;
}

const FileMatch* ResultsModel::MatchAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() < kFirstFile)
        return nullptr;
    return &FileAt(index)->matches[static_cast<std::size_t>(index.row())];
}

const std::vector<bool>& ResultsModel::Left(int row) const
{
    return At(row).left;
}

bool ResultsModel::IsNote(const QModelIndex& index) const
{
    return index.internalId() == kNote ||
           (index.internalId() == kTop && index.row() == FileCount());
}

QModelIndex ResultsModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!parent.isValid())
        return createIndex(row, column, kTop);
    if (IsNote(parent))
        return createIndex(row, column, kNote);
    const int number = m_order[static_cast<std::size_t>(parent.row())];
    return createIndex(row, column, static_cast<quintptr>(number) + kFirstFile);
}

QModelIndex ResultsModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kTop)
        return {};
    if (index.internalId() == kNote)
        return Top(FileCount());
    const auto number = index.internalId() - kFirstFile;
    return Top(RowFor(m_files[number].order, static_cast<int>(number)));
}

int ResultsModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return FileCount() + (m_notes.isEmpty() ? 0 : 1);
    if (parent.internalId() != kTop)
        return 0;
    return IsNote(parent) ? static_cast<int>(m_notes.size()) - 1
                          : static_cast<int>(FileAt(parent)->matches.size());
}

QVariant ResultsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (IsNote(index)) {
        const bool isHead = index.internalId() == kTop;
        if (role == MatchStart)
            return -1;
        if (role != Qt::DisplayRole)
            return {};
        return isHead ? tr("Not searched or not replaced  (%1)")
                            .arg(QLocale().toString(m_notes.size() - 1))
                      : m_notes[index.row() + 1];
    }
    const bool isFile = index.internalId() == kTop;
    const Entry& entry = EntryOf(index);
    return isFile ? FileData(entry, role)
                  : MatchData(entry, static_cast<std::size_t>(index.row()), role);
}

// What is to be known before anything is replaced, and where it was.
QString ResultsModel::StateOf(const Entry& entry) const
{
    if (!m_replaces && !entry.replacedIn)
        return {}; // and nobody is asked about the place
    const Place place = m_placeOf ? m_placeOf(entry.found.path) : Place::Script;
    if (m_replaces)
        return place == Place::Disk ? tr("not open: is saved at once, no undo") : QString();
    if (*entry.replacedIn == Place::Disk || place == Place::Script)
        return tr("saved");
    return place == Place::UnsavedScript ? tr("open, not saved") : tr("closed");
}

QVariant ResultsModel::FileData(const Entry& entry, int role) const
{
    switch (role) {
    case Qt::DisplayRole: {
        const QString state = StateOf(entry);
        QStringList words;
        if (entry.found.count > 0 || state.isEmpty())
            words += QLocale().toString(entry.found.count);
        if (!state.isEmpty())
            words += state;
        return QStringLiteral("%1  (%2)").arg(entry.found.path, words.join(QStringLiteral(", ")));
    }
    case Qt::CheckStateRole:
        if (!m_replaces)
            return {};
        return entry.leftCount == 0                                      ? Qt::Checked
               : entry.leftCount == static_cast<long>(entry.left.size()) ? Qt::Unchecked
                                                                         : Qt::PartiallyChecked;
    case MatchStart:
        return -1;
    default:
        return {};
    }
}

QVariant ResultsModel::MatchData(const Entry& entry, std::size_t row, int role) const
{
    const FileMatch& match = entry.found.matches[row];
    const QString replacement = OnOneLine(match.replacement);
    const qsizetype end = match.column - match.textColumn + match.length;
    switch (role) {
    case Qt::DisplayRole:
        if (!m_replaces)
            return QString(LineNumber(match) + match.text);
        return QString(LineNumber(match) + match.text.left(end) + replacement +
                       match.text.mid(end));
    case Qt::AccessibleTextRole:
        if (!m_replaces)
            return {};
        return tr("%1%2: \"%3\" becomes \"%4\"")
            .arg(LineNumber(match), match.text, MatchedText(match), match.replacement);
    case Qt::CheckStateRole:
        return m_replaces ? QVariant(entry.left[row] ? Qt::Unchecked : Qt::Checked) : QVariant();
    case MatchStart:
        return static_cast<int>(LineNumber(match).size() + match.column - match.textColumn);
    case MatchLength:
        return static_cast<int>(MatchedText(match).size());
    case ReplacementLength:
        return m_replaces ? static_cast<int>(replacement.size()) : -1;
    default:
        return {};
    }
}

bool ResultsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !m_replaces || !FileAt(index))
        return false;
    const bool isFile = index.internalId() == kTop;
    const int row = isFile ? index.row() : index.parent().row();
    Entry& entry = At(row);
    const bool isLeft = value.toInt() == Qt::Unchecked;
    if (isFile)
        entry.left.assign(entry.left.size(), isLeft);
    else
        entry.left[static_cast<std::size_t>(index.row())] = isLeft;
    entry.leftCount = std::ranges::count(entry.left, true);
    TellOfAll(row);
    return true;
}

Qt::ItemFlags ResultsModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    flags.setFlag(Qt::ItemIsUserCheckable, m_replaces && FileAt(index));
    return flags;
}
