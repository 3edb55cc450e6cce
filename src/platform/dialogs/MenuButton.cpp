// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dialogs/MenuButton.h"

#include <QMenu>
#include <QStyleOptionButton>

CMenuButton::CMenuButton(const QString& text, QWidget* parent) : QPushButton(text, parent)
{
    setAutoDefault(false); // Enter belongs to the button that does what the dialog is for
    constexpr int kRim = 16;
    setFixedWidth(fontMetrics().horizontalAdvance(text) + 2 * kRim);
}

void CMenuButton::SetItems(const QStringList& items)
{
    if (!menu())
        setMenu(new QMenu(this));
    menu()->clear();
    for (const QString& row : items) {
        const QString shown = row.section(u'\t', 0, 0);
        QString escaped = shown;
        escaped.replace(u'&', QStringLiteral("&&"));
        // The text that goes in stands where other menus have their keys.
        const QString inserted = row.section(u'\t', 1);
        QAction* action =
            menu()->addAction(inserted.isEmpty() ? escaped : escaped + u'\t' + inserted);
        connect(action, &QAction::triggered, this, [this, row] { Q_EMIT Chosen(row); });
    }
}

// The text says that a menu follows; an arrow beside it would say it twice.
void CMenuButton::initStyleOption(QStyleOptionButton* option) const
{
    QPushButton::initStyleOption(option);
    option->features &= ~QStyleOptionButton::HasMenu;
}
