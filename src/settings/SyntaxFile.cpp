// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SyntaxFile.h"

#include "settings/LexerNames.h"
#include "settings/Number.h"

#include <QFile>

#include <utility>

namespace {

constexpr const char16_t* kSyntax = u"Syntax";
constexpr const char16_t* kStyleInformation = u"StyleInformation";
constexpr const char16_t* kView = u"View";
constexpr const char16_t* kCodeHighlight = u"CodeHighlight";
constexpr const char16_t* kAutoComp = u"AutoComp";
constexpr const char16_t* kOnSave = u"OnSave";
constexpr const char16_t* kIndent = u"Indent";
constexpr const char16_t* kMargins = u"Margins";
constexpr const char16_t* kLanguageDefines = u"LanguageDefines";
constexpr const char16_t* kLexer = u"Lexer";
constexpr const char16_t* kDefault = u"default";

int CompareByUnits(const QString& first, const QString& second)
{
    return first.compare(second, Qt::CaseSensitive);
}

template <std::size_t... Index>
auto EmptySets(std::index_sequence<Index...>)
{
    using Set = CSortedArray<QString, QString>;
    return std::array<Set, sizeof...(Index)>{((void)Index, Set(CompareByUnits))...};
}

} // namespace

CSyntaxFile::CSyntaxFile() : m_keywords(EmptySets(std::make_index_sequence<kKeywordSets>())) {}

const CRuntimeClass* CSyntaxFile::GetThisClass()
{
    static const CRuntimeClass own = {"CSyntaxFile", CXMLFile::GetThisClass()};
    return &own;
}

bool CSyntaxFile::IsCustomSection(const char16_t* section)
{
    return section && section[0] == u'S';
}

const pug::xml_parser& CSyntaxFile::DocumentOf(const char16_t* section) const
{
    return IsCustomSection(section) ? m_customDocument : m_document;
}

QString CSyntaxFile::GetStringFromXMLFile(const pug::xml_node& node, const char16_t* key)
{
    return CXMLFile::GetStringFromXMLFile(node, key);
}

QString CSyntaxFile::GetStringFromXMLFile(const char16_t* section, const char16_t* key)
{
    if (!m_parsed && !Parse())
        return QString();
    return CXMLFile::GetStringFromXMLFile(FindSection(DocumentOf(section), section), key);
}

bool CSyntaxFile::SetStringToXMLFile(pug::xml_node& node, const char16_t* key, const QString& value,
                                     bool asText)
{
    return CXMLFile::SetStringToXMLFile(node, key, value, asText);
}

bool CSyntaxFile::SetStringToXMLFile(const char16_t* section, const char16_t* key,
                                     const QString& value, bool asText)
{
    if (!m_parsed && !Parse())
        return false;
    pug::xml_node node = FindSection(DocumentOf(section), section);
    return CXMLFile::SetStringToXMLFile(node, key, value, asText);
}

QString CSyntaxFile::GetStringAttributeFromXMLFile(pug::xml_node& node, const char16_t* attribute)
{
    return CXMLFile::GetStringAttributeFromXMLFile(node, attribute);
}

QString CSyntaxFile::GetStringAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                                   const char16_t* attribute)
{
    if (!m_parsed && !Parse())
        return QString();
    pug::xml_node node = FindTarget(DocumentOf(section), section, key);
    return CXMLFile::GetStringAttributeFromXMLFile(node, attribute);
}

bool CSyntaxFile::SetStringAttributeToXMLFile(pug::xml_node& node, const char16_t* attribute,
                                              const QString& value)
{
    return CXMLFile::SetStringAttributeToXMLFile(node, attribute, value);
}

// A first attribute that reads as true marks the file here, unlike in a file of one document.
bool CSyntaxFile::SetStringAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                              const char16_t* attribute, const QString& value)
{
    if (!m_parsed && !Parse())
        return false;
    pug::xml_node node = FindTarget(DocumentOf(section), section, key);
    const bool done = CXMLFile::SetStringAttributeToXMLFile(node, attribute, value);
    m_modified |= done;
    return done;
}

bool CSyntaxFile::Parse(bool force)
{
    if (!force && m_parsed)
        return true;
    if (!CXMLFile::Parse())
        return false;
    ReadCustomDocument();
    PurgeCustomDocument();
    ReadStyleMax();
    if (std::exchange(m_keywordsAreStale, false)) {
        for (Keywords& words : m_keywords)
            words.RemoveAll();
        m_descriptions.fill(QString());
    }
    for (int set = 0; set < kKeywordSets; ++set)
        ReadKeywords(set);
    return true;
}

