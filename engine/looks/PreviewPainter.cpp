// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/PreviewPainter.h"

#include "platform/base/Colours.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr double kSmaller = 0.9;
constexpr double kLeastPoints = 8;                      // that can be read
constexpr double kMostPoints = 16;                      // beyond which eleven lines fill a screen
constexpr double kParts = Sci::SC_FONT_SIZE_MULTIPLIER; // of a point
constexpr QChar kCut(u'\u2026');

QColor Mixed(const QColor& ground, const QColor& ink, double share)
{
    const auto part = [share](int from, int to) {
        return from + static_cast<int>(std::lround((to - from) * share));
    };
    return {part(ground.red(), ink.red()), part(ground.green(), ink.green()),
            part(ground.blue(), ink.blue())};
}

// As much of a text as has room.
QString Fitting(QString text, const QFontMetricsF& metrics, double room)
{
    const double width = metrics.horizontalAdvance(text);
    if (width > room) // most letters are about as wide as others
        text.truncate(
            static_cast<qsizetype>(static_cast<double>(text.size()) * std::max(0.0, room) / width) +
            2);
    while (!text.isEmpty() &&
           (text.back().isHighSurrogate() || metrics.horizontalAdvance(text) > room))
        text.chop(1);
    return text;
}

QFont::Capitalization CaseOf(long stock)
{
    switch (stock) {
    case Sci::SC_CASE_UPPER:
        return QFont::AllUppercase;
    case Sci::SC_CASE_LOWER:
        return QFont::AllLowercase;
    default:
        return QFont::MixedCase;
    }
}

} // namespace

PreviewPainter::PreviewPainter(const Raw& raw) : m_raw(raw)
{
    constexpr int kText = Sci::STYLE_DEFAULT;
    m_ground = ToQColor(static_cast<COLORREF>(Ask(Sci::SCI_STYLEGETBACK, kText)));
    m_ink = ToQColor(static_cast<COLORREF>(Ask(Sci::SCI_STYLEGETFORE, kText)));
    const double points =
        std::max(2.0, static_cast<double>(Ask(Sci::SCI_STYLEGETSIZEFRACTIONAL, kText)) / kParts +
                          static_cast<double>(Ask(Sci::SCI_GETZOOM)));
    m_share = std::clamp(points * kSmaller, kLeastPoints, kMostPoints) / points;
    m_column = std::max(1.0, LookOf(kText).metrics.horizontalAdvance(u' '));
    m_rowHeight = static_cast<int>(std::ceil(std::max(
        static_cast<double>(Ask(Sci::SCI_TEXTHEIGHT)) * m_share, LookOf(kText).metrics.height())));
}

long PreviewPainter::Ask(unsigned message, long wParam, long lParam) const
{
    return static_cast<long>(
        m_raw.Send(message, static_cast<std::uintptr_t>(wParam), std::intptr_t{lParam}));
}

QFont PreviewPainter::FontOf(int style) const
{
    std::string face(static_cast<std::size_t>(Ask(Sci::SCI_STYLEGETFONT, style)) + 1, '\0');
    m_raw.Send(Sci::SCI_STYLEGETFONT, static_cast<std::uintptr_t>(style), face.data());
    QFont font(QString::fromUtf8(face.c_str()));
    const double points =
        static_cast<double>(Ask(Sci::SCI_STYLEGETSIZEFRACTIONAL, style)) / kParts +
        static_cast<double>(Ask(Sci::SCI_GETZOOM));
    font.setPointSizeF(std::max(2.0, points) * m_share);
    font.setBold(Ask(Sci::SCI_STYLEGETBOLD, style) != 0);
    font.setItalic(Ask(Sci::SCI_STYLEGETITALIC, style) != 0);
    font.setUnderline(Ask(Sci::SCI_STYLEGETUNDERLINE, style) != 0);
    font.setCapitalization(CaseOf(Ask(Sci::SCI_STYLEGETCASE, style)));
    return font;
}

const PreviewPainter::Look& PreviewPainter::LookOf(int style)
{
    const auto known = m_looks.find(style);
    if (known != m_looks.end())
        return known->second;
    const QFont font = FontOf(style);
    const QColor ground = ToQColor(static_cast<COLORREF>(Ask(Sci::SCI_STYLEGETBACK, style)));
    Look look{font, QFontMetricsF(font),
              ToQColor(static_cast<COLORREF>(Ask(Sci::SCI_STYLEGETFORE, style))),
              ground == m_ground ? std::nullopt : std::optional(ground),
              Ask(Sci::SCI_STYLEGETVISIBLE, style) != 0};
    return m_looks.emplace(style, std::move(look)).first->second;
}

void PreviewPainter::Lay(std::vector<PreviewRow> rows, int mostPixels)
{
    m_rows = std::move(rows);
    m_most = mostPixels;
    m_laid.clear();
    const int common = CommonIndent(m_rows);
    for (const PreviewRow& row : m_rows)
        m_laid.push_back(Lay(row, common));
}

