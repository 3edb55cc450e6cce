// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ByteVector: a byte vector that leaves the bytes it grows by as they are. A conversion sizes it
/// for the most that may come out and cuts it to what did, block after block; clearing that room
/// first would cost as much as the conversion.
#pragma once

#include <memory>
#include <utility>
#include <vector>

/// An allocator that gives room as it is.
template <typename T>
struct UninitialisedAllocator : std::allocator<T>
{
    /// The allocator of another type.
    template <typename U>
    struct rebind
    {
        using other = UninitialisedAllocator<U>; ///< of that type
    };

    using std::allocator<T>::allocator;

    /// Leaves the bytes as they are.
    template <typename U>
    void construct(U* at)
    {
        ::new (static_cast<void*>(at)) U;
    }

    /// Makes it of the arguments.
    template <typename U, typename... Args>
    void construct(U* at, Args&&... args)
    {
        ::new (static_cast<void*>(at)) U(std::forward<Args>(args)...);
    }
};

/// Bytes that grow without being cleared.
using ByteVector = std::vector<unsigned char, UninitialisedAllocator<unsigned char>>;
