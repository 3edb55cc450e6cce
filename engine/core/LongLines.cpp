// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/LongLines.h"

#include "control/LongLine.h"
#include "engine/core/Engine.h"

#include <algorithm>
#include <string>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kFewestPieces = 1024;            // that the stock engine keeps the widths of
constexpr long kMostPieces = 16 * 1024 * 1024;  // 16 bytes each beside the widths
constexpr long kExactPixels = 16 * 1024 * 1024; // of a line: the stock engine's places are floats
constexpr long kUniform = 64;                   // bytes in one style that say that nothing was laid

long Ask(const Raw& raw, unsigned message, long value = 0)
{
    return static_cast<long>(raw.Send(message, static_cast<std::uintptr_t>(value)));
}

} // namespace

long LongLines::LengthOf(long line) const
{
    return Ask(m_engine.raw, Sci::SCI_GETLINEENDPOSITION, line) -
           Ask(m_engine.raw, Sci::SCI_POSITIONFROMLINE, line);
}

void LongLines::Prepare()
{
    const Raw& raw = m_engine.raw;
    const long caretLine = Ask(raw, Sci::SCI_LINEFROMPOSITION, Ask(raw, Sci::SCI_GETCURRENTPOS));
    const long top = Ask(raw, Sci::SCI_GETFIRSTVISIBLELINE);
    const long rows = Ask(raw, Sci::SCI_LINESONSCREEN) + 1;
    const long lineCount = raw.LineCount();
    bool anyLong = false;
    const auto look = [&](long line) {
        const long length = LengthOf(line);
        if (length < AlikeStyles::kLongLine)
            return;
        anyLong = true;
        m_longest = std::max(m_longest, length);
        LayAlike(line);
        TellOf(line);
    };
    look(caretLine);
    long last = -1;
    for (long row = top; row <= top + rows; ++row) {
        const long line = Ask(raw, Sci::SCI_DOCLINEFROMVISIBLE, row);
        if (line != last && line != caretLine && line < lineCount)
            look(line);
        last = line;
    }
    if (anyLong || m_longest > 0) {
        FitCache();
        m_engine.colouring->Alike().Match(raw);
    }
    if (std::exchange(m_caretWaits, false)) {
        raw.Send(Sci::SCI_SCROLLCARET);
        raw.Send(Sci::SCI_CHOOSECARETX);
    }
}

// A shorter line is never told of, as a cheap test before its width is asked.
void LongLines::TellOf(long line)
{
    constexpr long kWidest = 64; // pixels of a character
    const Raw& raw = m_engine.raw;
    const LRESULT document = m_engine.Document();
    if (m_toldOf == document || m_longest < kExactPixels / kWidest)
        return;
    const auto width = static_cast<long>(
        raw.Send(Sci::SCI_TEXTWIDTH, Sci::STYLE_DEFAULT, static_cast<const void*>("0")));
    const long exact = kExactPixels / std::max(width, 1L);
    if (LengthOf(line) <= exact)
        return;
    m_toldOf = document;
    QMetaObject::invokeMethod(
        &m_engine.window,
        [this, line, exact] {
            m_engine.reporter.Tell(kLongLineShown, {.length = static_cast<int>(exact),
                                                    .line = static_cast<int>(line)});
        },
        Qt::QueuedConnection);
}

// The widths of pieces are kept as long as a line of the text may need them.
void LongLines::FitCache()
{
    const Raw& raw = m_engine.raw;
    if (raw.Length() < m_longest / 2)
        m_longest = m_toldOf = 0;
    // As many as the line has bytes, so that few of its pieces share a place, and some to grow.
    const long pieces = std::clamp(m_longest + m_longest / 8, kFewestPieces, kMostPieces);
    const long have = Ask(raw, Sci::SCI_GETPOSITIONCACHE);
    if (have < std::min(m_longest, kMostPieces) || (m_longest == 0 && have != kFewestPieces))
        raw.Send(Sci::SCI_SETPOSITIONCACHE, static_cast<std::uintptr_t>(pieces));
}

