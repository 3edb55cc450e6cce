// SPDX-License-Identifier: GPL-3.0-or-later
// Places that follow a text's edits, beside a plain list of them.
#include "engine/colours/SqlPlaces.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using engine::SqlPlaces;

namespace {

SqlPlaces::Place At(long position)
{
    SqlPlaces::Place place{.position = position};
    place.state.line.startDepth = position; // to know it by
    return place;
}

class PlacesAndList
{
public:
    explicit PlacesAndList(unsigned seed) : m_random(seed) {}

    // An edit, and what was found behind it anew.
    void Edit()
    {
        const long at = Pick(m_length + 1);
        const long removed = Pick(std::min(m_length - at, 300L) + 1);
        Replace(at - 5, at + removed + 1, {});
        const long inserted = Pick(300);
        for (SqlPlaces::Place& place : m_list)
            place.position += place.position > at ? inserted - removed : 0;
        m_length += inserted - removed;
        std::vector<SqlPlaces::Place> found;
        for (long position = at + 1 + Pick(40); position <= at + inserted; position += 1 + Pick(40))
            found.push_back(At(position));
        Replace(at, at + inserted + 1, found);
    }

    void Compare() const
    {
        ASSERT_EQ(m_places.Count(), m_list.size());
        EXPECT_EQ(m_places.IsEmpty(), m_list.empty());
        for (std::size_t i = 0; i < m_list.size(); ++i) {
            const long position = m_list[i].position;
            ASSERT_EQ(m_places.PositionOf(i, m_length), position);
            ASSERT_EQ(m_places.StateOf(i), m_list[i].state);
            ASSERT_EQ(m_places.FirstFrom(position, m_length), i);
            ASSERT_EQ(m_places.FirstFrom(position + 1, m_length), i + 1);
        }
    }

    void Clear()
    {
        m_places.Clear();
        m_list.clear();
    }

private:
    long Pick(long count) { return static_cast<long>(m_random() % static_cast<unsigned>(count)); }

    void Replace(long from, long to, const std::vector<SqlPlaces::Place>& others)
    {
        m_places.Replace(from, to, others, m_length);
        const auto isBefore = [](const SqlPlaces::Place& place, long position) {
            return place.position < position;
        };
        const auto first = std::lower_bound(m_list.begin(), m_list.end(), from, isBefore);
        const auto last = std::lower_bound(first, m_list.end(), to, isBefore);
        m_list.insert(m_list.erase(first, last), others.begin(), others.end());
    }

    std::mt19937 m_random;
    long m_length = 0;
    SqlPlaces m_places;
    std::vector<SqlPlaces::Place> m_list;
};

} // namespace

TEST(SqlPlaces, AreThoseOfAPlainListAfterEdits)
{
    const unsigned seed = RandomSeed();
    PlacesAndList both(seed);
    for (int edit = 1; edit <= 3000 && !testing::Test::HasFatalFailure(); ++edit) {
        both.Edit();
        if (edit % 10 == 0)
            both.Compare();
        if (edit % 1000 == 0)
            both.Clear();
    }
}
