// SPDX-License-Identifier: GPL-3.0-or-later
// The places that the caret has rested at, across scripts: what Back and Forward walk through. Data
// alone: knows no window.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

class PlaceHistory
{
public:
    struct Place
    {
        std::uintptr_t script = 0; // which of those that are open; 0: closed
        QString path;              // empty: the script has no file
        int line = 0;              // from 0
        int column = 0;            // units of the line

        bool operator==(const Place&) const = default;
    };
    static constexpr int kNear = 10; // lines: closer than that it is the same place
    static constexpr std::size_t kMost = 100;

    // The caret rests here. Where that is another place, those that lie forward are forgotten.
    void Visit(const Place& place);

    // What a script goes through. A script without a file takes its places with it.
    // From the first one on; below 0: that many went from there.
    void LinesMoved(std::uintptr_t script, int first, int added);
    void Closed(std::uintptr_t script);

    bool HasBack() const { return m_at > 0; }
    bool HasForward() const { return m_at + 1 < m_places.size(); }
    std::optional<Place> Back(); // nothing at the end
    std::optional<Place> Forward();

private:
    std::vector<Place> m_places;
    std::size_t m_at = 0; // the one that the caret is at, if there is any
};
