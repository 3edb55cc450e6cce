// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ElementIndex.h"

#include <cstring>

namespace pug {

namespace {

bool IsElement(const pugi::xml_node& node, std::string_view name)
{
    const char* const own = node.name();
    return node.type() == pugi::node_element && std::strncmp(own, name.data(), name.size()) == 0 &&
           own[name.size()] == 0;
}

} // namespace

pugi::xml_node FindByName(const pugi::xml_node& above, std::string_view name)
{
    return above.find_node([&](const pugi::xml_node& node) { return IsElement(node, name); });
}

pugi::xml_node ElementIndex::FirstByName(const pugi::xml_document& document, std::string_view name)
{
    auto found = m_byName.find(name);
    if (found == m_byName.end())
        found = m_byName.emplace(name, FindByName(document, name)).first;
    return found->second;
}

pugi::xml_node ElementIndex::FirstByAttribute(const pugi::xml_node& above, std::string_view name,
                                              std::string_view attribute, std::string_view value)
{
    if (!above)
        return pugi::xml_node();
    if (m_list.above != above || m_list.name != name || m_list.attribute != attribute)
        Fill(above, name, attribute);
    const auto found = m_list.byValue.find(value);
    return found == m_list.byValue.end() ? pugi::xml_node() : found->second;
}

void ElementIndex::Fill(const pugi::xml_node& above, std::string_view name,
                        std::string_view attribute)
{
    m_list = {above, std::string(name), std::string(attribute), {}};
    above.find_node([this](const pugi::xml_node& node) {
        const pugi::xml_attribute found = IsElement(node, m_list.name)
                                              ? node.attribute(m_list.attribute.c_str())
                                              : pugi::xml_attribute();
        if (found)
            m_list.byValue.emplace(found.value(), node); // the first one of a value stays
        return false;
    });
}

void ElementIndex::NameChanged(std::string_view name)
{
    ++m_changes;
    if (const auto found = m_byName.find(name); found != m_byName.end())
        m_byName.erase(found);
    if (m_list.name == name)
        m_list = {};
}

void ElementIndex::AttributeChanged()
{
    ++m_changes;
    m_list = {};
}

void ElementIndex::Clear()
{
    ++m_changes;
    m_byName.clear();
    m_list = {};
}

} // namespace pug
