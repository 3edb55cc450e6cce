// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/SqlWords.h"

#include <algorithm>
#include <iterator>

namespace engine::analysis {
namespace {

constexpr std::string_view kWords[] = {
#define ZN_SQL_WORD(name, text) text,
#include "engine/analysis/SqlWords.def"
#undef ZN_SQL_WORD
};

constexpr std::size_t kSlots = 256;

// Letters differ from their capitals in one bit; what else has this bit is no letter and equals
// none of the words.
constexpr unsigned char Lower(unsigned char byte)
{
    return byte | 0x20;
}

constexpr std::size_t SlotOf(unsigned char first, unsigned char second, unsigned char last,
                             std::size_t length)
{
    return (Lower(first) * 7U + Lower(second) * 31U + Lower(last) * 3U + length * 57U) % kSlots;
}

constexpr std::size_t SlotOf(std::string_view word)
{
    return SlotOf(static_cast<unsigned char>(word[0]), static_cast<unsigned char>(word[1]),
                  static_cast<unsigned char>(word.back()), word.size());
}

struct WordTable
{
    std::uint8_t slots[kSlots] = {}; // SqlWord; probed upwards to an empty one
    std::uint32_t lengths[256] = {}; // by first letter, a bit for each length
};

constexpr WordTable MakeTable()
{
    WordTable table;
    for (std::size_t i = 0; i < std::size(kWords); ++i) {
        const std::string_view word = kWords[i];
        std::size_t slot = SlotOf(word);
        while (table.slots[slot])
            slot = (slot + 1) % kSlots;
        table.slots[slot] = static_cast<std::uint8_t>(i + 1);
        table.lengths[static_cast<unsigned char>(word[0])] |= 1U << word.size();
    }
    return table;
}

constexpr WordTable kTable = MakeTable();

bool Equals(const TextSpans& text, long start, std::string_view word)
{
    return std::all_of(word.begin(), word.end(), [&](char letter) {
        return Lower(text.At(start++)) == static_cast<unsigned char>(letter);
    });
}

} // namespace

std::span<const std::string_view> SqlWordTexts()
{
    return kWords;
}

SqlWord WordOf(const TextSpans& text, const Token& token)
{
    const long length = token.Length();
    if (token.kind != TokenKind::Word || token.resumed || length > 31)
        return SqlWord::None;
    const unsigned char first = text.At(token.start);
    if (!(kTable.lengths[Lower(first)] >> length & 1))
        return SqlWord::None;
    std::size_t slot = SlotOf(first, text.At(token.start + 1), text.At(token.end - 1),
                              static_cast<std::size_t>(length));
    for (; kTable.slots[slot]; slot = (slot + 1) % kSlots) {
        const std::string_view word = kWords[kTable.slots[slot] - 1];
        if (word.size() == static_cast<std::size_t>(length) && Equals(text, token.start, word))
            return static_cast<SqlWord>(kTable.slots[slot]);
    }
    return SqlWord::None;
}

} // namespace engine::analysis
