// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/MapPicture.h"

#include "engine/text/Characters.h"
#include "platform/base/Colours.h"

#include <algorithm>
#include <cstring>

namespace engine {
namespace {

using Sci = QsciScintillaBase;
using WPARAM = std::uintptr_t;

constexpr int kStyles = 256;
constexpr int kSpareRows = 64; // so that a window that grows makes few images

QRgb ToRgb(std::intptr_t colour)
{
    return ToQColor(static_cast<COLORREF>(colour)).rgb();
}

QRgb Between(QRgb ground, QRgb ink, double share)
{
    const auto part = [share](int from, int to) {
        return from + static_cast<int>((to - from) * share);
    };
    return qRgb(part(qRed(ground), qRed(ink)), part(qGreen(ground), qGreen(ink)),
                part(qBlue(ground), qBlue(ink)));
}

// Characters of Chinese, Japanese and Korean are two columns wide.
int ColumnsOf(unsigned char lead)
{
    constexpr unsigned char kFirstWide = 0xE3;
    constexpr unsigned char kLastWide = 0xED;
    return lead >= kFirstWide && lead <= kLastWide ? 2 : 1;
}

} // namespace

void MapPicture::SetMeasures(const Measures& measures)
{
    if (m_measures == measures)
        return;
    m_measures = measures;
    m_image = QImage();
    m_rows.clear();
    m_isDrawn.clear();
    m_next = 0;
}

bool MapPicture::TakeColours(double share)
{
    const auto ask = [this](unsigned message, int style) {
        return ToRgb(m_raw.Send(message, static_cast<WPARAM>(style)));
    };
    const QRgb ground = ask(Sci::SCI_STYLEGETBACK, Sci::STYLE_DEFAULT);
    m_ink = ask(Sci::SCI_STYLEGETFORE, Sci::STYLE_DEFAULT);
    std::vector<QRgb> colours(kStyles);
    for (int style = 0; style < kStyles; ++style)
        colours[static_cast<std::size_t>(style)] =
            style == kGround ? ground : Between(ground, ask(Sci::SCI_STYLEGETFORE, style), share);
    if (colours == m_colours)
        return false;
    m_colours = std::move(colours);
    m_image.setColorTable(QList<QRgb>(m_colours.begin(), m_colours.end()));
    return true;
}

bool MapPicture::Show(const std::vector<MapRow>& rows)
{
    const std::size_t count = rows.size();
    const int height = static_cast<int>(count) * m_measures.row;
    if (m_image.height() < height) {
        QImage image(m_measures.width, height + kSpareRows * m_measures.row,
                     QImage::Format_Indexed8);
        image.setColorTable(QList<QRgb>(m_colours.begin(), m_colours.end()));
        image.fill(kGround);
        for (int y = 0; y < m_image.height(); ++y)
            std::memcpy(image.scanLine(y), m_image.constScanLine(y),
                        static_cast<std::size_t>(m_measures.width));
        m_image = std::move(image);
    }
    if (rows == m_rows)
        return false;
    // Both are in the order of the text. Where a row was before; its own number where nowhere.
    constexpr std::size_t kNowhere = SIZE_MAX;
    std::vector<std::size_t> from(count, kNowhere);
    const auto isBefore = [](const MapRow& one, const MapRow& other) {
        return one.line != other.line ? one.line < other.line : one.part < other.part;
    };
    for (std::size_t to = 0, old = 0; to < count; ++to) {
        while (old < m_rows.size() && isBefore(m_rows[old], rows[to]))
            ++old;
        if (old < m_rows.size() && m_rows[old] == rows[to] && m_isDrawn[old])
            from[to] = old;
    }
    // Up from the top, down from the bottom: none is written over that is still to be moved.
    for (std::size_t to = 0; to < count; ++to) {
        if (from[to] != kNowhere && from[to] > to)
            Move(from[to], to);
    }
    for (std::size_t to = count; to-- > 0;) {
        if (from[to] != kNowhere && from[to] < to)
            Move(from[to], to);
    }
    m_rows = rows;
    m_isDrawn.resize(count);
    for (std::size_t row = 0; row < count; ++row) {
        m_isDrawn[row] = from[row] != kNowhere;
        if (!m_isDrawn[row])
            Clear(row);
    }
    m_next = 0;
    return true;
}

void MapPicture::Move(std::size_t from, std::size_t to)
{
    const auto bytes =
        static_cast<std::size_t>(m_image.bytesPerLine()) * static_cast<std::size_t>(m_measures.row);
    uchar* pixels = m_image.bits();
    std::memcpy(pixels + to * bytes, pixels + from * bytes, bytes);
}

void MapPicture::Clear(std::size_t row)
{
    const auto bytes =
        static_cast<std::size_t>(m_image.bytesPerLine()) * static_cast<std::size_t>(m_measures.row);
    std::memset(m_image.bits() + row * bytes, kGround, bytes);
}

bool MapPicture::DrawNext()
{
    while (m_next < m_rows.size() && m_isDrawn[m_next])
        ++m_next;
    if (m_next == m_rows.size())
        return false;
    Draw(m_rows[m_next], m_next);
    m_isDrawn[m_next++] = 1;
    return true;
}

// The stock engine knows where a wrapped line goes on only for what it has laid out: its text is
// dealt out evenly.
void MapPicture::Draw(const MapRow& row, std::size_t at)
{
    Clear(at);
    const auto line = static_cast<WPARAM>(row.line);
    const auto start = static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, line));
    const auto bytes = static_cast<long>(m_raw.Send(Sci::SCI_GETLINEENDPOSITION, line)) - start;
    const auto place = [&](long part) {
        return CharacterStart(m_raw, start + bytes * part / row.parts);
    };
    constexpr int kLongest = 4; // bytes of a character
    const int columns = m_measures.width / m_measures.column;
    const long from = place(row.part);
    const long to = std::min(place(row.part + 1), from + kLongest * columns);
    if (from >= to)
        return;
    m_cells.resize(2 * static_cast<std::size_t>(to - from) + 2);
    struct
    {
        long start, end;
        char* cells;
    } range{from, to, m_cells.data()};
    m_raw.Send(Sci::SCI_GETSTYLEDTEXT, 0, &range);
    int column = 0;
    for (std::size_t i = 0; i + 2 < m_cells.size() && column < columns; i += 2) {
        const char byte = m_cells[i];
        const auto lead = static_cast<unsigned char>(byte);
        if (IsContinuation(byte))
            continue;
        if (byte == '\t') {
            column += m_measures.tab - column % m_measures.tab;
            continue;
        }
        const int wide = ColumnsOf(lead);
        if (lead > ' ')
            Run(at, column, column + wide, static_cast<unsigned char>(m_cells[i + 1]));
        column += wide;
    }
}