void CSyntaxFile::ReadCustomDocument()
{
    m_customIsMade = !ReadDocument(m_customFilename, m_customDocument);
    if (!m_customIsMade)
        return;
    m_customDocument.clear();
    pug::xml_node syntax = m_customDocument.document().append_child(pug::node_element);
    syntax.set_name(kSyntax);
    pug::xml_node styles = m_document.document().first_element_by_name(kStyleInformation);
    if (!styles.empty())
        CopyNode(styles, syntax);
}

// Whatever a user puts into the custom file, it never takes the place of another section.
void CSyntaxFile::PurgeCustomDocument()
{
    pug::xml_node syntax = m_customDocument.document().first_element_by_name(kSyntax);
    int index = 0;
    for (auto child = syntax.first_child(); !child.empty();) {
        const pug::xml_node next = child.next_sibling();
        if (child.name().startsWith(u'S'))
            ++index;
        else
            syntax.remove_child(index);
        child = next;
    }
}

void CSyntaxFile::ReadStyleMax()
{
    const pug::xml_node most = m_customDocument.document()
                                   .first_element_by_name(kStyleInformation)
                                   .first_element_by_name(u"StyleMax");
    if (most.has_children())
        m_styleMax = TextToInt(most.first_child().value());
}

void CSyntaxFile::CopyNode(pug::xml_node& source, pug::xml_node& target)
{
    target.append_copy(source);
}

bool CSyntaxFile::Save()
{
    if (!m_parsed)
        return false;
    if (!m_modified)
        return true;
    const bool baseSaved = CXMLFile::Save();
    if (!SaveCustomDocument())
        return false;
    m_modified = false;
    return baseSaved;
}

// A custom file that could not be read is not replaced by one that has nothing in it.
bool CSyntaxFile::SaveCustomDocument()
{
    const bool nothing = !m_customDocument.document().first_element_by_name(kSyntax).has_children();
    if (m_customIsMade && nothing && QFile::exists(m_customFilename))
        return true;
    return WriteDocument(m_customFilename, m_customDocument);
}

void CSyntaxFile::Clear()
{
    CXMLFile::Clear();
    m_customDocument.clear();
    m_keywordsAreStale = true;
}

