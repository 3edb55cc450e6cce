// SPDX-License-Identifier: GPL-3.0-or-later
// DesktopWatch: hears that the desktop has changed its colours. It goes with the window.
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

#include <functional>
#include <utility>

class DesktopWatch final : public QObject
{
public:
    DesktopWatch(QWidget& window, std::function<void()> changed)
        : QObject(&window), m_changed(std::move(changed))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
            m_changed();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_changed;
};
