// SPDX-License-Identifier: GPL-3.0-or-later
// Highlights: an indicator over everything that a search finds: at once where the text is seen, the
// rest in slices while nothing else is to be done, for the scroll bar.
#pragma once

#include "engine/search/Searcher.h"
#include "engine/text/Raw.h"
#include "engine/text/StoredText.h"

#include <QTimer>

#include <functional>
#include <string>
#include <vector>

namespace engine {

class Highlights
{
public:
    // Changed is called when lines have been added. mayDraw: whether the indicator, which all
    // windows of a text have in common, is this window's; always without a function.
    Highlights(const Raw& raw, const StoredText& text, int indicator, std::function<void()> changed,
               std::function<bool()> mayDraw = {});

    void Show(std::string sought, int flags); // UTF-8; empty: nothing more
    void Clear() { Show({}, 0); }
    void Refresh();        // after a scroll
    void SearchAnewSoon(); // after a change of the text

    bool IsShown() const { return !m_sought.empty(); }
    const std::string& Sought() const { return m_sought; }
    const std::vector<long>& Lines() const { return m_lines; } // with a match, as far as searched

private:
    bool MayDraw() const { return !m_mayDraw || m_mayDraw(); }
    void Erase();
    void FillVisible();
    void SearchOn();
    template <class Visit>
    long ForEach(long from, long to, Visit visit);

    const Raw& m_raw;
    search::Searcher m_searcher;
    int m_indicator;
    std::function<void()> m_changed;
    std::function<bool()> m_mayDraw;
    QTimer m_timer;
    std::string m_sought;
    int m_flags = 0;
    long m_searched = 0; // bytes from the text's start
    std::vector<long> m_lines;
};

} // namespace engine
