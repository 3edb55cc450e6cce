// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/StyleLooks.h"

#include "engine/core/Engine.h"
#include "engine/text/Utf.h"

#include <algorithm>

namespace engine {

using Sci = QsciScintillaBase;

bool GetStyleLook(const Engine& engine, WPARAM style, StyleLook* look)
{
    constexpr double kParts = Sci::SC_FONT_SIZE_MULTIPLIER; // of a point
    if (style > Sci::STYLE_MAX || !look)
        return false;
    const Raw& raw = engine.raw;
    look->fore = static_cast<COLORREF>(raw.Send(Sci::SCI_STYLEGETFORE, style));
    look->back = static_cast<COLORREF>(raw.Send(Sci::SCI_STYLEGETBACK, style));
    look->bold = raw.Send(Sci::SCI_STYLEGETBOLD, style) != 0;
    look->italic = raw.Send(Sci::SCI_STYLEGETITALIC, style) != 0;
    look->underline = raw.Send(Sci::SCI_STYLEGETUNDERLINE, style) != 0;
    look->points = static_cast<double>(raw.Send(Sci::SCI_STYLEGETSIZEFRACTIONAL, style)) / kParts;
    std::string face(static_cast<std::size_t>(raw.Send(Sci::SCI_STYLEGETFONT, style)) + 1, '\0');
    raw.Send(Sci::SCI_STYLEGETFONT, style, face.data());
    const std::u16string name = ToUtf16(face.c_str());
    const std::size_t count = name.copy(look->face, std::size(look->face) - 1);
    look->face[count] = u'\0';
    return true;
}

} // namespace engine
