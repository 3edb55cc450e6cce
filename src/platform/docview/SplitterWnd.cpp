// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/SplitterWnd.h"

#include "platform/docview/CreateContext.h"
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/SplitterParts.h"
#include "platform/docview/View.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/VisualManager.h"

#include <QAbstractScrollArea>
#include <QApplication>

namespace {

constexpr int kLeastPane = 24; // pixels, of a line of text

// The sizes of a splitter that gets one more pane by dividing its last one.
QList<int> Divided(QList<int> sizes, int bar, int before)
{
    const int last = sizes.takeLast();
    int first = before;
    for (const int size : sizes)
        first -= size + bar;
    if (first < kLeastPane || last - bar - first < kLeastPane)
        first = (last - bar) / 2;
    return sizes << first << last - bar - first;
}

} // namespace

CSplitterWnd::CSplitterWnd() = default;

CSplitterWnd::~CSplitterWnd()
{
    DestroyWindow();
}

CSplitterWnd* CSplitterWnd::Around(HWND pane)
{
    const auto* row = qobject_cast<PaneSplitter*>(GetParent(pane));
    return row ? &row->Owner() : nullptr;
}

bool CSplitterWnd::MakeWindow(HWND parent, int rows, int columns)
{
    const auto isCount = [](int count) { return count >= 1 && count <= kMostPanes; };
    if (GetSafeHwnd() || !isCount(rows) || !isCount(columns))
        return false;
    m_maxRows = rows;
    m_maxColumns = columns;
    m_panes = new PaneSplitter(Qt::Vertical, *this, parent);
    return Attach(m_panes);
}

bool CSplitterWnd::Create(HWND parent, int maxRows, int maxColumns, const CCreateContext& context)
{
    if (!MakeWindow(parent, maxRows, maxColumns))
        return false;
    m_isDynamic = true;
    m_rows = m_columns = 1;
    AddRow();
    if (!CreateView(0, 0, context))
        return false;
    PlaceBoxes();
    return true;
}

bool CSplitterWnd::CreateStatic(HWND parent, int rows, int columns)
{
    if (!MakeWindow(parent, rows, columns))
        return false;
    m_rows = rows;
    m_columns = columns;
    m_panes->setChildrenCollapsible(false);
    for (int row = 0; row < rows; ++row)
        AddRow();
    return true;
}

// Columns are as wide in every row.
void CSplitterWnd::AddRow()
{
    auto* inRow = new PaneSplitter(Qt::Horizontal, *this, m_panes);
    inRow->setChildrenCollapsible(m_isDynamic);
    m_panes->addWidget(inRow);
    QObject::connect(inRow, &QSplitter::splitterMoved, inRow, [this, inRow] {
        for (int row = 0; row < m_rows; ++row) {
            if (RowAt(row) && RowAt(row) != inRow)
                RowAt(row)->setSizes(inRow->sizes());
        }
    });
}

PaneSplitter* CSplitterWnd::RowAt(int row) const
{
    return m_panes ? static_cast<PaneSplitter*>(m_panes->widget(row)) : nullptr;
}

bool CSplitterWnd::CreateView(int row, int column, const CCreateContext& context)
{
    PaneSplitter* inRow = row >= 0 && row < m_rows ? RowAt(row) : nullptr;
    if (!inRow || column < 0 || column >= m_columns || GetPane(row, column) ||
        !context.m_pNewViewClass)
        return false;
    CObject* object = context.m_pNewViewClass->CreateObject();
    auto* view = dynamic_cast<CView*>(object);
    if (!view) {
        delete object;
        return false;
    }
    CCreateContext own = context;
    if (!view->CreateViewIn(inRow, &own)) {
        Disposal::Later(view, nullptr);
        return false;
    }
    SetDlgCtrlID(view->GetSafeHwnd(), static_cast<UINT>(IdFromRowCol(row, column)));
    inRow->insertWidget(column, view->GetSafeHwnd());
    return true;
}

