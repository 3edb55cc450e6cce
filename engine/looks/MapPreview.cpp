// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/MapPreview.h"

#include "engine/looks/PreviewPainter.h"
#include "engine/text/Characters.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kLines = 11;
constexpr double kShareOfWindow = 0.6;
constexpr double kShareOfScreen = 0.8;
constexpr int kGap = 6;          // pixels beside the map
constexpr int kLeast = 60;       // pixels, of a preview that tells anything
constexpr long kFarthest = 4096; // bytes of a line that are looked at
constexpr double kNarrowest = 3; // times as narrow as a blank is a letter, at most
constexpr QChar kCut(u'\u2026');

// What is left of a screen on both sides of the map: the first pixel behind the one, the first of
// the other.
struct Sides
{
    Sides(const QRect& map, const QRect& screen)
        : behindLeft(std::min(map.x() - kGap, screen.x() + screen.width())),
          right(std::max(map.x() + map.width() + kGap, screen.x())),
          roomLeft(behindLeft - screen.x()), roomRight(screen.x() + screen.width() - right)
    {}

    int behindLeft;
    int right;
    int roomLeft;
    int roomRight;
};

} // namespace

QRect PlaceBeside(const QRect& map, const QRect& screen, const QSize& size, int mouse, int lit)
{
    const Sides sides(map, screen);
    const bool isLeft = sides.roomLeft >= size.width() || sides.roomLeft >= sides.roomRight;
    const int width = std::min(size.width(), isLeft ? sides.roomLeft : sides.roomRight);
    if (width < std::min(kLeast, size.width()))
        return {};
    const int height = std::min(size.height(), screen.height());
    const int top = std::clamp(mouse - lit, screen.y(), screen.y() + screen.height() - height);
    return {isLeft ? sides.behindLeft - width : sides.right, top, width, height};
}

MapPreview::MapPreview(const QsciScintillaBase& window, const Raw& raw)
    : m_window(window), m_raw(raw)
{
    setObjectName(QStringLiteral("mapPreview"));
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus |
             Qt::WindowTransparentForInput);
}

long MapPreview::Ask(unsigned message, long wParam, long lParam) const
{
    return static_cast<long>(
        m_raw.Send(message, static_cast<std::uintptr_t>(wParam), std::intptr_t{lParam}));
}

// A hidden line is nobody's neighbour.
PreviewLines MapPreview::LinesAround(long line, std::size_t wanted) const
{
    const long rows = Ask(Sci::SCI_VISIBLEFROMDOCLINE, m_raw.LineCount());
    const auto before = [this](long from) {
        const long row = Ask(Sci::SCI_VISIBLEFROMDOCLINE, from);
        return row > 0 ? Ask(Sci::SCI_DOCLINEFROMVISIBLE, row - 1) : -1;
    };
    const auto behind = [this, rows](long from) {
        const long row = Ask(Sci::SCI_VISIBLEFROMDOCLINE, from + 1);
        const long next = row < rows ? Ask(Sci::SCI_DOCLINEFROMVISIBLE, row) : -1;
        return next > from ? next : -1;
    };
    return engine::LinesAround(line, wanted, before, behind);
}

QString MapPreview::TextInsteadOf(const QByteArray& character) const
{
    const auto key = reinterpret_cast<std::uintptr_t>(character.constData());
    const auto length = m_raw.Send(Sci::SCI_GETREPRESENTATION, key);
    if (length <= 0)
        return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    m_raw.Send(Sci::SCI_GETREPRESENTATION, key, text.data());
    return QString::fromUtf8(text.c_str());
}

// The part that is meant of a wrapped line begins, as on the map, where it would if all were as
// long.
long MapPreview::StartOf(long line, long first, long end) const
{
    const bool isInside = line == m_row.line && m_row.part > 0 && Ask(Sci::SCI_GETWRAPMODE);
    return isInside ? CharacterStart(m_raw, first + (end - first) * m_row.part / m_row.parts)
                    : first;
}

