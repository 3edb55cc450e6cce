// SPDX-License-Identifier: GPL-3.0-or-later
// MatchDelegate: a row of a ResultsModel, with the match in its line lit, and what it would become.
#pragma once

#include <QStyledItemDelegate>

class MatchDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void Light(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
               int start, int length, QColor light) const;
};
