// SPDX-License-Identifier: GPL-3.0-or-later
// CSyntaxFile: one language: lexer, keywords, editing behaviour, comments, braces and styles.
// Knows no editor. The GUI thread owns it.
#pragma once

#include "settings/SortedArray.h"
#include "settings/XMLFile.h"

#include <QMap>

#include <array>
#include <cstdint>
#include <optional>

using CMapStringToString = QMap<QString, QString>;

// What a host's options say of every language.
struct LanguageOptions
{
    friend bool operator==(const LanguageOptions&, const LanguageOptions&) = default;

    int autoIndent = 0;
    bool tabsToSpaces = false;
    bool lineNumbers = false;
    bool foldMargin = false;
    int tabWidth = 0; // columns, of an indentation too
    bool wordWrap = false;
    // Of every style.
    QString fontName;
    int fontSize = 0; // in points; below 1: as the language has it
    bool bold = false;
    bool italic = false;
    bool underline = false;
};

// Two files of one name stand behind it: the base file in the library's folder holds every section,
// the custom file in the user's folder holds the styles, so that a user's colours outlive an update
// of the base file. A section whose name begins with "S" is the custom file's, every other the
// base file's. Without a custom file that can be read, the styles start as those of the base file.
// Setters give false for a section that is not there; both files are written by Save.
class ZN_API CSyntaxFile : public CXMLFile
{
public:
    CSyntaxFile();

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();

protected:
    QString GetStringFromXMLFile(const pug::xml_node& node, const char16_t* key) override;
    QString GetStringFromXMLFile(const char16_t* section, const char16_t* key) override;
    bool SetStringToXMLFile(pug::xml_node& node, const char16_t* key, const QString& value,
                            bool asText) override;
    bool SetStringToXMLFile(const char16_t* section, const char16_t* key, const QString& value,
                            bool asText) override;
    QString GetStringAttributeFromXMLFile(pug::xml_node& node, const char16_t* attribute) override;
    QString GetStringAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                          const char16_t* attribute) override;
    bool SetStringAttributeToXMLFile(pug::xml_node& node, const char16_t* attribute,
                                     const QString& value) override;
    bool SetStringAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                     const char16_t* attribute, const QString& value) override;

