// SPDX-License-Identifier: GPL-3.0-or-later
// The files of a folder, beside the script.
#pragma once

#include <QDockWidget>

class FolderModel;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QMenu;
class QModelIndex;
class QToolBar;
class QTreeView;

class FolderPane final : public QDockWidget
{
    Q_OBJECT

public:
    explicit FolderPane(QWidget* parent);

    QTreeView* ListArea() const { return m_list; } // what can have the focus

    // Looked at only while the pane is shown.
    void SetFolder(const QString& folder);
    QString Folder() const; // empty: what is shown, if anything, was nobody's choice

    // The script in front is marked; its place is looked for only when somebody asks. Empty: it
    // has no file.
    void SetFront(const QString& path);
    void ShowFront();

    void ShowMenu(const QModelIndex& index, const QPoint& place); // on the screen

Q_SIGNALS:
    void Chosen(const QString& path); // a file
    void ChosenBehind(const QString& path);
    void FolderWanted(); // another one
    void FolderChanged();
    void NewScriptWanted(const QString& folder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolBar* MakeBar(QWidget* parent);
    void Listen();
    void Look();
    void Reach(const QString& path);
    void Open(const QModelIndex& index, bool behind);
    void OpenFirst();
    void EnterList();
    bool OnKey(const QKeyEvent& key, const QObject* watched);
    QString FolderOf(const QModelIndex& index) const;

    QString m_folder;
    bool m_isGuess = false; // until a script with a file comes
    QString m_front;
    QString m_sought;               // still to be shown, when its folder has been read
    FolderModel* m_model = nullptr; // made when the pane is shown first
    QLabel* m_name;
    QLineEdit* m_words;
    QTreeView* m_list;
};
