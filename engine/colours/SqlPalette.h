// SPDX-License-Identifier: GPL-3.0-or-later
// SqlPalette: the colours of a family of SQL lexers: what each kind of token is, and each keyword
// set.
#pragma once

#include <array>
#include <cstdint>

namespace engine {

struct SqlPalette
{
    static constexpr int kDataTypeSet = 1;
    using ByWordSets = std::array<std::uint8_t, 256>;

    std::uint8_t blockComment, lineComment, docComment, number, string, op, identifier, variable,
        quotedName, otherQuotedName, statement, dataType, globalVariable, beforeDataType;
    std::uint8_t clientLine; // 0: the line is coloured as code
    ByWordSets words;        // by the sets that have the word
    ByWordSets wordsAfterName;
    ByWordSets wordsAfterPoint;
    ByWordSets calledWords; // with a parenthesis directly behind
};

const SqlPalette& PaletteOf(int lexer);

} // namespace engine