public:
    bool Parse() override { return Parse(false); }
    // By force the custom file is read again, and the keywords of the base file are added to those
    // that are there; the base file stays as it is in memory.
    bool Parse(bool force);
    // False if one of the two files could not be written; the other may have been.
    bool Save() override;
    // The keywords stay until the next Parse replaces them.
    void Clear() override;

    void SetCustomFilename(const QString& filename) { m_customFilename = filename; }
    const QString& GetCustomFilename() const { return m_customFilename; }

    bool GetWhiteSpace();
    bool SetWhiteSpace(bool visible);
    bool GetEOL();
    bool SetEOL(bool visible);
    bool GetWordWrap();
    bool SetWordWrap(bool wrap);
    int GetTabWidth();
    bool SetTabWidth(int width);
    bool GetTabsToSpaces();
    bool SetTabsToSpaces(bool convert);

    bool GetSyntaxHighlighting();
    bool SetSyntaxHighlighting(bool highlight);
    bool GetBraceMatch();
    bool SetBraceMatch(bool match);

    bool GetAutoCompletion();
    bool SetAutoCompletion(bool complete);
    bool GetCodeCompletion();
    bool SetCodeCompletion(bool complete);
    int GetACKey();
    bool SetACKey(int key);

    bool GetEnsureFinalNewLine();
    bool SetEnsureFinalNewLine(bool ensure);
    bool GetConvertTabsToSpaces();
    bool SetConvertTabsToSpaces(bool convert);
    bool GetTrimTrailingSpaces();
    bool SetTrimTrailingSpaces(bool trim);

    bool GetIndent();
    bool SetIndent(bool indent);
    int GetIndentSize();
    bool SetIndentSize(int size);
    int GetAutoIndent();
    bool SetAutoIndent(int mode);
    bool GetIndentGuides();
    bool SetIndentGuides(bool visible);

    bool GetMarginLineNumber();
    bool SetMarginLineNumber(bool visible);
    bool GetMarginBookmark();
    bool SetMarginBookmark(bool visible);
    bool GetMarginFold();
    bool SetMarginFold(bool visible);

    int GetStyleBits();
    int GetStyleMax();

    QString GetBraces();
    bool SetBraces(const QString& braces);
    QString GetWordCharacters();
    bool SetWordCharacters(const QString& characters);
    // Alternatives with "|" between them.
    QString GetSingleLineComment();
    bool SetSingleLineComment(const QString& alternatives);
    // Pairs: open|close|open|close.
    QString GetBlockComment();
    bool SetBlockComment(const QString& pairs);
    // The place of the alternative that commenting starts with, counted from 0; -1 if the file does
    // not tell.
    int GetDefaultSingleLineComment();
    bool SetDefaultSingleLineComment(int place);
    int GetDefaultBlockComment();
    bool SetDefaultBlockComment(int place);

    // Styles by their number, up to StyleMax of the custom file. Colours have red in the low byte.
    QString GetStyleName(int style);
    QString GetStyleFontName(int style);
    bool SetStyleFontName(int style, const QString& name);
    int GetStyleFontSize(int style);
    bool SetStyleFontSize(int style, int size);
    bool GetStyleFontBold(int style);
    bool SetStyleFontBold(int style, bool bold);
    bool GetStyleFontItalic(int style);
    bool SetStyleFontItalic(int style, bool italic);
    bool GetStyleFontUnderline(int style);
    bool SetStyleFontUnderline(int style, bool underline);
    int GetStyleColorForeground(int style);
    bool SetStyleColorForeground(int style, int color);
    int GetStyleColorBackground(int style);
    bool SetStyleColorBackground(int style, int color);

    // Sets all of it, for the styles 0 to 127. What is written already, and stands as it was
    // written, costs next to nothing. False if nothing could be set.
    bool WriteOptions(const LanguageOptions& options);
    // Font and size of them, for the styles that have none.
    void FillFonts(const LanguageOptions& options);

    // Sets 0 to 7. Words stand in the order of the file.
    QString GetKeywordSetDescription(int set);
    QString GetDelimitedKeywordSet(int set, char delimiter);
    // A last word of one character behind a delimiter is dropped. False for a set that the base
    // file lacks, which has the words in memory all the same.
    bool SetDelimitedKeywordSet(int set, const QString& words, char delimiter);
    // The words of all sets, sorted by their units; a word of two sets stands there twice. Made
    // afresh at each call.
    QString GetDelimitedKeywords(char delimiter);

    // The engine's number of the lexer; -1 for a name that has none, 0 for an empty one. Does not
    // parse the file.
    int GetLexerNumber();
    // Adds the lexer's properties to the map and gives how many there are. Does not parse the file.
    int GetLexerProperties(CMapStringToString& properties);

    // Appends a copy of the source, with all that stands below it, to the target.
    void CopyNode(pug::xml_node& source, pug::xml_node& target);

protected:
    // Where a section stands.
    const pug::xml_parser& DocumentOf(const char16_t* section) const;
    pug::xml_node GetStyleNode(int style);
    pug::xml_node GetStyleFontNode(int style);
    pug::xml_node GetStyleColorNode(int style);

    // Six digits in the order red, green, blue. A character that is no digit counts 0, and so does
    // one that is missing.
    static int RGBHexValueToColorInt(const QString& text);
    static QString ColorIntValueToRGBHex(int color);

private:
    static constexpr int kKeywordSets = 8;
    using Keywords = CSortedArray<QString, QString>;

    static bool IsCustomSection(const char16_t* section);

    void ReadCustomDocument();
    void PurgeCustomDocument();
    void ReadStyleMax();
    void ReadKeywords(int set);
    pug::xml_node GetKeywordsNode(int set) const;
    bool SaveCustomDocument();

    struct StyleNodes
    {
        pug::xml_node font;
        pug::xml_node color;
        std::uint64_t changes = 0; // of elements, when these were found
    };

    std::uint64_t Changes() const;
    StyleNodes FindStyle(int style);
    bool SetOptions(const LanguageOptions& options);
    bool SetStyleFont(int style, const LanguageOptions& options);

    int GetDefaultOf(const char16_t* comment);
    bool SetDefaultOf(const char16_t* comment, int place);
    int GetStyleColor(int style, const char16_t* key);
    bool SetStyleColor(int style, const char16_t* key, int color);

    int m_styleMax = 127;
    QString m_customFilename;
    pug::xml_parser m_customDocument;
    std::array<Keywords, kKeywordSets> m_keywords;
    std::array<QString, kKeywordSets> m_descriptions;
    bool m_keywordsAreStale = false; // cleared since they were read
    bool m_customIsMade = false;     // not read from the custom file

    std::array<StyleNodes, 128> m_foundStyles;

    // Options that would change nothing if they were written into the documents as they were after
    // so many changes.
    struct SettledOptions
    {
        LanguageOptions options;
        std::uint64_t changes;
        bool isSet; // whether anything can be set
    };
    std::optional<SettledOptions> m_settledOptions;
};
