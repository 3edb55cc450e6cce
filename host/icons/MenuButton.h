// SPDX-License-Identifier: GPL-3.0-or-later
// MenuButton: a tool button that opens its menu at once and bears no mark of one. A style sheet
// would take the mark away, too, but keep the colours of the palette that it was set under.
#pragma once

#include <QToolButton>

class MenuButton : public QToolButton
{
    Q_OBJECT

public:
    explicit MenuButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
