// SPDX-License-Identifier: GPL-3.0-or-later
// EraseRun: a run of Backspace or Delete over the letters of a document, as one undo step. The
// stock engine joins removals of one and two bytes alone. Where there are longer characters, an
// undo action stays open between the keys of the run, and ends before anything else than a removal
// beside the last one.
#pragma once

#include "engine/text/Raw.h"
#include "engine/text/TextEdit.h"

namespace engine {

class EraseRun
{
public:
    EraseRun() = default;
    EraseRun(const EraseRun&) = delete;
    EraseRun& operator=(const EraseRun&) = delete;
    ~EraseRun();

    // Around a key that takes the one character between two places. Bytes.
    void KeyBegins(const Raw& raw, long from, long to);
    void KeyEnds() { m_takes = {}; }

    // Before an edit, of whichever window. May be told of it by each.
    void EditBegins(const Raw& raw, const TextEdit& edit);

    void Close(const Raw& raw);

    // Of any document.
    static bool AnyIsOpen() { return s_open > 0; }

    // Whether the message may edit in an undo action of its own, or asks where steps end.
    static bool IsEndedBy(unsigned message);

private:
    struct Stretch
    {
        long from = -1;
        long to = -1;
    };

    static inline int s_open = 0;

    bool m_isOpen = false;
    long m_place = 0; // bytes, where the last one was taken
    Stretch m_takes;  // by the key at hand
};

} // namespace engine
