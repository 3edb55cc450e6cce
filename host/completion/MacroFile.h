// SPDX-License-Identifier: GPL-3.0-or-later
// A macro as a file of UTF-8:
//
//     macro 1
//     type a
//     send 2300
//     send 2013
//
// One line for each message: a character that is typed, with its code as U+0020 where it would not
// be seen, or a command of the editor by its number. Only commands that typing and menus record are
// read: a file from elsewhere cannot send anything else.
#pragma once

#include <QString>
#include <QStringList>

struct MacroHolder;

// The macro, as a file has it. What a file cannot have is left out: messages that carry more than
// one character of text, which would not be repeated either.
QByteArray WriteMacro(const MacroHolder* head);

struct ReadMacroResult
{
    MacroHolder* head = nullptr; // the caller's; null if there is none
    int badLine = -1;            // from 0; then there is no macro
};
ReadMacroResult ReadMacro(const QByteArray& bytes);
