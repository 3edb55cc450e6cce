// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Pug.h"

#include "settings/ElementIndex.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace pug {

struct Tree
{
    pugi::xml_document document;
    ElementIndex index;
    std::uint64_t otherChanges = 0; // that the index is not told of
};

namespace {

// Without pugi::parse_escapes and parse_eol every value reads as it stands in the file.
constexpr unsigned int kOptions = pugi::parse_pi | pugi::parse_declaration | pugi::parse_doctype |
                                  pugi::parse_comments | pugi::parse_cdata | pugi::parse_fragment;

// The indent of the written file grows with the square of the depth, and nothing that is meant as
// settings comes near.
constexpr int kDeepest = 1000;

pugi::xml_node_type ToPugi(xml_node_type type)
{
    switch (type) {
    case node_element:
        return pugi::node_element;
    case node_pcdata:
        return pugi::node_pcdata;
    case node_cdata:
        return pugi::node_cdata;
    case node_comment:
        return pugi::node_comment;
    case node_pi:
        return pugi::node_pi;
    case node_doctype:
        return pugi::node_doctype;
    default:
        return pugi::node_null;
    }
}

xml_node_type FromPugi(pugi::xml_node_type type)
{
    switch (type) {
    case pugi::node_document:
        return node_document;
    case pugi::node_element:
        return node_element;
    case pugi::node_pcdata:
        return node_pcdata;
    case pugi::node_cdata:
        return node_cdata;
    case pugi::node_comment:
        return node_comment;
    case pugi::node_pi:
    case pugi::node_declaration:
        return node_pi;
    case pugi::node_doctype:
        return node_doctype;
    default:
        return node_null;
    }
}

// A name as the tree has it. The names of settings are short and ASCII, and take no memory here.
class Name
{
public:
    explicit Name(const char16_t* name)
    {
        const std::u16string_view units = name ? name : u"";
        const bool fits =
            units.size() < m_short.size() &&
            std::all_of(units.begin(), units.end(), [](char16_t c) { return c < 128; });
        if (fits)
            std::transform(units.begin(), units.end(), m_short.begin(),
                           [](char16_t unit) { return static_cast<char>(unit); });
        else
            m_long = QStringView(units).toUtf8();
    }