PreviewRow MapPreview::Read(long line, long mostCharacters) const
{
    const long first = Ask(Sci::SCI_POSITIONFROMLINE, line);
    const long end = Ask(Sci::SCI_GETLINEENDPOSITION, line);
    const long start = StartOf(line, first, end);
    const long behind = CharacterStart(m_raw, std::min(end, start + kFarthest));
    std::vector<char> cells(2 * static_cast<std::size_t>(behind - start) + 2);
    struct
    {
        long start, end;
        char* cells;
    } range{start, behind, cells.data()};
    m_raw.Send(Sci::SCI_GETSTYLEDTEXT, 0, &range);
    cells.resize(cells.size() - 2); // the terminator
    const int tab = static_cast<int>(std::max(1L, Ask(Sci::SCI_GETTABWIDTH)));
    PreviewRow row = ReadPreviewRow(cells, tab, mostCharacters,
                                    [this](const QByteArray& one) { return TextInsteadOf(one); });
    if (start > first) {
        row.indent = PreviewRow::kBlank;
        row.pieces.insert(row.pieces.begin(),
                          {PreviewPiece::Kind::Text, Sci::STYLE_DEFAULT, QString(kCut)});
    }
    return row;
}

void MapPreview::ShowBeside(const QRect& map, int mouse, const MapRow& row)
{
    m_map = map;
    m_mouse = mouse;
    m_row = row;
    Draw();
    if (m_picture.isNull()) {
        Gone();
        return;
    }
    if (!isVisible()) {
        QCoreApplication::instance()->installEventFilter(this);
        show();
    }
}

void MapPreview::Renew()
{
    if (isVisible())
        Draw();
}

void MapPreview::Gone()
{
    if (!isVisible())
        return;
    QCoreApplication::instance()->removeEventFilter(this);
    hide();
    m_width = 0;
    m_picture = QImage();
}

void MapPreview::Draw()
{
    QScreen* screen = QGuiApplication::screenAt({m_map.center().x(), m_mouse});
    if (!screen)
        screen = m_window.screen();
    const QRect room = screen->availableGeometry();
    constexpr int kBeside = 2 * PreviewPainter::kPadding;
    constexpr int kAbove = PreviewPainter::kAbove;
    PreviewPainter painter(m_raw);
    const Sides sides(m_map, room);
    const int widest = std::min(static_cast<int>(m_window.width() * kShareOfWindow),
                                std::max({sides.roomLeft, sides.roomRight, kLeast}));
    const int mostRows = static_cast<int>(room.height() * kShareOfScreen) / painter.RowHeight();
    const PreviewLines lines =
        LinesAround(m_row.line, static_cast<std::size_t>(std::clamp(mostRows, 1, kLines)));
    const auto mostCharacters =
        static_cast<long>(kNarrowest * std::max(0, widest - kBeside) / painter.ColumnWidth()) + 1;
    std::vector<PreviewRow> rows;
    for (const long line : lines.lines)
        rows.push_back(Read(line, mostCharacters));
    painter.Lay(std::move(rows), std::max(0, widest - kBeside));
    m_width = std::clamp(painter.TextWidth() + kBeside, std::min(m_width, widest), widest);
    const int height = static_cast<int>(lines.lines.size()) * painter.RowHeight() + 2 * kAbove;
    const int lit =
        kAbove + static_cast<int>(lines.meant) * painter.RowHeight() + painter.RowHeight() / 2;
    const QRect place = PlaceBeside(m_map, room, {m_width, height}, m_mouse, lit);
    if (place.isEmpty()) {
        m_picture = QImage();
        return;
    }
    m_picture = painter.Paint(place.size(), m_window.devicePixelRatioF(), lines.meant);
    if (!isVisible()) {
        setScreen(screen);
        setTransientParent(m_window.window()->windowHandle());
    }
    setGeometry(place);
    update();
}

void MapPreview::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawImage(QPoint(0, 0), m_picture);
}

// Of the whole application, as long as it is shown.
bool MapPreview::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked:
    case QEvent::ApplicationStateChange:
        Gone();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (watched == m_window.window())
            Gone();
        break;
    default:
        break;
    }
    return QRasterWindow::eventFilter(watched, event);
}

} // namespace engine