// A tab stands where it would with all of the line's indentation.
PreviewPainter::Row PreviewPainter::Lay(const PreviewRow& row, int commonIndent)
{
    Row laid;
    const double tab = m_column * std::max(1L, Ask(Sci::SCI_GETTABWIDTH));
    const double gone = m_column * commonIndent;
    double left = m_column * std::max(0, row.indent - commonIndent);
    for (const PreviewPiece& piece : row.pieces) {
        if (left > m_most)
            break;
        if (piece.kind == PreviewPiece::Kind::Tab) {
            left = (std::floor((left + gone) / tab + 0.01) + 1) * tab - gone;
            continue;
        }
        const Look& look = LookOf(piece.style);
        if (!look.isShown)
            continue;
        const double sides = piece.kind == PreviewPiece::Kind::Boxed ? m_column / 2 : 0;
        const double width = look.metrics.horizontalAdvance(piece.text) + sides;
        laid.placed.push_back({left, width, &piece});
        left += width;
        laid.width = left;
    }
    laid.isCut = laid.width > m_most;
    return laid;
}

int PreviewPainter::TextWidth() const
{
    double widest = 0;
    for (const Row& row : m_laid)
        widest = std::max(widest, row.width);
    return std::min(m_most, static_cast<int>(std::ceil(widest)));
}

// As the line of the caret is where that is lit.
QColor PreviewPainter::LitGround() const
{
    constexpr double kLight = 0.12;
    if (!Ask(Sci::SCI_GETCARETLINEVISIBLE))
        return Mixed(m_ground, m_ink, kLight);
    const auto back = static_cast<COLORREF>(Ask(Sci::SCI_GETCARETLINEBACK));
    const long alpha = Ask(Sci::SCI_GETCARETLINEBACKALPHA);
    constexpr double kOpaque = Sci::SC_ALPHA_OPAQUE;
    return Mixed(m_ground, ToQColor(back), std::min(1.0, static_cast<double>(alpha) / kOpaque));
}

QImage PreviewPainter::Paint(const QSize& size, double scale, std::size_t meant)
{
    constexpr double kFrame = 0.4; // of the ink
    QImage image(size * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(m_ground);
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::LeftToRight);
    for (std::size_t i = 0; i < m_laid.size(); ++i) {
        const int top = kAbove + static_cast<int>(i) * m_rowHeight;
        if (i == meant)
            PaintLight(painter, size, top);
        PaintRow(painter, m_laid[i], size.width() - kPadding, top, i == meant);
    }
    const QColor frame = Mixed(m_ground, m_ink, kFrame);
    painter.fillRect(0, 0, size.width(), 1, frame);
    painter.fillRect(0, size.height() - 1, size.width(), 1, frame);
    painter.fillRect(0, 0, 1, size.height(), frame);
    painter.fillRect(size.width() - 1, 0, 1, size.height(), frame);
    return image;
}

// A scheme's line of the caret is hardly another than the ground: it has a rim, and a bar beside
// it.
void PreviewPainter::PaintLight(QPainter& painter, const QSize& size, int top) const
{
    constexpr int kBar = 3;
    constexpr double kRim = 0.2;
    painter.fillRect(0, top, size.width(), m_rowHeight, LitGround());
    const QColor rim = Mixed(m_ground, m_ink, kRim);
    painter.fillRect(0, top, size.width(), 1, rim);
    painter.fillRect(0, top + m_rowHeight - 1, size.width(), 1, rim);
    painter.fillRect(1, top, kBar, m_rowHeight,
                     ToQColor(static_cast<COLORREF>(Ask(Sci::SCI_GETCARETFORE))));
}

// The light is over a style's own ground, as that of the line of the caret is. Behind the last
// letter that has room stands the sign of a cut.
void PreviewPainter::PaintRow(QPainter& painter, const Row& row, int right, int top, bool isMeant)
{
    constexpr double kBoxed = 0.25; // of the ink
    const QFontMetricsF& plain = LookOf(Sci::STYLE_DEFAULT).metrics;
    const double base = top + (m_rowHeight - plain.height()) / 2 + plain.ascent();
    const double behind = row.isCut ? right - plain.horizontalAdvance(kCut) : right;
    double cut = kPadding;
    for (const Placed& placed : row.placed) {
        const Look& look = LookOf(placed.piece->style);
        const bool isBoxed = placed.piece->kind == PreviewPiece::Kind::Boxed;
        QString text = placed.piece->text;
        QRectF place(kPadding + placed.left, top, placed.width, m_rowHeight);
        const bool isLast = row.isCut && place.right() > behind;
        if (isLast) {
            text = isBoxed ? QString() : Fitting(text, look.metrics, behind - place.x());
            place.setWidth(look.metrics.horizontalAdvance(text));
        }
        if (look.ground && !isMeant)
            painter.fillRect(place, *look.ground);
        if (isBoxed && !isLast)
            painter.fillRect(place.adjusted(1, 2, -1, -2), Mixed(m_ground, look.ink, kBoxed));
        painter.setFont(look.font);
        painter.setPen(look.ink);
        painter.drawText(QPointF(place.x() + (isBoxed ? m_column / 4 : 0), base), text);
        cut = std::min(place.right(), behind);
        if (isLast)
            break;
    }
    if (!row.isCut)
        return;
    painter.setFont(LookOf(Sci::STYLE_DEFAULT).font);
    painter.setPen(m_ink);
    painter.drawText(QPointF(cut, base), kCut);
}

} // namespace engine
