// SPDX-License-Identifier: GPL-3.0-or-later
// The keyword sets of a syntax file.
#include "settings/SyntaxFile.h"

#include <QStringList>

namespace {

bool IsSet(int set, int count)
{
    return set >= 0 && set < count;
}

QString Joined(const CSortedArray<QString, QString>& words, char delimiter)
{
    return QStringList(words.begin(), words.end()).join(QLatin1Char(delimiter));
}

} // namespace

pug::xml_node CSyntaxFile::GetKeywordsNode(int set) const
{
    return m_document.document().first_element_by_attribute(u"Keywords", u"set",
                                                            QString::number(set));
}

// An empty description asks for a name by the number; a set without one stays without.
void CSyntaxFile::ReadKeywords(int set)
{
    const pug::xml_node keywords = GetKeywordsNode(set);
    if (keywords.empty())
        return;
    const auto index = static_cast<std::size_t>(set);
    const pug::xml_attribute description = keywords.attribute(u"description");
    m_descriptions[index] = description.value();
    if (!description.empty() && description.value().isEmpty())
        m_descriptions[index] = QStringLiteral("Keywords %1").arg(set + 1);
    for (auto word = keywords.first_child(); !word.empty(); word = word.next_sibling()) {
        if (word.is_named(u"Word") && word.has_children())
            m_keywords[index].Add(word.first_child().value());
    }
}

QString CSyntaxFile::GetKeywordSetDescription(int set)
{
    return IsSet(set, kKeywordSets) ? m_descriptions[static_cast<std::size_t>(set)] : QString();
}

QString CSyntaxFile::GetDelimitedKeywordSet(int set, char delimiter)
{
    return IsSet(set, kKeywordSets) ? Joined(m_keywords[static_cast<std::size_t>(set)], delimiter)
                                    : QString();
}

bool CSyntaxFile::SetDelimitedKeywordSet(int set, const QString& words, char delimiter)
{
    if (!IsSet(set, kKeywordSets))
        return false;
    Keywords& array = m_keywords[static_cast<std::size_t>(set)];
    array.RemoveAll();
    const auto add = [&](const QString& word) {
        if (!word.isEmpty())
            array.Add(word);
    };
    qsizetype start = 0;
    qsizetype end = 0;
    while ((end = words.indexOf(QLatin1Char(delimiter), start)) >= 0) {
        add(words.mid(start, end - start));
        start = end + 1;
    }
    if (start + 1 < words.size())
        add(words.mid(start));

    pug::xml_node keywords = GetKeywordsNode(set);
    if (keywords.empty())
        return false;
    keywords.remove_children();
    for (const QString& word : array) {
        pug::xml_node element = keywords.append_child(pug::node_element);
        element.set_name(u"Word");
        element.append_child(pug::node_pcdata).set_value(word);
    }
    m_modified = true;
    return true;
}

QString CSyntaxFile::GetDelimitedKeywords(char delimiter)
{
    Keywords all = m_keywords[0];
    for (std::size_t set = 1; set < m_keywords.size(); ++set)
        all.Append(m_keywords[set]);
    all.Sort();
    return Joined(all, delimiter);
}
