// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/MatchDelegate.h"

#include "host/finding/ResultsModel.h"

#include <QApplication>
#include <QPainter>

void MatchDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    const bool isSelected = option.state & QStyle::State_Selected;
    if (isSelected) // whose ground would cover the light
        QStyledItemDelegate::paint(painter, option, index);
    const int start = index.data(ResultsModel::MatchStart).toInt();
    if (start >= 0) {
        const int length = index.data(ResultsModel::MatchLength).toInt();
        const int replacement = index.data(ResultsModel::ReplacementLength).toInt();
        const bool replaces = replacement >= 0;
        const QColor match =
            option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Link);
        Light(*painter, option, index, start, length, replaces ? QColor(220, 60, 60) : match);
        if (replaces)
            Light(*painter, option, index, start + length, replacement, QColor(60, 180, 80));
    }
    if (!isSelected)
        QStyledItemDelegate::paint(painter, option, index);
}

void MatchDelegate::Light(QPainter& painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index, int start, int length, QColor light) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QWidget* widget = option.widget;
    const QStyle* style = widget ? widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
    const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &item, widget);
    const int from = option.fontMetrics.horizontalAdvance(item.text.left(start));
    const int width = option.fontMetrics.horizontalAdvance(item.text.mid(start, length));
    const QRect place(text.left() + margin + from, text.top(), width, text.height());
    const QRect seen = place.intersected(option.rect);
    if (option.state & QStyle::State_Selected) { // over the letters
        painter.save();
        painter.setPen(option.palette.color(QPalette::HighlightedText));
        painter.drawRect(seen.adjusted(0, 0, -1, -1));
        painter.restore();
        light.setAlpha(45);
    } else {
        light.setAlpha(90);
    }
    painter.fillRect(seen, light);
}
