// SPDX-License-Identifier: GPL-3.0-or-later
// MenuKey: the keys that open an editor's menu, and whether it was one of them or the mouse that
// asked for it.
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
