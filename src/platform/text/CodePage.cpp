// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/CodePage.h"

#include "platform/text/CodePageTable.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace platform {
namespace {

int g_systemCodePage = 1252;

int Resolve(int codePage)
{
    return codePage == 0 ? g_systemCodePage : codePage;
}

const unsigned char* AsBytes(const char* bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes);
}

// A count of -1 means a terminated text; anything else below 0 is no count at all.
template <typename Unit>
std::size_t CountOf(const Unit* text, int count)
{
    if (text == nullptr || count < -1)
        return 0;
    return count == -1 ? std::char_traits<Unit>::length(text) + 1 : static_cast<std::size_t>(count);
}

int IntOrZero(std::size_t count)
{
    return count > INT_MAX ? 0 : static_cast<int>(count);
}

// Converts through a buffer of the converter's own, for a caller who measures or whose room is
// below the most that may come out.
template <typename Unit, typename Convert>
int ConvertByDetour(std::size_t most, Unit* target, int capacity, Convert convert)
{
    std::vector<Unit> detour(most);
    const std::size_t count = convert(detour.data());
    if (capacity == 0)
        return IntOrZero(count);
    if (count > static_cast<std::size_t>(capacity))
        return 0;
    std::copy_n(detour.data(), count, target);
    return static_cast<int>(count);
}

int Utf8ToWideChar(const unsigned char* bytes, std::size_t byteCount, char16_t* units, int capacity)
{
    const auto room = static_cast<std::size_t>(capacity);
    if (room < byteCount) {
        const std::size_t needed = utf8::UnitCount(bytes, byteCount);
        if (capacity == 0)
            return IntOrZero(needed);
        if (needed > room)
            return 0;
    }
    return static_cast<int>(utf8::ToUnits(bytes, byteCount, units, room));
}

int WideCharToUtf8(const char16_t* units, std::size_t unitCount, unsigned char* bytes, int capacity)
{
    if (static_cast<std::size_t>(capacity) < unitCount * 3) {
        const std::size_t needed = utf8::ByteCount(units, unitCount);
        if (capacity == 0)
            return IntOrZero(needed);
        if (needed > static_cast<std::size_t>(capacity))
            return 0;
    }
    return static_cast<int>(utf8::ToBytes(units, unitCount, bytes));
}

// The size of the character at a byte. In UTF-8 a byte that begins no character is one of its own,
// and so is every byte in an unknown page.
std::size_t Step(int codePage, const Page* page, const unsigned char* at, std::size_t left)
{
    if (codePage == kUtf8CodePage) {
        const std::size_t size = std::max<std::size_t>(utf8::LengthByLead(*at), 1);
        return size <= left ? size : 0;
    }
    return page == nullptr ? 1 : page->Step(at, left);
}

// A lead byte before a NUL stands alone, so that a walk never steps over the NUL.
const char* Next(int codePage, const Page* page, const char* at, const char* end)
{
    if (at >= end || *at == 0)
        return at;
    const std::size_t step = Step(codePage, page, AsBytes(at), static_cast<std::size_t>(end - at));
    return std::find(at + std::min<std::size_t>(step, 1), at + step, '\0');
}

} // namespace

void SetSystemCodePage(int codePage)
{
    g_systemCodePage = codePage;
}

int GetSystemCodePage()
{
    return g_systemCodePage;
}

int MultiByteToWideChar(int codePage, const char* bytes, int byteCount, char16_t* units,
                        int unitCapacity)
{
    const std::size_t count = CountOf(bytes, byteCount);
    if (count == 0 || unitCapacity < 0)
        return 0;
    if (Resolve(codePage) == kUtf8CodePage)
        return Utf8ToWideChar(AsBytes(bytes), count, units, unitCapacity);
    Page* const page = FindPage(Resolve(codePage));
    if (page == nullptr)
        return 0;
    if (page->IsSingleByte() && unitCapacity == 0)
        return IntOrZero(count);
    const auto convert = [&](char16_t* target) {
        return page->ToUnits(AsBytes(bytes), count, target);
    };
    const std::size_t most = page->MaxUnits(count);
    if (static_cast<std::size_t>(unitCapacity) < most)
        return ConvertByDetour(most, units, unitCapacity, convert);
    return IntOrZero(convert(units));
}

