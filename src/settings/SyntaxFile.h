// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CSyntaxFile: one language: lexer, keywords, editing behaviour, comments, braces and styles.
/// Knows no editor. The GUI thread owns it.
#pragma once

#include "settings/SortedArray.h"
#include "settings/XMLFile.h"

#include <QMap>

#include <array>
#include <cstdint>
#include <optional>

using CMapStringToString = QMap<QString, QString>; ///< texts by name

/// What a host's options say of every language.
struct LanguageOptions
{
    /// Whether both say the same.
    friend bool operator==(const LanguageOptions&, const LanguageOptions&) = default;

    int autoIndent = 0;        ///< 0 none, 1 keep, 2 by the language
    bool tabsToSpaces = false; ///< blanks in place of tabs
    bool lineNumbers = false;  ///< a margin with them
    bool foldMargin = false;   ///< a margin with folds
    int tabWidth = 0;          ///< columns, of an indentation too
    bool wordWrap = false;     ///< long lines wrapped
    /// Of every style.
    QString fontName;
    int fontSize = 0;       ///< in points; below 1: as the language has it
    bool bold = false;      ///< whether they are bold
    bool italic = false;    ///< whether they are slanted
    bool underline = false; ///< whether they are underlined
};

/// Two files of one name stand behind it: the base file in the library's folder holds every
/// section, the custom file in the user's folder holds the styles, so that a user's colours outlive
/// an update of the base file. A section whose name begins with "S" is the custom file's, every
/// other the base file's. Without a custom file that can be read, the styles start as those of the
/// base file. Setters give false for a section that is not there; both files are written by Save.
class ZN_API CSyntaxFile : public CXMLFile
{
public:
    CSyntaxFile(); ///< without files

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass(); ///< the record of this class

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
    /// By force the custom file is read again, and the keywords of the base file are added to those
    /// that are there; the base file stays as it is in memory.
    bool Parse(bool force);
    /// False if one of the two files could not be written; the other may have been.
    bool Save() override;
    /// The keywords stay until the next Parse replaces them.
    void Clear() override;

    /// Read by the next Parse.
    void SetCustomFilename(const QString& filename) { m_customFilename = filename; }
    const QString& GetCustomFilename() const { return m_customFilename; } ///< empty: none

    bool GetWhiteSpace();               ///< whether blanks are drawn
    bool SetWhiteSpace(bool visible);   ///< whether blanks are drawn
    bool GetEOL();                      ///< whether line ends are drawn
    bool SetEOL(bool visible);          ///< whether line ends are drawn
    bool GetWordWrap();                 ///< whether long lines are wrapped
    bool SetWordWrap(bool wrap);        ///< whether long lines are wrapped
    int GetTabWidth();                  ///< in columns
    bool SetTabWidth(int width);        ///< in columns
    bool GetTabsToSpaces();             ///< whether Tab puts blanks in
    bool SetTabsToSpaces(bool convert); ///< whether Tab puts blanks in

    bool GetSyntaxHighlighting();               ///< whether its text is coloured
    bool SetSyntaxHighlighting(bool highlight); ///< whether its text is coloured
    bool GetBraceMatch();                       ///< whether braces are lit
    bool SetBraceMatch(bool match);             ///< whether braces are lit

    bool GetAutoCompletion(); ///< whether the list of proposals opens while somebody types
    bool SetAutoCompletion(bool complete); ///< whether it does
    bool GetCodeCompletion();              ///< kept for the host
    bool SetCodeCompletion(bool complete); ///< kept for the host
    int GetACKey();                        ///< which key chooses a proposal: 0 Tab, 1 blank
    bool SetACKey(int key);                ///< 0 Tab, 1 blank

    bool GetEnsureFinalNewLine();              ///< whether a save gives the last line an end
    bool SetEnsureFinalNewLine(bool ensure);   ///< whether a save does
    bool GetConvertTabsToSpaces();             ///< whether a save makes blanks of tabs
    bool SetConvertTabsToSpaces(bool convert); ///< whether a save does
    bool GetTrimTrailingSpaces();              ///< whether a save takes blanks off line ends
    bool SetTrimTrailingSpaces(bool trim);     ///< whether a save does

    bool GetIndent();                   ///< whether Tab indents
    bool SetIndent(bool indent);        ///< whether Tab indents
    int GetIndentSize();                ///< in columns
    bool SetIndentSize(int size);       ///< in columns
    int GetAutoIndent();                ///< 0 none, 1 as the line above, 2 or more by braces
    bool SetAutoIndent(int mode);       ///< see GetAutoIndent
    bool GetIndentGuides();             ///< whether lines of indentation are drawn
    bool SetIndentGuides(bool visible); ///< whether they are drawn

