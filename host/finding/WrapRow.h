// SPDX-License-Identifier: GPL-3.0-or-later
// WrapRow: widgets beside each other, in as many rows as their width needs. What a row has left
// goes to those that stretch.
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

class WrapRow final : public QLayout
{
public:
    // Takes widgets as any layout does. A widget stretches by its policy's factor, and has the room
    // of its own text first where its policy is Ignored.
    explicit WrapRow(QWidget* parent = nullptr);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Arrange({0, 0, width, 0}, false); }
    QSize minimumSize() const override; // of the widest alone
    QSize sizeHint() const override;    // all in one row
    void setGeometry(const QRect& place) override;

private:
    struct Row
    {
        std::vector<QLayoutItem*> items;
        int left = 0; // pixels, beside the items
    };

    std::vector<Row> Rows(int width) const;
    int Arrange(const QRect& place, bool moves) const; // its height, pixels
    void Fill(const Row& row, const QRect& place) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};
