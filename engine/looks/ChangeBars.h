// SPDX-License-Identifier: GPL-3.0-or-later
// ChangeBars: the marks of the lines of one document that differ from its file, or did until they
// were saved (control/EngineLooks.h). Undo and redo put the marks back that were there: for each
// edit that can be undone, those of the lines that it was made in are kept. The stock engine makes
// undo and redo of the edits themselves, each in the order of its history; should what is kept be
// of another edit, the lines are marked as if a person had changed them. Positions count bytes.
#pragma once

#include "engine/text/Raw.h"
#include "engine/text/TextEdit.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace engine {

class ChangeBars
{
public:
    // Around each edit that can be undone. The end is that of the lines that were put in, or the
    // position.
    void EditBegins(const Raw& raw, const TextEdit& edit);
    void EditEnds(const Raw& raw, long position, long end);

    // The text is its file's.
    void SavePointSet() { ++m_saves; }
    // What is kept is of no use any more.
    void Forget();

    // From here on marks of any document may have gone.
    static void MarksMayGo() { ++s_series; }

private:
    using Marks = std::vector<std::uint8_t>; // a line's each

    class Stack
    {
    public:
        void Push(long position, std::uint32_t saves, Marks lines);
        // The marks of the lines of the last edit, if it was there.
        std::optional<Marks> Pop(long position, std::uint32_t saves);
        void Clear();

    private:
        struct Edit
        {
            long position = 0;
            std::uint32_t saves = 0; // until then
            std::uint8_t first = 0;  // the marks of the first line
            bool hasMore = false;    // and of others
        };

        std::vector<Edit> m_edits;
        std::map<std::size_t, Marks> m_lines; // of edits with more than one, by place in m_edits
    };

    Stack m_done;
    Stack m_undone;
    std::uint32_t m_saves = 0;
    std::optional<Marks> m_before; // of the lines of the edit under way, if it takes one back
    long m_marked = -1;            // where a line was marked last,
    unsigned m_series = 0;         // if it was in this series

    static inline unsigned s_series = 1; // of changes that no mark went between
};

} // namespace engine
