// SPDX-License-Identifier: GPL-3.0-or-later
// The words that completion works with, and the markers of templates. Text alone: knows no window.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string_view>
#include <vector>

namespace codewords {

// The low byte of the unit decides, so that letters of other scripts may part words: U+0420 does,
// whose low byte is a blank's. A letter, a digit or an underscore, or a byte from 80 up.
bool IsWordUnit(char16_t unit);

// Where the word begins that ends at the place; the place itself if none does.
long WordStart(std::u16string_view text, long place);

// In the order that a list shows: without case, by what follows the second unit, and each once.
std::vector<QString> SortedOnce(QStringList words);

// What stands in front of a caret, as an indent: each unit a blank, tabs as they are.
QString IndentLike(std::u16string_view text);

// The first marker of a template that asks for a value.
struct Prompt
{
    qsizetype start;  // of the marker, in units
    qsizetype length; // with the text between; 0 if its end stands in front of its start
    QString text;
};
enum class PromptSearch
{
    Found,
    None,
    NotClosed
};
PromptSearch FindPrompt(const QString& line, Prompt& prompt);

} // namespace codewords