// Text that nobody colours has one style. SQL is seen to where it is coloured; of other languages
// the styles are read again by their lexers, and stay.
void LongLines::LayAlike(long line)
{
    const Raw& raw = m_engine.raw;
    const long lexer = Ask(raw, Sci::SCI_GETLEXER);
    if (m_engine.colouring->IsSql() || (lexer != Sci::SCLEX_CONTAINER && lexer != Sci::SCLEX_NULL))
        return;
    const long start = Ask(raw, Sci::SCI_POSITIONFROMLINE, line);
    const long end = Ask(raw, Sci::SCI_GETLINEENDPOSITION, line);
    const auto styleAt = [&raw](long position) { return Ask(raw, Sci::SCI_GETSTYLEAT, position); };
    const long caret = Ask(raw, Sci::SCI_GETCURRENTPOS);
    for (const long place : {start, std::clamp(caret - kUniform, start, end - kUniform),
                             std::clamp(caret, start, end - kUniform), end - kUniform}) {
        const long style = styleAt(place);
        long from = place;
        long to = place + 1;
        while (to < place + kUniform && styleAt(to) == style)
            ++to;
        if (to < place + kUniform)
            continue;
        while (to < end && styleAt(to) == style)
            ++to;
        while (from > start && styleAt(from - 1) == style)
            --from;
        std::string styles(static_cast<std::size_t>(to - from), static_cast<char>(style));
        m_engine.colouring->LayAlike(raw, from, styles);
    }
}

// One caret, and nothing but the text to change.
bool LongLines::IsOrdinary() const
{
    const Raw& raw = m_engine.raw;
    const long caret = Ask(raw, Sci::SCI_GETCURRENTPOS);
    return Ask(raw, Sci::SCI_GETANCHOR) == caret && Ask(raw, Sci::SCI_GETSELECTIONS) == 1 &&
           !Ask(raw, Sci::SCI_SELECTIONISRECTANGLE) && !Ask(raw, Sci::SCI_GETREADONLY) &&
           !Ask(raw, Sci::SCI_GETOVERTYPE) && !Ask(raw, Sci::SCI_AUTOCACTIVE) &&
           !m_engine.recording &&
           LengthOf(Ask(raw, Sci::SCI_LINEFROMPOSITION, caret)) >= AlikeStyles::kLongLine;
}

bool LongLines::Type(std::string_view bytes, char32_t character)
{
    if (!IsOrdinary())
        return false;
    m_engine.raw.Send(Sci::SCI_ADDTEXT, bytes.size(), bytes.data());
    Changed();
    m_engine.reporter.Tell(notify::CharAdded, {.ch = static_cast<int>(character)});
    return true;
}

// Of the white space that a line begins with the stock engine may take more.
bool LongLines::Erase(bool back)
{
    const Raw& raw = m_engine.raw;
    if (!IsOrdinary())
        return false;
    const long caret = Ask(raw, Sci::SCI_GETCURRENTPOS);
    const long line = Ask(raw, Sci::SCI_LINEFROMPOSITION, caret);
    const long from = back ? Ask(raw, Sci::SCI_POSITIONBEFORE, caret) : caret;
    const long to = back ? caret : Ask(raw, Sci::SCI_POSITIONAFTER, caret);
    if ((back && caret <= Ask(raw, Sci::SCI_GETLINEINDENTPOSITION, line)) || from >= to ||
        to > Ask(raw, Sci::SCI_GETLINEENDPOSITION, line))
        return false;
    raw.Send(Sci::SCI_DELETERANGE, static_cast<std::uintptr_t>(from), to - from);
    Changed();
    return true;
}

// Colours come before the line is laid out: up to where a paint would want them.
void LongLines::Changed()
{
    const Raw& raw = m_engine.raw;
    m_caretWaits = true;
    ChangeReporter::FlushAll();
    const auto behind = [&raw](long line) {
        return line + 1 < raw.LineCount() ? Ask(raw, Sci::SCI_POSITIONFROMLINE, line + 1)
                                          : raw.Length();
    };
    const long caretLine = Ask(raw, Sci::SCI_LINEFROMPOSITION, Ask(raw, Sci::SCI_GETCURRENTPOS));
    const long bottom =
        Ask(raw, Sci::SCI_GETFIRSTVISIBLELINE) + Ask(raw, Sci::SCI_LINESONSCREEN) + 1;
    const long end =
        std::max(behind(caretLine), behind(Ask(raw, Sci::SCI_DOCLINEFROMVISIBLE, bottom)));
    const std::shared_ptr<Colouring> colouring =
        m_engine.colouring; // handlers may change documents
    const long styled = Ask(raw, Sci::SCI_GETENDSTYLED);
    if (colouring->IsSql())
        colouring->StyleTo(raw, end);
    else if (styled < end && Ask(raw, Sci::SCI_GETLEXER) == Sci::SCLEX_NULL)
        raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(end)); // nothing to colour
    else if (styled < end) // which has all of the window painted
        raw.Send(Sci::SCI_COLOURISE, static_cast<std::uintptr_t>(styled), end);
}

} // namespace engine
