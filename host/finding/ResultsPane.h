// SPDX-License-Identifier: GPL-3.0-or-later
// ResultsPane: what a search through files found, as a tree by file. A double click and Enter lead
// to a match. The search itself runs on threads of its own; what it finds comes in small portions.
#pragma once

#include "search/files/FileSearch.h"

#include <QDockWidget>

#include <memory>

class QLabel;
class QModelIndex;
class QPushButton;
class QTimer;
class QTreeView;
class ResultsInbox;
class ResultsModel;

class ResultsPane final : public QDockWidget
{
    Q_OBJECT

public:
    explicit ResultsPane(const QString& title, QWidget* parent);
    ~ResultsPane() override; // stops the search

    void Search(FileSearchRequest request); // in the place of what the pane has
    void Stop();
    bool IsSearching() const { return m_search != nullptr; }

    bool HasResults() const;
    void GoOn(bool forward); // to the next match, or to the first or last one

    QTreeView* ListArea() const { return m_tree; } // what can have the focus

Q_SIGNALS:
    // The line and the column from 0, the length in UTF-16 units.
    void Chosen(const QString& path, long line, long column, long length);

private:
    void TakePortion();
    void ShowState();
    void Choose(const QModelIndex& index);

    ResultsModel* m_model;
    QTreeView* m_tree;
    QLabel* m_state;
    QPushButton* m_stop;
    QTimer* m_timer;
    QString m_sought;
    std::unique_ptr<ResultsInbox> m_inbox;
    std::unique_ptr<CFileSearch> m_search;
};
