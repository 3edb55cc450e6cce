// SPDX-License-Identifier: GPL-3.0-or-later
// Printing: the range on paper, and how styles differ there.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kStyles = 256;

// Puts the print styles in place of the screen's for as long as it lives.
class PrintStyles
{
public:
    explicit PrintStyles(Engine& engine) : m_engine(engine)
    {
        const PrintStyle& print = engine.print;
        for (int style = 0; style < kStyles; ++style) {
            if (print.bold)
                Put(Sci::SCI_STYLEGETBOLD, Sci::SCI_STYLESETBOLD, style, *print.bold);
            if (print.italic)
                Put(Sci::SCI_STYLEGETITALIC, Sci::SCI_STYLESETITALIC, style, *print.italic);
            if (print.points)
                Put(Sci::SCI_STYLEGETSIZE, Sci::SCI_STYLESETSIZE, style, *print.points);
            if (!print.font.empty())
                PutFont(style);
        }
    }

    ~PrintStyles()
    {
        for (const Saved& saved : m_saved)
            m_engine.raw.Send(saved.setter, static_cast<WPARAM>(saved.style), saved.value);
        for (std::size_t style = 0; style < m_fonts.size(); ++style)
            m_engine.raw.Send(Sci::SCI_STYLESETFONT, style, m_fonts[style].c_str());
    }

    PrintStyles(const PrintStyles&) = delete;
    PrintStyles& operator=(const PrintStyles&) = delete;

private:
    struct Saved
    {
        UINT setter;
        int style;
        LPARAM value;
    };

    void Put(UINT getter, UINT setter, int style, int value)
    {
        const auto word = static_cast<WPARAM>(style);
        m_saved.push_back({setter, style, m_engine.raw.Send(getter, word)});
        m_engine.raw.Send(setter, word, value);
    }

    void PutFont(int style)
    {
        const auto word = static_cast<WPARAM>(style);
        std::string name(
            static_cast<std::size_t>(m_engine.raw.Send(Sci::SCI_STYLEGETFONT, word)) + 1, '\0');
        m_engine.raw.Send(Sci::SCI_STYLEGETFONT, word, name.data());
        m_fonts.emplace_back(name.c_str());
        m_engine.raw.Send(Sci::SCI_STYLESETFONT, word, m_engine.print.font.c_str());
    }

    Engine& m_engine;
    std::vector<Saved> m_saved;
    std::vector<std::string> m_fonts;
};

QRect ToRect(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top),
            static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

// Lays the range out in the rectangle, and draws it if wParam is set. Gives the position of the
// first unit that found no room.
LRESULT FormatRange(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* format = reinterpret_cast<const RangeToFormat*>(lParam);
    if (!format || !format->hdc) // also the way to say that printing is over
        return 0;
    const long start = engine.Bytes(std::max(format->chrg.cpMin, 0));
    const long end =
        format->chrg.cpMax < 0 ? engine.raw.Length() : engine.Bytes(format->chrg.cpMax);
    if (end <= start)
        return engine.Units(start);
    const PrintStyles styles(engine);
    const long next = engine.window.SendScintilla(Sci::SCI_FORMATRANGE, wParam != 0, format->hdc,
                                                  ToRect(format->rc), start, end);
    // The stock engine ends behind the line in which the range ends.
    return engine.Units(std::clamp(next, start, end));
}

LRESULT SetBold(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.print.bold = wParam != 0;
    return 0;
}

LRESULT SetItalic(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.print.italic = wParam != 0;
    return 0;
}

// 0 points: the screen's sizes again.
LRESULT SetSize(Engine& engine, WPARAM wParam, LPARAM)
{
    const int points = static_cast<int>(wParam);
    engine.print.points = points > 0 ? std::optional<int>(points) : std::nullopt;
    return 0;
}

// An empty name: the screen's fonts again.
LRESULT SetFont(Engine& engine, WPARAM, LPARAM lParam)
{
    engine.print.font = Utf8Text(TerminatedText(reinterpret_cast<const char16_t*>(lParam))).View();
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::FormatRange, FormatRange},       {message::PrintStyleSetBold, SetBold},
    {message::PrintStyleSetItalic, SetItalic}, {message::PrintStyleSetSize, SetSize},
    {message::PrintStyleSetFont, SetFont},
};

} // namespace

std::span<const HandlerRow> PrintHandlers()
{
    return kRows;
}

} // namespace engine
