// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a settings file: what was parsed and is written parses to the same tree, but for
// what a line for each node changes. Those are blanks around a text that stands beside other nodes
// and between the parts of a document type, and the kind of line ends.
#include "platform/text/StringUtils.h"
#include "settings/Pug.h"
#include "settings/XMLWriter.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

QString Decoded(const std::string& bytes)
{
    const std::u16string text = znutils::StringUtils::ConvertMBToUnicode(bytes);
    return QString(reinterpret_cast<const QChar*>(text.data()),
                   static_cast<qsizetype>(text.size()));
}

std::string Encoded(const QString& text)
{
    return znutils::StringUtils::ConvertToMBString(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

QString WithPlainLineEnds(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

bool IsBlank(QChar unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\n';
}

QString WithoutBlanksAround(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && IsBlank(text[start]))
        ++start;
    while (end > start && IsBlank(text[end - 1]))
        --end;
    return text.mid(start, end - start);
}

QString ValueOf(const pug::xml_node& node, bool alone)
{
    QString value = WithPlainLineEnds(node.value());
    if (node.type() == pug::node_doctype)
        value.removeIf(IsBlank);
    else if (node.type() == pug::node_pcdata && !alone)
        value = WithoutBlanksAround(value);
    return value;
}

void RequireSameAttributes(const pug::xml_node& first, const pug::xml_node& second)
{
    pug::xml_attribute one = first.first_attribute();
    pug::xml_attribute other = second.first_attribute();
    while (!one.empty() && !other.empty()) {
        Require(one.name() == other.name());
        Require(WithPlainLineEnds(one.value()) == WithPlainLineEnds(other.value()));
        one = one.next_attribute();
        other = other.next_attribute();
    }
    Require(one.empty() && other.empty());
}

void RequireSame(const pug::xml_node& first, const pug::xml_node& second)
{
    pug::xml_node one = first.first_child();
    pug::xml_node other = second.first_child();
    const bool alone = first.type() == pug::node_element && one.next_sibling().empty();
    while (!one.empty() && !other.empty()) {
        Require(one.type() == other.type() && one.name() == other.name());
        Require(ValueOf(one, alone) == ValueOf(other, alone));
        RequireSameAttributes(one, other);
        RequireSame(one, other);
        one = one.next_sibling();
        other = other.next_sibling();
    }
    Require(one.empty() && other.empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    pug::xml_parser parsed;
    if (!parsed.parse(Decoded(std::string(reinterpret_cast<const char*>(data), size))))
        return 0;
    pug::xml_parser again;
    Require(again.parse(Decoded(Encoded(WriteXML(parsed.document())))));
    RequireSame(parsed.document(), again.document());
    return 0;
}
