// SPDX-License-Identifier: GPL-3.0-or-later
// The tree: what is remembered of searches is what a walk finds, whatever has been changed.
#include "PlainSearch.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>
#include <vector>

namespace {

using pug::xml_node;

constexpr const char16_t* kNames[] = {u"", u"a", u"b",
                                      u"a name that is longer than thirty-two\u00E9"};
constexpr const char16_t* kAttributes[] = {u"number", u"k"};

const QString kText = QStringLiteral("<a><b number='1'><a number='2' k='1'/></b><b number='2'/>text"
                                     "<b number='1' k='0'>x</b><!--c--></a><b k='2'/>");

QString Text(const char16_t* units)
{
    return QString::fromUtf16(units);
}

void Collect(const xml_node& node, std::vector<xml_node>& nodes)
{
    nodes.push_back(node);
    for (auto child = node.first_child(); !child.empty(); child = child.next_sibling())
        Collect(child, nodes);
}

class RandomTree
{
public:
    explicit RandomTree(unsigned int seed) : m_random(seed) { m_parser.parse(kText); }

    void Change();
    void CompareSearches();
    QString Dump() const;
    std::uint64_t Changes() const { return m_parser.changes(); }
    std::uint64_t ElementChanges() const { return m_parser.element_changes(); }
    std::vector<xml_node> FoundElements() const;

private:
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned int>(count)); }
    const char16_t* AnyName() { return kNames[Below(4)]; }
    const char16_t* AnyAttribute() { return kAttributes[Below(2)]; }
    QString AnyValue() { return QString::number(Below(4)); }
    xml_node AnyNode();

    std::mt19937 m_random;
    pug::xml_parser m_parser;
};

xml_node RandomTree::AnyNode()
{
    std::vector<xml_node> nodes;
    Collect(m_parser.document(), nodes);
    return nodes[static_cast<std::size_t>(Below(static_cast<int>(nodes.size())))];
}

void RandomTree::Change()
{
    constexpr pug::xml_node_type kTypes[] = {pug::node_element, pug::node_pcdata, pug::node_cdata,
                                             pug::node_comment};
    xml_node node = AnyNode();
    switch (Below(20)) {
    case 0:
    case 1:
        node.append_child(pug::node_element).set_name(AnyName());
        break;
    case 2:
        node.append_child(kTypes[Below(4)]);
        break;
    case 3:
        node.set_name(AnyName());
        break;
    case 4:
        node.append_attribute(AnyAttribute(), AnyValue());
        break;
    case 5:
        node.first_attribute().set_value(AnyValue());
        break;
    case 6:
        node.attribute(AnyAttribute()).set_value(AnyValue());
        break;
    case 7:
        node.set_type(kTypes[Below(4)]);
        break;
    case 8:
        node.remove_child(Below(3));
        break;
    case 9:
        node.set_value(AnyValue());
        break;
    case 10:
        if (node.children() < 4)
            AnyNode().append_copy(node);
        break;
    case 11:
        if (Below(4) == 0)
            node.remove_children();
        break;
    case 12:
        if (Below(8) == 0)
            m_parser.parse(kText);
        break;
    case 13:
        if (Below(8) == 0)
            m_parser.parse(QStringLiteral("<a>"));
        break;
    default:
        break; // the same searches again
    }
}

void RandomTree::CompareSearches()
{
    for (const xml_node& above : {m_parser.document(), AnyNode()}) {
        for (const char16_t* name : kNames)
            ASSERT_EQ(above.first_element_by_name(name), PlainByName(above, Text(name)));
    }
    const xml_node above = Below(2) ? m_parser.document() : AnyNode();
    const char16_t* name = Below(4) ? u"b" : AnyName();
    const char16_t* attribute = Below(4) ? u"number" : AnyAttribute();
    for (int value = 0; value < 5; ++value) {
        const QString text = QString::number(value);
        ASSERT_EQ(above.first_element_by_attribute(name, attribute, text),
                  PlainByAttribute(above, Text(name), Text(attribute), text));
    }
}

