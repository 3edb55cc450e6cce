// SPDX-License-Identifier: GPL-3.0-or-later
// DocumentMap: a narrow column beside an engine's text that shows the script in small, with a box
// around what the window shows. A click goes there, and the box can be dragged; where the mouse
// rests, the lines are shown beside it. It is drawn in pieces when there is nothing else to do, and
// so is coloured what it shows below the window.
#pragma once

#include "engine/looks/MapLayout.h"
#include "engine/looks/MapPicture.h"
#include "engine/text/TextEdit.h"

#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace engine {

class MapPreview;

class DocumentMap final : public QWidget
{
public:
    // Gives it so many pixels of the window's width, beside the text.
    using SetRoom = std::function<void(int width)>;

    // A child of the window, as the function is of it.
    DocumentMap(QsciScintillaBase& window, const Raw& raw, SetRoom setRoom);
    ~DocumentMap() override;

    void End(); // takes no room any more, and goes by itself

    // Of the text. Between the two the stock engine is changing it. Bytes.
    void EditBegins(const TextEdit& edit);
    void EditEnds();
    void StylesChanged(long position, long bytes);
    void Forget(); // another text is shown

    // Draws for a slice of time what is not drawn yet, as it does by itself when there is nothing
    // else to do. True if nothing is left.
    bool Refresh();

    const MapPreview* Preview() const { return m_preview.get(); } // null: not shown yet

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Soon(std::chrono::milliseconds rest);
    void TakeRoom();
    void TakePlace();
    MapLayout CurrentLayout() const;
    double Top() const; // of the text, in rows
    std::vector<MapRow> RowsOf(const MapLayout& layout) const;
    // A slice of what is shown and not coloured; whether there was any.
    bool Colour(const std::vector<MapRow>& rows) const;
    MapRow RowOf(long row) const; // of the window's rows
    void PreviewAt(const QPointF& place);
    void EndPreview();
    void GoTo(double top) const;
    double PixelOf(const QMouseEvent& event) const; // the screen's
    long Ask(unsigned message, long wParam = 0, long lParam = 0) const;

    QsciScintillaBase& m_window;
    const Raw& m_raw;
    const SetRoom m_setRoom;
    MapPicture m_picture;
    std::unique_ptr<MapPreview> m_preview; // made for the first mouse that rests
    MapLayout m_layout{0, 1, {}};          // as it is painted
    QTimer m_timer;
    int m_room = 0; // pixels of the window
    // The edit under way: its lines, how many the text had, and how long it will be.
    bool m_isEdited = false;
    long m_firstEdited = 0;
    long m_lastEdited = 0;
    long m_lines = 0;
    long m_bytesBehind = 0;
    bool m_isHot = false;
    bool m_isDragged = false;
    double m_pressedAt = 0;  // a pixel,
    double m_pressedTop = 0; // and the text's top then
};

} // namespace engine
