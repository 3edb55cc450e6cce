// SPDX-License-Identifier: GPL-3.0-or-later
// Messages that carry an image: XPM, as one text or as an array of lines.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <QPixmap>

#include <cstdio>
#include <cstring>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kLargestSide = 1024;
constexpr int kMostColours = 4096;
constexpr char kMark[] = "/* XPM";

// The quoted strings of an image that is one text.
std::vector<std::string> QuotedStrings(const char* text)
{
    std::vector<std::string> strings;
    for (const char* open = std::strchr(text, '"'); open; open = std::strchr(open, '"')) {
        const char* close = std::strchr(open + 1, '"');
        if (!close)
            break;
        strings.emplace_back(open + 1, close);
        open = close + 1;
    }
    return strings;
}

// How many lines an image has by its first one, 0 if that is none.
std::size_t LinesOf(const char* header)
{
    int width = 0;
    int height = 0;
    int colours = 0;
    int units = 0;
    if (!header || std::sscanf(header, "%d %d %d %d", &width, &height, &colours, &units) != 4)
        return 0;
    if (width < 1 || width > kLargestSide || height < 1 || height > kLargestSide || colours < 1 ||
        colours > kMostColours || units < 1 || units > 4)
        return 0;
    return 1 + static_cast<std::size_t>(colours) + static_cast<std::size_t>(height);
}

// A null image for what is no XPM.
QPixmap ToPixmap(LPARAM image)
{
    const char* text = reinterpret_cast<const char*>(image);
    if (!text)
        return {};
    std::vector<std::string> strings;
    std::vector<const char*> lines;
    if (std::strncmp(text, kMark, sizeof(kMark) - 1) == 0) {
        strings = QuotedStrings(text);
        for (const std::string& string : strings)
            lines.push_back(string.c_str());
        if (lines.empty() || lines.size() < LinesOf(lines.front()))
            return {};
    } else {
        const auto* array = reinterpret_cast<const char* const*>(image);
        const std::size_t count = LinesOf(array[0]);
        for (std::size_t line = 0; line < count; ++line) {
            if (!array[line])
                return {};
            lines.push_back(array[line]);
        }
    }
    return lines.empty() || LinesOf(lines.front()) == 0 ? QPixmap() : QPixmap(lines.data());
}

template <UINT Number>
LRESULT TakeImage(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const QPixmap image = ToPixmap(lParam);
    if (!image.isNull())
        engine.window.SendScintilla(Number, static_cast<unsigned long>(static_cast<int>(wParam)),
                                    image);
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::MarkerDefinePixmap, TakeImage<Sci::SCI_MARKERDEFINEPIXMAP>},
    {message::RegisterImage, TakeImage<Sci::SCI_REGISTERIMAGE>},
};

} // namespace

std::span<const HandlerRow> ImageHandlers()
{
    return kRows;
}

} // namespace engine
