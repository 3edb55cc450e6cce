// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// PartitionInfo: one part of a script, as the engine's partitioner hands it out. What the two
/// numbers and the text mean stands with the partitioner's messages in EngineMessages.h.
#pragma once

#include <algorithm>
#include <string>
#include <utility>

/// A record owns its text, which new[] made. pNext belongs to the list that the engine hands over
/// and is copied as it is: behind PartitionGetAll it points at a record that is gone, so nobody
/// follows it.
struct PartitionInfo
{
    int nFirst = 0;                 ///< where it begins
    int nSecond = 0;                ///< behind its last unit
    char16_t* pszText = nullptr;    ///< terminated, or null
    PartitionInfo* pNext = nullptr; ///< the engine's; not to be followed

    PartitionInfo() = default; ///< nothing, without a text
    /// With a text of its own.
    PartitionInfo(const PartitionInfo& other)
        : nFirst(other.nFirst), nSecond(other.nSecond), pszText(Duplicate(other.pszText)),
          pNext(other.pNext)
    {}
    /// Takes the text over.
    PartitionInfo(PartitionInfo&& other) noexcept
        : nFirst(other.nFirst), nSecond(other.nSecond),
          pszText(std::exchange(other.pszText, nullptr)), pNext(other.pNext)
    {}
    /// Its own text goes.
    PartitionInfo& operator=(PartitionInfo other) noexcept
    {
        nFirst = other.nFirst;
        nSecond = other.nSecond;
        std::swap(pszText, other.pszText);
        pNext = other.pNext;
        return *this;
    }
    ~PartitionInfo() { delete[] pszText; } ///< its text goes; what stands behind it stays

    /// A copy made with new[], terminator included; null of null.
    static char16_t* Duplicate(const char16_t* text)
    {
        if (!text)
            return nullptr;
        const std::size_t size = std::char_traits<char16_t>::length(text) + 1;
        return std::copy_n(text, size, new char16_t[size]) - size;
    }
};
