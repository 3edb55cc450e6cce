// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of schemes: as the desktop, light, dark and further ones, the one in force marked.
#pragma once

#include <QMenu>

class SchemeMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit SchemeMenu(QWidget* parent);

Q_SIGNALS:
    void Chosen(const QString& name);
};
