// SPDX-License-Identifier: GPL-3.0-or-later
// StoredText: the text of a window as the search sees it.
#pragma once

#include "engine/search/SearchedText.h"
#include "engine/text/Raw.h"
#include "engine/text/TextIndex.h"

namespace engine {

class StoredText final : public search::SearchedText
{
public:
    StoredText(const Raw& raw, const TextIndex& index) : m_raw(raw), m_index(index) {}

    long Length() const override { return m_index.LengthInBytes(); }
    long Gap() const override
    {
        return static_cast<long>(m_raw.Send(Raw::Sci::SCI_GETGAPPOSITION));
    }
    std::string_view Bytes(long start, long end) const override { return m_raw.Bytes(start, end); }

    bool IsWord(long start, long end) const override
    {
        return m_raw.Send(Raw::Sci::SCI_ISRANGEWORD, static_cast<std::uintptr_t>(start),
                          static_cast<std::intptr_t>(end)) != 0;
    }

    // The text's end is always one of a word, unless the text ends where the word starts.
    bool IsWordStart(long at) const override { return IsWord(at, Length()); }

    std::string WordCharacters() const override
    {
        char characters[257] = {};
        const auto size = m_raw.Send(Raw::Sci::SCI_GETWORDCHARS, 0, characters);
        std::string words;
        for (std::intptr_t i = 0; i < size; ++i) {
            if (characters[i] >= 0)
                words += characters[i];
        }
        return words;
    }

    // A document may stand in several windows, so that one counter serves for all.
    unsigned WordsVersion() const override { return s_wordsVersion; }
    static void WordsMayChange() { ++s_wordsVersion; }

private:
    static inline unsigned s_wordsVersion = 0;

    const Raw& m_raw;
    const TextIndex& m_index;
};

} // namespace engine
