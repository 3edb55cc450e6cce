// SPDX-License-Identifier: GPL-3.0-or-later
// Highlights: an indicator over everything that a search finds: at once where the text is seen, the
// rest in slices while nothing else is to be done, for the scroll bar.
#pragma once

#include "engine/search/Searcher.h"
#include "engine/text/Raw.h"
#include "engine/text/StoredText.h"
#include "engine/text/TextEdit.h"

#include <QTimer>

#include <functional>
#include <optional>
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
    // What is found in there alone, which follows the text; nothing: everywhere.
    void SetWithin(std::optional<search::Range> range);
    const std::optional<search::Range>& Within() const { return m_within; }

    void Refresh(); // after a scroll
    void EditBegins(const TextEdit& edit);
    void SearchAnewSoon(); // after a change of the text

    bool IsShown() const { return !m_sought.empty(); }
    const std::string& Sought() const { return m_sought; }
    // With a match, as far as searched: no more of them than a scroll bar can show.
    const std::vector<long>& Lines() const { return m_lines; }

private:
    bool MayDraw() const { return !m_mayDraw || m_mayDraw(); }
    void Erase();
    void FillVisible();
    void Restart();
    void SearchOn();
    search::Range Searched() const;
    template <class Visit>
    void ForEach(long from, long to, Visit visit);

    const Raw& m_raw;
    search::Searcher m_searcher;
    int m_indicator;
    std::function<void()> m_changed;
    std::function<bool()> m_mayDraw;
    QTimer m_timer;
    std::string m_sought;
    int m_flags = 0;
    std::optional<search::Range> m_within; // bytes
    long m_searched = -1;                  // as far as this place; -1: not begun
    std::vector<long> m_lines;
};

} // namespace engine
