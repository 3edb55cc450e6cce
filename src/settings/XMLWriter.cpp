// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/XMLWriter.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

bool IsBlank(QChar unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

// What a document type declares: the parts in front of the brackets, and the declarations between
// them. Not valid for what does not follow this pattern.
struct DocumentType
{
    QStringList parts;
    QStringList declarations;
    bool hasSubset = false;
    bool valid = false;
};

class DocumentTypeReader
{
public:
    explicit DocumentTypeReader(const QString& text) : m_text(text) {}

    DocumentType Read()
    {
        DocumentType type;
        while (SkipBlanks() && m_text[m_at] != u'[')
            type.parts << Part();
        type.hasSubset = m_at < m_text.size();
        m_at += type.hasSubset ? 1 : 0;
        type.valid = !m_broken;
        if (type.hasSubset)
            type.valid = ReadSubset(type.declarations) && type.valid;
        return type;
    }

private:
    bool SkipBlanks()
    {
        while (m_at < m_text.size() && IsBlank(m_text[m_at]))
            ++m_at;
        return m_at < m_text.size();
    }

    // A literal in its quotes, or all up to a blank or the bracket.
    QString Part()
    {
        const qsizetype start = m_at;
        const QChar quote = m_text[m_at];
        if (quote == u'"' || quote == u'\'')
            m_at = Behind(QString(quote), start + 1);
        else
            m_at = EndOfWord();
        return m_text.mid(start, m_at - start);
    }

    qsizetype EndOfWord()
    {
        qsizetype at = m_at;
        for (; at < m_text.size() && !IsBlank(m_text[at]) && m_text[at] != u'['; ++at)
            m_broken |= m_text[at] == u'"' || m_text[at] == u'\'';
        return at;
    }

    bool ReadSubset(QStringList& declarations)
    {
        while (SkipBlanks() && m_text[m_at] != u']') {
            const qsizetype start = m_at;
            m_at = EndOfDeclaration();
            if (m_broken)
                return false;
            declarations << m_text.mid(start, m_at - start);
        }
        const bool closed = m_at < m_text.size();
        ++m_at;
        return closed && !SkipBlanks(); // nothing may stand behind the bracket
    }

    qsizetype EndOfDeclaration()
    {
        const QStringView rest = QStringView(m_text).mid(m_at);
        if (rest.startsWith(u"<!--"))
            return Behind(QStringLiteral("-->"), m_at + 4);
        if (rest.startsWith(u"<?"))
            return Behind(QStringLiteral("?>"), m_at + 2);
        if (rest.startsWith(u"<!["))
            return Behind(QStringLiteral("]]>"), m_at + 3);
        if (rest.startsWith(u"%"))
            return Behind(QStringLiteral(";"), m_at + 1);
        m_broken |= !rest.startsWith(u"<!");
        qsizetype at = m_at + 2;
        while (at < m_text.size() && m_text[at] != u'>' && !m_broken) {
            const QChar unit = m_text[at];
            m_broken |= unit == u'<';
            at = unit == u'"' || unit == u'\'' ? Behind(QString(unit), at + 1) : at + 1;
        }
        m_broken |= at >= m_text.size();
        return at + 1;
    }

    qsizetype Behind(const QString& end, qsizetype from)
    {
        const qsizetype found = m_text.indexOf(end, from);
        m_broken |= found < 0;
        return found < 0 ? m_text.size() : found + end.size();
    }

    const QString& m_text;
    qsizetype m_at = 0;
    bool m_broken = false;
};

class Writer
{
public:
    QString Take() { return std::move(m_out); }

    void Children(const pug::xml_node& parent, int depth)
    {
        for (auto child = parent.first_child(); !child.empty(); child = child.next_sibling()) {
            Tabs(depth);
            Node(child, depth);
            if (depth > 0 || !IsMark(child))
                Break();
        }
    }

private:
    // A byte-order mark, as either kind of code page reads it: with a line end behind it, the file
    // would grow by one each time.
    static bool IsMark(const pug::xml_node& node)
    {
        return node.type() == pug::node_pcdata &&
               (node.value().startsWith(QStringView(u"\u00EF\u00BB\u00BF")) ||
                node.value().startsWith(QChar(QChar::ByteOrderMark)));
    }

    void Node(const pug::xml_node& node, int depth)
    {
        switch (node.type()) {
        case pug::node_element:
            return Element(node, depth);
        case pug::node_cdata:
            return Framed(u"<![CDATA[", node.value(), u"]]>");
        case pug::node_comment:
            return Framed(u"<!--", node.value(), u"-->");
        case pug::node_pi:
            return Instruction(node);
        case pug::node_doctype:
            return Doctype(node.value(), depth);
        default:
            return Raw(node.value());
        }
    }

    void Element(const pug::xml_node& node, int depth)
    {
        const QString name = node.name().isEmpty() ? QStringLiteral("anonymous") : node.name();
        m_out += u'<' + name;
        Attributes(node);
        const pug::xml_node first = node.first_child();
        if (first.empty()) {
            m_out += QStringView(u"/>");
            return;
        }
        m_out += u'>';
        if (first.type() == pug::node_pcdata && first.next_sibling().empty()) {
            Raw(first.value());
        } else {
            Break();
            Children(node, depth + 1);
            Tabs(depth);
        }
        Framed(u"</", name, u">");
    }

    // The declaration has attributes, every other instruction a text.
    void Instruction(const pug::xml_node& node)
    {
        Framed(u"<?", node.name(), u"");
        Attributes(node);
        if (!node.value().isEmpty())
            Framed(u" ", node.value(), u"");
        m_out += QStringView(u"?>");
    }

    // A value with double quotes in it goes between single ones, or it would end too early.
    void Attributes(const pug::xml_node& node)
    {
        for (auto at = node.first_attribute(); !at.empty(); at = at.next_attribute()) {
            const QString value = at.value();
            const bool single = value.contains(u'"') && !value.contains(u'\'');
            const QStringView quote = single ? u"'" : u"\"";
            m_out += u' ' + at.name() + u'=';
            Framed(quote, value, quote);
        }
    }

    void Doctype(const QString& value, int depth)
    {
        m_out += QStringView(u"<!DOCTYPE ");
        const DocumentType type = DocumentTypeReader(value).Read();
        if (!type.valid)
            return Framed(u"", value, u">");
        Raw(type.parts.join(u' '));
        if (type.hasSubset) {
            Break();
            m_out += u'[';
            Break();
            for (const QString& declaration : type.declarations) {
                Tabs(depth + 1);
                Raw(declaration);
                Break();
            }
            m_out += u']';
        }
        m_out += u'>';
    }

    void Framed(QStringView before, const QString& value, QStringView behind)
    {
        m_out += before;
        Raw(value);
        m_out += behind;
    }

    void Raw(QStringView value)
    {
        const auto isLineEnd = [](QChar unit) { return unit == u'\r' || unit == u'\n'; };
        while (!value.isEmpty()) {
            const auto end = std::find_if(value.begin(), value.end(), isLineEnd);
            m_out += QStringView(value.begin(), end);
            value = value.mid(end - value.begin());
            if (value.isEmpty())
                return;
            Break();
            value = value.mid(value.startsWith(u"\r\n") ? 2 : 1);
        }
    }

    void Tabs(int depth) { m_out += QString(depth, u'\t'); }
    void Break() { m_out += QStringView(u"\r\n"); }

    QString m_out;
};

} // namespace

QString WriteXML(const pug::xml_node& document)
{
    Writer writer;
    writer.Children(document, 0);
    return writer.Take();
}
