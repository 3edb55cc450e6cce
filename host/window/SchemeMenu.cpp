// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/SchemeMenu.h"

#include "host/preferences/Appearance.h"

#include <QActionGroup>

SchemeMenu::SchemeMenu(QWidget* parent) : QMenu(tr("&Colours"), parent)
{
    struct Text
    {
        const char* name;
        const char* text;
    };
    static constexpr Text kTexts[] = {
        {"Desktop", QT_TR_NOOP("As the &Desktop")},
        {"Light", QT_TR_NOOP("&Light")},
        {"Dark", QT_TR_NOOP("Da&rk")},
        {"High Contrast", QT_TR_NOOP("&High Contrast")},
        {"Print", QT_TR_NOOP("As on &Paper")},
    };
    auto* group = new QActionGroup(this);
    for (const QString& name : appearance::Names()) {
        QString text = name;
        for (const Text& known : kTexts) {
            if (name == QLatin1String(known.name))
                text = tr(known.text);
        }
        QAction* action = group->addAction(text);
        action->setObjectName(QStringLiteral("scheme") + QString(name).remove(u' '));
        action->setData(name);
        action->setCheckable(true);
        addAction(action);
    }
    connect(group, &QActionGroup::triggered, this,
            [this](QAction* action) { Q_EMIT Chosen(action->data().toString()); });
    connect(this, &QMenu::aboutToShow, this, [group] {
        for (QAction* action : group->actions())
            action->setChecked(action->data().toString() == appearance::Current());
    });
}
