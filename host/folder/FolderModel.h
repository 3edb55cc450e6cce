// SPDX-License-Identifier: GPL-3.0-or-later
// FolderModel: the files of a folder with the workbench's pictures, and which one is in front.
#pragma once

#include <QFileSystemModel>
#include <QHash>
#include <QIcon>

class FolderModel final : public QFileSystemModel
{
    Q_OBJECT

public:
    explicit FolderModel(QObject* parent);

    void SetFront(const QString& path) { m_front = path; }
    QModelIndex ShowFolder(const QString& path); // its index
    // A part of a file's name, or a pattern of a shell; empty: all files. Folders stay.
    void Filter(const QString& words);

    QVariant data(const QModelIndex& index, int role) const override;

private:
    QIcon Picture(const QModelIndex& index) const;

    QString m_front;
    QIcon m_folder;
    QIcon m_script; // a file in a language that is known by its name
    QIcon m_file;
    mutable QHash<QString, bool> m_isScript; // by name: a row is painted more often than once
};
