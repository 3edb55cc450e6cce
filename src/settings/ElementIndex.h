// SPDX-License-Identifier: GPL-3.0-or-later
// ElementIndex: the elements that searches of one document have found, by name and by attribute.
// Knows nothing of what the elements mean. Names and values are UTF-8, as in the tree.
#pragma once

#include <pugixml.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace pug {

// Answers as a walk through the document would, in the order of the document. Whoever changes the
// document has to tell: the index keeps what the change cannot touch and forgets the rest.
class ElementIndex
{
public:
    // The first element of a name in the whole document.
    pugi::xml_node FirstByName(const pugi::xml_document& document, std::string_view name);
    // The first element of a name below a node whose attribute has a value. One walk finds all
    // values of the attribute, which are kept until another name, attribute or node is asked for:
    // a settings file has one list that is searched so.
    pugi::xml_node FirstByAttribute(const pugi::xml_node& above, std::string_view name,
                                    std::string_view attribute, std::string_view value);

    // An element has come to a name, or has lost it.
    void NameChanged(std::string_view name);
    void AttributeChanged();
    // Elements have gone, or have come with all that is below them.
    void Clear();

    // How many times one of these three was told.
    std::uint64_t Changes() const { return m_changes; }

private:
    struct Hash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };
    using Elements = std::unordered_map<std::string, pugi::xml_node, Hash, std::equal_to<>>;

    struct List
    {
        pugi::xml_node above; // empty if nothing is kept
        std::string name;
        std::string attribute;
        Elements byValue;
    };

    void Fill(const pugi::xml_node& above, std::string_view name, std::string_view attribute);

    Elements m_byName; // an empty node for a name that no element has
    List m_list;
    std::uint64_t m_changes = 0;
};

// The first element of a name below a node, by a walk.
pugi::xml_node FindByName(const pugi::xml_node& above, std::string_view name);

} // namespace pug
