// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/DocumentMap.h"

#include "engine/looks/MapPreview.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// Pixels of the window. A window of few has the map in a fifth of them, or none.
constexpr int kWidth = 100;
constexpr int kLeast = 40;
constexpr int kShareOfWindow = 5;
constexpr int kRow = 2;
constexpr int kLeft = 4;

constexpr double kInk = 0.7; // of a style's colour, over the ground

constexpr std::chrono::milliseconds
    kRest(40); // keys that are typed on and on are not each followed
constexpr std::chrono::milliseconds kAtOnce(0);
constexpr qint64 kSlice = 2'000'000;  // nanoseconds of drawing in one go
constexpr long kColoured = 16L << 10; // bytes in one go
// Bytes from the last that is coloured. Farther down, where a long line may lie between, the map is
// without colours until the window comes there.
constexpr long kFarthest = 1L << 20;

} // namespace

DocumentMap::DocumentMap(QsciScintillaBase& window, const Raw& raw, SetRoom setRoom)
    : QWidget(&window), m_window(window), m_raw(raw), m_setRoom(std::move(setRoom)), m_picture(raw)
{
    setObjectName(QStringLiteral("documentMap"));
    setAccessibleName(QCoreApplication::translate("DocumentMap", "Document map"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setMouseTracking(true);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DocumentMap::Refresh);
    // Whatever looks other in the window is painted there; what moves it is told at once.
    connect(&window, &Sci::SCN_PAINTED, this, [this] { Soon(kRest); });
    const QScrollBar* bar = window.verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this] {
        EndPreview();
        Soon(kAtOnce);
    });
    connect(bar, &QScrollBar::rangeChanged, this, [this] { Soon(kAtOnce); });
    connect(&window, &Sci::SCN_UPDATEUI, this, [this](int updated) {
        if (updated & (Sci::SC_UPDATE_V_SCROLL | Sci::SC_UPDATE_H_SCROLL))
            EndPreview();
        if (updated & Sci::SC_UPDATE_V_SCROLL)
            Soon(kAtOnce);
    });
    window.installEventFilter(this);
    window.viewport()->installEventFilter(this);
    TakeRoom();
    show();
}

DocumentMap::~DocumentMap() = default;

void DocumentMap::End()
{
    m_window.removeEventFilter(this);
    m_window.viewport()->removeEventFilter(this);
    m_window.disconnect(this);
    m_window.verticalScrollBar()->disconnect(this);
    m_timer.stop();
    EndPreview();
    hide();
    m_setRoom(0);
    deleteLater(); // an event of its own may be what has led here
}

long DocumentMap::Ask(unsigned message, long wParam, long lParam) const
{
    return static_cast<long>(
        m_raw.Send(message, static_cast<std::uintptr_t>(wParam), std::intptr_t{lParam}));
}

void DocumentMap::Soon(std::chrono::milliseconds rest)
{
    if (m_timer.isActive() && m_timer.intervalAsDuration() <= rest)
        return;
    m_timer.start(rest);
}

void DocumentMap::EditBegins(const TextEdit& edit)
{
    if (m_isEdited)
        EditEnds();
    EndPreview();
    m_isEdited = true;
    m_lines = m_raw.LineCount();
    m_bytesBehind = m_raw.Length() + (edit.inserts ? edit.bytes : -edit.bytes);
    m_firstEdited = Ask(Sci::SCI_LINEFROMPOSITION, edit.position);
    m_lastEdited =
        edit.inserts ? m_firstEdited : Ask(Sci::SCI_LINEFROMPOSITION, edit.position + edit.bytes);
}

void DocumentMap::EditEnds()
{
    if (!std::exchange(m_isEdited, false))
        return;
    m_picture.LinesChanged(m_firstEdited, m_lastEdited, m_raw.LineCount() - m_lines);
    Soon(kRest);
}

// The end of an edit may be told behind what is styled because of it.
void DocumentMap::StylesChanged(long position, long bytes)
{
    if (m_isEdited && m_raw.Length() == m_bytesBehind)
        EditEnds();
    m_picture.LinesChanged(Ask(Sci::SCI_LINEFROMPOSITION, position),
                           Ask(Sci::SCI_LINEFROMPOSITION, position + bytes), 0);
    Soon(kRest);
}

void DocumentMap::Forget()
{
    EndPreview();
    m_isEdited = false;
    m_picture.Forget();
    Soon(kAtOnce);
}

// The window's size is known before that of the text is made from it.
bool DocumentMap::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Resize)
        TakeRoom();
    else if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        TakePlace();
    return QWidget::eventFilter(watched, event);
}

void DocumentMap::TakeRoom()
{
    const int width = std::min(kWidth, m_window.width() / kShareOfWindow);
    const int room = width < kLeast ? 0 : width;
    if (std::exchange(m_room, room) != room)
        m_setRoom(room);
    TakePlace();
}

