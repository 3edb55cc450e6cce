// SPDX-License-Identifier: GPL-3.0-or-later
// Searches of a document by nothing but a walk from child to child.
#pragma once

#include "settings/Pug.h"

#include <functional>

inline pug::xml_node FirstBelow(const pug::xml_node& above,
                                const std::function<bool(const pug::xml_node&)>& isWanted)
{
    for (auto child = above.first_child(); !child.empty(); child = child.next_sibling()) {
        if (child.type() == pug::node_element && isWanted(child))
            return child;
        if (const pug::xml_node found = FirstBelow(child, isWanted); !found.empty())
            return found;
    }
    return pug::xml_node();
}

inline pug::xml_node PlainByName(const pug::xml_node& above, const QString& name)
{
    return FirstBelow(above, [&](const pug::xml_node& node) { return node.name() == name; });
}

inline pug::xml_node PlainByAttribute(const pug::xml_node& above, const QString& name,
                                      const QString& attribute, const QString& value)
{
    return FirstBelow(above, [&](const pug::xml_node& node) {
        auto at = node.first_attribute();
        while (!at.empty() && at.name() != attribute)
            at = at.next_attribute();
        return node.name() == name && !at.empty() && at.value() == value;
    });
}
