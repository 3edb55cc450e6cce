// SPDX-License-Identifier: GPL-3.0-or-later
// CSortedArrayEx: elements kept in the order of a comparison, each put in where a binary search
// says.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

// The search halves the whole array, from first to last. Which element it meets among several that
// are equal, and where it ends up if the comparison contradicts itself, follows from that. The
// elements stand in blocks, so that putting one in moves few others.
template <class Element, class Compare>
class CSortedArrayEx
{
public:
    // compare(first, second) is below 0 if the first comes first, 0 for two that are equal.
    explicit CSortedArrayEx(Compare compare) : m_compare(std::move(compare)) {}

    std::size_t GetSize() const { return m_size; }

    // In front of the equal element that the search meets. Where duplicates are not kept, an
    // element with an equal is dropped, which gives false.
    bool Add(Element element, bool keepDuplicates)
    {
        const Place place = Search(element);
        if (place.met && !keepDuplicates)
            return false;
        Insert(place, std::move(element));
        return true;
    }

    template <class Function>
    void ForEach(bool ascending, Function function) const
    {
        if (ascending) {
            for (const auto& block : m_blocks)
                std::for_each(block.begin(), block.end(), function);
        } else {
            for (auto block = m_blocks.rbegin(); block != m_blocks.rend(); ++block)
                std::for_each(block->rbegin(), block->rend(), function);
        }
    }

private:
    struct Place
    {
        std::size_t index;
        std::size_t block;
        bool met;
    };

    // The block of an element that stands in one from first to last.
    std::size_t BlockOf(std::size_t index, std::size_t first, std::size_t last) const
    {
        if (first == last)
            return first;
        const auto from = m_starts.begin() + static_cast<std::ptrdiff_t>(first) + 1;
        const auto to = m_starts.begin() + static_cast<std::ptrdiff_t>(last) + 1;
        return static_cast<std::size_t>(std::upper_bound(from, to, index) - m_starts.begin()) - 1;
    }

    Place Search(const Element& element) const
    {
        std::size_t low = 0;
        std::size_t high = m_size; // behind the last that can be equal
        std::size_t lowBlock = 0;
        std::size_t highBlock = m_blocks.empty() ? 0 : m_blocks.size() - 1;
        while (low < high) {
            const std::size_t middle = (low + high - 1) / 2;
            const std::size_t block = BlockOf(middle, lowBlock, highBlock);
            const int order = m_compare(element, m_blocks[block][middle - m_starts[block]]);
            if (order == 0)
                return {middle, block, true};
            if (order < 0) {
                high = middle;
                highBlock = block;
            } else {
                low = middle + 1;
                lowBlock = block;
            }
        }
        // Low stands in lowBlock or right behind its last element.
        return {low, lowBlock, false};
    }

    void Insert(const Place& place, Element element)
    {
        if (m_blocks.empty()) {
            m_blocks.emplace_back();
            m_starts.push_back(0);
        }
        auto& block = m_blocks[place.block];
        block.insert(block.begin() +
                         static_cast<std::ptrdiff_t>(place.index - m_starts[place.block]),
                     std::move(element));
        ++m_size;
        for (std::size_t i = place.block + 1; i < m_starts.size(); ++i)
            ++m_starts[i];
        if (block.size() > LargestBlock())
            Split(place.block);
    }

    // Blocks and elements in a block grow alike, so that neither is ever long to walk through.
    std::size_t LargestBlock() const
    {
        constexpr std::size_t kSmallest = 512;
        return std::max(kSmallest, 2 * static_cast<std::size_t>(std::sqrt(m_size)));
    }

    void Split(std::size_t index)
    {
        auto& block = m_blocks[index];
        const auto half = block.begin() + static_cast<std::ptrdiff_t>(block.size() / 2);
        std::vector<Element> rest(std::make_move_iterator(half),
                                  std::make_move_iterator(block.end()));
        block.erase(half, block.end());
        const std::size_t start = m_starts[index] + block.size();
        const auto next = static_cast<std::ptrdiff_t>(index) + 1;
        m_blocks.insert(m_blocks.begin() + next, std::move(rest));
        m_starts.insert(m_starts.begin() + next, start);
    }

    Compare m_compare;
    std::vector<std::vector<Element>> m_blocks;
    std::vector<std::size_t> m_starts; // of each block, in elements
    std::size_t m_size = 0;
};
