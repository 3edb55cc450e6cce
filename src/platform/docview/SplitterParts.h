// SPDX-License-Identifier: GPL-3.0-or-later
// What a CSplitterWnd is put together from: splitters whose bars it draws, and the boxes that new
// bars are drawn out of.
#pragma once

#include "common/Export.h"

#include <QPointer>
#include <QRubberBand>
#include <QSplitter>

class CSplitterWnd;

class ZN_API PaneSplitter final : public QSplitter
{
    Q_OBJECT

public:
    PaneSplitter(Qt::Orientation orientation, CSplitterWnd& owner, QWidget* parent);

    CSplitterWnd& Owner() const { return m_owner; }

protected:
    QSplitterHandle* createHandle() override;
    void paintEvent(QPaintEvent* event) override;

private:
    CSplitterWnd& m_owner; // lives as long: it takes its window along
};

// A small handle beside a scroll bar. Drawing it into the pane divides that; a double click divides
// it in the middle.
class ZN_API SplitBox final : public QWidget
{
    Q_OBJECT

public:
    // For rows it stands above a vertical bar, for columns left of a horizontal one.
    SplitBox(bool forRows, CSplitterWnd& owner);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int PlaceOf(const QMouseEvent& event) const; // in the splitter, along what is divided
    void Divide(int place);

    const bool m_forRows;
    CSplitterWnd& m_owner;
    QPointer<QRubberBand> m_line;
};
