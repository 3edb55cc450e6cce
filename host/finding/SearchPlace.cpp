// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/SearchPlace.h"

#include "search/FindReplaceManager.h"

#include <QComboBox>
#include <QFileInfo>

void ProposePlace(CFindReplaceManager& manager, const QString& path)
{
    QComboBox types;
    manager.FillTypeCombo(types);
    if (types.count() == 0)
        manager.AddTypeHistory(QStringLiteral("*.sql"));
    QComboBox folders;
    manager.FillLocationCombo(folders);
    if (folders.count() == 0 && !path.isEmpty())
        manager.AddLocationHistory(QFileInfo(path).absolutePath());
}
