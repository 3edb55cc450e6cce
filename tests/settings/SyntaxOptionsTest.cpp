// SPDX-License-Identifier: GPL-3.0-or-later
// The host's options in a syntax file: however often they are written, and whatever happens in
// between, the documents are those that setting every option anew would leave.
#include "SettingsFolder.h"

#include "settings/SyntaxFile.h"
#include "settings/XMLWriter.h"
#include "tests/RandomSeed.h"

#include <iostream>
#include <random>
#include <vector>

namespace {

struct OpenOptions : CSyntaxFile
{
    QString Texts() const
    {
        return WriteXML(DocumentOf(u"View").document()) + "\n----\n" +
               WriteXML(DocumentOf(u"Styles").document());
    }

    std::vector<pug::xml_node> Nodes() const
    {
        std::vector<pug::xml_node> nodes;
        for (const char16_t* section : {u"View", u"Styles"})
            Collect(DocumentOf(section).document(), nodes);
        return nodes;
    }

private:
    static void Collect(const pug::xml_node& node, std::vector<pug::xml_node>& nodes)
    {
        nodes.push_back(node);
        for (auto child = node.first_child(); !child.empty(); child = child.next_sibling())
            Collect(child, nodes);
    }
};

// One setter after the other, none left out. Of a file that cannot be read nothing can be set.
bool SetEach(const LanguageOptions& options, CSyntaxFile& syntax)
{
    if (!syntax.Parse())
        return false;
    bool isSet = syntax.SetAutoIndent(options.autoIndent);
    isSet |= syntax.SetTabsToSpaces(options.tabsToSpaces);
    isSet |= syntax.SetMarginLineNumber(options.lineNumbers);
    isSet |= syntax.SetMarginFold(options.foldMargin);
    isSet |= syntax.SetTabWidth(options.tabWidth);
    isSet |= syntax.SetIndentSize(options.tabWidth);
    isSet |= syntax.SetWordWrap(options.wordWrap);
    for (int style = 0; style <= 127; ++style) {
        isSet |= syntax.SetStyleFontName(style, options.fontName);
        if (options.fontSize > 0)
            isSet |= syntax.SetStyleFontSize(style, options.fontSize);
        isSet |= syntax.SetStyleFontBold(style, options.bold);
        isSet |= syntax.SetStyleFontItalic(style, options.italic);
        isSet |= syntax.SetStyleFontUnderline(style, options.underline);
    }
    return isSet;
}

class SyntaxOptions : public SettingsFolder
{
protected:
    void Start(unsigned int seed);
    void Step();
    void Compare();

private:
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned int>(count)); }
    LanguageOptions AnyOptions();
    QByteArray AnyElement(int depth);
    void PutFiles();
    void ChangeTree();
    void ChangeSetting();
    void CompareSaved();

    OpenOptions m_written;
    OpenOptions m_reference;
    std::mt19937 m_random;
};

void SyntaxOptions::Start(unsigned int seed)
{
    m_random.seed(seed);
    PutFiles();
    m_written.SetFilename(PathOf("written.xml"));
    m_written.SetCustomFilename(PathOf("written-custom.xml"));
    m_reference.SetFilename(PathOf("reference.xml"));
    m_reference.SetCustomFilename(PathOf("reference-custom.xml"));
    m_written.Clear();
    m_reference.Clear();
}

LanguageOptions SyntaxOptions::AnyOptions()
{
    LanguageOptions options;
    options.autoIndent = Below(3) ? 1 : 2;
    options.tabWidth = 4;
    options.fontName = Below(3) ? QStringLiteral("Mono") : QStringLiteral("Other");
    options.fontSize = Below(3) ? 9 : 0;
    options.bold = Below(4) == 0;
    return options;
}

// Sections, keys and styles, in the places that are meant for them and in others.
QByteArray SyntaxOptions::AnyElement(int depth)
{
    static const char* const kNames[] = {
        "View",       "Indent", "Margins",     "TabWidth", "TabsToSpaces", "IndentSize",
        "AutoIndent", "Fold",   "LineNumbers", "WordWrap", "Size",         "StyleInformation",
        "Style",      "Style",  "Font",        "Font",     "Name",         "Bold"};
    QByteArray text = "<";
    const QByteArray name = kNames[Below(std::size(kNames))];
    text += name;
    if (name == "Style")
        text += " number=\"" + QByteArray::number(Below(4)) + '"';
    text += '>';
    switch (Below(4)) {
    case 0:
        text += "<![CDATA[1]]>";
        break;
    case 1:
        text += QByteArray::number(Below(3));
        break;
    default:
        break;
    }
    for (int child = depth < 5 ? Below(5) : 0; child > 0; --child)
        text += AnyElement(depth + 1);
    return text + "</" + name + '>';
}

void SyntaxOptions::PutFiles()
{
    QByteArray base = "<Syntax>";
    for (const char* section : {"View", "Indent", "Margins"})
        base += "<" + QByteArray(section) + ">" + AnyElement(1) + "</" + section + ">";
    base += "<StyleInformation>" + AnyElement(1) + AnyElement(1) + "</StyleInformation></Syntax>";
    QByteArray custom =
        "<Syntax><StyleInformation><StyleMax>" + QByteArray::number(Below(5)) + "</StyleMax>";
    for (int style = Below(4); style > 0; --style)
        custom += "<Style number=\"" + QByteArray::number(Below(4)) + "\"><Font>" + AnyElement(3) +
                  "</Font>" + AnyElement(3) + "</Style>";
    custom += AnyElement(1) + "</StyleInformation></Syntax>";
    if (Below(6) == 0)
        base = "<not well-formed";
    if (Below(4) == 0)
        custom = "<not well-formed";
    for (const char* name : {"written.xml", "reference.xml"})
        Put(name, base);
    for (const char* name : {"written-custom.xml", "reference-custom.xml"})
        Put(name, custom);
}

