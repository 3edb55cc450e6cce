// SPDX-License-Identifier: GPL-3.0-or-later
// CSortedArray: elements in the order in which they came, until it is asked to sort them.
#pragma once

#include <algorithm>
#include <vector>

template <typename Type, typename ArgType>
class CSortedArray
{
public:
    // Below 0 if the first comes first, 0 for two that are equal, above 0 otherwise.
    using Compare = int (*)(const Type& first, const Type& second);

    explicit CSortedArray(Compare compare) : m_compare(compare) {}

    int GetSize() const { return static_cast<int>(m_elements.size()); }
    const Type& operator[](int index) const { return m_elements[static_cast<std::size_t>(index)]; }
    void Add(const ArgType& element) { m_elements.push_back(element); }
    void Append(const CSortedArray& other)
    {
        m_elements.insert(m_elements.end(), other.begin(), other.end());
    }
    void RemoveAll() { m_elements.clear(); }
    void Sort()
    {
        std::stable_sort(m_elements.begin(), m_elements.end(),
                         [this](const Type& a, const Type& b) { return m_compare(a, b) < 0; });
    }

    auto begin() const { return m_elements.begin(); }
    auto end() const { return m_elements.end(); }

private:
    Compare m_compare;
    std::vector<Type> m_elements;
};
