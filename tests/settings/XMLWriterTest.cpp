// SPDX-License-Identifier: GPL-3.0-or-later
// The exact text of every kind of node.
#include "settings/XMLWriter.h"

#include <gtest/gtest.h>

namespace {

std::string Rewritten(const char* text)
{
    pug::xml_parser parser;
    return parser.parse(QString::fromLatin1(text)) ? WriteXML(parser.document()).toStdString()
                                                   : "<not parsed>";
}

TEST(XMLWriter, WritesElementsWithoutChildrenAsOneTag)
{
    EXPECT_EQ(Rewritten("<name a='v' b = \"w\" ></name>"), "<name a=\"v\" b=\"w\"/>\r\n");
}

TEST(XMLWriter, WritesATextAloneOnTheLineOfItsElement)
{
    EXPECT_EQ(Rewritten("<name a=\"v\"> te xt </name>"), "<name a=\"v\"> te xt </name>\r\n");
}

TEST(XMLWriter, GivesEveryOtherChildALineOfItsOwn)
{
    EXPECT_EQ(Rewritten("<a><b><c/></b>text<d>x</d></a>"),
              "<a>\r\n\t<b>\r\n\t\t<c/>\r\n\t</b>\r\n\ttext\r\n\t<d>x</d>\r\n</a>\r\n");
    EXPECT_EQ(Rewritten("<a><![CDATA[<&>]]></a>"), "<a>\r\n\t<![CDATA[<&>]]>\r\n</a>\r\n");
    EXPECT_EQ(Rewritten("<a><!-- said --></a>"), "<a>\r\n\t<!-- said -->\r\n</a>\r\n");
}

TEST(XMLWriter, WritesInstructionsBackAsTheyStood)
{
    EXPECT_EQ(Rewritten("<?xml version='1.0' encoding=\"x\"?><a/><?b c=\"d\"?><?e?>"),
              "<?xml version=\"1.0\" encoding=\"x\"?>\r\n<a/>\r\n<?b c=\"d\"?>\r\n<?e?>\r\n");
}

TEST(XMLWriter, WritesADocumentTypeByItsParts)
{
    EXPECT_EQ(Rewritten("<!DOCTYPE  a  SYSTEM\n'b  c' ><a/>"),
              "<!DOCTYPE a SYSTEM 'b  c'>\r\n<a/>\r\n");
    EXPECT_EQ(Rewritten("<!DOCTYPE a[ <!ELEMENT a (#PCDATA)><!ATTLIST a b CDATA '>'>\n"
                        "<!ENTITY c \"d\"><!NOTATION e SYSTEM 'f'><!--g-->%h;<?i?>"
                        "<![INCLUDE[ j ]]> ]  ><a/>"),
              "<!DOCTYPE a\r\n[\r\n\t<!ELEMENT a (#PCDATA)>\r\n\t<!ATTLIST a b CDATA '>'>\r\n"
              "\t<!ENTITY c \"d\">\r\n\t<!NOTATION e SYSTEM 'f'>\r\n\t<!--g-->\r\n\t%h;\r\n"
              "\t<?i?>\r\n\t<![INCLUDE[ j ]]>\r\n]>\r\n<a/>\r\n");
}

TEST(XMLWriter, WritesADocumentTypeThatItCannotReadAsItStood)
{
    EXPECT_EQ(Rewritten("<!DOCTYPE a [ b  c ]><a/>"), "<!DOCTYPE a [ b  c ]>\r\n<a/>\r\n");
    EXPECT_EQ(Rewritten("<!DOCTYPE a [] \f ><a/>"), "<!DOCTYPE a [] \f >\r\n<a/>\r\n");
    EXPECT_EQ(Rewritten("<!DOCTYPE a'b'  c><a/>"), "<!DOCTYPE a'b'  c>\r\n<a/>\r\n");
}

TEST(XMLWriter, EscapesNothing)
{
    EXPECT_EQ(Rewritten("<a b='&amp;<>'>&lt;'\"></a>"), "<a b=\"&amp;<>\">&lt;'\"></a>\r\n");
}

TEST(XMLWriter, QuotesAValueSoThatItsQuotesStayInIt)
{
    EXPECT_EQ(Rewritten("<a b='\"' c=\"'\"/>"), "<a b='\"' c=\"'\"/>\r\n");
}

TEST(XMLWriter, WritesEveryLineEndOnce)
{
    EXPECT_EQ(Rewritten("<a b='1\n2'>1\r\n2\n3\r4\n\r5</a>"),
              "<a b=\"1\r\n2\">1\r\n2\r\n3\r\n4\r\n\r\n5</a>\r\n");
}

TEST(XMLWriter, WritesAnEmptyAttributeAsOne)
{
    EXPECT_EQ(Rewritten("<a b=''/>"), "<a b=\"\"/>\r\n");
}

TEST(XMLWriter, NamesAnElementWithoutAName)
{
    pug::xml_parser parser;
    parser.document().append_child(pug::node_element).append_child(pug::node_pcdata);
    EXPECT_EQ(WriteXML(parser.document()).toStdString(), "<anonymous></anonymous>\r\n");
}

TEST(XMLWriter, PutsTextBeforeTheFirstElementOnALineOfItsOwn)
{
    EXPECT_EQ(Rewritten("text<a/>"), "text\r\n<a/>\r\n");
}

TEST(XMLWriter, LeavesAMarkWhereItIs)
{
    EXPECT_EQ(Rewritten("\xEF\xBB\xBF<a/>"), "\u00EF\u00BB\u00BF<a/>\r\n");
}

} // namespace
