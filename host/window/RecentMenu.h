// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of the files that were opened last.
#pragma once

#include <QMenu>

class RecentFiles;

class RecentMenu final : public QMenu
{
    Q_OBJECT

public:
    // The list outlives the menu.
    RecentMenu(RecentFiles& files, QWidget* parent);

Q_SIGNALS:
    void Chosen(const QString& path);

private:
    void Fill();

    RecentFiles& m_files;
};
