// SPDX-License-Identifier: GPL-3.0-or-later
// A text beside its index, and what the index says of it in a form that can be compared.
#pragma once

#include "completion/ScriptIndex.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace completion {

class IndexedText
{
public:
    IndexedText(const engine::analysis::SqlDialect* dialect, std::u16string text, long stretch)
        : m_text(std::move(text)), m_stretch(stretch), m_index(dialect, stretch)
    {
        m_index.Reset(Length());
    }

    long Length() const { return static_cast<long>(m_text.size()); }
    const std::u16string& Text() const { return m_text; }
    ScriptIndex& Index() { return m_index; }

    void Insert(long position, const std::u16string& text)
    {
        m_text.insert(static_cast<std::size_t>(position), text);
        m_index.Inserted(position, static_cast<long>(text.size()));
    }
    void Delete(long position, long units)
    {
        m_text.erase(static_cast<std::size_t>(position), static_cast<std::size_t>(units));
        m_index.Deleted(position, units);
    }

    ScriptIndex::Read Reader()
    {
        return [this](long start, long end, std::u16string& units) {
            units = m_text.substr(static_cast<std::size_t>(start),
                                  static_cast<std::size_t>(end - start));
        };
    }
    void Finish()
    {
        while (m_index.Work(Reader(), m_stretch)) {}
    }

    // Words, and objects with their places. Of what is used the first place alone, since how often
    // it is noted hangs on the stretches.
    std::vector<std::string> Told()
    {
        std::set<std::string> lines;
        m_index.Words().Find(Typed(""), [&](WordTable::Id id, Match) {
            lines.insert("word " + std::string(m_index.Words().Text(id)));
        });
        std::set<std::pair<NameKind, WordTable::Id>> used;
        for (const auto& object : m_index.Objects()) {
            if (object.kind >= NameKind::TableUse &&
                !used.insert({object.kind, object.name}).second)
                continue;
            lines.insert(std::to_string(object.position) + ' ' +
                         std::to_string(static_cast<int>(object.kind)) + ' ' +
                         std::string(m_index.Words().Text(object.name)));
        }
        return {lines.begin(), lines.end()};
    }

    std::vector<std::string> Afresh() const
    {
        IndexedText fresh(m_index.Dialect(), m_text, 1 << 20);
        fresh.Finish();
        return fresh.Told();
    }

private:
    std::u16string m_text;
    long m_stretch;
    ScriptIndex m_index;
};

} // namespace completion
