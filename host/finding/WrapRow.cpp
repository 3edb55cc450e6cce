// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/WrapRow.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

int StretchOf(QLayoutItem& item)
{
    return item.widget()->sizePolicy().horizontalStretch();
}

// What stretches is content with its least.
int WidthOf(QLayoutItem& item)
{
    return StretchOf(item) > 0 ? item.minimumSize().width() : item.sizeHint().width();
}

bool IsText(QLayoutItem& item)
{
    return item.widget()->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

int TextOf(QLayoutItem& item) // its width, pixels
{
    return item.widget()->sizeHint().width();
}

int HeightOf(QLayoutItem& item)
{
    return item.widget()->sizeHint().height();
}

} // namespace

WrapRow::WrapRow(QWidget* parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

void WrapRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* WrapRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrapRow::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    const auto at = m_items.begin() + index;
    QLayoutItem* item = at->release();
    m_items.erase(at);
    return item;
}

QSize WrapRow::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items)
        size = size.expandedTo({WidthOf(*item), HeightOf(*item)});
    return size;
}

QSize WrapRow::sizeHint() const
{
    QSize size(-spacing(), 0);
    for (const auto& item : m_items)
        size = {size.width() + WidthOf(*item) + spacing(),
                std::max(size.height(), HeightOf(*item))};
    return size;
}

void WrapRow::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place);
    Arrange(place, true);
}

// A text that is longer than the room beside the others has a row of its own, the last.
std::vector<WrapRow::Row> WrapRow::Rows(int width) const
{
    std::vector<Row> rows(1, Row{{}, width});
    for (const auto& item : m_items) {
        if (item->isEmpty()) // hidden
            continue;
        if (!rows.back().items.empty() && spacing() + WidthOf(*item) > rows.back().left)
            rows.push_back({{}, width});
        Row& row = rows.back();
        row.left -= WidthOf(*item) + (row.items.empty() ? 0 : spacing());
        row.items.push_back(item.get());
    }
    QLayoutItem* tooLong = nullptr;
    for (Row& row : rows) {
        const auto found = std::ranges::find_if(row.items, [&row](QLayoutItem* item) {
            return IsText(*item) && TextOf(*item) > WidthOf(*item) + row.left;
        });
        if (found == row.items.end() || row.items.size() == 1)
            continue;
        tooLong = *found;
        row.left += WidthOf(*tooLong) + spacing();
        row.items.erase(found);
    }
    if (tooLong)
        rows.push_back({{tooLong}, width - WidthOf(*tooLong)});
    return rows;
}

int WrapRow::Arrange(const QRect& place, bool moves) const
{
    int y = place.y() - spacing();
    for (const Row& row : Rows(place.width())) {
        int height = 0;
        for (QLayoutItem* item : row.items)
            height = std::max(height, HeightOf(*item));
        y += spacing();
        if (moves)
            Fill(row, {place.x(), y, place.width(), height});
        y += height;
    }
    return y - place.y();
}

void WrapRow::Fill(const Row& row, const QRect& place) const
{
    const std::vector<QLayoutItem*>& items = row.items;
    std::vector<int> widths;
    int stretch = 0;
    int left = std::max(row.left, 0);
    for (QLayoutItem* item : items) {
        widths.push_back(std::min(WidthOf(*item), place.width()));
        stretch += StretchOf(*item);
        if (!IsText(*item))
            continue;
        const int more = std::clamp(TextOf(*item) - widths.back(), 0, left);
        widths.back() += more;
        left -= more;
    }
    int x = place.x();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const int share = stretch > 0 ? left * StretchOf(*items[i]) / stretch : 0;
        stretch -= StretchOf(*items[i]);
        left -= share;
        const int height = std::min(HeightOf(*items[i]), place.height());
        const QRect box(x, place.y() + (place.height() - height) / 2, widths[i] + share, height);
        items[i]->setGeometry(QStyle::visualRect(
            parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight, place, box));
        x += widths[i] + share + spacing();
    }
}
