// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Hands: the gestures of people who edit all day, as commands with numbers of the library's own.
/// The rows stand in Hands.def; menus, keys and docs/keys.md are made from them.
#pragma once

#include "common/Export.h"
#include "platform/windows/Accelerators.h"

#include <QString>

#include <span>

class CZNCoreEditorControlEx;
struct CommandMap;

/// What has to be the case for a gesture.
enum class HandNeeds
{
    Nothing,           ///< it is always possible
    Writable,          ///< the text may be changed
    WritableSelection, ///< the same, and something is selected
};

/// One gesture.
struct HandRow
{
    UINT number;      ///< of its command
    const char* name; ///< one word
    const char* menu; ///< in English, as the text: HandText has what is shown
    const char* text; ///< in the menu, with the letter that is underlined
    int key;          ///< Qt::Key, 0: none
    int modifiers;    ///< Qt::KeyboardModifiers
    HandNeeds needs;  ///< when it is possible
    void (*run)(CZNCoreEditorControlEx& editor); ///< does it, possible or not; see RunHand
};

ZN_API std::span<const HandRow> Hands(); ///< all of them, in the order of menus
/// What a menu or a text of a row is in the language of the user interface.
ZN_API QString HandText(const char* english);
/// Null for a number that is none of theirs.
ZN_API const HandRow* FindHand(UINT number);
/// Whether what it needs is the case.
ZN_API bool IsPossible(const HandRow& row, CZNCoreEditorControlEx& editor);

/// Does it. A macro that is being recorded has it as a whole.
ZN_API void RunHand(const HandRow& row, CZNCoreEditorControlEx& editor);

/// For a window that offers keys to TranslateAccelerator: behind the table of the editor.
ZN_API HACCEL HandKeyTable();
