// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CConfigFile: the settings that hold for every editor and every language, and the list of
/// languages. Knows no file but its own and no default: what the file lacks reads as "", 0 or
/// false.
#pragma once

#include "settings/XMLFile.h"

/// Colours are 32-bit values with red in the low byte. A language is named by its place in the
/// list, counted from 0. Setters give false for a section that the file does not have.
class ZN_API CConfigFile : public CXMLFile
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass(); ///< the record of this class

    int GetFileTracking();              ///< not 0: files that others change are noticed
    bool SetFileTracking(int tracking); ///< see GetFileTracking

    unsigned long GetCaretColor();                         ///< of all editors
    bool SetCaretColor(unsigned long color);               ///< of all editors
    bool UseSelectionForegroundColor();                    ///< else selected text keeps its own
    bool SetUseSelectionForegroundColor(bool use);         ///< false leaves selected text its own
    unsigned long GetSelectionForegroundColor();           ///< of selected text, if it is used
    bool SetSelectionForegroundColor(unsigned long color); ///< of selected text
    bool UseSelectionBackgroundColor();            ///< else the selection has its style's ground
    bool SetUseSelectionBackgroundColor(bool use); ///< false leaves the style's ground
    unsigned long GetSelectionBackgroundColor();   ///< of selected text, if it is used
    bool SetSelectionBackgroundColor(unsigned long color); ///< of selected text
    bool GetHighlightCurrentLine(); ///< whether the caret's line has a ground of its own
    bool SetHighlightCurrentLine(bool highlight);           ///< whether it has one
    unsigned long GetHighlightCurrentLineColor();           ///< that ground
    bool SetHighlightCurrentLineColor(unsigned long color); ///< that ground
    bool GetRightEdge();                 ///< whether a column that lines should not pass is shown
    bool SetRightEdge(bool visible);     ///< whether it is shown
    int GetRightEdgeColumn();            ///< which column, from 0
    bool SetRightEdgeColumn(int column); ///< which column, from 0
    unsigned long GetRightEdgeColor();   ///< its colour
    bool SetRightEdgeColor(unsigned long color); ///< its colour

    /// What the host's dialog for inserting into lines was left at: the kind.
    int GetInsertTextType();
    bool SetInsertTextType(int type);          ///< see GetInsertTextType
    int GetInsertTextPosition();               ///< the same: where in the line
    bool SetInsertTextPosition(int position);  ///< see GetInsertTextPosition
    int GetInsertTextFirstNumber();            ///< the same: the number of the first line
    bool SetInsertTextFirstNumber(int number); ///< see GetInsertTextFirstNumber
    int GetInsertTextLength();                 ///< the same: digits of a number
    bool SetInsertTextLength(int length);      ///< see GetInsertTextLength
    int GetInsertTextStep();                   ///< the same: from line to line
    bool SetInsertTextStep(int step);          ///< see GetInsertTextStep
    QString GetInsertTextSeparator();          ///< the same: behind the number
    bool SetInsertTextSeparator(const QString& separator); ///< see GetInsertTextSeparator

    /// What the list says of its length, whatever it holds; -1 if it does not say.
    int GetLanguageCount();
    QString GetLanguageName(int number);                   ///< empty for a number that is not there
    bool SetLanguageName(int number, const QString& name); ///< as people read it
    /// Relative to the folder of the syntax files.
    QString GetLanguageSyntaxFileName(int number);
    /// Relative to the same folder.
    bool SetLanguageSyntaxFileName(int number, const QString& name);
    QString GetLanguageAutoCompFileName(int number); ///< kept for the host; empty: none
    bool SetLanguageAutoCompFileName(int number, const QString& name); ///< kept for the host
    /// Appends a language, whose number is the count of those that stand there. The last argument
    /// is not used. False for an empty name.
    bool AddLanguage(const QString& name, const QString& syntaxFile, const QString& autoCompFile,
                     const QString& unused);
    /// Closes the gap in the numbers. A number that is not there gives false, yet the count that
    /// the list tells has gone down by then.
    bool RemoveLanguage(int number);

    /// The words are looked up in what has been parsed; another getter has to parse the file first.
    bool AddInsertTextWord(const QString& word);
    /// The word at that place; empty behind the last one.
    QString GetInsertTextWord(unsigned int index);
    bool RemoveInsertTextWords(); ///< all of them; false if there is no list of them

protected:
    pug::xml_node GetLanguagesNode(); ///< the list; empty if the file lacks it
    /// Its entry; empty for a number that is not there.
    pug::xml_node GetLanguageNodeByNumber(int number);

private:
    unsigned long GetColor(const char16_t* key);
    bool SetColor(const char16_t* key, unsigned long color);
    bool SetLanguageCount(pug::xml_node languages, int count);
    bool SetLanguageText(int number, const char16_t* key, const QString& text);
    pug::xml_node GetInsertWordsNode() const;
};