// clang-format off
#define ZN_SETTING(getter, setter, type, family, section, key)                                     \
    type CSyntaxFile::getter() { return Get##family##FromXMLFile(section, key); }                  \
    bool CSyntaxFile::setter(type value) { return Set##family##ToXMLFile(section, key, value); }
// These are made of markup characters, so they stand in CDATA sections.
#define ZN_MARKUP(getter, setter, key)                                                             \
    QString CSyntaxFile::getter() { return GetStringFromXMLFile(kLanguageDefines, key); }          \
    bool CSyntaxFile::setter(const QString& value) { return SetStringToXMLFile(kLanguageDefines, key, value, false); }

ZN_SETTING(GetWhiteSpace,          SetWhiteSpace,          bool, Bool, kView,          u"WhiteSpace")
ZN_SETTING(GetEOL,                 SetEOL,                 bool, Bool, kView,          u"EOL")
ZN_SETTING(GetWordWrap,            SetWordWrap,            bool, Bool, kView,          u"WordWrap")
ZN_SETTING(GetTabWidth,            SetTabWidth,            int,  Int,  kView,          u"TabWidth")
ZN_SETTING(GetTabsToSpaces,        SetTabsToSpaces,        bool, Bool, kView,          u"TabsToSpaces")
ZN_SETTING(GetSyntaxHighlighting,  SetSyntaxHighlighting,  bool, Bool, kCodeHighlight, u"SyntaxHighlighting")
ZN_SETTING(GetBraceMatch,          SetBraceMatch,          bool, Bool, kCodeHighlight, u"BraceMatching")
ZN_SETTING(GetAutoCompletion,      SetAutoCompletion,      bool, Bool, kAutoComp,      u"AutoCompletion")
ZN_SETTING(GetCodeCompletion,      SetCodeCompletion,      bool, Bool, kAutoComp,      u"CodeCompletion")
ZN_SETTING(GetACKey,               SetACKey,               int,  Int,  kAutoComp,      u"AutoCompKey")
ZN_SETTING(GetEnsureFinalNewLine,  SetEnsureFinalNewLine,  bool, Bool, kOnSave,        u"EnsureFinalNewLine")
ZN_SETTING(GetConvertTabsToSpaces, SetConvertTabsToSpaces, bool, Bool, kOnSave,        u"ConvertTabsToSpaces")
ZN_SETTING(GetTrimTrailingSpaces,  SetTrimTrailingSpaces,  bool, Bool, kOnSave,        u"TrimTrailingSpaces")
ZN_SETTING(GetIndent,              SetIndent,              bool, Bool, kIndent,        u"Indent")
ZN_SETTING(GetIndentSize,          SetIndentSize,          int,  Int,  kIndent,        u"IndentSize")
ZN_SETTING(GetAutoIndent,          SetAutoIndent,          int,  Int,  kIndent,        u"AutoIndent")
ZN_SETTING(GetIndentGuides,        SetIndentGuides,        bool, Bool, kIndent,        u"IndentGuides")
ZN_SETTING(GetMarginLineNumber,    SetMarginLineNumber,    bool, Bool, kMargins,       u"LineNumbers")
ZN_SETTING(GetMarginBookmark,      SetMarginBookmark,      bool, Bool, kMargins,       u"BookMark")
ZN_SETTING(GetMarginFold,          SetMarginFold,          bool, Bool, kMargins,       u"Fold")

ZN_MARKUP (GetBraces,              SetBraces,              u"Braces")
ZN_MARKUP (GetWordCharacters,      SetWordCharacters,      u"WordCharacters")
ZN_MARKUP (GetSingleLineComment,   SetSingleLineComment,   u"SingleLineComment")
ZN_MARKUP (GetBlockComment,        SetBlockComment,        u"BlockComment")

#undef ZN_SETTING
#undef ZN_MARKUP
// clang-format on

int CSyntaxFile::GetStyleBits()
{
    return GetIntFromXMLFile(kStyleInformation, u"StyleBits");
}

int CSyntaxFile::GetStyleMax()
{
    return GetIntFromXMLFile(kStyleInformation, u"StyleMax");
}

int CSyntaxFile::GetDefaultSingleLineComment()
{
    return GetDefaultOf(u"SingleLineComment");
}

bool CSyntaxFile::SetDefaultSingleLineComment(int place)
{
    return SetDefaultOf(u"SingleLineComment", place);
}

int CSyntaxFile::GetDefaultBlockComment()
{
    return GetDefaultOf(u"BlockComment");
}

bool CSyntaxFile::SetDefaultBlockComment(int place)
{
    return SetDefaultOf(u"BlockComment", place);
}

int CSyntaxFile::GetDefaultOf(const char16_t* comment)
{
    if (!m_parsed && !Parse())
        return -1;
    const pug::xml_attribute place = m_document.document()
                                         .first_element_by_name(kLanguageDefines)
                                         .first_element_by_name(comment)
                                         .attribute(kDefault);
    return place.empty() ? -1 : TextToInt(place.value());
}

bool CSyntaxFile::SetDefaultOf(const char16_t* comment, int place)
{
    if (!m_parsed && !Parse())
        return false;
    pug::xml_node element = m_document.document()
                                .first_element_by_name(kLanguageDefines)
                                .first_element_by_name(comment);
    pug::xml_attribute attribute = element.attribute(kDefault);
    const QString text = QString::number(place);
    const bool done = attribute.empty() ? !element.append_attribute(kDefault, text).empty()
                                        : attribute.set_value(text);
    m_modified |= done;
    return done;
}

int CSyntaxFile::GetLexerNumber()
{
    const pug::xml_node name =
        m_document.document().first_element_by_name(kLexer).first_element_by_name(u"Name");
    return name.empty() ? -1 : LexerNumberOf(name.first_child().value());
}

int CSyntaxFile::GetLexerProperties(CMapStringToString& properties)
{
    int count = 0;
    const pug::xml_node lexer = m_document.document().first_element_by_name(kLexer);
    for (auto child = lexer.first_child(); !child.empty(); child = child.next_sibling()) {
        if (!child.is_named(u"Property") || !child.has_attributes() || !child.has_children())
            continue;
        properties.insert(child.first_attribute().value(), child.first_child().value());
        ++count;
    }
    return count;
}
