// SPDX-License-Identifier: GPL-3.0-or-later
// Which lines a preview of a place in a text shows, and what it shows of each. Knows no window.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace engine {

struct PreviewLines
{
    std::vector<long> lines; // in the order of the text
    std::size_t meant = 0;   // the index of the one that the preview is of
};

// The line that is seen in front of another one, or behind it; -1: none.
using NextLine = std::function<long(long line)>;

// As many as are wanted or there are, the one that is meant in their middle but near an end of the
// text.
PreviewLines LinesAround(long meant, std::size_t wanted, const NextLine& before,
                         const NextLine& behind);

// What is drawn in one go.
struct PreviewPiece
{
    enum class Kind
    {
        Text,
        Boxed, // stands for a character that has a text instead of a look
        Tab,
    };

    Kind kind = Kind::Text;
    int style = 0;
    QString text;
};

struct PreviewRow
{
    static constexpr int kBlank = -1;

    int indent = kBlank;              // columns in front of the pieces; of a line without any: this
    std::vector<PreviewPiece> pieces; // behind the blanks that the line begins with
};

// The text that stands for a character of UTF-8; empty: it looks as its font has it.
using TextInstead = std::function<QString(const QByteArray& character)>;

// Of a byte of UTF-8 and its style each, so many characters behind the blanks that come first.
PreviewRow ReadPreviewRow(std::span<const char> cells, int tabColumns, long mostCharacters,
                          const TextInstead& instead);

// Columns that all rows begin with but the blank ones.
int CommonIndent(const std::vector<PreviewRow>& rows);

} // namespace engine
