// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What AutoCShow lists: proposals, and how they are shown.
#pragma once

#include <cstdint>
#include <string>

/// Owned by the caller, and its text with it (the array form of new).
struct AutoCompleteConfig
{
    const char16_t* text = nullptr; ///< not shown; for the host
    std::int32_t mode = 1;          ///< for the host
    std::int32_t typedLength = 0;   ///< units before the caret that the chosen proposal replaces
    std::int16_t flags = 1;         ///< for the host
};

/// What lists of proposals are made of.
namespace znsqlassist {

/// One row of the list.
class SQLCompletionProposal
{
public:
    /// The text is what is shown and put in.
    explicit SQLCompletionProposal(std::u16string text, int image = -1)
        : m_text(std::move(text)), m_image(image)
    {}

    const std::u16string& Text() const { return m_text; } ///< what is shown and put in
    int Image() const { return m_image; } ///< as registered with RegisterImage, -1: none

private:
    std::u16string m_text;
    int m_image;
};

} // namespace znsqlassist