// By number, since the widgets of a row may be made in any order.
CWnd* CSplitterWnd::GetPane(int row, int column) const
{
    const PaneSplitter* inRow = row >= 0 && row < m_rows ? RowAt(row) : nullptr;
    for (int i = 0; inRow && i < inRow->count(); ++i) {
        CWnd* pane = AttachedWnd(inRow->widget(i));
        if (pane && static_cast<int>(GetDlgCtrlID(inRow->widget(i))) == IdFromRowCol(row, column))
            return pane;
    }
    return nullptr;
}

CView* CSplitterWnd::ViewAt(int row, int column) const
{
    return dynamic_cast<CView*>(GetPane(row, column));
}

bool CSplitterWnd::IsChildPane(const CWnd* pane, int* row, int* column) const
{
    if (!pane || Around(pane->GetSafeHwnd()) != this)
        return false;
    const int number = static_cast<int>(GetDlgCtrlID(pane->GetSafeHwnd())) - kFirstPane;
    if (row)
        *row = number / kPanesInRow;
    if (column)
        *column = number % kPanesInRow;
    return true;
}

// A pane beside, above or below one that is there, for its document.
bool CSplitterWnd::MakePane(int row, int column)
{
    CView* divided = GetActivePane();
    CDocument* document = divided ? divided->GetDocument() : nullptr;
    CCreateContext context{divided ? divided->GetRuntimeClass() : nullptr, document,
                           document ? document->GetDocTemplate() : nullptr,
                           divided ? divided->GetParentFrame() : nullptr};
    return CreateView(row, column, context);
}

bool CSplitterWnd::SplitRow(int before)
{
    CView* divided = GetActivePane();
    if (!m_isDynamic || m_rows >= m_maxRows || !divided)
        return false;
    const FrameworkCall call;
    const QPointer<PaneSplitter> alive = m_panes;
    const QList<int> sizes = Divided(m_panes->sizes(), m_panes->handleWidth(), before);
    const QList<int> columns = RowAt(0)->sizes();
    AddRow();
    const int row = m_rows++;
    for (int column = 0; column < m_columns; ++column) {
        if (!MakePane(row, column)) {
            DeleteRow(row);
            return false;
        }
    }
    m_panes->setSizes(sizes);
    RowAt(row)->setSizes(columns);
    PlaceBoxes();
    for (int column = 0; column < m_columns && alive; ++column) {
        CView* above = ViewAt(row - 1, column);
        if (CView* made = ViewAt(row, column))
            OnPaneMade(*made, m_columns == 1 || !above ? *divided : *above);
    }
    return true;
}

bool CSplitterWnd::SplitColumn(int before)
{
    CView* divided = GetActivePane();
    if (!m_isDynamic || m_columns >= m_maxColumns || !divided)
        return false;
    const FrameworkCall call;
    const QPointer<PaneSplitter> alive = m_panes;
    const QList<int> sizes = Divided(RowAt(0)->sizes(), m_panes->handleWidth(), before);
    const int column = m_columns++;
    for (int row = 0; row < m_rows; ++row) {
        if (!MakePane(row, column)) {
            DeleteColumn(column);
            return false;
        }
    }
    for (int row = 0; row < m_rows; ++row)
        RowAt(row)->setSizes(sizes);
    PlaceBoxes();
    for (int row = 0; row < m_rows && alive; ++row) {
        CView* beside = ViewAt(row, column - 1);
        if (CView* made = ViewAt(row, column))
            OnPaneMade(*made, m_rows == 1 || !beside ? *divided : *beside);
    }
    return true;
}

void CSplitterWnd::Destroy(int row, int column)
{
    CWnd* pane = GetPane(row, column);
    if (!pane)
        return;
    const QPointer<QWidget> window = pane->GetSafeHwnd();
    pane->DestroyWindow();
    if (window) // it waits for its end, and has no place here any more
        window->setParent(nullptr);
}

void CSplitterWnd::DeleteRow(int row)
{
    if (m_rows < 2 || row < 0 || row >= m_rows)
        return;
    const FrameworkCall call;
    for (int column = 0; column < m_columns; ++column)
        Destroy(row, column);
    PaneSplitter* gone = RowAt(row);
    gone->setParent(nullptr);
    Disposal::Later(nullptr, gone);
    --m_rows;
    Renumber();
}