int WideCharToMultiByte(int codePage, const char16_t* units, int unitCount, char* bytes,
                        int byteCapacity)
{
    const std::size_t count = CountOf(units, unitCount);
    if (count == 0 || byteCapacity < 0)
        return 0;
    auto* const target = reinterpret_cast<unsigned char*>(bytes);
    if (Resolve(codePage) == kUtf8CodePage)
        return WideCharToUtf8(units, count, target, byteCapacity);
    Page* const page = FindPage(Resolve(codePage));
    if (page == nullptr)
        return 0;
    if (page->IsSingleByte() && byteCapacity == 0)
        return IntOrZero(count);
    const auto convert = [&](unsigned char* room) { return page->ToBytes(units, count, room); };
    const std::size_t most = page->MaxBytes(count);
    if (static_cast<std::size_t>(byteCapacity) < most)
        return ConvertByDetour(most, target, byteCapacity, convert);
    return IntOrZero(convert(target));
}

const char* CharNextExA(int codePage, const char* at, const char* end)
{
    const int resolved = Resolve(codePage);
    return Next(resolved, FindPage(resolved), at, end);
}

std::size_t WalkCharacters(int codePage, const char* bytes, std::size_t byteCount)
{
    const int resolved = Resolve(codePage);
    const Page* const page = FindPage(resolved);
    if (resolved != kUtf8CodePage && (page == nullptr || page->IsSingleByte())) {
        const void* const nul = byteCount == 0 ? nullptr : std::memchr(bytes, 0, byteCount);
        return nul == nullptr ? byteCount
                              : static_cast<std::size_t>(static_cast<const char*>(nul) - bytes);
    }
    const char* const end = bytes + byteCount;
    const char* at = bytes;
    while (at < end) {
        const auto byte = static_cast<unsigned char>(*at);
        const char* const next = byte > 0 && byte < 0x80 ? at + 1 : Next(resolved, page, at, end);
        if (next == at)
            break;
        at = next;
    }
    return static_cast<std::size_t>(at - bytes);
}

int MaxUnitCount(int codePage, std::size_t byteCount)
{
    const int resolved = Resolve(codePage);
    return resolved == kUtf8CodePage || FindPage(resolved) != nullptr ? IntOrZero(byteCount) : 0;
}

int MaxByteCount(int codePage, std::size_t unitCount)
{
    const int resolved = Resolve(codePage);
    if (resolved == kUtf8CodePage)
        return IntOrZero(unitCount * 3);
    const Page* const page = FindPage(resolved);
    return page == nullptr ? 0 : IntOrZero(page->MaxBytes(unitCount));
}

// The letters that most scripts are written in have a high byte of zero, so the side on which zero
// bytes prevail is that of the high bytes. Where neither does, high bytes hardly change from unit
// to unit while low bytes do: the bytes are swapped when those in front of each pair vary less than
// a third of those behind.
bool IsTextUnicode(const void* bytes, int byteCount, int* tests)
{
    const auto* at = static_cast<const unsigned char*>(bytes);
    long zeros = 0; // in front, less those behind
    long front = 0;
    long behind = 0;
    for (int i = 0; i + 1 < byteCount; i += 2) {
        zeros += (at[i] == 0) - (at[i + 1] == 0);
        if (i == 0)
            continue;
        front += std::abs(at[i] - at[i - 2]);
        behind += std::abs(at[i + 1] - at[i - 1]);
    }
    const bool isSwapped = zeros > 0 || (zeros == 0 && front * 3 < behind);
    const int asked = *tests;
    *tests &= isSwapped ? IS_TEXT_UNICODE_REVERSE_STATISTICS : 0;
    return asked != 0 && *tests == asked;
}

} // namespace platform
