// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CMenuButton: a button that opens a menu and tells what was chosen; a QPushButton.
#pragma once

#include "common/Export.h"

#include <QPushButton>
#include <QString>
#include <QStringList>

/// A button that opens a menu and tells what was chosen; a QPushButton.
class ZN_API CMenuButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CMenuButton(const QString& text, QWidget* parent = nullptr); ///< with an empty menu

    /// The menu has these alone. A row is what the item shows, a tab, and the text that it stands
    /// for.
    void SetItems(const QStringList& items);

Q_SIGNALS:
    void Chosen(const QString& item); ///< the row as it was given

protected:
    void initStyleOption(QStyleOptionButton* option) const override; ///< with the arrow of a menu
};
