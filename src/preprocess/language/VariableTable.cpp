// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/VariableTable.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr qsizetype kShortestTried = 3; // the ampersands alone are never tried

qsizetype CommonLength(const QString& a, const QString& b)
{
    return std::mismatch(a.begin(), a.begin() + std::min(a.size(), b.size()), b.begin()).first -
           a.begin();
}

} // namespace

bool VariableTable::Contains(const QString& name) const
{
    return m_byName.contains(name) || m_empty.contains(name) || WasTried(name);
}

void VariableTable::Insert(const QString& name, const QString& value)
{
    if (Contains(name))
        return;
    if (value.isEmpty())
        m_empty.insert(name);
    else
        m_byName.insert(name, &m_values.emplace(name, Value{value}).first->second);
}

QString VariableTable::Lookup(const QString& name)
{
    if (const Value* value = m_byName.value(name))
        return value->text;
    Insert(name, QString());
    return QString();
}

std::optional<VariableTable::Variable> VariableTable::LongestDefined(const QString& word)
{
    Value* value = m_byName.value(word);
    if (!value || !value->wasTried)
        EnterTried(word);
    if (!value)
        return LongestValue(word);
    value->wasTried = true;
    return Variable{word, value->text};
}

// Names are in order, so the longest prefix of a word stands directly before it, or before what
// the word has in common with the name that stands there.
std::optional<VariableTable::Variable> VariableTable::LongestValue(QString word) const
{
    while (word.size() >= kShortestTried) {
        auto at = m_values.upper_bound(word);
        if (at == m_values.begin())
            return std::nullopt;
        --at;
        const qsizetype common = CommonLength(at->first, word);
        if (common == at->first.size())
            return Variable{at->first, at->second.text};
        word.truncate(common);
    }
    return std::nullopt;
}

bool VariableTable::WasTried(const QString& name) const
{
    if (name.size() < kShortestTried)
        return false;
    const auto at = m_tried.lower_bound(name);
    return at != m_tried.end() && at->startsWith(name);
}

void VariableTable::EnterTried(const QString& word)
{
    if (word.size() < kShortestTried || WasTried(word))
        return;
    auto at = m_tried.insert(word).first;
    while (at != m_tried.begin() && word.startsWith(*std::prev(at)))
        m_tried.erase(std::prev(at));
}
