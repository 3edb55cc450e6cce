// SPDX-License-Identifier: GPL-3.0-or-later
// The files of a folder, beside the script.
#pragma once

#include <QDockWidget>

class QFileSystemModel;
class QLabel;
class QTreeView;

class FolderPane final : public QDockWidget
{
    Q_OBJECT

public:
    explicit FolderPane(QWidget* parent);

    QTreeView* ListArea() const { return m_list; } // what can have the focus

    // Looked at only while the pane is shown.
    void SetFolder(const QString& folder);
    QString Folder() const { return m_folder; }

Q_SIGNALS:
    void Chosen(const QString& path); // a file
    void ScriptFolderWanted();        // of the script in front

private:
    void Look();

    QString m_folder;
    QFileSystemModel* m_model = nullptr; // made when the pane is shown first
    QLabel* m_name;
    QTreeView* m_list;
};
