// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/AlikeStyles.h"

#include <string>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr std::size_t kPiece = 26;      // bytes, with room for a character that begins there
constexpr std::size_t kLeastPiece = 20; // that a blank may end

struct Look
{
    unsigned get;
    unsigned set;
};

constexpr Look kLooks[] = {
    {Sci::SCI_STYLEGETFORE, Sci::SCI_STYLESETFORE},
    {Sci::SCI_STYLEGETBACK, Sci::SCI_STYLESETBACK},
    {Sci::SCI_STYLEGETWEIGHT, Sci::SCI_STYLESETWEIGHT},
    {Sci::SCI_STYLEGETITALIC, Sci::SCI_STYLESETITALIC},
    {Sci::SCI_STYLEGETSIZEFRACTIONAL, Sci::SCI_STYLESETSIZEFRACTIONAL},
    {Sci::SCI_STYLEGETEOLFILLED, Sci::SCI_STYLESETEOLFILLED},
    {Sci::SCI_STYLEGETUNDERLINE, Sci::SCI_STYLESETUNDERLINE},
    {Sci::SCI_STYLEGETCASE, Sci::SCI_STYLESETCASE},
    {Sci::SCI_STYLEGETCHARACTERSET, Sci::SCI_STYLESETCHARACTERSET},
    {Sci::SCI_STYLEGETVISIBLE, Sci::SCI_STYLESETVISIBLE},
    {Sci::SCI_STYLEGETCHANGEABLE, Sci::SCI_STYLESETCHANGEABLE},
    {Sci::SCI_STYLEGETHOTSPOT, Sci::SCI_STYLESETHOTSPOT},
};

bool IsBrace(char byte)
{
    return std::string_view("()[]{}<>").find(byte) != std::string_view::npos;
}

std::string FontOf(const Raw& raw, std::uintptr_t style)
{
    std::string name(static_cast<std::size_t>(raw.Send(Sci::SCI_STYLEGETFONT, style)) + 1, '\0');
    raw.Send(Sci::SCI_STYLEGETFONT, style, name.data());
    return name;
}

} // namespace

void AlikeStyles::Lay(std::span<char> styles, std::string_view bytes)
{
    std::size_t start = 0; // of the piece
    char style = '\0';
    bool isAlike = false;
    for (std::size_t i = 0; i < styles.size(); ++i) {
        const auto own = static_cast<char>(Plain(static_cast<unsigned char>(styles[i])));
        const bool isCharacter = (static_cast<unsigned char>(bytes[i]) & 0xC0U) != 0x80;
        if (i == 0 || own != style) {
            start = i;
            style = own;
            isAlike = false;
        } else if (isCharacter &&
                   (i - start >= kPiece || (i - start >= kLeastPiece && bytes[i] == ' '))) {
            start = i;
            isAlike = !isAlike;
        }
        if (isAlike && style >= 0 && !IsBrace(bytes[i])) {
            styles[i] = static_cast<char>(style | kBit);
            m_used.set(static_cast<std::size_t>(style));
        } else {
            styles[i] = style;
        }
    }
}

// To set what is so already would have the whole text measured again.
void AlikeStyles::Match(const Raw& raw) const
{
    for (std::size_t style = 0; style < m_used.size(); ++style) {
        if (!m_used[style])
            continue;
        const std::size_t alike = style + kBit;
        for (const auto& [get, set] : kLooks) {
            const std::intptr_t look = raw.Send(get, style);
            if (raw.Send(get, alike) != look)
                raw.Send(set, alike, look);
        }
        const std::string font = FontOf(raw, style);
        if (FontOf(raw, alike) != font)
            raw.Send(Sci::SCI_STYLESETFONT, alike, font.c_str());
    }
}

} // namespace engine
