// SPDX-License-Identifier: GPL-3.0-or-later
// FindBar: finding and replacing from the keyboard, in a bar below the text. What is sought and how
// is the find manager's, which all windows of the process share.
#pragma once

#include "host/finding/MatchCount.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class CFindReplaceManager;
class CZNCoreEditorControlEx;
class ExpressionHelp;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QMenu;
class QPushButton;
class QToolButton;

class FindBar final : public QWidget
{
    Q_OBJECT

public:
    // The editor is that of the script in front, null if there is none. Hidden until it is opened.
    explicit FindBar(std::function<CZNCoreEditorControlEx*()> editor, QWidget* parent = nullptr);

    // Appends the bar's commands, with their keys.
    void AddActions(QMenu& menu);
    void Update(); // of what is possible

    void OnTextChanged(); // of the script in front, by anybody

    void OpenFinding(); // without the row for replacing
    void Open(); // as it is, with what is selected, or the word at the caret, as what is sought
    void Close();

    void FindNext();
    void FindPrevious();
    void FindNextWord(); // of what is selected, or the word at the caret
    void FindPreviousWord();
    // With its row: the keyboard goes to what is sought, from there to what it becomes.
    void OpenReplacing();
    void Replace(); // what is found and selected, and goes on to the next; first shows its row
    void ReplaceAll();
    void MarkAll(); // bookmarks the lines
    void Count();

    struct Row; // a menu's entry, and a button

Q_SIGNALS:
    void Told(const QString& text); // what cannot be read while the bar is hidden

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class CaretPlace;

    QComboBox* MakeBox(const char* name, const QString& label);
    QCheckBox* MakeOption(const char* name, const QString& label, bool isOn);
    QPushButton* MakeButton(const char* name);
    QLayout* MakeFindRow();
    QToolButton* MakeCloseButton();
    void ShowReplaceRow(bool isShown);
    bool IsPossible(const Row& row) const;
    struct Range // of UTF-16 units
    {
        long start = 0;
        long end = 0;
        bool operator==(const Range&) const = default;
    };
    // What was there before the bar showed what is being typed.
    struct Origin
    {
        const CZNCoreEditorControlEx* editor = nullptr;
        long anchor = 0;
        long caret = 0;
        long from = 0; // where the search starts
        int top = 0;   // display line
        int left = 0;  // pixels
        Range shown;   // selected by now
    };
    void HandOver() const; // what is sought and how, to the manager
    // The same, remembering it. False if there is nothing to do, of which the person
    // knows then.
    bool Prepare(CZNCoreEditorControlEx* editor);
    QString
    WhatIsWrong(CZNCoreEditorControlEx& editor) const; // with the expression; empty: nothing
    int Flags() const;                                 // of the engine's search
    void ScopeSelection(bool isOn);
    bool IsScoped(CZNCoreEditorControlEx& editor) const;
    Range Searched(CZNCoreEditorControlEx& editor) const;
    void Find(bool down);
    void FindWord(bool down);
    bool SelectNext(CZNCoreEditorControlEx& editor, bool down);
    int ReplaceEach(CZNCoreEditorControlEx& editor);
    void ReplaceTarget(CZNCoreEditorControlEx& editor);
    template <typename Match>
    void EachMatch(CZNCoreEditorControlEx& editor, Match match);
    void Tell(const QString& result);
    void TellFound(CZNCoreEditorControlEx& editor, bool isFound);
    void TellPlace(); // which of how many, as far as that is known
    void ShowMatches();
    void ShowMissing(bool isMissing);

    void SeekSoon(); // once no key is waiting
    bool SeekNow();  // what is due; whether something was
    void Seek();
    void KeepOrigin(CZNCoreEditorControlEx& editor);
    void GoBack(CZNCoreEditorControlEx& editor); // unless somebody has moved the caret
    void Select(CZNCoreEditorControlEx& editor, long start, long end);
    bool IsOwn(CZNCoreEditorControlEx& editor) const; // selected by the bar
    static Range SelectedIn(CZNCoreEditorControlEx& editor);
    void CountMatches(CZNCoreEditorControlEx& editor);
    void CountAnew();
    MatchCount::Step StepOf(CZNCoreEditorControlEx& editor, long from);
    static long Behind(CZNCoreEditorControlEx& editor, long found); // the match that is the target

    std::function<CZNCoreEditorControlEx*()> m_editor;
    CFindReplaceManager& m_manager;
    QComboBox* m_find;
    QComboBox* m_replace;
    QCheckBox* m_matchCase;
    QCheckBox* m_wholeWord;
    QCheckBox* m_expression;
    QCheckBox* m_inSelection;
    QCheckBox* m_preserveCase;
    ExpressionHelp* m_help;
    QLabel* m_result;
    QToolButton* m_showReplace;
    QWidget* m_replaceRow;
    // Whose range is searched instead of the whole text; the range is the engine's. Null: none.
    const CZNCoreEditorControlEx* m_scoped = nullptr;
    std::optional<Origin> m_origin;
    const CZNCoreEditorControlEx* m_matchIn = nullptr;
    Range m_match; // the last that was selected, there
    const CZNCoreEditorControlEx* m_shownIn = nullptr;
    MatchCount* m_count;
    QTimer m_seek;
    QTimer m_recount;
    bool m_tellsPlace = false; // not something that was done
    bool m_wentRound = false;  // with the last step
    bool m_isMissing = false;  // what is sought, where it was sought
    bool m_tellsWrong = false; // what is wrong with the expression stands there
    std::vector<std::pair<QAction*, const Row*>> m_actions;
};
