// SPDX-License-Identifier: GPL-3.0-or-later
// A text to search without an engine: in one string, with a gap that moves as an engine's does.
#pragma once

#include "engine/search/SearchedText.h"

#include <cctype>

class PlainText final : public engine::search::SearchedText
{
public:
    explicit PlainText(std::string text, long gap = 0) : m_text(std::move(text)), m_gap(gap) {}

    long Length() const override { return static_cast<long>(m_text.size()); }
    long Gap() const override { return m_gap; }
    std::string_view Bytes(long start, long end) const override
    {
        if (start < m_gap && m_gap < end) {
            m_gapMoved += m_gap - start;
            m_gap = start;
        }
        return std::string_view(m_text).substr(static_cast<std::size_t>(start),
                                               static_cast<std::size_t>(end - start));
    }
    bool IsWord(long start, long end) const override
    {
        return IsWordStart(start) && (end == Length() || IsWordByte(end - 1) != IsWordByte(end));
    }
    bool IsWordStart(long at) const override
    {
        return at < Length() && IsWordByte(at) && (at == 0 || !IsWordByte(at - 1));
    }
    std::string WordCharacters() const override
    {
        return "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
    }

    long GapMoved() const { return m_gapMoved; } // bytes
    const std::string& Text() const { return m_text; }

private:
    bool IsWordByte(long at) const
    {
        const auto byte = static_cast<unsigned char>(m_text[static_cast<std::size_t>(at)]);
        return byte >= 0x80 || byte == '_' || std::isalnum(byte);
    }

    std::string m_text;
    mutable long m_gap;
    mutable long m_gapMoved = 0;
};
