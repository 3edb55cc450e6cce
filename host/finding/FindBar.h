// SPDX-License-Identifier: GPL-3.0-or-later
// FindBar: finding and replacing from the keyboard, in a bar below the text. What is sought and how
// is the find manager's, which all windows of the process share.
#pragma once

#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

class CFindReplaceManager;
class CZNCoreEditorControlEx;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;

class FindBar final : public QWidget
{
    Q_OBJECT

public:
    // The editor is that of the script in front, null if there is none. Hidden until it is opened.
    explicit FindBar(std::function<CZNCoreEditorControlEx*()> editor, QWidget* parent = nullptr);

    // Appends the bar's commands, with their keys.
    void AddActions(QMenu& menu);
    void Update(); // of what is possible

    void Open(); // with what is selected, or the word at the caret, as what is sought
    void Close();

    void FindNext();
    void FindPrevious();
    void FindNextWord(); // of what is selected, or the word at the caret
    void FindPreviousWord();
    void Replace(); // what is found and selected, and goes on to the next
    void ReplaceAll();
    void MarkAll(); // bookmarks the lines
    void Count();

    struct Row; // a menu's entry, and a button

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QComboBox* MakeBox(const char* name, const QString& label);
    QCheckBox* MakeOption(const char* name, const QString& label, bool isOn);
    bool IsPossible(const Row& row) const;
    bool Prepare(); // hands the bar's settings to the manager; false if nothing is sought
    void Find(bool down);
    void FindWord(bool down);
    bool SelectNext(CZNCoreEditorControlEx& editor, bool down);
    void Tell(const QString& result);
    void TellFound(CZNCoreEditorControlEx& editor, bool isFound);
    QString Place(CZNCoreEditorControlEx& editor);
    void ShowMatches();

    std::function<CZNCoreEditorControlEx*()> m_editor;
    CFindReplaceManager& m_manager;
    QComboBox* m_find;
    QComboBox* m_replace;
    QCheckBox* m_matchCase;
    QCheckBox* m_wholeWord;
    QCheckBox* m_expression;
    QLabel* m_result;
    std::vector<std::pair<QAction*, const Row*>> m_actions;
};