// All that a tree holds, kinds included.
QString RandomTree::Dump() const
{
    std::vector<xml_node> nodes;
    Collect(m_parser.document(), nodes);
    QString dump;
    for (const xml_node& node : nodes) {
        dump += QStringLiteral("%1 %2 %3 %4")
                    .arg(node.type())
                    .arg(node.children())
                    .arg(node.name(), node.value());
        for (auto at = node.first_attribute(); !at.empty(); at = at.next_attribute())
            dump += u' ' + at.name() + u'=' + at.value();
        dump += u'\n';
    }
    return dump;
}

TEST(XMLTree, CountsEveryChange)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    for (unsigned int tree = 0; tree < 200; ++tree) {
        RandomTree random(seed + tree);
        for (int step = 0; step < 100; ++step) {
            const QString before = random.Dump();
            const std::uint64_t changes = random.Changes();
            random.Change();
            ASSERT_TRUE(random.Changes() != changes || random.Dump() == before)
                << "tree " << tree << ", step " << step;
        }
    }
}

// What searches by name and by attribute find.
std::vector<xml_node> RandomTree::FoundElements() const
{
    std::vector<xml_node> nodes;
    Collect(m_parser.document(), nodes);
    std::vector<xml_node> found;
    for (const xml_node& above : nodes) {
        for (const char16_t* name : kNames)
            found.push_back(PlainByName(above, Text(name)));
        for (int value = 0; value < 4; ++value)
            found.push_back(PlainByAttribute(above, QStringLiteral("b"), QStringLiteral("number"),
                                             QString::number(value)));
    }
    return found;
}

TEST(XMLTree, CountsWhatMayChangeASearch)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    for (unsigned int tree = 0; tree < 40; ++tree) {
        RandomTree random(seed + tree);
        for (int step = 0; step < 40; ++step) {
            const auto before = random.FoundElements();
            const std::uint64_t changes = random.ElementChanges();
            random.Change();
            const auto after = random.FoundElements();
            ASSERT_TRUE(random.ElementChanges() != changes || after == before)
                << "tree " << tree << ", step " << step;
        }
    }
}

TEST(XMLTree, CountsNoValueThatWasThere)
{
    pug::xml_parser parser;
    ASSERT_TRUE(parser.parse(kText));
    xml_node text = parser.document().first_element_by_name(u"b").next_sibling().next_sibling();
    const std::uint64_t changes = parser.changes();
    ASSERT_TRUE(text.set_value(QStringLiteral("text")));
    ASSERT_TRUE(text.set_type(pug::node_pcdata));
    EXPECT_EQ(parser.changes(), changes);
    const std::uint64_t elementChanges = parser.element_changes();
    ASSERT_TRUE(text.set_value(QStringLiteral("texts")));
    EXPECT_GT(parser.changes(), changes);
    EXPECT_EQ(parser.element_changes(), elementChanges);
}

TEST(XMLTree, SearchesFindWhatAWalkFinds)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    for (unsigned int tree = 0; tree < 200; ++tree) {
        RandomTree random(seed + tree);
        for (int step = 0; step < 100; ++step) {
            random.Change();
            random.CompareSearches();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "tree " << tree << ", step " << step;
        }
    }
}

TEST(XMLTree, AnEmptyHandleReadsAsEmptyAndCannotBeSet)
{
    xml_node none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.type(), pug::node_null);
    EXPECT_EQ(none.name(), QString());
    EXPECT_FALSE(none.is_named(u"a"));
    EXPECT_FALSE(none.set_name(u"a"));
    EXPECT_FALSE(none.set_value("a"));
    EXPECT_FALSE(none.set_type(pug::node_element));
    EXPECT_TRUE(none.append_child(pug::node_element).empty());
    EXPECT_TRUE(none.append_copy(none).empty());
    EXPECT_FALSE(none.remove_child(0));
    none.remove_children();
    EXPECT_TRUE(none.append_attribute(u"a", "1").empty());
    EXPECT_FALSE(none.first_attribute().set_value("1"));
    EXPECT_TRUE(none.first_attribute().next_attribute().empty());
    EXPECT_TRUE(none.first_element_by_name(u"a").empty());
    EXPECT_TRUE(none.first_element_by_attribute(u"a", u"k", "1").empty());
    pug::xml_parser parser;
    ASSERT_TRUE(parser.parse(kText));
    EXPECT_TRUE(parser.document().first_element_by_name(nullptr).empty());
}

} // namespace
