// SPDX-License-Identifier: GPL-3.0-or-later
// What the Edit menu has for lines, words, comments and bookmarks, in menus of their own. Most of
// it are commands of the view, which says itself when each is possible.
#pragma once

#include <QCoreApplication>
#include <QObject>

#include <functional>
#include <map>
#include <string_view>
#include <vector>

class QAction;
class QMenu;
class ScriptView;

class EditingMenu final : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(EditingMenu)

public:
    // Appends to the menu. The view is that of the script in front, null if there is none.
    EditingMenu(QMenu& menu, std::function<ScriptView*()> view);

    void Update();

    struct Row; // one of the menus' entries

private:
    // The menus by their titles in English; the one without a title is the menu around them.
    using Parts = std::map<std::string_view, QMenu*>;
    void AddHands(QMenu& menu, Parts& parts);
    bool IsPossible(const Row& row) const;
    void Run(const Row& row);

    std::function<ScriptView*()> m_view;
    std::vector<QAction*> m_actions; // of the rows, in their order
    std::vector<QAction*> m_hands;   // of those of editing/hands, likewise
};
