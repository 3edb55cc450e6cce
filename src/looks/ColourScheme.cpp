// SPDX-License-Identifier: GPL-3.0-or-later
#include "looks/ColourScheme.h"

#include "looks/Colours.h"

#include <QFile>

#include <pugixml.hpp>

namespace {

constexpr const char* kDrawnNames[] = {
    "ground",
    "selection",
    "selectionWithoutFocus",
    "currentLine",
    "currentLineNumber",
    "caret",
    "rightEdge",
    "guide",
    "whitespace",
    "margin",
    "fold",
    "foldHot",
    "foldedLine",
    "bookmark",
    "error",
    "warning",
    "lineChanged",
    "lineSaved",
    "batch",
    "occurrence",
    "match",
};
static_assert(std::size(kDrawnNames) == static_cast<std::size_t>(Drawn::Count));

} // namespace

std::optional<ColourScheme> ColourScheme::Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return Parse(file.readAll());
}

std::optional<ColourScheme> ColourScheme::Parse(const QByteArray& bytes)
{
    pugi::xml_document document;
    if (!document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size())))
        return std::nullopt;
    const pugi::xml_node root = document.child("Scheme");
    ColourScheme scheme;
    scheme.m_name = QString::fromUtf8(root.attribute("name").value());
    scheme.m_isDark = root.attribute("dark").as_bool();
    for (std::size_t i = 0; i < scheme.m_drawn.size(); ++i) {
        const pugi::xml_node node = root.find_child_by_attribute("Colour", "name", kDrawnNames[i]);
        const std::optional<COLORREF> colour = ColourOf(node.attribute("value").value());
        if (!colour)
            return std::nullopt;
        scheme.m_drawn[i] = *colour;
    }
    for (const pugi::xml_node node : root.children("Role")) {
        const std::optional<COLORREF> fore = ColourOf(node.attribute("fore").value());
        const std::optional<COLORREF> back = ColourOf(node.attribute("back").value());
        if (!fore || !back)
            return std::nullopt;
        scheme.m_roles.insert(QString::fromUtf8(node.attribute("name").value()), {*fore, *back});
    }
    return scheme;
}

std::optional<ColourScheme::Pair> ColourScheme::OfRole(const QString& role) const
{
    const auto found = m_roles.constFind(role);
    return found == m_roles.constEnd() ? std::nullopt : std::optional<Pair>(*found);
}
