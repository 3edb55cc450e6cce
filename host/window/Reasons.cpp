// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/Reasons.h"

#include "editing/ZNCoreEditorControlEx.h"

#include <QAction>
#include <QCoreApplication>
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
    {"save",           false, false, QT_TRANSLATE_NOOP("Reasons", "There is nothing to save.")},
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
    {"next",           false, false, QT_TRANSLATE_NOOP("Reasons", "No other script is open.")},
    {"previous",       false, false, QT_TRANSLATE_NOOP("Reasons", "No other script is open.")},
    {"reopenClosed",   false, false, QT_TRANSLATE_NOOP("Reasons", "No tab was closed.")},
    {"otherPane",      false, false, QT_TRANSLATE_NOOP("Reasons", "The script is not split.")},
    {"previousPane",   false, false, QT_TRANSLATE_NOOP("Reasons", "The script is not split.")},
};
// clang-format on

constexpr const char* kWithoutScript[] = {"reopenClosed", "saveAll", "next", "previous"};

} // namespace

QString WhyDisabled(const QString& command, CZNCoreEditorControlEx* editor)
{
    const auto isIt = [&](const char* name) { return command == QLatin1String(name); };
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                   [&](const Row& candidate) { return isIt(candidate.command); });
    const bool isKnown = row != std::end(kRows);
    if (!editor && std::none_of(std::begin(kWithoutScript), std::end(kWithoutScript), isIt))
        return Texts::tr("No script is open.");
    if (editor && editor->GetReadOnly(1) && (!isKnown || row->changesText))
        return Texts::tr("The script is read-only.");
    if (editor && isKnown && row->needsSelection && !editor->IsSelection())
        return Texts::tr("Nothing is selected.");
    return isKnown && row->reason ? Texts::tr(row->reason)
                                  : Texts::tr("The script has nothing here to do this with.");
}

void ExplainEntries(const QMenu& menu, CZNCoreEditorControlEx* editor)
{
    for (QAction* action : menu.actions()) {
        if (!action->isSeparator() && !action->menu())
            action->setStatusTip(action->isEnabled() ? QString()
                                                     : WhyDisabled(action->objectName(), editor));
    }
}
