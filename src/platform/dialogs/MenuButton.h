// SPDX-License-Identifier: GPL-3.0-or-later
// CMenuButton: a button that opens a menu and tells what was chosen; a QPushButton.
#pragma once

#include "common/Export.h"

#include <QPushButton>
#include <QString>

#include <span>

// A row of such a menu: what the item shows, a tab, and the text that it stands for.
using MenuTexts = std::span<const char* const>;

class ZN_API CMenuButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CMenuButton(const QString& text, QWidget* parent = nullptr);

    void SetItems(MenuTexts items); // the menu has these alone

Q_SIGNALS:
    void Chosen(const QString& item); // the row as it was given

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
};