    bool GetMarginLineNumber();             ///< whether line numbers are shown
    bool SetMarginLineNumber(bool visible); ///< whether they are shown
    bool GetMarginBookmark();               ///< whether the margin of bookmarks is shown
    bool SetMarginBookmark(bool visible);   ///< whether it is shown
    bool GetMarginFold();                   ///< whether the margin of folds is shown
    bool SetMarginFold(bool visible);       ///< whether it is shown

    int GetStyleBits(); ///< of the lexer's styles; -1 if the file does not tell
    int GetStyleMax();  ///< the last style's number

    QString GetBraces();                   ///< the characters that count as braces, in pairs
    bool SetBraces(const QString& braces); ///< in pairs
    QString GetWordCharacters();           ///< that words are made of
    bool SetWordCharacters(const QString& characters); ///< that words are made of
    /// Alternatives with "|" between them.
    QString GetSingleLineComment();
    bool SetSingleLineComment(const QString& alternatives); ///< alternatives with "|" between them
    /// Pairs: open|close|open|close.
    QString GetBlockComment();
    bool SetBlockComment(const QString& pairs); ///< pairs: open|close|open|close
    /// The place of the alternative that commenting starts with, counted from 0; -1 if the file
    /// does not tell.
    int GetDefaultSingleLineComment();
    bool SetDefaultSingleLineComment(int place); ///< from 0
    int GetDefaultBlockComment();                ///< the same of pairs
    bool SetDefaultBlockComment(int place);      ///< from 0

    /// Styles by their number, up to StyleMax of the custom file. Colours have red in the low byte.
    QString GetStyleName(int style);
    QString GetStyleFontName(int style);                   ///< empty: none of its own
    bool SetStyleFontName(int style, const QString& name); ///< the family
    int GetStyleFontSize(int style);                       ///< in points
    bool SetStyleFontSize(int style, int size);            ///< in points
    bool GetStyleFontBold(int style);                      ///< whether it is bold
    bool SetStyleFontBold(int style, bool bold);           ///< whether it is bold
    bool GetStyleFontItalic(int style);                    ///< whether it is slanted
    bool SetStyleFontItalic(int style, bool italic);       ///< whether it is slanted
    bool GetStyleFontUnderline(int style);                 ///< whether it is underlined
    bool SetStyleFontUnderline(int style, bool underline); ///< whether it is underlined
    int GetStyleColorForeground(int style);                ///< of the text
    bool SetStyleColorForeground(int style, int color);    ///< of the text
    int GetStyleColorBackground(int style);                ///< of the ground
    bool SetStyleColorBackground(int style, int color);    ///< of the ground

    /// Sets all of it, for the styles 0 to 127. What is written already, and stands as it was
    /// written, costs next to nothing. False if nothing could be set.
    bool WriteOptions(const LanguageOptions& options);
    /// Font and size of them, for the styles that have none.
    void FillFonts(const LanguageOptions& options);

    /// Sets 0 to 7. Words stand in the order of the file.
    QString GetKeywordSetDescription(int set);
    /// The set's words with that between them.
    QString GetDelimitedKeywordSet(int set, char delimiter);
    /// A last word of one character behind a delimiter is dropped. False for a set that the base
    /// file lacks, which has the words in memory all the same.
    bool SetDelimitedKeywordSet(int set, const QString& words, char delimiter);
    /// The words of all sets, sorted by their units; a word of two sets stands there twice. Made
    /// afresh at each call.
    QString GetDelimitedKeywords(char delimiter);

    /// The engine's number of the lexer; -1 for a name that has none, 0 for an empty one. Does not
    /// parse the file.
    int GetLexerNumber();
    /// Adds the lexer's properties to the map and gives how many there are. Does not parse the
    /// file.
    int GetLexerProperties(CMapStringToString& properties);

    /// Appends a copy of the source, with all that stands below it, to the target.
    void CopyNode(pug::xml_node& source, pug::xml_node& target);

protected:
    /// Where a section stands.
    const pug::xml_parser& DocumentOf(const char16_t* section) const;
    pug::xml_node GetStyleNode(int style);      ///< empty for a style that the file lacks
    pug::xml_node GetStyleFontNode(int style);  ///< the same of its font
    pug::xml_node GetStyleColorNode(int style); ///< the same of its colours

    /// Six digits in the order red, green, blue. A character that is no digit counts 0, and so does
    /// one that is missing.
    static int RGBHexValueToColorInt(const QString& text);
    static QString ColorIntValueToRGBHex(int color); ///< the reverse; red stands in the low byte

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
