// SPDX-License-Identifier: GPL-3.0-or-later
// MenuKey: whether it is the key for it that asks an editor for its menu, and not the mouse.
#pragma once

#include <QObject>

// A child of the editor's window.
class MenuKey final : public QObject
{
    Q_OBJECT

public:
    explicit MenuKey(QWidget& window);

    bool IsPressed() const { return m_isPressed; } // the last time that somebody asked

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_isPressed = false;
};
