// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Fonts as the framework describes them, and the resolution that their heights are measured at.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QFont>

#include <optional>

inline constexpr int FW_NORMAL = 400; ///< neither light nor bold
inline constexpr int FW_BOLD = 700;   ///< bold

/// A font wanted: the height in pixels, negative for that of the characters alone.
struct LOGFONT
{
    long lfHeight = 0;            ///< in pixels; negative: of the characters alone
    long lfWeight = 0;            ///< FW_NORMAL, FW_BOLD, or any between 1 and 1000
    std::uint8_t lfItalic = 0;    ///< not 0: slanted
    std::uint8_t lfUnderline = 0; ///< not 0: underlined
    std::uint8_t lfStrikeOut = 0; ///< not 0: struck through
    std::uint8_t lfCharSet = 0;   ///< without effect: text is Unicode
    char16_t lfFaceName[32] = {}; ///< terminated
};

using HFONT = const QFont*; ///< lives as long as the CFont that it comes from

/// CFont: a font that can be handed to a window. A QFont stands behind it.
class ZN_API CFont
{
public:
    CFont() = default; ///< none yet
    CFont(const CFont&) = delete;
    CFont& operator=(const CFont&) = delete;

    /// A font as it is wanted, or the nearest that there is; true always.
    bool CreateFontIndirect(const LOGFONT& font);
    void DeleteObject() { m_font.reset(); } ///< the handle is no longer good

    /// Null before a font is made.
    HFONT GetSafeHandle() const { return m_font ? &*m_font : nullptr; }

private:
    std::optional<QFont> m_font;
};

/// Pixels to an inch of the primary screen, from top to bottom.
ZN_API int ScreenPixelsPerInch();

/// number * numerator / denominator, rounded to the nearest, halves away from zero; -1 if the
/// denominator is 0.
ZN_API int MulDiv(int number, int numerator, int denominator);
