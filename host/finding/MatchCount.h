// SPDX-License-Identifier: GPL-3.0-or-later
// MatchCount: where all matches start, looked for in slices while nothing else is to be done. Knows
// no editor.
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

class MatchCount final : public QObject
{
    Q_OBJECT

public:
    struct Step
    {
        long found = -1; // UTF-16 units; -1: nothing here
        long next = -1;  // where to go on; -1: the end
    };
    using Search = std::function<Step(long from)>;

    explicit MatchCount(QObject* parent);

    // The first slice at once. Every place is at most most places long, and the rest is not looked
    // for.
    void Start(Search search, long from);
    void Stop(); // and knows nothing

    bool IsStarted() const { return m_search != nullptr; }
    bool IsOver() const { return m_next < 0; } // every match is known
    int Known() const { return static_cast<int>(m_starts.size()); }
    int PlaceOf(long start) const; // from 1; 0: no match that is known

Q_SIGNALS:
    void Grown(); // or over

private:
    void SearchOn();

    Search m_search;
    QTimer m_idle;
    long m_next = -1;
    std::vector<long> m_starts; // in the text's order
};
