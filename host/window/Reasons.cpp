// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/Reasons.h"

#include "common/Translations.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/windows/ActionUI.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>
#include <iterator>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Reasons)
};

// What a command needs beside a script, where that can be said.
struct Row
{
    const char* command;
    bool changesText;
    bool needsSelection;
    const char* reason; // where neither is it; null: the general one
};

// clang-format off
constexpr Row kRows[] = {
    {"undo",           true,  false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to undo.")},
    {"redo",           true,  false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to redo.")},
    {"cut",            true,  true,  nullptr},
    {"copy",           false, true,  nullptr},
    {"copyWithColours", false, true, nullptr},
    {"paste",          true,  false, QT_TRANSLATE_NOOP("Reasons", "The clipboard holds no text.")},
    {"delete",         true,  true,  nullptr},
    {"save",           true,  false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to save.")},
    {"saveAll",        false, false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to save.")},
    {"reload",         false, false, QT_TRANSLATE_NOOP("Reasons", "The script has no file yet.")},
    {"replace",        true,  false, nullptr},
    {"replaceAll",     true,  false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to find: the find bar is empty.")},
    {"markAll",        false, false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to find: the find bar is empty.")},
    {"countMatches",   false, false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to find: the find bar is empty.")},
    {"indent",         true,  true,  nullptr},
    {"outdent",        true,  true,  nullptr},
    {"sortUp",         true,  true,  nullptr},
    {"sortDown",       true,  true,  nullptr},
    {"lastUsed",       false, false, QT_TRANSLATE_NOOP("Reasons", "No other script is open.")},
    {"longestUnused",  false, false, QT_TRANSLATE_NOOP("Reasons", "No other script is open.")},
    {"next",           false, false, QT_TRANSLATE_NOOP("Reasons", "No other script is open.")},
    {"previous",       false, false, QT_TRANSLATE_NOOP("Reasons", "No other script is open.")},
    {"forward",        false, false, QT_TRANSLATE_NOOP("Reasons", "There was no step back.")},
    {"reopenClosed",   false, false, QT_TRANSLATE_NOOP("Reasons", "No tab was closed.")},
    {"otherPane",      false, false, QT_TRANSLATE_NOOP("Reasons", "The script is not split.")},
    {"previousPane",   false, false, QT_TRANSLATE_NOOP("Reasons", "The script is not split.")},
};
// clang-format on

// Commands that an action of the window's gives in a way of its own.
struct CommandRow
{
    UINT command;
    const char* name;
};

constexpr CommandRow kOwnWays[] = {
    {57636, "find"},
    {57640, "findNext"},
    {57641, "replace"},
};

constexpr UINT kLineEnds = 54071; // the first of them

// Of an entry whose own name would be that of another action's.
constexpr const char* kCommandName = "commandName";

QAction* ActionFor(UINT command, const QMainWindow& window)
{
    for (const CommandRow& row : kOwnWays) {
        if (row.command == command)
            return window.findChild<QAction*>(QLatin1String(row.name));
    }
    for (QAction* action : window.findChildren<QAction*>()) {
        const bool isNamed = !action->objectName().isEmpty();
        if (isNamed && (CommandOf(*action) == command || action->data().toUInt() == command))
            return action;
    }
    return nullptr;
}

const Row* RowOf(const QString& command)
{
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& candidate) {
        return command == QLatin1String(candidate.command);
    });
    return row == std::end(kRows) ? nullptr : row;
}

constexpr const char* kWithoutScript[] = {"reopenClosed",  "saveAll", "lastUsed",
                                          "longestUnused", "next",    "previous"};

} // namespace

QString WhyDisabled(const QString& command, CZNCoreEditorControlEx* editor)
{
    const auto isIt = [&](const char* name) { return command == QLatin1String(name); };
    const Row* row = RowOf(command);
    if (!editor && std::none_of(std::begin(kWithoutScript), std::end(kWithoutScript), isIt))
        return Texts::tr("No script is open.");
    if (editor && IsDisabledAsReadOnly(command, *editor))
        return Texts::tr("The script is read-only.");
    if (editor && row && row->needsSelection && !editor->IsSelection())
        return Texts::tr("Nothing is selected.");
    return row && row->reason ? Texts::tr(row->reason)
                              : Texts::tr("The script has nothing here to do this with.");
}

bool IsDisabledAsReadOnly(const QString& command, CZNCoreEditorControlEx& editor)
{
    const Row* row = RowOf(command);
    return editor.GetReadOnly(1) && (!row || row->changesText);
}

void ExplainEntries(const QMenu& menu, CZNCoreEditorControlEx* editor)
{
    for (QAction* action : menu.actions()) {
        const QVariant other = action->property(kCommandName);
        const QString name = other.isValid() ? other.toString() : action->objectName();
        if (action->menu() && other.isValid())
            ExplainEntries(*action->menu(), editor);
        if (!action->isSeparator() && !action->menu())
            action->setStatusTip(action->isEnabled() ? QString() : WhyDisabled(name, editor));
    }
}

// A letter to press stays with a text that stays.
void SpeakAsMenus(const QMenu& menu, const QMainWindow& window)
{
    for (QAction* entry : menu.actions()) {
        if (entry->menu()) {
            const QList<QAction*> inside = entry->menu()->actions();
            if (!inside.isEmpty() && CommandOf(*inside.constFirst()) == kLineEnds)
                entry->setText(Texts::tr("Convert Line Ends to"));
            entry->setProperty(kCommandName, QString());
            SpeakAsMenus(*entry->menu(), window);
            continue;
        }
        const UINT command = CommandOf(*entry);
        const QAction* action = command == 0 ? nullptr : ActionFor(command, window);
        if (!action)
            continue;
        entry->setProperty(kCommandName, action->objectName());
        const QString own = entry->text().section(u'\t', 0, 0);
        const bool isInPart = menu.menuAction()->property(kCommandName).isValid();
        const QString words = zncoreeditor::WithoutMnemonic(action->text());
        const bool isSame = isInPart || zncoreeditor::WithoutMnemonic(own) == words;
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        entry->setText((isSame ? own : words) + (keys.isEmpty() ? QString() : u'\t' + keys));
    }
}
