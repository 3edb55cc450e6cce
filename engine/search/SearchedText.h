// SPDX-License-Identifier: GPL-3.0-or-later
// SearchedText: what the search asks of a text. Positions count bytes of UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace engine::search {

class SearchedText
{
public:
    virtual ~SearchedText() = default;

    virtual long Length() const = 0;
    // Where the storage has a gap: what crosses it is not in one piece.
    virtual long Gap() const = 0;
    // The bytes between two places, in one piece; a gap between them is moved to the first of them.
    // Good until the next call.
    virtual std::string_view Bytes(long start, long end) const = 0;

    virtual bool IsWord(long start, long end) const = 0; // starts as a word does and ends as one
    virtual bool IsWordStart(long at) const = 0;
    // Those below 0x80.
    virtual std::string WordCharacters() const = 0;
    // Another number as soon as they may be others.
    virtual unsigned WordsVersion() const { return 0; }
};

} // namespace engine::search
