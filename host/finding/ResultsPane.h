// SPDX-License-Identifier: GPL-3.0-or-later
// ResultsPane: what a search through files found, as a tree by file. A double click and Enter lead
// to a match. The search itself runs on threads of its own; what it finds comes in small portions.
// Matches can be replaced: each shows what it would become, and can be left out.
#pragma once

#include "host/finding/ResultsModel.h"
#include "search/files/FileSearch.h"

#include <QDockWidget>
#include <QSet>

#include <memory>

class FileReplacer;
class IFoundTexts;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QTimer;
class QTreeView;
class ResultsInbox;

class ResultsPane final : public QDockWidget
{
    Q_OBJECT

public:
    // The texts outlive the pane.
    ResultsPane(const QString& title, IFoundTexts& texts, QWidget* parent);
    ~ResultsPane() override; // stops the search

    void Search(FileSearchRequest request); // in the place of what the pane has
    void Stop();
    bool IsSearching() const { return m_search != nullptr; }

    // Shows what each match would become; the search is made again.
    void Preview(const QString& replacement);
    void ReplaceChosen();
    bool IsReplacing() const { return m_replacer != nullptr; }

    // The open text has changed: its matches are found again once it rests, or is jumped into.
    void OnTextChanged(const QString& path);

    void OnScriptsChanged(); // one was opened, closed, changed or saved

    bool HasResults() const;
    void GoOn(bool forward); // to the next match, or to the first or last one

    QTreeView* ListArea() const { return m_tree; } // what can have the focus

Q_SIGNALS:
    // In the text that has been opened; the line and the column from 0, the length in UTF-16 units.
    void Chosen(long line, long column, long length);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QWidget* BuildReplaceRow();
    void ShowReplaceRow();
    ResultsModel::Place PlaceOf(const QString& path) const;
    QString OutcomeOfReplacing() const;
    void TakePortion();
    void TakeFound();
    void ReplaceInNext();
    void EndReplacing();
    void Disable(QPushButton& button);
    void Refresh(const QString& path);
    void RefreshShort();
    void CheckFile(int row);
    void ShowState();
    QString StateOf(const FileSearchTotals& totals) const;
    void Choose(const QModelIndex& index);

    ResultsModel* m_model;
    QTreeView* m_tree;
    QLabel* m_state;
    QPushButton* m_stop;
    QTimer* m_timer;
    QPushButton* m_replaces; // the row below is shown
    QWidget* m_replaceRow = nullptr;
    QLineEdit* m_replacement = nullptr;
    QPushButton* m_replace = nullptr;
    QWidgetList m_chain; // what Tab walks through
    IFoundTexts& m_texts;
    FileSearchRequest m_request;
    QSet<QString> m_changed; // texts whose matches may be elsewhere by now
    QTimer* m_rest;          // since the last change
    QString m_outcome;       // of the last replacement
    long m_unasked = 0;      // matches that have come, of which the first are shown
    long m_replaced = 0;
    int m_nextFile = 0; // to be replaced in
    int m_filesSaved = 0;
    int m_scriptsChanged = 0;
    QStringList m_notReplaced;
    std::unique_ptr<FileReplacer> m_replacer;
    std::unique_ptr<ResultsInbox> m_inbox;
    std::unique_ptr<CFileSearch> m_search;
};
