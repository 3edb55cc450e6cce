// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/text/Characters.h"

#include <algorithm>

namespace engine {
namespace {

constexpr int kMostContinuations = 3;

bool IsInside(const Raw& raw, long position)
{
    return IsContinuation(static_cast<char>(
        raw.Send(Raw::Sci::SCI_GETCHARAT, static_cast<std::uintptr_t>(position))));
}

// In well-formed text all of these end in BF BE or BF BF, or are EF B7 and one of 32; so do a few
// ideographs.
bool MayHaveNoncharacter(std::string_view bytes)
{
    unsigned char found = 0;
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        found |= static_cast<unsigned char>((at[i] | 1) == 0xBF) &
                 static_cast<unsigned char>(at[i - 1] == 0xBF);
        found |= static_cast<unsigned char>(at[i] == 0xB7) &
                 static_cast<unsigned char>(at[i - 1] == 0xEF);
    }
    return found != 0;
}

bool IsNoncharacter(std::string_view character)
{
    const auto at = [character](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    if (character.size() == 3)
        return at(0) == 0xEF && ((at(1) == 0xBF && at(2) >= 0xBE) ||
                                 (at(1) == 0xB7 && at(2) >= 0x90 && at(2) < 0xB0));
    return character.size() == 4 && (at(1) & 0x0F) == 0x0F && at(2) == 0xBF && at(3) >= 0xBE;
}

} // namespace

long CharacterStart(const Raw& raw, long position)
{
    for (int i = 0; i < kMostContinuations && position > 0 && IsInside(raw, position); ++i)
        --position;
    return position;
}

long CharacterEnd(const Raw& raw, long position)
{
    const long length = raw.Length();
    for (int i = 0; i < kMostContinuations && position < length && IsInside(raw, position); ++i)
        ++position;
    return position;
}

long BehindCharacter(const Raw& raw, long position)
{
    return position < raw.Length() ? CharacterEnd(raw, position + 1) : position;
}

long BeforeCharacter(const Raw& raw, long position)
{
    return position > 0 ? CharacterStart(raw, position - 1) : position;
}

bool HasNoncharacter(std::string_view bytes)
{
    if (!MayHaveNoncharacter(bytes))
        return false;
    for (std::size_t i = 0; i < bytes.size();) {
        const auto width = static_cast<std::size_t>(WidthOf(bytes[i]));
        if (!IsContinuation(bytes[i]) && IsNoncharacter(bytes.substr(i, width)))
            return true;
        i += IsContinuation(bytes[i]) ? 1 : width;
    }
    return false;
}

} // namespace engine