// A viewport that is moved by part of a line is not in the window's height.
void DocumentMap::TakePlace()
{
    EndPreview();
    const QScrollBar& across = *m_window.horizontalScrollBar();
    const QRect text = m_window.viewport()->geometry();
    const int below = across.isVisibleTo(&m_window) ? across.height() : 0;
    setGeometry(text.x() + text.width(), 0, m_room, m_window.height() - below);
    Soon(kAtOnce);
}

double DocumentMap::Top() const
{
    return static_cast<double>(Ask(Sci::SCI_GETFIRSTVISIBLELINE)) -
           static_cast<double>(m_window.viewport()->y()) /
               static_cast<double>(Ask(Sci::SCI_TEXTHEIGHT));
}

MapLayout DocumentMap::CurrentLayout() const
{
    const double scale = devicePixelRatioF();
    MapLayout::Text text;
    text.rows = Ask(Sci::SCI_VISIBLEFROMDOCLINE, m_raw.LineCount());
    text.top = Top();
    text.page = static_cast<double>(height()) / static_cast<double>(Ask(Sci::SCI_TEXTHEIGHT));
    text.last = m_window.verticalScrollBar()->maximum();
    return {static_cast<int>(std::lround(height() * scale)),
            static_cast<int>(std::lround(kRow * scale)), text};
}

MapRow DocumentMap::RowOf(long row) const
{
    const long line = Ask(Sci::SCI_DOCLINEFROMVISIBLE, row);
    const long first = Ask(Sci::SCI_VISIBLEFROMDOCLINE, line);
    const long behind = std::max(Ask(Sci::SCI_VISIBLEFROMDOCLINE, line + 1), row + 1);
    return {line, row - first, behind - first};
}

std::vector<MapRow> DocumentMap::RowsOf(const MapLayout& layout) const
{
    const auto begin = static_cast<long>(layout.FirstRow());
    const long end = begin + layout.RowCount();
    std::vector<MapRow> rows;
    rows.reserve(static_cast<std::size_t>(end - begin));
    for (long row = begin; row < end;) {
        MapRow one = RowOf(row);
        for (; one.part < one.parts && row < end; ++one.part, ++row)
            rows.push_back(one);
    }
    return rows;
}

// The stock engine colours up to the line behind the one whose last child it is asked for, and what
// has no level has none. Told to colour, it would paint the window each time.
bool DocumentMap::Colour(const std::vector<MapRow>& rows) const
{
    const long styled = Ask(Sci::SCI_GETENDSTYLED);
    if (rows.empty() || styled >= m_raw.Length())
        return false;
    const long last = rows.back().line;
    const long start = Ask(Sci::SCI_POSITIONFROMLINE, last);
    const long end = start + std::min(Ask(Sci::SCI_LINELENGTH, last), kColoured);
    if (styled >= end || end - styled > kFarthest)
        return false;
    const long line = std::min(last, Ask(Sci::SCI_LINEFROMPOSITION, styled + kColoured));
    if (line > 0)
        Ask(Sci::SCI_GETLASTCHILD, line - 1, Sci::SC_FOLDLEVELNUMBERMASK);
    return Ask(Sci::SCI_GETENDSTYLED) > styled;
}

// In the middle of an edit neither the lines nor their numbers can be relied on: its end comes back
// here.
bool DocumentMap::Refresh()
{
    if (m_isEdited || !isVisible() || width() == 0)
        return false;
    const double scale = devicePixelRatioF();
    const auto pixels = [scale](double length) {
        return std::max(1, static_cast<int>(std::lround(length * scale)));
    };
    const int row = static_cast<int>(std::lround(kRow * scale));
    const int gap = pixels(0.5);
    m_picture.SetMeasures({pixels(width()), pixels(kLeft), row, std::max(1, row - gap), pixels(1),
                           static_cast<int>(std::max(1L, Ask(Sci::SCI_GETTABWIDTH)))});
    bool hasChanged = m_picture.TakeColours(kInk);
    const MapLayout layout = CurrentLayout();
    const std::vector<MapRow> rows = RowsOf(layout);
    hasChanged |= m_picture.Show(rows);
    hasChanged |= !(std::exchange(m_layout, layout) == layout);
    QElapsedTimer clock;
    clock.start();
    bool isLeft = true;
    while ((isLeft = m_picture.DrawNext()) && clock.nsecsElapsed() < kSlice)
        hasChanged = true;
    if (!isLeft)
        isLeft = Colour(rows);
    if (isLeft)
        Soon(kAtOnce);
    if (hasChanged && m_preview)
        m_preview->Renew();
    if (hasChanged || isLeft)
        update();
    return !isLeft;
}

