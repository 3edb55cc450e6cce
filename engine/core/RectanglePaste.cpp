// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/RectanglePaste.h"

#include "engine/text/Characters.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kStyleOfNewText = 0;

// A place in the text, and so many columns behind it where its line has no more text.
struct Place
{
    long position = 0; // bytes
    long columns = 0;

    bool operator<(const Place& other) const
    {
        return std::tie(position, columns) < std::tie(other.position, other.columns);
    }
};

// Of what is selected, whichever way it was.
Place SelectionStart(const Raw& raw)
{
    const auto ask = [&raw](unsigned message) { return static_cast<long>(raw.Send(message)); };
    if (!ask(Sci::SCI_SELECTIONISRECTANGLE))
        return {ask(Sci::SCI_GETSELECTIONSTART), 0};
    return std::min(Place{ask(Sci::SCI_GETRECTANGULARSELECTIONANCHOR),
                          ask(Sci::SCI_GETRECTANGULARSELECTIONANCHORVIRTUALSPACE)},
                    Place{ask(Sci::SCI_GETRECTANGULARSELECTIONCARET),
                          ask(Sci::SCI_GETRECTANGULARSELECTIONCARETVIRTUALSPACE)});
}

class Target
{
public:
    Target(const Raw& raw, const Place& start)
        : m_raw(raw), m_line(Ask(Sci::SCI_LINEFROMPOSITION, start.position)),
          m_column(Ask(Sci::SCI_GETCOLUMN, start.position) + start.columns)
    {}

    void Put(std::string_view piece) const
    {
        if (piece.empty())
            return;
        auto place =
            CharacterStart(m_raw, static_cast<long>(m_raw.Send(Sci::SCI_FINDCOLUMN,
                                                               static_cast<std::uintptr_t>(m_line),
                                                               std::intptr_t{m_column})));
        // Behind the line's end, or within a tab, beside whichever of its ends is nearer.
        long missing = m_column - Ask(Sci::SCI_GETCOLUMN, place);
        if (place < Ask(Sci::SCI_GETLINEENDPOSITION, m_line)) {
            const bool isTab = Ask(Sci::SCI_GETCHARAT, place) == '\t';
            const bool isBehind = isTab && Ask(Sci::SCI_GETCOLUMN, place + 1) - m_column < missing;
            place += isBehind ? 1 : 0;
            missing = isTab && !isBehind ? missing : 0;
        }
        Insert(place,
               std::string(static_cast<std::size_t>(std::max(missing, 0L)), ' ').append(piece));
    }

    void NextLine()
    {
        constexpr const char* kEnds[] = {"\r\n", "\r", "\n"};
        if (++m_line >= m_raw.LineCount())
            Insert(m_raw.Length(), kEnds[std::clamp(Ask(Sci::SCI_GETEOLMODE), 0L, 2L)]);
    }

private:
    long Ask(unsigned message, long value = 0) const
    {
        return static_cast<long>(m_raw.Send(message, static_cast<std::uintptr_t>(value)));
    }
    // By its length, since there may be NULs in it.
    void Insert(long position, std::string_view text) const
    {
        m_raw.Send(Sci::SCI_SETEMPTYSELECTION, static_cast<std::uintptr_t>(position));
        m_raw.Send(Sci::SCI_ADDTEXT, text.size(), text.data());
    }

    const Raw& m_raw;
    long m_line;
    long m_column;
};

} // namespace

bool NeedsOwnRectanglePaste(const Raw& raw, bool mayHaveNoncharacters)
{
    return mayHaveNoncharacters || raw.Send(Sci::SCI_TEXTWIDTH, kStyleOfNewText, " ") <= 0;
}

void PasteRectangle(const Raw& raw, std::string_view bytes)
{
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    if (!raw.Send(Sci::SCI_GETSELECTIONEMPTY))
        raw.Send(Sci::SCI_CLEAR);
    const Place start = SelectionStart(raw);
    Target target(raw, start);
    bytes = bytes.substr(0, bytes.find_last_not_of("\r\n") + 1); // a copy ends with a line end
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
        target.Put(bytes.substr(0, end));
        bytes.remove_prefix(end);
        if (bytes.empty())
            break;
        bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : 1);
        target.NextLine();
    }
    raw.Send(Sci::SCI_SETEMPTYSELECTION, static_cast<std::uintptr_t>(start.position));
    raw.Send(Sci::SCI_ENDUNDOACTION);
}

} // namespace engine
