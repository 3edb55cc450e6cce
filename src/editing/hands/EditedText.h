// SPDX-License-Identifier: GPL-3.0-or-later
// What the operations read of an editor's text, and how they put something in its place. Positions
// count UTF-16 units.
#pragma once

#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/base/Units.h"

#include <QString>

#include <vector>

namespace hands {

inline QString TextOf(CZNCoreEditorControlEx& editor, long start, long end)
{
    QString text(end - start + 2, QChar(u'\0')); // the engine reads a pair whole
    const int units = editor.GetRange(start, end, reinterpret_cast<char16_t*>(text.data()));
    text.resize(units);
    return text;
}

inline void Replace(CZNCoreEditorControlEx& editor, long start, long end, const QString& text)
{
    editor.SetTarget(static_cast<int>(start), static_cast<int>(end));
    editor.ReplaceTargetNoProcess(static_cast<int>(text.size()), Units(text), 1);
}

// The selection stays, which it does not where the engine is told to insert.
inline void Insert(CZNCoreEditorControlEx& editor, long at, const QString& text)
{
    Replace(editor, at, at, text);
}

// That of the main caret last; columns have one for each line.
inline std::vector<engine::SelectionEnds> SelectionsOf(CZNCoreEditorControlEx& editor)
{
    std::vector<engine::SelectionEnds> all(
        static_cast<std::size_t>(editor.Call(engine::kGetSelections, 0, 0, 1)));
    editor.Call(engine::kGetSelections, all.size(), reinterpret_cast<LPARAM>(all.data()), 1);
    return all;
}

inline void Select(CZNCoreEditorControlEx& editor, const std::vector<engine::SelectionEnds>& all)
{
    editor.Call(engine::kSetSelections, all.size(), reinterpret_cast<LPARAM>(all.data()), 1);
}

} // namespace hands
