// SPDX-License-Identifier: GPL-3.0-or-later
// PreviewPainter: rows of a preview in the fonts and colours of their styles, somewhat smaller than
// in the window, with a frame, and with the row that is meant lit. Pixels are the window's.
#pragma once

#include "engine/looks/PreviewText.h"
#include "engine/text/Raw.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>

#include <map>
#include <optional>

class QPainter;

namespace engine {

class PreviewPainter
{
public:
    explicit PreviewPainter(const Raw& raw);

    static constexpr int kPadding = 8; // pixels between the frame's edge and a text beside it
    static constexpr int kAbove = 4;   // the same above and below

    int RowHeight() const { return m_rowHeight; }
    double ColumnWidth() const { return m_column; } // of a blank

    // Lays the rows out, as far as they are seen in so many pixels of text.
    void Lay(std::vector<PreviewRow> rows, int mostPixels);
    int TextWidth() const; // of the widest, no more than the most

    QImage Paint(const QSize& size, double scale, std::size_t meant);

private:
    struct Look
    {
        QFont font;
        QFontMetricsF metrics;
        QColor ink;
        std::optional<QColor> ground; // of its own
        bool isShown;
    };
    struct Placed
    {
        double left;
        double width;
        const PreviewPiece* piece;
    };
    struct Row
    {
        std::vector<Placed> placed;
        double width = 0;
        bool isCut = false;
    };

    long Ask(unsigned message, long wParam = 0, long lParam = 0) const;
    QFont FontOf(int style) const;
    const Look& LookOf(int style);
    Row Lay(const PreviewRow& row, int commonIndent);
    void PaintLight(QPainter& painter, const QSize& size, int top) const;
    void PaintRow(QPainter& painter, const Row& row, int right, int top, bool isMeant);
    QColor LitGround() const;

    const Raw& m_raw;
    QColor m_ground;
    QColor m_ink;
    double m_share = 1; // of the window's size of letters
    double m_column = 1;
    int m_rowHeight = 1;
    int m_most = 0;
    std::map<int, Look> m_looks; // by style, of those that were met
    std::vector<PreviewRow> m_rows;
    std::vector<Row> m_laid;
};

} // namespace engine
