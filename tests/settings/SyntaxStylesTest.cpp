// SPDX-License-Identifier: GPL-3.0-or-later
// Styles by their number: what is read is what a plain search of the custom document finds.
#include "PlainSearch.h"
#include "SettingsFolder.h"

#include "settings/Number.h"
#include "settings/SyntaxFile.h"
#include "tests/RandomSeed.h"

#include <iostream>
#include <random>

namespace {

constexpr int kStyles = 8;

struct OpenStyles : CSyntaxFile
{
    using CSyntaxFile::DocumentOf;
    using CSyntaxFile::GetStringFromXMLFile;
    using CSyntaxFile::GetStyleColorNode;
    using CSyntaxFile::GetStyleFontNode;
    using CSyntaxFile::GetStyleNode;
    using CSyntaxFile::RGBHexValueToColorInt;
    using CSyntaxFile::SetIntToXMLFile;
    using CSyntaxFile::SetStringAttributeToXMLFile;
    using CSyntaxFile::SetStringToXMLFile;

    pug::xml_node StyleInformation()
    {
        return PlainByName(DocumentOf(u"S").document(), "StyleInformation");
    }
};

QString FirstTextOf(const pug::xml_node& node, const char* key)
{
    return PlainByName(node, key).first_child().value();
}

class RandomStyles : public SettingsFolder
{
protected:
    void Start(unsigned int seed);
    void Change();
    void CompareReads();

    OpenStyles syntax;

private:
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned int>(count)); }
    int AnyStyle() { return Below(kStyles + 2) - 1; }
    QByteArray AnyStyles();
    void PutFiles();
    void SetOne(int style);
    void ChangeStructure(int style);
    void ChangeFile();

    std::mt19937 m_random;
};

// Numbers come more than once, styles within styles, and some without font, colour or number.
QByteArray RandomStyles::AnyStyles()
{
    QByteArray text = "<StyleInformation>";
    for (int i = Below(2 * kStyles); i > 0; --i) {
        const QByteArray number = QByteArray::number(AnyStyle());
        text += Below(8) ? "<Style number=\"" + number + "\">" : QByteArray("<Style>");
        text += "<Name>" + QByteArray::number(i) + "</Name>";
        if (Below(4))
            text += "<Font><Name>F" + number + "</Name><Size>" + number + "</Size></Font>";
        if (Below(4))
            text += "<Color><Foreground>1234" + number + "</Foreground></Color>";
        if (Below(6) == 0)
            text +=
                "<Style number=\"" + QByteArray::number(AnyStyle()) + "\"><Bold>1</Bold></Style>";
        text += "</Style>";
    }
    return text + "</StyleInformation>";
}

void RandomStyles::PutFiles()
{
    Put("base", "<Syntax><View><TabWidth>4</TabWidth></View><Keywords set=\"0\"><Word>a</Word>"
                "</Keywords>" +
                    AnyStyles() + "</Syntax>");
    if (Below(3))
        Put("custom", "<Syntax>" + AnyStyles() + "</Syntax>");
    else
        QFile::remove(PathOf("custom"));
}

void RandomStyles::Start(unsigned int seed)
{
    m_random.seed(seed);
    PutFiles();
    syntax.Clear();
    syntax.SetFilename(PathOf("base"));
    syntax.SetCustomFilename(PathOf("custom"));
}

void RandomStyles::SetOne(int style)
{
    switch (Below(6)) {
    case 0:
        syntax.SetStyleFontName(style, QString::number(Below(99)));
        break;
    case 1:
        syntax.SetStyleFontSize(style, Below(99));
        break;
    case 2:
        syntax.SetStyleFontBold(style, Below(2));
        break;
    case 3:
        syntax.SetStyleFontItalic(style, Below(2));
        break;
    case 4:
        syntax.SetStyleColorForeground(style, Below(0xFFFFFF));
        break;
    default:
        syntax.SetStyleColorBackground(style, Below(0xFFFFFF));
    }
}

