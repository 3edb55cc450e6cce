// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/FileDialogs.h"

#include "host/icons/FitScreen.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

void FitColumns(QFileDialog& dialog)
{
    constexpr int kName = 0;
    constexpr int kWidth = 760; // pixels, of places, names, sizes and dates
    auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!files)
        return;
    QHeaderView& header = *files->header();
    header.setStretchLastSection(false);
    for (int column = 0; column < header.count(); ++column)
        header.setSectionResizeMode(column, column == kName ? QHeaderView::Stretch
                                                            : QHeaderView::ResizeToContents);
    // Of which there is less at a large scale.
    dialog.resize(FittingScreen(dialog, dialog.size().expandedTo({kWidth, 0})));
}
