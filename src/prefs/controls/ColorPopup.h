// SPDX-License-Identifier: GPL-3.0-or-later
// ZNCEColorPopup: the floating palette of a colour button: forty named colours in a grid, a cell
// for the default above them and one for further colours below. A Qt::Popup, which holds mouse and
// keys.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>
#include <QWidget>

class ZN_API ZNCEColorPopup : public QWidget
{
    Q_OBJECT

public:
    static constexpr COLORREF kDefaultColor = 0xFF000000;
    // Cells beside those of the table, which count from 0.
    static constexpr int kNoCell = -1;
    static constexpr int kCustomCell = -2;
    static constexpr int kDefaultCell = -3;

    // Shows the colour as the one in force: none of the cells if the table lacks it. An empty text
    // leaves its cell out.
    ZNCEColorPopup(COLORREF color, COLORREF defaultColor, const QString& defaultText,
                   const QString& customText, QWidget* owner);

    void ShowBelow(const QRect& place); // on the screen; above it where there is no room

    int CurrentCell() const { return m_current; }
    void SetCurrentCell(int cell); // tells of the colour under the cursor
    void Choose(int cell);         // closes the palette; no cell is a cancel

    int CellAt(QPoint place) const; // kNoCell beside them
    QRect RectOf(int cell) const;
    QString NameOf(int cell) const;
    // Of the default cell kDefaultColor; the colour in force for the custom cell and for none.
    COLORREF ColorOf(int cell) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void Hovered(COLORREF color);
    void Chosen(COLORREF color);
    void CustomWanted(); // the person wants the desktop's dialog
    void Cancelled();    // closed in another way

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    int Next(int key) const;
    int First() const;
    int Last() const;
    int TextHeight() const;
    int CellSize() const;
    int GridTop() const;
    void PaintText(class QPainter& painter, int cell, const QString& text) const;
    void PaintFrame(class QPainter& painter, int cell) const;

    COLORREF m_color;
    COLORREF m_defaultColor;
    QString m_defaultText;
    QString m_customText;
    int m_chosen = kNoCell;
    int m_current = kNoCell;
    bool m_isDone = false;
};
