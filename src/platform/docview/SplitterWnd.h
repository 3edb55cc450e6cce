// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CSplitterWnd: panes of views in rows and columns. A QSplitter for the rows stands behind it,
/// with one for the columns in each row.
#pragma once

#include "platform/windows/Wnd.h"

#include <QPointer>

class CDC;
class CView;
class PaneSplitter;

/// Rows and columns count from 0. The panes are views that go by themselves; a splitter goes with
/// its window, or takes that along.
class ZN_API CSplitterWnd : public CWnd
{
public:
    /// The parts that a splitter draws.
    enum ESplitType
    {
        splitBox = 0,          ///< beside a scroll bar, to be drawn out of
        splitBar = 1,          ///< between two panes
        splitIntersection = 2, ///< where two bars cross
        splitBorder = 3        ///< around a pane
    };

    /// A pane's child identifier is kFirstPane + kPanesInRow * row + column.
    static constexpr int kFirstPane = 59648;
    static constexpr int kPanesInRow = 16; ///< identifiers of a row
    static constexpr int kMostPanes = 16;  ///< in a row and in a column

    CSplitterWnd(); ///< without a window
    ~CSplitterWnd() override;

    /// The splitter whose pane the window is; null if it is none.
    static CSplitterWnd* Around(HWND pane);

    using CWnd::Create;
    /// A splitter that the user divides: one pane, of the context's view class, and as many rows
    /// and columns as are allowed. False if the numbers are none or the view cannot be made.
    bool Create(HWND parent, int maxRows, int maxColumns, const CCreateContext& context);
    /// A fixed number of panes, which CreateView fills.
    bool CreateStatic(HWND parent, int rows, int columns);
    /// A view of the context's class in the pane. False if the pane has one, or it cannot be made.
    virtual bool CreateView(int row, int column, const CCreateContext& context);

    int GetRowCount() const { return m_rows; }         ///< rows that there are
    int GetColumnCount() const { return m_columns; }   ///< columns that there are
    int GetMaxRows() const { return m_maxRows; }       ///< rows that are allowed
    int GetMaxColumns() const { return m_maxColumns; } ///< columns that are allowed
    CWnd* GetPane(int row, int column) const;          ///< null if there is none
    /// The child identifier of a pane.
    static int IdFromRowCol(int row, int column) { return kFirstPane + kPanesInRow * row + column; }
    /// Whether it is a pane, and which one; row and column may be null.
    bool IsChildPane(const CWnd* pane, int* row, int* column) const;

    /// Divides the last row, or column, at the place in it, in pixels; one that leaves no room for
    /// either part divides it in the middle. False if there are as many as are allowed already.
    virtual bool SplitRow(int before);
    virtual bool SplitColumn(int before); ///< the same for the last column
    /// The panes of the row go, as long as another one is left.
    virtual void DeleteRow(int row);
    virtual void DeleteColumn(int column); ///< the same for the panes of the column

    /// The pane that has, or had last, the focus; the first one if none had.
    CView* GetActivePane(int* row = nullptr, int* column = nullptr) const;
    void SetActivePane(int row, int column);                        ///< gives it the focus
    bool CanActivateNext() const { return m_rows * m_columns > 1; } ///< there is more than one pane
    void ActivateNext(bool backwards = false);                      ///< row by row

    /// Draws a part of the splitter; without a context, has it painted again.
    virtual void OnDrawSplitter(CDC* dc, ESplitType type, const RECT& rect);

    /// From the bars: what the user has drawn to nothing goes, and a double click joins.
    void OnBarReleased(bool isRowBar);
    /// The panes on one side of the bar go; the active ones stay.
    void OnBarDoubleClicked(bool isRowBar, int index);

protected:
    /// A pane has been made by dividing another one; it stands in its place. Shows it its document.
    virtual void OnPaneMade(CView& made, CView& divided);

private:
    bool MakeWindow(HWND parent, int rows, int columns);
    void AddRow();
    bool MakePane(int row, int column);
    PaneSplitter* RowAt(int row) const;
    CView* ViewAt(int row, int column) const;
    void Destroy(int row, int column);
    void Renumber();
    void PlaceBoxes();

    QPointer<PaneSplitter> m_panes;
    int m_maxRows = 0;
    int m_maxColumns = 0;
    int m_rows = 0;
    int m_columns = 0;
    bool m_isDynamic = false;
};