void MapPicture::Run(std::size_t row, int from, int to, int style)
{
    const int left = m_measures.left + from * m_measures.column;
    const int right = std::min(m_measures.left + to * m_measures.column, m_measures.width);
    if (right <= left)
        return;
    const int ink = style == kGround ? Sci::STYLE_DEFAULT : style;
    const auto stride = static_cast<std::size_t>(m_image.bytesPerLine());
    uchar* pixels = m_image.bits() + row * stride * static_cast<std::size_t>(m_measures.row) + left;
    for (int y = 0; y < m_measures.ink; ++y, pixels += stride)
        std::memset(pixels, ink, static_cast<std::size_t>(right - left));
}

void MapPicture::LinesChanged(long first, long last, long moved)
{
    const auto isBefore = [](const MapRow& row, long line) { return row.line < line; };
    const auto from = std::lower_bound(m_rows.begin(), m_rows.end(), first, isBefore);
    const auto behind = std::lower_bound(from, m_rows.end(), last + 1, isBefore);
    if (from != behind) {
        const auto begin = m_isDrawn.begin() + (from - m_rows.begin());
        std::fill(begin, begin + (behind - from), 0);
        m_next = std::min(m_next, static_cast<std::size_t>(from - m_rows.begin()));
    }
    if (moved == 0)
        return;
    std::fill(from, behind, MapRow{first, -1}); // in the order still, and like none that is wanted
    for (auto row = behind; row != m_rows.end(); ++row)
        row->line += moved;
}

void MapPicture::Forget()
{
    std::fill(m_isDrawn.begin(), m_isDrawn.end(), 0);
    m_next = 0;
}

} // namespace engine
