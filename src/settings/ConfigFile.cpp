// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ConfigFile.h"

#include "settings/Number.h"

#include <cstdint>

namespace {

constexpr const char16_t* kGeneral = u"General";
constexpr const char16_t* kEditor = u"Editor";
constexpr const char16_t* kInsertText = u"InsertText";
constexpr const char16_t* kUse = u"use";
constexpr const char16_t* kCount = u"count";
constexpr const char16_t* kNumber = u"number";

} // namespace

const CRuntimeClass* CConfigFile::GetThisClass()
{
    static const CRuntimeClass own = {"CConfigFile", CXMLFile::GetThisClass()};
    return &own;
}

// clang-format off
#define ZN_SETTING(getter, setter, type, family, ...)                                              \
    type CConfigFile::getter() { return Get##family##FromXMLFile(__VA_ARGS__); }                   \
    bool CConfigFile::setter(type value) { return Set##family##ToXMLFile(__VA_ARGS__, value); }
#define ZN_COLOR(getter, setter, key)                                                              \
    unsigned long CConfigFile::getter() { return GetColor(key); }                                  \
    bool CConfigFile::setter(unsigned long color) { return SetColor(key, color); }

ZN_SETTING(GetFileTracking,             SetFileTracking,                int,  Int,           kGeneral, u"CheckFileModification")

ZN_COLOR  (GetCaretColor,               SetCaretColor,                                                 u"CaretColor")
ZN_SETTING(UseSelectionForegroundColor, SetUseSelectionForegroundColor, bool, BoolAttribute, kEditor,  u"SelectionForeColor", kUse)
ZN_COLOR  (GetSelectionForegroundColor, SetSelectionForegroundColor,                                   u"SelectionForeColor")
ZN_SETTING(UseSelectionBackgroundColor, SetUseSelectionBackgroundColor, bool, BoolAttribute, kEditor,  u"SelectionBackColor", kUse)
ZN_COLOR  (GetSelectionBackgroundColor, SetSelectionBackgroundColor,                                   u"SelectionBackColor")
ZN_SETTING(GetHighlightCurrentLine,     SetHighlightCurrentLine,        bool, Bool,          kEditor,  u"HighlightCurrentLine")
ZN_COLOR  (GetHighlightCurrentLineColor,SetHighlightCurrentLineColor,                                  u"HighlightCurrentLineColor")
ZN_SETTING(GetRightEdge,                SetRightEdge,                   bool, Bool,          kEditor,  u"RightEdge")
ZN_SETTING(GetRightEdgeColumn,          SetRightEdgeColumn,             int,  Int,           kEditor,  u"RightEdgeColumn")
ZN_COLOR  (GetRightEdgeColor,           SetRightEdgeColor,                                             u"RightEdgeColor")

ZN_SETTING(GetInsertTextType,           SetInsertTextType,              int,  Int,           kInsertText, u"Type")
ZN_SETTING(GetInsertTextPosition,       SetInsertTextPosition,          int,  Int,           kInsertText, u"Position")
ZN_SETTING(GetInsertTextFirstNumber,    SetInsertTextFirstNumber,       int,  Int,           kInsertText, u"FirstNumber")
ZN_SETTING(GetInsertTextLength,         SetInsertTextLength,            int,  Int,           kInsertText, u"Length")
ZN_SETTING(GetInsertTextStep,           SetInsertTextStep,              int,  Int,           kInsertText, u"Step")

#undef ZN_SETTING
#undef ZN_COLOR
// clang-format on

QString CConfigFile::GetInsertTextSeparator()
{
    return GetStringFromXMLFile(kInsertText, u"Separator");
}

bool CConfigFile::SetInsertTextSeparator(const QString& separator)
{
    return SetStringToXMLFile(kInsertText, u"Separator", separator, true);
}

// A colour has 32 bits; those of the upper half stand in the file as negative numbers.
unsigned long CConfigFile::GetColor(const char16_t* key)
{
    return static_cast<std::uint32_t>(GetIntFromXMLFile(kEditor, key));
}

bool CConfigFile::SetColor(const char16_t* key, unsigned long color)
{
    return SetIntToXMLFile(kEditor, key, static_cast<int>(static_cast<std::uint32_t>(color)));
}

pug::xml_node CConfigFile::GetLanguagesNode()
{
    if (!m_parsed && !Parse())
        return pug::xml_node();
    return m_document.document().first_element_by_name(u"Languages");
}

pug::xml_node CConfigFile::GetLanguageNodeByNumber(int number)
{
    return GetLanguagesNode().first_element_by_attribute(u"Language", kNumber,
                                                         QString::number(number));
}

int CConfigFile::GetLanguageCount()
{
    const pug::xml_attribute count = GetLanguagesNode().attribute(kCount);
    return count.empty() ? -1 : TextToInt(count.value());
}

QString CConfigFile::GetLanguageName(int number)
{
    return GetStringFromXMLFile(GetLanguageNodeByNumber(number), u"Name");
}

bool CConfigFile::SetLanguageName(int number, const QString& name)
{
    return SetLanguageText(number, u"Name", name);
}

QString CConfigFile::GetLanguageSyntaxFileName(int number)
{
    return GetStringFromXMLFile(GetLanguageNodeByNumber(number), u"SyntaxFile");
}

bool CConfigFile::SetLanguageSyntaxFileName(int number, const QString& name)
{
    return SetLanguageText(number, u"SyntaxFile", name);
}

QString CConfigFile::GetLanguageAutoCompFileName(int number)
{
    return GetStringFromXMLFile(GetLanguageNodeByNumber(number), u"AutoCompFile");
}

bool CConfigFile::SetLanguageAutoCompFileName(int number, const QString& name)
{
    return SetLanguageText(number, u"AutoCompFile", name);
}

bool CConfigFile::SetLanguageText(int number, const char16_t* key, const QString& text)
{
    pug::xml_node language = GetLanguageNodeByNumber(number);
    return language.has_children() && SetStringToXMLFile(language, key, text, true);
}

bool CConfigFile::SetLanguageCount(pug::xml_node languages, int count)
{
    pug::xml_attribute attribute = languages.attribute(kCount);
    if (attribute.empty() || !attribute.set_value(QString::number(count)))
        return false;
    m_modified = true;
    return true;
}

bool CConfigFile::AddLanguage(const QString& name, const QString& syntaxFile,
                              const QString& autoCompFile, const QString&)
{
    if (name.isEmpty())
        return false;
    pug::xml_node languages = GetLanguagesNode();
    const int number = languages.children();
    if (!SetLanguageCount(languages, number + 1))
        return false;
    pug::xml_node language = languages.append_child(pug::node_element);
    if (!language.set_name(u"Language"))
        return false;
    language.append_attribute(kNumber, QString::number(number));
    const auto set = [&](const char16_t* key, const QString& text) {
        return text.isEmpty() || SetStringToXMLFile(language, key, text, true);
    };
    return set(u"Name", name) && set(u"SyntaxFile", syntaxFile) &&
           set(u"AutoCompFile", autoCompFile);
}

// The language is removed by its place, which is its number as long as the list is in order.
bool CConfigFile::RemoveLanguage(int number)
{
    pug::xml_node languages = GetLanguagesNode();
    const int count = languages.children();
    if (!SetLanguageCount(languages, count - 1))
        return false;
    if (GetLanguageNodeByNumber(number).empty() || count < number)
        return false;
    languages.remove_child(number);
    int place = number;
    for (pug::xml_node at = languages.child(number); !at.empty(); at = at.next_sibling())
        at.attribute(kNumber).set_value(QString::number(place++));
    return true;
}

pug::xml_node CConfigFile::GetInsertWordsNode() const
{
    return m_document.document()
        .first_element_by_name(kInsertText)
        .first_element_by_name(u"InsertWords");
}

bool CConfigFile::AddInsertTextWord(const QString& word)
{
    pug::xml_node element = GetInsertWordsNode().append_child(pug::node_element);
    if (!element.set_name(u"Word") || !element.append_child(pug::node_pcdata).set_value(word))
        return false;
    m_modified = true;
    return true;
}

QString CConfigFile::GetInsertTextWord(unsigned int index)
{
    const pug::xml_node word = GetInsertWordsNode().child(static_cast<int>(index));
    return word.is_named(u"Word") ? word.first_child().value() : QString();
}

bool CConfigFile::RemoveInsertTextWords()
{
    pug::xml_node words = GetInsertWordsNode();
    if (words.empty())
        return false;
    words.remove_children();
    m_modified = true;
    return true;
}
