// SPDX-License-Identifier: GPL-3.0-or-later
// Printing: the range on paper, and how styles differ there.
#include "engine/core/Engine.h"
#include "engine/core/ErrorList.h"
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
        // A window matches them as it is painted, which may not have been since a style changed.
        engine.colouring->Alike().Match(engine.raw);
        for (const int lit : {kStatementIndicator, kOccurrenceIndicator, kMatchIndicator})
            Darken(lit);
        for (const int marked : engine.errors->Look().indicators) {
            if (marked != kNoMark)
                Darken(marked);
        }
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
        // Backwards: one may have been put twice.
        for (auto saved = m_saved.rbegin(); saved != m_saved.rend(); ++saved)
            m_engine.raw.Send(saved->setter, static_cast<WPARAM>(saved->style), saved->value);
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

    // An indicator for the eye on the screen.
    void Darken(int indicator)
    {
        Put(Sci::SCI_INDICGETSTYLE, Sci::SCI_INDICSETSTYLE, indicator, Sci::INDIC_HIDDEN);
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

// Takes text out of the layout for as long as it lives, by a style that is not shown. The stock
// engine lays out and draws whole lines only, and counts wrongly from the middle of a wrapped one.
class HiddenText
{
public:
    // The text has to be styled as far as it is laid out: nothing is styled meanwhile.
    explicit HiddenText(Engine& engine)
        : m_raw(engine.raw), m_styled(m_raw.Send(Sci::SCI_GETENDSTYLED)),
          m_wasVisible(m_raw.Send(Sci::SCI_STYLEGETVISIBLE, kHidden))
    {
        m_raw.Send(Sci::SCI_STYLESETVISIBLE, kHidden, LPARAM{0});
    }

    ~HiddenText()
    {
        for (const Piece& piece : m_pieces) {
            m_raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(piece.start));
            m_raw.Send(Sci::SCI_SETSTYLINGEX, piece.styles.size(), piece.styles.data());
        }
        m_raw.Send(Sci::SCI_STYLESETVISIBLE, kHidden, m_wasVisible);
        m_raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(m_styled));
    }

    HiddenText(const HiddenText&) = delete;
    HiddenText& operator=(const HiddenText&) = delete;

    void Hide(long start, long end)
    {
        if (start >= end)
            return;
        // A byte and its style each, and two terminators.
        std::string cells(2 * static_cast<std::size_t>(end - start) + 2, '\0');
        struct
        {
            long start, end;
            char* cells;
        } range{start, end, cells.data()};
        m_raw.Send(Sci::SCI_GETSTYLEDTEXT, 0, &range);
        Piece& piece = m_pieces.emplace_back(Piece{start, {}});
        for (std::size_t i = 1; i < cells.size() - 2; i += 2)
            piece.styles.push_back(cells[i]);
        m_raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(start));
        m_raw.Send(Sci::SCI_SETSTYLING, piece.styles.size(), kHidden);
        m_raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(m_raw.Length()));
    }

private:
    struct Piece
    {
        long start;
        std::string styles;
    };

    static constexpr int kHidden = Sci::STYLE_INDENTGUIDE; // no text has it, and no page shows it

    const Raw& m_raw;
    const LRESULT m_styled;
    const LRESULT m_wasVisible;
    std::vector<Piece> m_pieces;
};

QRect ToRect(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top),
            static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

long LineOf(const Raw& raw, long position)
{
    return raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(position));
}

long StartOf(const Raw& raw, long line)
{
    return line < raw.LineCount() ? raw.Send(Sci::SCI_POSITIONFROMLINE, static_cast<WPARAM>(line))
                                  : raw.Length();
}

// One page.
class Page
{
public:
    Page(Engine& engine, const RangeToFormat& format) : m_engine(engine), m_format(format) {}

    // Lays out the text between two places, and gives the first that found no room.
    long Put(bool draw, long start, long end) const
    {
        for (long window = kWindow;; window *= 2) {
            const long seen = WindowEnd(start, end, window);
            if (seen >= end)
                return PutAll(draw, start, end);
            const long next = PutAll(false, start, seen);
            if (next < seen)
                return draw && next > start ? PutAll(true, start, next) : next;
        }
    }

private:
    static constexpr long kWindow = 8 * 1024; // bytes; about what a page of A4 holds
    static constexpr long kLong = 32 * 1024;

    // A page shows little of a line of megabytes, all of which would be measured for it.
    long WindowEnd(long start, long end, long window) const
    {
        if (end - start <= window)
            return end;
        const Raw& raw = m_engine.raw;
        const long cut = raw.Send(Sci::SCI_POSITIONBEFORE, static_cast<WPARAM>(start + window));
        const long line = LineOf(raw, cut);
        const bool isLong = StartOf(raw, line + 1) - StartOf(raw, line) > kLong;
        return isLong && cut > start ? cut : end;
    }

    long PutAll(bool draw, long start, long end) const
    {
        const Raw& raw = m_engine.raw;
        const long first = StartOf(raw, LineOf(raw, start));
        const long lastLine = LineOf(raw, end - 1);
        const long rest = StartOf(raw, lastLine + 1);
        if (start == first && end == rest)
            return Lay(draw, first, end);
        // A line is a dot high at least.
        const long most = LineOf(raw, start) + (m_format.rc.bottom - m_format.rc.top);
        Style(std::min(rest, StartOf(raw, most + 1)));
        HiddenText hidden(m_engine);
        hidden.Hide(first, start);
        if (lastLine <= most)
            hidden.Hide(end, rest);
        return std::clamp(Lay(draw, first, end), start, end);
    }

    void Style(long end) const
    {
        const LRESULT styled = m_engine.raw.Send(Sci::SCI_GETENDSTYLED);
        if (styled < end)
            m_engine.raw.Send(Sci::SCI_COLOURISE, static_cast<WPARAM>(styled), end);
    }

    // From a line's start. The stock engine takes the line in which the range ends as a whole.
    long Lay(bool draw, long start, long end) const
    {
        const long next = m_engine.window.SendScintilla(Sci::SCI_FORMATRANGE, draw, m_format.hdc,
                                                        ToRect(m_format.rc), start, end - 1);
        return std::clamp(next, start, end);
    }

    Engine& m_engine;
    const RangeToFormat& m_format;
};

// Lays the range out in the rectangle, and draws it if wParam is set. The character at the range's
// end belongs to it, as the line there does for the stock engine. Gives the position of the first
// unit that is not on the page.
LRESULT FormatRange(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* format = reinterpret_cast<const RangeToFormat*>(lParam);
    if (!format || !format->hdc) // also the way to say that printing is over
        return 0;
    const long start = engine.Bytes(std::max(format->chrg.cpMin, 0));
    const long last = engine.Bytes(std::max(format->chrg.cpMax, -1));
    const long end = last < 0 ? engine.raw.Length()
                              : engine.raw.Send(Sci::SCI_POSITIONAFTER, static_cast<WPARAM>(last));
    if (end <= start || (last >= 0 && last < start))
        return engine.Units(start);
    const PrintStyles styles(engine);
    return engine.Units(Page(engine, *format).Put(wParam != 0, start, end));
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
