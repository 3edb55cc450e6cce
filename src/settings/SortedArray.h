// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CSortedArray: elements in the order in which they came, until it is asked to sort them.
#pragma once

#include <algorithm>
#include <vector>

/// Elements in the order in which they came, until it is asked to sort them.
template <typename Type, typename ArgType>
class CSortedArray
{
public:
    /// Below 0 if the first comes first, 0 for two that are equal, above 0 otherwise.
    using Compare = int (*)(const Type& first, const Type& second);

    /// Empty, to be sorted by that.
    explicit CSortedArray(Compare compare) : m_compare(compare) {}

    int GetSize() const { return static_cast<int>(m_elements.size()); } ///< how many there are
    /// A place that there is.
    const Type& operator[](int index) const { return m_elements[static_cast<std::size_t>(index)]; }
    void Add(const ArgType& element) { m_elements.push_back(element); } ///< behind the last one
    /// The other's behind the last one, in their order.
    void Append(const CSortedArray& other)
    {
        m_elements.insert(m_elements.end(), other.begin(), other.end());
    }
    void RemoveAll() { m_elements.clear(); } ///< none is left
    /// Those that are equal stay in their order.
    void Sort()
    {
        std::stable_sort(m_elements.begin(), m_elements.end(),
                         [this](const Type& a, const Type& b) { return m_compare(a, b) < 0; });
    }

    auto begin() const { return m_elements.begin(); } ///< the first one
    auto end() const { return m_elements.end(); }     ///< behind the last one

private:
    Compare m_compare;
    std::vector<Type> m_elements;
};