void CSplitterWnd::DeleteColumn(int column)
{
    if (m_columns < 2 || column < 0 || column >= m_columns)
        return;
    const FrameworkCall call;
    for (int row = 0; row < m_rows; ++row)
        Destroy(row, column);
    --m_columns;
    Renumber();
}

// The panes that are left stand in their order.
void CSplitterWnd::Renumber()
{
    for (int row = 0; row < m_rows; ++row) {
        const PaneSplitter* inRow = RowAt(row);
        for (int column = 0; column < inRow->count(); ++column)
            SetDlgCtrlID(inRow->widget(column), static_cast<UINT>(IdFromRowCol(row, column)));
    }
    PlaceBoxes();
    if (CView* view = GetActivePane())
        view->SetFocus();
}

CView* CSplitterWnd::GetActivePane(int* row, int* column) const
{
    CView* first = nullptr;
    CView* last = nullptr;
    for (int r = 0; r < m_rows; ++r) {
        for (int c = 0; c < m_columns; ++c) {
            CView* view = ViewAt(r, c);
            if (!view)
                continue;
            const CFrameWnd* frame = view->GetParentFrame();
            if (!first)
                first = view;
            if (frame && frame->GetActiveView() == view)
                last = view;
        }
    }
    CView* active = last ? last : first;
    IsChildPane(active, row, column);
    return active;
}

void CSplitterWnd::SetActivePane(int row, int column)
{
    CView* view = ViewAt(row, column);
    if (!view)
        return;
    if (CFrameWnd* frame = view->GetParentFrame())
        frame->SetActiveView(view);
    view->SetFocus();
}

void CSplitterWnd::ActivateNext(bool backwards)
{
    int row = 0;
    int column = 0;
    const int count = m_rows * m_columns;
    if (count < 1 || !GetActivePane(&row, &column))
        return;
    const int next = (row * m_columns + column + (backwards ? count - 1 : 1)) % count;
    SetActivePane(next / m_columns, next % m_columns);
}

// Boxes stand where another bar may be drawn from: beside the bars of the first row and column.
void CSplitterWnd::PlaceBoxes()
{
    if (!m_panes || !m_isDynamic)
        return;
    qDeleteAll(m_panes->findChildren<SplitBox*>());
    const auto place = [this](const CWnd* pane, bool forRows) {
        auto* area = pane ? pane->GetSafeHwnd()->findChild<QAbstractScrollArea*>() : nullptr;
        if (area)
            area->addScrollBarWidget(new SplitBox(forRows, *this),
                                     forRows ? Qt::AlignTop : Qt::AlignLeft);
    };
    if (m_rows < m_maxRows)
        place(GetPane(0, m_columns - 1), true);
    if (m_columns < m_maxColumns)
        place(GetPane(m_rows - 1, 0), false);
}

void CSplitterWnd::OnBarReleased(bool isRowBar)
{
    if (!m_isDynamic || !m_panes)
        return;
    const QList<int> sizes = isRowBar ? m_panes->sizes() : RowAt(0)->sizes();
    const auto drawnToNothing = sizes.indexOf(0);
    if (drawnToNothing < 0)
        return;
    if (isRowBar)
        DeleteRow(static_cast<int>(drawnToNothing));
    else
        DeleteColumn(static_cast<int>(drawnToNothing));
}

// The part that is not active goes.
void CSplitterWnd::OnBarDoubleClicked(bool isRowBar, int index)
{
    int row = 0;
    int column = 0;
    if (!m_isDynamic || !GetActivePane(&row, &column))
        return;
    if (isRowBar)
        DeleteRow(row == index ? index - 1 : index);
    else
        DeleteColumn(column == index ? index - 1 : index);
}

void CSplitterWnd::OnPaneMade(CView& made, CView& /*divided*/)
{
    made.OnInitialUpdate();
}

void CSplitterWnd::OnDrawSplitter(CDC* dc, ESplitType /*type*/, const RECT& rect)
{
    if (dc)
        CBCGPVisualManager::GetInstance()->OnFillSplitterBackground(*dc, *this, rect);
    else
        RedrawWindow(GetSafeHwnd(), &rect, RDW_INVALIDATE | RDW_ALLCHILDREN);
}