    const char* Text() const { return m_long.isNull() ? m_short.data() : m_long.constData(); }

private:
    std::array<char, 32> m_short{};
    QByteArray m_long;
};

std::string_view View(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

// A mark in front of a text is a part of it.
QString Units(const char* text)
{
    constexpr char kMark[] = "\xEF\xBB\xBF";
    if (*text != *kMark)
        return QString::fromUtf8(text);
    QString units;
    for (; std::strncmp(text, kMark, 3) == 0; text += 3)
        units += QChar(QChar::ByteOrderMark);
    return units + QString::fromUtf8(text);
}

// Whether "?>" is the end of an XML declaration, of which the text behind its name is given. The
// parser looks for "/>" instead, once it has put one in the place of the first "?>": it would end a
// declaration within its quotes, or give it all up to "</xml>" for children.
bool EndsAsInstruction(const char* text)
{
    char quote = 0;
    for (; *text; ++text) {
        if (text[0] == '?' && text[1] == '>')
            return quote == 0;
        if (quote == 0 && (*text == '/' || *text == '>'))
            return false;
        if (quote == 0 && (*text == '"' || *text == '\''))
            quote = *text;
        else if (*text == quote)
            quote = 0;
    }
    return false;
}

// Declarations stand nowhere but between the nodes of the document.
bool DeclarationsEndAsInstructions(const pugi::xml_document& document, const QByteArray& text)
{
    return std::all_of(document.begin(), document.end(), [&](const pugi::xml_node& node) {
        return node.type() != pugi::node_declaration ||
               EndsAsInstruction(text.constData() + node.offset_debug() + std::strlen(node.name()));
    });
}

struct DepthMeter final : pugi::xml_tree_walker
{
    bool for_each(pugi::xml_node&) override { return depth() < kDeepest; }
};

} // namespace

QString xml_attribute::name() const
{
    return Units(pugi::xml_attribute(m_attribute).name());
}

QString xml_attribute::value() const
{
    return Units(pugi::xml_attribute(m_attribute).value());
}

bool xml_attribute::set_value(const QString& value)
{
    if (empty())
        return false;
    m_tree->index.AttributeChanged();
    return pugi::xml_attribute(m_attribute).set_value(value.toUtf8().constData());
}

xml_attribute xml_attribute::next_attribute() const
{
    return {m_tree, pugi::xml_attribute(m_attribute).next_attribute().internal_object()};
}

xml_node_type xml_node::type() const
{
    return FromPugi(pugi::xml_node(m_node).type());
}

bool xml_node::set_type(xml_node_type type)
{
    const xml_node_type before = this->type();
    if (before == type)
        return !empty();
    pugi::xml_node old(m_node);
    pugi::xml_node parent = old.parent();
    const pugi::xml_node made = parent.insert_child_before(ToPugi(type), old);
    if (!made)
        return false;
    ++m_tree->otherChanges;
    if (before == node_element || type == node_element)
        m_tree->index.Clear();
    pugi::xml_node(made).set_value(old.value());
    parent.remove_child(old);
    m_node = made.internal_object();
    return true;
}

QString xml_node::name() const
{
    return Units(pugi::xml_node(m_node).name());
}

bool xml_node::is_named(const char16_t* name) const
{
    return std::strcmp(pugi::xml_node(m_node).name(), Name(name).Text()) == 0;
}

bool xml_node::set_name(const char16_t* name)
{
    const Name to(name);
    pugi::xml_node node(m_node);
    if (!node)
        return false;
    m_tree->index.NameChanged(node.name());
    m_tree->index.NameChanged(to.Text());
    return node.set_name(to.Text());
}

QString xml_node::value() const
{
    return Units(pugi::xml_node(m_node).value());
}

bool xml_node::set_value(const QString& value)
{
    const QByteArray text = value.toUtf8();
    pugi::xml_node node(m_node);
    const bool differs = std::strcmp(node.value(), text.constData()) != 0;
    if (!node.set_value(text.constData()))
        return false;
    if (differs)
        ++m_tree->otherChanges;
    return true;
}

bool xml_node::has_children() const
{
    return !pugi::xml_node(m_node).first_child().empty();
}

int xml_node::children() const
{
    const auto range = pugi::xml_node(m_node).children();
    return static_cast<int>(std::distance(range.begin(), range.end()));
}

xml_node xml_node::first_child() const
{
    return Of(pugi::xml_node(m_node).first_child().internal_object());
}

xml_node xml_node::next_sibling() const
{
    return Of(pugi::xml_node(m_node).next_sibling().internal_object());
}

xml_node xml_node::child(int index) const
{
    xml_node at = index < 0 ? xml_node() : first_child();
    for (int i = 0; i < index && !at.empty(); ++i)
        at = at.next_sibling();
    return at;
}

xml_node xml_node::append_child(xml_node_type type)
{
    const xml_node made = Of(pugi::xml_node(m_node).append_child(ToPugi(type)).internal_object());
    if (!made.empty())
        m_tree->index.NameChanged("");
    return made;
}

xml_node xml_node::append_copy(const xml_node& node)
{
    const xml_node made =
        Of(pugi::xml_node(m_node).append_copy(pugi::xml_node(node.m_node)).internal_object());
    if (!made.empty())
        m_tree->index.Clear();
    return made;
}

bool xml_node::remove_child(int index)
{
    if (empty())
        return false;
    m_tree->index.Clear();
    return pugi::xml_node(m_node).remove_child(pugi::xml_node(child(index).m_node));
}

void xml_node::remove_children()
{
    if (empty())
        return;
    m_tree->index.Clear();
    pugi::xml_node(m_node).remove_children();
}

bool xml_node::has_attributes() const
{
    return !first_attribute().empty();
}

int xml_node::attributes() const
{
    const auto range = pugi::xml_node(m_node).attributes();
    return static_cast<int>(std::distance(range.begin(), range.end()));
}

xml_attribute xml_node::first_attribute() const
{
    return {m_tree, pugi::xml_node(m_node).first_attribute().internal_object()};
}

xml_attribute xml_node::attribute(const char16_t* name) const
{
    return {m_tree, pugi::xml_node(m_node).attribute(Name(name).Text()).internal_object()};
}

xml_attribute xml_node::append_attribute(const char16_t* name, const QString& value)
{
    pugi::xml_attribute made = pugi::xml_node(m_node).append_attribute(Name(name).Text());
    if (!made)
        return xml_attribute();
    m_tree->index.AttributeChanged();
    made.set_value(value.toUtf8().constData());
    return {m_tree, made.internal_object()};
}

xml_node xml_node::first_element_by_name(const char16_t* name) const
{
    if (!name || empty())
        return xml_node();
    const Name wanted(name);
    const bool isRoot = m_node == m_tree->document.internal_object();
    return Of((isRoot ? m_tree->index.FirstByName(m_tree->document, wanted.Text())
                      : FindByName(pugi::xml_node(m_node), wanted.Text()))
                  .internal_object());
}

xml_node xml_node::first_element_by_attribute(const char16_t* name, const char16_t* attribute,
                                              const QString& value) const
{
    if (empty())
        return xml_node();
    return Of(m_tree->index
                  .FirstByAttribute(pugi::xml_node(m_node), Name(name).Text(),
                                    Name(attribute).Text(), View(value.toUtf8()))
                  .internal_object());
}

xml_parser::xml_parser() : m_tree(std::make_unique<Tree>()) {}

xml_parser::~xml_parser() = default;

bool xml_parser::parse(const QString& text)
{
    constexpr char kMark[] = "\xEF\xBB\xBF";
    QByteArray bytes = text.toUtf8();
    // One mark would be skipped, yet it is text like any other.
    if (bytes.startsWith(kMark))
        bytes.prepend(kMark);
    clear();
    pugi::xml_document& document = m_tree->document;
    const pugi::xml_parse_result result = document.load_buffer(
        bytes.constData(), static_cast<std::size_t>(bytes.size()), kOptions, pugi::encoding_utf8);
    DepthMeter meter;
    if (result && document.document_element() && document.traverse(meter) &&
        DeclarationsEndAsInstructions(document, bytes))
        return true;
    clear();
    return false;
}

void xml_parser::clear()
{
    m_tree->index.Clear();
    m_tree->document.reset();
}

xml_node xml_parser::document() const
{
    return {m_tree.get(), m_tree->document.internal_object()};
}

std::uint64_t xml_parser::changes() const
{
    return m_tree->index.Changes() + m_tree->otherChanges;
}

std::uint64_t xml_parser::element_changes() const
{
    return m_tree->index.Changes();
}

} // namespace pug
