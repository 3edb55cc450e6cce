// SPDX-License-Identifier: GPL-3.0-or-later
// ScrollMarks: a layer over the vertical scroll bar that shows where in the text something is.
#pragma once

#include "engine/text/Raw.h"

#include <QColor>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

class QScrollBar;

namespace engine {

class ScrollMarks final : public QWidget
{
public:
    struct Layer
    {
        QColor colour;
        int marker = -1;                          // lines with the marker, or
        const std::vector<long>* lines = nullptr; // these
        bool isAtEdge = false;                    // left, else right
    };

    ScrollMarks(QScrollBar& bar, const Raw& raw);

    void SetLayers(std::vector<Layer> layers);
    void Soon(); // once nothing has changed for a moment

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Gather();

    QScrollBar& m_bar;
    const Raw& m_raw;
    std::vector<Layer> m_layers;
    std::vector<std::vector<int>> m_rows; // of each layer, in pixels of the groove
    QTimer m_timer;
};

} // namespace engine