void DocumentMap::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int kBox = 26;     // alphas
    constexpr int kHotBox = 40;  // with the mouse over it
    constexpr int kDragged = 56; // while it is dragged
    constexpr int kRim = 60;
    QPainter painter(this);
    constexpr int kBorder = 30;
    painter.fillRect(rect(), m_picture.Ground());
    const double scale = devicePixelRatioF();
    painter.scale(1 / scale, 1 / scale); // pixels of the screen from here on
    const QImage& image = m_picture.Image();
    const int rows = m_layout.RowCount();
    if (!image.isNull() && rows > 0) {
        const int height =
            m_layout.TopOf(m_layout.FirstRow() + rows) - m_layout.TopOf(m_layout.FirstRow());
        painter.drawImage(QPoint(0, m_layout.TopOf(m_layout.FirstRow())), image,
                          QRect(0, 0, image.width(), height));
    }
    QColor light = m_picture.Ink();
    light.setAlpha(m_isDragged ? kDragged : m_isHot ? kHotBox : kBox);
    const int top = static_cast<int>(std::lround(m_layout.BoxTop()));
    const int behind = static_cast<int>(std::lround(m_layout.BoxTop() + m_layout.BoxHeight()));
    const int wide = static_cast<int>(std::lround(width() * scale));
    painter.fillRect(0, top, wide, behind - top, light);
    light.setAlpha(kRim);
    const int rim = std::max(1, static_cast<int>(scale));
    painter.fillRect(0, top, wide, rim, light);
    painter.fillRect(0, behind - rim, wide, rim, light);
    light.setAlpha(kBorder);
    painter.fillRect(0, 0, rim, m_layout.Height(), light);
}

void DocumentMap::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Soon(kAtOnce);
}

void DocumentMap::hideEvent(QHideEvent* event)
{
    EndPreview();
    QWidget::hideEvent(event);
}

void DocumentMap::enterEvent(QEnterEvent* event)
{
    QWidget::enterEvent(event);
    m_isHot = true;
    update();
}

void DocumentMap::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    m_isHot = false;
    EndPreview();
    update();
}

// Qt says when the mouse rests, in the time that the desktop has for tool tips.
bool DocumentMap::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    PreviewAt(static_cast<QHelpEvent*>(event)->pos());
    event->accept();
    return true;
}

void DocumentMap::PreviewAt(const QPointF& place)
{
    const MapLayout layout = CurrentLayout();
    const double pixel = place.y() * devicePixelRatioF();
    if (m_isEdited || m_isDragged || m_raw.Length() == 0 || !layout.HasRowAt(pixel)) {
        EndPreview();
        return;
    }
    if (!m_preview)
        m_preview = std::make_unique<MapPreview>(m_window, m_raw);
    m_preview->ShowBeside(QRect(mapToGlobal(QPoint()), size()), mapToGlobal(place.toPoint()).y(),
                          RowOf(static_cast<long>(layout.RowAt(pixel))));
}

void DocumentMap::EndPreview()
{
    if (m_preview)
        m_preview->Gone();
}

double DocumentMap::PixelOf(const QMouseEvent& event) const
{
    return event.position().y() * devicePixelRatioF();
}

void DocumentMap::GoTo(double top) const
{
    m_window.verticalScrollBar()->setValue(static_cast<int>(std::lround(top)));
}

// A press beside the box brings it there, from where it can be dragged on.
void DocumentMap::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    m_pressedAt = PixelOf(*event);
    m_pressedTop = Top();
    const MapLayout layout = CurrentLayout();
    if (m_pressedAt < layout.BoxTop() || m_pressedAt >= layout.BoxTop() + layout.BoxHeight()) {
        m_pressedTop = layout.TopAround(m_pressedAt);
        GoTo(m_pressedTop);
    }
    m_isDragged = true;
    update();
}

void DocumentMap::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (m_isDragged)
        GoTo(CurrentLayout().TopAfter(m_pressedTop, PixelOf(*event) - m_pressedAt));
    else if (m_preview && m_preview->isVisible())
        PreviewAt(event->position());
}

void DocumentMap::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || !m_isDragged)
        return;
    m_isDragged = false;
    update();
}

// The text's own, zoom included.
void DocumentMap::wheelEvent(QWheelEvent* event)
{
    QWidget& text = *m_window.viewport();
    QWheelEvent turn(text.mapFromGlobal(event->globalPosition()), event->globalPosition(),
                     event->pixelDelta(), event->angleDelta(), event->buttons(), event->modifiers(),
                     event->phase(), event->inverted(), event->source(),
                     static_cast<const QPointingDevice*>(event->device()));
    QCoreApplication::sendEvent(&text, &turn);
    event->setAccepted(turn.isAccepted());
}

// There is none here, nor one of whoever is around the window.
void DocumentMap::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

} // namespace engine