void RandomStyles::ChangeStructure(int style)
{
    pug::xml_node node = syntax.GetStyleNode(style);
    pug::xml_node all = syntax.StyleInformation();
    const QString number = QString::number(AnyStyle());
    switch (Below(9)) {
    case 0:
        syntax.SetStringAttributeToXMLFile(node, u"number", number);
        break;
    case 1:
        syntax.SetStringAttributeToXMLFile(u"StyleInformation", u"Style", u"number", number);
        break;
    case 2:
        syntax.CopyNode(node, all);
        break;
    case 3:
        if (pug::xml_node other = syntax.GetStyleNode(AnyStyle()); node.children() < 6)
            syntax.CopyNode(node, other);
        break;
    case 4:
        node.set_name(Below(2) ? u"Style" : u"Other");
        break;
    case 5:
        all.remove_child(Below(kStyles));
        break;
    case 6:
        syntax.SetStringToXMLFile(u"StyleInformation", u"Style", number, true);
        break;
    case 7:
        syntax.SetIntToXMLFile(node, Below(2) ? u"Style" : u"Font", Below(9));
        break;
    default: {
        pug::xml_node made = all.append_child(pug::node_element);
        made.set_name(u"Style");
        made.append_attribute(u"number", number);
    }
    }
}

void RandomStyles::ChangeFile()
{
    switch (Below(6)) {
    case 0:
        syntax.Clear();
        break;
    case 1:
        PutFiles();
        syntax.Parse(true);
        break;
    case 2:
        PutFiles();
        syntax.Revert();
        break;
    case 3:
        syntax.Save();
        break;
    case 4:
        Put("other", "<Syntax>" + AnyStyles() + "</Syntax>");
        syntax.SetCustomFilename(PathOf(Below(2) ? "other" : "custom"));
        break;
    default:
        syntax.SetDelimitedKeywordSet(0, "ab cd", ' ');
        syntax.SetTabWidth(Below(9));
    }
}

void RandomStyles::Change()
{
    const int style = AnyStyle();
    switch (Below(4)) {
    case 0:
        return ChangeFile();
    case 1:
        return ChangeStructure(style);
    default:
        return SetOne(style);
    }
}

void RandomStyles::CompareReads()
{
    const int tabWidth = syntax.GetTabWidth(); // reads the files if they have been cleared
    const pug::xml_node view = PlainByName(syntax.DocumentOf(u"View").document(), "View");
    EXPECT_EQ(tabWidth, TextToInt(FirstTextOf(view, "TabWidth")));
    const pug::xml_node all = syntax.StyleInformation();
    for (int style = -2; style <= kStyles; ++style) {
        const auto plain = PlainByAttribute(all, "Style", "number", QString::number(style));
        ASSERT_EQ(syntax.GetStyleNode(style), plain) << style;
        const pug::xml_node font = PlainByName(plain, "Font");
        const pug::xml_node color = PlainByName(plain, "Color");
        EXPECT_EQ(syntax.GetStyleName(style), FirstTextOf(plain, "Name"));
        EXPECT_EQ(syntax.GetStyleFontName(style), FirstTextOf(font, "Name"));
        EXPECT_EQ(syntax.GetStyleFontSize(style), TextToInt(FirstTextOf(font, "Size")));
        EXPECT_EQ(syntax.GetStyleFontBold(style), TextToInt(FirstTextOf(font, "Bold")) != 0);
        EXPECT_EQ(syntax.GetStyleFontItalic(style), TextToInt(FirstTextOf(font, "Italic")) != 0);
        EXPECT_EQ(syntax.GetStyleFontUnderline(style),
                  TextToInt(FirstTextOf(font, "Underline")) != 0);
        EXPECT_EQ(syntax.GetStyleColorForeground(style),
                  OpenStyles::RGBHexValueToColorInt(FirstTextOf(color, "Foreground")));
        EXPECT_EQ(syntax.GetStyleColorBackground(style),
                  OpenStyles::RGBHexValueToColorInt(FirstTextOf(color, "Background")));
    }
}

TEST_F(RandomStyles, ReadWhatAPlainSearchFinds)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    for (unsigned int file = 0; file < 30; ++file) {
        Start(seed + file);
        for (int step = 0; step < 30; ++step) {
            Change();
            CompareReads();
            ASSERT_FALSE(HasFailure()) << "file " << file << ", step " << step;
        }
    }
}

} // namespace
