// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of a host's own beside the lines, in margin 0. They go along with their lines.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <map>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr std::u16string_view kLineEnds = u"\r\n";

// Up to its first line end: the stock engine would make the line as high as its text.
void SetText(const Engine& engine, long line, std::u16string_view text)
{
    if (line < 0 || line >= engine.raw.LineCount())
        return;
    const Utf8Text bytes(text.substr(0, text.find_first_of(kLineEnds)));
    engine.raw.Send(Sci::SCI_MARGINSETTEXT, static_cast<WPARAM>(line), bytes.Data());
    engine.raw.Send(Sci::SCI_MARGINSETSTYLE, static_cast<WPARAM>(line),
                    LPARAM{Sci::STYLE_LINENUMBER});
}

// In place of all that were there.
LRESULT SetTexts(Engine& engine, WPARAM wParam, LPARAM)
{
    const auto* texts = reinterpret_cast<const std::map<int, std::u16string>*>(wParam);
    engine.raw.Send(Sci::SCI_MARGINTEXTCLEARALL);
    if (!texts)
        return 0;
    for (const auto& [line, text] : *texts)
        SetText(engine, line, text);
    return 0;
}

// One text with a line for each of the document's, from its first.
LRESULT SetTextOfLines(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* units = reinterpret_cast<const char16_t*>(wParam);
    engine.raw.Send(Sci::SCI_MARGINTEXTCLEARALL);
    if (!units || lParam <= 0)
        return 0;
    std::u16string_view rest(units, static_cast<std::size_t>(lParam));
    for (long line = 0;; ++line) {
        SetText(engine, line, rest);
        const std::size_t end = rest.find_first_of(kLineEnds);
        if (end == std::u16string_view::npos)
            return 0;
        const bool isPair = rest.substr(end, kLineEnds.size()) == kLineEnds;
        rest.remove_prefix(end + (isPair ? kLineEnds.size() : 1));
    }
}

constexpr HandlerRow kRows[] = {
    {kExtendedTexts, SetTexts},
    {kExtendedText, SetTextOfLines},
};

} // namespace

std::span<const HandlerRow> MarginTextHandlers()
{
    return kRows;
}

} // namespace engine
