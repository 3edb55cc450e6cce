// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What a CSplitterWnd is put together from: splitters whose bars it draws, and the boxes that new
/// bars are drawn out of.
#pragma once

#include "common/Export.h"

#include <QPointer>
#include <QRubberBand>
#include <QSplitter>

class CSplitterWnd;

/// A splitter for rows, or for the columns of one row.
class ZN_API PaneSplitter final : public QSplitter
{
    Q_OBJECT

public:
    /// Owned by the parent.
    PaneSplitter(Qt::Orientation orientation, CSplitterWnd& owner, QWidget* parent);

    CSplitterWnd& Owner() const { return m_owner; } ///< whose panes it has

protected:
    QSplitterHandle* createHandle() override;     ///< a bar that the owner draws
    void paintEvent(QPaintEvent* event) override; ///< the owner draws what lies between the panes

private:
    CSplitterWnd& m_owner; // lives as long: it takes its window along
};

/// A small handle beside a scroll bar. Drawing it into the pane divides that; a double click
/// divides it in the middle.
class ZN_API SplitBox final : public QWidget
{
    Q_OBJECT

public:
    /// For rows it stands above a vertical bar, for columns left of a horizontal one.
    SplitBox(bool forRows, CSplitterWnd& owner);

    QSize sizeHint() const override; ///< as wide as a scroll bar, and thin

protected:
    void paintEvent(QPaintEvent* event) override;            ///< draws the box
    void mousePressEvent(QMouseEvent* event) override;       ///< begins to draw a bar out
    void mouseMoveEvent(QMouseEvent* event) override;        ///< shows where the bar would stand
    void mouseReleaseEvent(QMouseEvent* event) override;     ///< divides the pane there
    void mouseDoubleClickEvent(QMouseEvent* event) override; ///< divides the pane in the middle

private:
    int PlaceOf(const QMouseEvent& event) const; // in the splitter, along what is divided
    void Divide(int place);

    const bool m_forRows;
    CSplitterWnd& m_owner;
    QPointer<QRubberBand> m_line;
};
