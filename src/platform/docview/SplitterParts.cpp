// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/SplitterParts.h"

#include "platform/docview/SplitterWnd.h"
#include "platform/windows/DeviceContext.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int kBarWidth = 7; // pixels, wide enough to be seen between two texts

RECT ToRect(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

class PaneBar final : public QSplitterHandle
{
public:
    PaneBar(Qt::Orientation orientation, PaneSplitter* parent)
        : QSplitterHandle(orientation, parent)
    {}

protected:
    PaneSplitter& Panes() const { return static_cast<PaneSplitter&>(*splitter()); }
    bool IsRowBar() const { return orientation() == Qt::Vertical; }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        CDC dc(painter);
        CSplitterWnd& owner = Panes().Owner();
        owner.OnDrawSplitter(&dc, CSplitterWnd::splitBar, ToRect(rect()));
        for (int column = 1; IsRowBar() && column < owner.GetColumnCount(); ++column) {
            const QWidget* pane =
                owner.GetPane(0, column) ? owner.GetPane(0, column)->GetSafeHwnd() : nullptr;
            if (!pane)
                continue;
            const int left = pane->mapTo(&Panes(), QPoint(0, 0)).x() - kBarWidth;
            owner.OnDrawSplitter(&dc, CSplitterWnd::splitIntersection,
                                 ToRect(QRect(left, 0, kBarWidth, height())));
        }
    }

    // The owner may take the bar away.
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        CSplitterWnd& owner = Panes().Owner();
        const bool isRowBar = IsRowBar();
        QSplitterHandle::mouseReleaseEvent(event);
        QMetaObject::invokeMethod(
            owner.GetSafeHwnd(), [&owner, isRowBar] { owner.OnBarReleased(isRowBar); },
            Qt::QueuedConnection);
    }

    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override
    {
        CSplitterWnd& owner = Panes().Owner();
        const int index = Panes().indexOf(this);
        QMetaObject::invokeMethod(
            owner.GetSafeHwnd(),
            [&owner, isRowBar = IsRowBar(), index] { owner.OnBarDoubleClicked(isRowBar, index); },
            Qt::QueuedConnection);
    }
};

} // namespace

PaneSplitter::PaneSplitter(Qt::Orientation orientation, CSplitterWnd& owner, QWidget* parent)
    : QSplitter(orientation, parent), m_owner(owner)
{
    setHandleWidth(kBarWidth);
}

QSplitterHandle* PaneSplitter::createHandle()
{
    return new PaneBar(orientation(), this);
}

void PaneSplitter::paintEvent(QPaintEvent* /*event*/)
{
    if (this != m_owner.GetSafeHwnd())
        return;
    QPainter painter(this);
    CDC dc(painter);
    m_owner.OnDrawSplitter(&dc, CSplitterWnd::splitBorder, ToRect(rect()));
}

SplitBox::SplitBox(bool forRows, CSplitterWnd& owner) : m_forRows(forRows), m_owner(owner)
{
    // All that is left belongs to the scroll bar.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(forRows ? Qt::SplitVCursor : Qt::SplitHCursor);
    setObjectName(forRows ? QStringLiteral("rowBox") : QStringLiteral("columnBox"));
    setToolTip(forRows ? tr("Drag down to divide the text into two panes")
                       : tr("Drag to the right to divide the text into two panes"));
    setAccessibleName(forRows ? tr("Divide above and below") : tr("Divide side by side"));
}

QSize SplitBox::sizeHint() const
{
    const int extent = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return m_forRows ? QSize(extent, kBarWidth) : QSize(kBarWidth, extent);
}

void SplitBox::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    CDC dc(painter);
    m_owner.OnDrawSplitter(&dc, CSplitterWnd::splitBox, ToRect(rect()));
}

int SplitBox::PlaceOf(const QMouseEvent& event) const
{
    const QPoint place = m_owner.GetSafeHwnd()->mapFromGlobal(event.globalPosition().toPoint());
    return m_forRows ? place.y() : place.x();
}

void SplitBox::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Not the splitter's child, which would be a pane.
    m_line = new QRubberBand(QRubberBand::Line, m_owner.GetSafeHwnd()->window());
    connect(this, &QObject::destroyed, [line = m_line] { delete line; });
    mouseMoveEvent(event);
    m_line->show();
}

void SplitBox::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_line)
        return;
    const QWidget& panes = *m_owner.GetSafeHwnd();
    const int place = PlaceOf(*event) - kBarWidth / 2;
    const QRect line = m_forRows ? QRect(0, place, panes.width(), kBarWidth)
                                 : QRect(place, 0, kBarWidth, panes.height());
    m_line->setGeometry(QRect(panes.mapTo(panes.window(), line.topLeft()), line.size()));
}

void SplitBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_line)
        return;
    delete m_line;
    const int place = PlaceOf(*event);
    const QRect all = m_owner.GetSafeHwnd()->rect();
    const int end = m_forRows ? all.height() : all.width();
    if (place > 2 * kBarWidth && place < end - 2 * kBarWidth)
        Divide(place);
}

void SplitBox::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    delete m_line;
    Divide(0);
}

// Later: the box goes by it.
void SplitBox::Divide(int place)
{
    QMetaObject::invokeMethod(
        m_owner.GetSafeHwnd(),
        [&owner = m_owner, forRows = m_forRows, place] {
            if (forRows)
                owner.SplitRow(place);
            else
                owner.SplitColumn(place);
        },
        Qt::QueuedConnection);
}
