// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The document tree of the settings files: nodes and attributes by handle, a parser that owns
/// them. Knows neither files nor settings. The tree is pugixml's, which no user of this header
/// sees. A handle is as cheap as two pointers, may be empty, and is safe to ask and to set when it
/// is: it reads as empty then, and setting fails. It is good until its node is removed.
#pragma once

#include "common/Export.h"

#include <QString>

#include <cstdint>
#include <memory>

/// The tree behind it, of which only the names are known here.
namespace pugi {
struct xml_attribute_struct;
struct xml_node_struct;
} // namespace pugi

/// A document tree by handles.
namespace pug {

struct Tree; // what a parser owns

/// What a node is.
enum xml_node_type
{
    node_null,     ///< what an empty handle has
    node_document, ///< the root
    node_element,  ///< a tag with what is in it
    node_pcdata,   ///< text
    node_cdata,    ///< a CDATA section
    node_comment,  ///< a comment
    node_pi,       ///< a processing instruction
    node_doctype   ///< a document type
};

/// A name and a value of an element.
class ZN_API xml_attribute
{
public:
    xml_attribute() = default; ///< empty
    /// From a node.
    xml_attribute(Tree* tree, pugi::xml_attribute_struct* attribute)
        : m_tree(tree), m_attribute(attribute)
    {}

    bool empty() const { return m_attribute == nullptr; } ///< it names nothing
    QString name() const;                                 ///< as it is written
    QString value() const;                ///< as it is written, entities not expanded
    bool set_value(const QString& value); ///< false if it is empty
    xml_attribute next_attribute() const; ///< empty behind the last one

private:
    Tree* m_tree = nullptr;
    pugi::xml_attribute_struct* m_attribute = nullptr;
};

/// A node of the tree.
class ZN_API xml_node
{
public:
    xml_node() = default; ///< empty
    /// From another handle.
    xml_node(Tree* tree, pugi::xml_node_struct* node) : m_tree(tree), m_node(node) {}

    /// Whether both name the same node.
    friend bool operator==(const xml_node& first, const xml_node& second)
    {
        return first.m_node == second.m_node;
    }

    bool empty() const { return m_node == nullptr; } ///< it names nothing
    xml_node_type type() const;                      ///< node_null for an empty one
    /// Makes a text of a CDATA section, and the other way round. What stands in the node's place
    /// otherwise is replaced by an empty one; its handles are stale but for this.
    bool set_type(xml_node_type type);

    QString name() const;                      ///< of an element; else empty
    bool is_named(const char16_t* name) const; ///< without a copy of the name
    bool set_name(const char16_t* name);       ///< false for what has no name
    /// The text of anything but an element; an element's is empty.
    QString value() const;
    bool set_value(const QString& value); ///< false for an element

    bool has_children() const;     ///< of any kind
    int children() const;          ///< of all kinds
    xml_node first_child() const;  ///< empty if there is none
    xml_node next_sibling() const; ///< empty behind the last one
    /// The child at an index; empty for an index that is not there.
    xml_node child(int index) const;

    xml_node append_child(xml_node_type type); ///< empty if the node can have none of the type
    /// A copy of a node with all that stands below it, which may be of another tree.
    xml_node append_copy(const xml_node& node);
    bool remove_child(int index); ///< false for an index that is not there
    void remove_children();       ///< all of them

    bool has_attributes() const;                         ///< one at least
    int attributes() const;                              ///< how many
    xml_attribute first_attribute() const;               ///< empty if there is none
    xml_attribute attribute(const char16_t* name) const; ///< of that name; empty if there is none
    /// Behind the last one.
    xml_attribute append_attribute(const char16_t* name, const QString& value);

    /// The first element below, in the order of the document. A null name finds nothing. A search
    /// from the root, or by an attribute, costs a walk only for the first time.
    xml_node first_element_by_name(const char16_t* name) const;
    /// The same with an attribute of that value; a null name takes any element.
    xml_node first_element_by_attribute(const char16_t* name, const char16_t* attribute,
                                        const QString& value) const;

private:
    xml_node Of(pugi::xml_node_struct* node) const { return xml_node(m_tree, node); }

    Tree* m_tree = nullptr;
    pugi::xml_node_struct* m_node = nullptr;
};

/// A document, and whom its nodes belong to.
class ZN_API xml_parser
{
public:
    xml_parser();  ///< an empty tree
    ~xml_parser(); ///< every handle is stale then
    xml_parser(const xml_parser&) = delete;
    xml_parser& operator=(const xml_parser&) = delete;

    /// Entities are not expanded and texts not trimmed; blank text between tags makes no node, text
    /// before the first element makes one. False, and an empty tree, for a text that is not
    /// well-formed, has no element, or is nested too deep.
    bool parse(const QString& text);
    void clear();              ///< an empty tree; every handle is stale
    xml_node document() const; ///< the root, never empty

    /// Grows with every change of the tree, by whatever handle. A text that is set to what it is
    /// leaves it.
    std::uint64_t changes() const;
    /// The same of the changes that searches for elements may see: what these found stands as long
    /// as this does not grow.
    std::uint64_t element_changes() const;

private:
    std::unique_ptr<Tree> m_tree;
};

} // namespace pug
