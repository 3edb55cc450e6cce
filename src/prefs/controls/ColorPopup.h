// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ZNCEColorPopup: the floating palette of a colour button: forty named colours in a grid, a cell
/// for the default above them and one for further colours below. A Qt::Popup, which holds mouse and
/// keys.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>
#include <QWidget>

/// The floating palette of a colour button: forty named colours in a grid, a cell for the default
/// above them and one for further colours below.
class ZN_API ZNCEColorPopup : public QWidget
{
    Q_OBJECT

public:
    /// Stands for the default, whatever that is.
    static constexpr COLORREF kDefaultColor = 0xFF000000;
    /// Cells beside those of the table, which count from 0.
    static constexpr int kNoCell = -1;
    static constexpr int kCustomCell = -2;  ///< further colours
    static constexpr int kDefaultCell = -3; ///< the default

    /// Shows the colour as the one in force: none of the cells if the table lacks it. An empty text
    /// leaves its cell out.
    ZNCEColorPopup(COLORREF color, COLORREF defaultColor, const QString& defaultText,
                   const QString& customText, QWidget* owner);

    void ShowBelow(const QRect& place); ///< on the screen; above it where there is no room

    int CurrentCell() const { return m_current; } ///< the one under the cursor
    void SetCurrentCell(int cell);                ///< tells of the colour under the cursor
    void Choose(int cell);                        ///< closes the palette; no cell is a cancel

    int CellAt(QPoint place) const; ///< kNoCell beside them
    QRect RectOf(int cell) const;   ///< in the palette, in pixels
    QString NameOf(int cell) const; ///< for a person and a screen reader
    /// Of the default cell kDefaultColor; the colour in force for the custom cell and for none.
    COLORREF ColorOf(int cell) const;

    QSize sizeHint() const override; ///< of the grid with its two texts

Q_SIGNALS:
    void Hovered(COLORREF color); ///< the cursor lies on a cell of that colour
    void Chosen(COLORREF color);  ///< the palette goes
    void CustomWanted();          ///< the person wants the desktop's dialog
    void Cancelled();             ///< closed in another way

protected:
    bool event(QEvent* event) override;           ///< tool tips with the colours' names
    void paintEvent(QPaintEvent* event) override; ///< the cells, the one under the cursor framed
    void mouseMoveEvent(QMouseEvent* event) override;    ///< the cell under it is the current one
    void mousePressEvent(QMouseEvent* event) override;   ///< outside of the palette closes it
    void mouseReleaseEvent(QMouseEvent* event) override; ///< chooses the cell
    void keyPressEvent(QKeyEvent* event) override; ///< arrows move, Enter chooses, Escape closes
    void hideEvent(QHideEvent* event) override;    ///< tells Cancelled, unless a cell was chosen

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
