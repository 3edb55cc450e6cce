// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: sorting lines, and putting text into each of them.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/EditScopes.h"
#include "editing/operations/LineEndText.h"
#include "editing/text/LineOrder.h"
#include "editing/text/Numbers.h"
#include "editing/text/SortedArrayEx.h"
#include "platform/base/Units.h"

#include <QChar>

#include <cstdint>

namespace {

std::u16string_view TrimmedRight(std::u16string_view text)
{
    while (!text.empty() && QChar::isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

void CZNCoreEditorControlEx::SortLines(bool ascending, bool ignoreCase, bool keepDuplicates,
                                       int mode, int columnStart, int columnEnd)
{
    if (!IsSelection())
        return;
    const int first = LineFromPosition(GetSelectionStart(1), 1);
    const int last = LineFromPosition(GetSelectionEnd(1), 1);
    const long start = PositionFromLine(first, 1);
    SetSel(start, GetLineEndPosition(last, 1), 1);
    const BulkChange change(*this);

    const std::u16string text = TextBetween(start, PositionFromLine(last, 1));
    std::vector<std::u16string_view> lines;
    lines.reserve(static_cast<std::size_t>(last - first));
    for (int line = first; line < last; ++line) {
        const auto from = static_cast<std::size_t>(PositionFromLine(line, 1) - start);
        const auto to = static_cast<std::size_t>(PositionFromLine(line + 1, 1) - start);
        lines.push_back(TrimmedRight(std::u16string_view(text).substr(from, to - from)));
    }
    const lineorder::Keys keys(lines, mode, ignoreCase, columnStart, columnEnd);
    CSortedArrayEx<std::uint32_t, const lineorder::Keys&> sorted(keys);
    for (std::uint32_t line = 0; line < lines.size(); ++line)
        sorted.Add(line, keepDuplicates);

    const std::u16string_view lineEnd = LineEndOf(GetEOLMode(1), kLfText);
    std::u16string result;
    result.reserve(text.size() + sorted.GetSize());
    sorted.ForEach(ascending,
                   [&](std::uint32_t line) { result.append(lines[line]).append(lineEnd); });
    Clear(1);
    ReplaceBetween(start, start, result);
    GotoPos(start + static_cast<long>(result.size()), 1);
}

// One after the other, by number: a line end in what goes in moves the lines behind it.
template <class TextFor>
void CZNCoreEditorControlEx::InsertIntoEachLine(TextFor textFor)
{
    const auto [first, last] = SelectedLines();
    const BulkChange change(*this);
    for (int line = first; line <= last; ++line)
        textFor(line);
}

void CZNCoreEditorControlEx::InsertTextIntoLines(int column, const QString& text)
{
    InsertIntoEachLine([&](int line) {
        const long end = GetLineEndPosition(line, 1);
        const long place = column == -1 ? end : std::max(PositionFromLine(line, 1) + column, 0L);
        if (place <= end)
            InsertText(place, Units(text), 1);
    });
}

void CZNCoreEditorControlEx::InsertTextIntoLines(int firstNumber, const QString& text, int step,
                                                 int width)
{
    InsertIntoEachLine([&, number = firstNumber](int line) mutable {
        std::u16string numbered = numbers::PaddedTextOf(number, width);
        numbered += text.toStdU16String() + u' ';
        InsertText(PositionFromLine(line, 1), numbered.c_str(), 1);
        number = numbers::Sum(number, step);
    });
}
