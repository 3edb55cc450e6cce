// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/ScrollMarks.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <chrono>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr std::chrono::milliseconds kRest(200);

QRect Groove(const QScrollBar& bar)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarGroove,
                                       &bar);
}

} // namespace

ScrollMarks::ScrollMarks(QScrollBar& bar, const Raw& raw) : QWidget(&bar), m_bar(bar), m_raw(raw)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    resize(bar.size());
    bar.installEventFilter(this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ScrollMarks::Gather);
    show();
}

void ScrollMarks::SetLayers(std::vector<Layer> layers)
{
    m_layers = std::move(layers);
    Gather();
}

void ScrollMarks::Soon()
{
    if (!m_layers.empty())
        m_timer.start(kRest);
}

bool ScrollMarks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        resize(m_bar.size());
        Soon();
    }
    return QWidget::eventFilter(watched, event);
}

// A walk over the markers reads one number for each line: some 3 ms in a million lines.
void ScrollMarks::Gather()
{
    const QRect groove = Groove(m_bar);
    const auto shown = [this](long line) {
        return static_cast<double>(
            m_raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, static_cast<std::uintptr_t>(line)));
    };
    const double perLine = groove.height() / std::max(1.0, shown(m_raw.LineCount()));
    std::vector<std::vector<int>> rows;
    for (const Layer& layer : m_layers) {
        std::vector<int>& taken = rows.emplace_back();
        const auto take = [&](long line) {
            const int row = groove.top() + static_cast<int>(shown(line) * perLine);
            if (taken.empty() || taken.back() != row)
                taken.push_back(row);
        };
        if (layer.lines) {
            std::for_each(layer.lines->begin(), layer.lines->end(), take);
            continue;
        }
        const std::intptr_t mask = std::intptr_t{1} << layer.marker;
        const auto next = [&](long from) {
            return static_cast<long>(
                m_raw.Send(Sci::SCI_MARKERNEXT, static_cast<std::uintptr_t>(from), mask));
        };
        for (long line = next(0); line >= 0; line = next(line + 1))
            take(line);
    }
    if (rows == m_rows)
        return;
    m_rows = std::move(rows);
    update();
}

void ScrollMarks::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int kHeight = 2;
    QPainter painter(this);
    for (std::size_t i = 0; i < m_rows.size() && i < m_layers.size(); ++i) {
        const Layer& layer = m_layers[i];
        const int wide = layer.isAtEdge ? 3 : std::max(4, width() / 2 - 1);
        const int left = layer.isAtEdge ? 1 : width() - wide - 1;
        for (const int row : m_rows[i])
            painter.fillRect(left, row, wide, kHeight, layer.colour);
    }
}

} // namespace engine
