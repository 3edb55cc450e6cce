// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/NameWords.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace completion {
namespace {

constexpr std::string_view kWords[] = {
#define ZN_NAME_WORD(name, text) text,
#include "completion/NameWords.def"
#undef ZN_NAME_WORD
};

constexpr std::size_t kSlots = 512;
constexpr std::size_t kLongest = 13;
constexpr std::uint8_t kFirst = static_cast<std::uint8_t>(NameWord::Comma) + 1;

// A letter and its capital differ in this bit; what else has it is no letter of these words.
constexpr unsigned Lower(char byte)
{
    return static_cast<unsigned char>(byte) | 0x20U;
}

constexpr std::size_t SlotOf(std::string_view word)
{
    return (Lower(word[0]) * 7 + Lower(word[1]) * 31 + Lower(word.back()) * 13 + word.size() * 57) %
           kSlots;
}

constexpr std::array<std::uint8_t, kSlots> MakeSlots()
{
    std::array<std::uint8_t, kSlots> slots{};
    for (std::size_t i = 0; i < std::size(kWords); ++i) {
        std::size_t slot = SlotOf(kWords[i]);
        while (slots[slot])
            slot = (slot + 1) % kSlots;
        slots[slot] = static_cast<std::uint8_t>(kFirst + i);
    }
    return slots;
}

constexpr auto kTable = MakeSlots();

bool Equals(std::string_view word, std::string_view lower)
{
    if (word.size() != lower.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != lower[i] && Lower(word[i]) != static_cast<unsigned char>(lower[i]))
            return false;
    }
    return true;
}

} // namespace

NameWord NameWordOf(std::string_view word)
{
    if (word.size() < 2 || word.size() > kLongest)
        return NameWord::Other;
    for (std::size_t slot = SlotOf(word); kTable[slot]; slot = (slot + 1) % kSlots) {
        if (Equals(word, kWords[kTable[slot] - kFirst]))
            return static_cast<NameWord>(kTable[slot]);
    }
    return NameWord::Other;
}

bool MayBeName(NameWord word)
{
    using W = NameWord;
    return IsOneOf(word, {W::Other,        W::Type,         W::Package, W::Sequence, W::Schema,
                          W::Body,         W::Key,          W::Block,   W::Option,   W::Only,
                          W::Offset,       W::Output,       W::Start,   W::Undo,     W::Window,
                          W::Ignore,       W::Immediate,    W::Returns, W::Change,   W::Rename,
                          W::Materialized, W::Concurrently, W::Analyze, W::Comment,  W::Copy,
                          W::Describe,     W::Freeze,       W::Vacuum,  W::Verbose});
}

} // namespace completion