void SyntaxOptions::ChangeTree()
{
    auto written = m_written.Nodes();
    auto reference = m_reference.Nodes();
    ASSERT_EQ(written.size(), reference.size());
    const auto place = static_cast<std::size_t>(Below(static_cast<int>(written.size())));
    const int kind = Below(5);
    const char16_t* const name = Below(2) ? u"Font" : u"TabWidth";
    const QString value = QString::number(Below(3));
    for (pug::xml_node* node : {&written[place], &reference[place]}) {
        switch (kind) {
        case 0:
            node->set_value(value);
            break;
        case 1:
            node->append_child(pug::node_element).set_name(name);
            break;
        case 2:
            node->first_attribute().set_value(value);
            break;
        case 3:
            if (node->type() == pug::node_element)
                node->set_name(name);
            break;
        default:
            if (node->children() > 2)
                node->remove_child(1);
            break;
        }
    }
}

void SyntaxOptions::ChangeSetting()
{
    const int kind = Below(3);
    const int value = Below(5);
    for (CSyntaxFile* syntax : {&m_written, &m_reference}) {
        if (kind == 0)
            syntax->SetTabWidth(value);
        else if (kind == 1)
            syntax->SetStyleFontSize(value, value + 7);
        else
            syntax->SetStyleColorBackground(value, value);
    }
}

void SyntaxOptions::Step()
{
    switch (Below(16)) {
    case 0:
        ChangeTree();
        break;
    case 1:
        ChangeSetting();
        break;
    case 2:
        m_written.Clear();
        m_reference.Clear();
        break;
    case 3:
        EXPECT_EQ(m_written.Revert(), m_reference.Revert());
        break;
    case 4:
        EXPECT_EQ(m_written.Parse(true), m_reference.Parse(true));
        break;
    case 5:
        CompareSaved();
        break;
    case 6:
        PutFiles();
        break;
    default: {
        const LanguageOptions options = AnyOptions();
        EXPECT_EQ(m_written.WriteOptions(options), SetEach(options, m_reference));
        break;
    }
    }
}

void SyntaxOptions::CompareSaved()
{
    EXPECT_EQ(m_written.Save(), m_reference.Save());
    EXPECT_EQ(Get("written.xml"), Get("reference.xml"));
    EXPECT_EQ(Get("written-custom.xml"), Get("reference-custom.xml"));
}

void SyntaxOptions::Compare()
{
    ASSERT_EQ(m_written.Texts(), m_reference.Texts());
    ASSERT_EQ(m_written.GetModified(), m_reference.GetModified());
}

TEST_F(SyntaxOptions, StandAsIfEachWereSetEveryTime)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    for (unsigned int file = 0; file < 200; ++file) {
        Start(seed + file);
        for (int step = 0; step < 40; ++step) {
            Step();
            Compare();
            ASSERT_FALSE(HasFailure()) << "file " << file << ", step " << step;
        }
    }
}

TEST_F(SyntaxOptions, MarkTheFileAgainAfterItWasSaved)
{
    Put("base.xml", "<Syntax><View><TabWidth>4</TabWidth></View></Syntax>");
    CSyntaxFile syntax;
    syntax.SetFilename(PathOf("base.xml"));
    syntax.SetCustomFilename(PathOf("custom.xml"));
    for (int time = 0; time < 4; ++time) {
        EXPECT_TRUE(syntax.WriteOptions({}));
        EXPECT_TRUE(syntax.GetModified()) << time;
        EXPECT_TRUE(syntax.Save());
        EXPECT_FALSE(syntax.GetModified());
    }
}

TEST_F(SyntaxOptions, AreWrittenIntoAFileThatComesLate)
{
    CSyntaxFile syntax;
    syntax.SetFilename(PathOf("base.xml"));
    LanguageOptions options;
    options.tabWidth = 7;
    EXPECT_FALSE(syntax.WriteOptions(options));
    EXPECT_FALSE(syntax.WriteOptions(options));
    Put("base.xml", "<Syntax><View><TabWidth>4</TabWidth></View></Syntax>");
    EXPECT_TRUE(syntax.WriteOptions(options));
    EXPECT_EQ(syntax.GetTabWidth(), 7);
}

// Wrapping takes the place of the tab width, which is set again beside it the next time.
TEST_F(SyntaxOptions, OfElementsWithinEachOtherNeedASecondTime)
{
    Put("base.xml", "<Syntax><View><WordWrap><TabWidth>4</TabWidth></WordWrap></View></Syntax>");
    CSyntaxFile syntax;
    syntax.SetFilename(PathOf("base.xml"));
    LanguageOptions options;
    options.tabWidth = 7;
    syntax.WriteOptions(options);
    EXPECT_EQ(syntax.GetTabWidth(), 0);
    syntax.WriteOptions(options);
    EXPECT_EQ(syntax.GetTabWidth(), 7);
}

} // namespace
