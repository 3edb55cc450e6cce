// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/folder/FolderPane.h"

#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

FolderPane::FolderPane(QWidget* parent)
    : QDockWidget(tr("Folder"), parent), m_name(new QLabel(this)), m_list(new QTreeView(this))
{
    setObjectName(QStringLiteral("folderPane"));
    m_list->setObjectName(QStringLiteral("folderList"));
    m_list->setAccessibleName(tr("Files of the folder"));
    m_list->setHeaderHidden(true);
    m_list->setUniformRowHeights(true);
    m_name->setMargin(4);
    // A long path is cut rather than widening the pane; its tool tip has all of it.
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* content = new QWidget(this);
    auto* bar = new QToolBar(content);
    bar->addAction(tr("Up"), this, [this] {
        QDir folder(m_folder);
        if (folder.cdUp())
            SetFolder(folder.path());
    });
    bar->addAction(tr("Of the Script"), this, &FolderPane::ScriptFolderWanted);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_name);
    layout->addWidget(m_list);
    setWidget(content);
    connect(this, &QDockWidget::visibilityChanged, this, &FolderPane::Look);
    connect(m_list, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (!m_model->isDir(index))
            Q_EMIT Chosen(m_model->filePath(index));
    });
}

void FolderPane::SetFolder(const QString& folder)
{
    m_folder = folder;
    m_name->setText(QDir(folder).dirName());
    m_name->setToolTip(QDir::toNativeSeparators(folder));
    Look();
}

// The model watches the folders that it has shown.
void FolderPane::Look()
{
    if (!isVisible())
        return;
    if (m_folder.isEmpty()) {
        Q_EMIT ScriptFolderWanted();
        return;
    }
    if (!m_model) {
        m_model = new QFileSystemModel(this);
        m_model->setReadOnly(true);
        m_list->setModel(m_model);
        for (int column = 1; column < m_model->columnCount(); ++column)
            m_list->hideColumn(column);
    }
    if (m_model->rootPath() != m_folder)
        m_list->setRootIndex(m_model->setRootPath(m_folder));
}
