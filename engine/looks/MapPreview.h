// SPDX-License-Identifier: GPL-3.0-or-later
// MapPreview: the lines around a place in the text, as they look there, in a window beside the
// document map. It takes neither the keyboard nor the mouse, and goes with the first key, button,
// turn of the wheel or change of windows. It is not a widget: assistive technology, which has the
// text itself, is not told of it.
#pragma once

#include "engine/looks/MapPicture.h"
#include "engine/looks/PreviewText.h"

#include <QImage>
#include <QRasterWindow>

namespace engine {

// Where a preview of that size stands: left of the map, with its pixel `lit` as high as the mouse
// is; right of it where the screen has no room there. It is within the screen, and narrower or
// nowhere (empty) if it must. All on the screen.
QRect PlaceBeside(const QRect& map, const QRect& screen, const QSize& size, int mouse, int lit);

class MapPreview final : public QRasterWindow
{
public:
    MapPreview(const QsciScintillaBase& window, const Raw& raw);

    // Of that row, which the mouse is over at that pixel. Both places are on the screen.
    void ShowBeside(const QRect& map, int mouse, const MapRow& row);
    void Renew(); // draws what is shown as it looks by now
    void Gone();

    const QImage& Picture() const { return m_picture; } // as it is shown

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    long Ask(unsigned message, long wParam = 0, long lParam = 0) const;
    PreviewLines LinesAround(long line, std::size_t wanted) const;
    QString TextInsteadOf(const QByteArray& character) const;
    long StartOf(long line, long first, long end) const; // bytes
    PreviewRow Read(long line, long mostCharacters) const;
    void Draw(); // no picture: there is no room for any

    const QsciScintillaBase& m_window;
    const Raw& m_raw;
    QImage m_picture;
    QRect m_map;
    int m_mouse = 0;
    MapRow m_row;
    int m_width = 0; // grows only while it is shown, so that its edge does not jump about
};

} // namespace engine
