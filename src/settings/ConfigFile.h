// SPDX-License-Identifier: GPL-3.0-or-later
// CConfigFile: the settings that hold for every editor and every language, and the list of
// languages. Knows no file but its own and no default: what the file lacks reads as "", 0 or false.
#pragma once

#include "settings/XMLFile.h"

// Colours are 32-bit values with red in the low byte. A language is named by its place in the list,
// counted from 0. Setters give false for a section that the file does not have.
class ZN_API CConfigFile : public CXMLFile
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();

    int GetFileTracking();
    bool SetFileTracking(int tracking);

    unsigned long GetCaretColor();
    bool SetCaretColor(unsigned long color);
    bool UseSelectionForegroundColor();
    bool SetUseSelectionForegroundColor(bool use);
    unsigned long GetSelectionForegroundColor();
    bool SetSelectionForegroundColor(unsigned long color);
    bool UseSelectionBackgroundColor();
    bool SetUseSelectionBackgroundColor(bool use);
    unsigned long GetSelectionBackgroundColor();
    bool SetSelectionBackgroundColor(unsigned long color);
    bool GetHighlightCurrentLine();
    bool SetHighlightCurrentLine(bool highlight);
    unsigned long GetHighlightCurrentLineColor();
    bool SetHighlightCurrentLineColor(unsigned long color);
    bool GetRightEdge();
    bool SetRightEdge(bool visible);
    int GetRightEdgeColumn();
    bool SetRightEdgeColumn(int column);
    unsigned long GetRightEdgeColor();
    bool SetRightEdgeColor(unsigned long color);

    int GetInsertTextType();
    bool SetInsertTextType(int type);
    int GetInsertTextPosition();
    bool SetInsertTextPosition(int position);
    int GetInsertTextFirstNumber();
    bool SetInsertTextFirstNumber(int number);
    int GetInsertTextLength();
    bool SetInsertTextLength(int length);
    int GetInsertTextStep();
    bool SetInsertTextStep(int step);
    QString GetInsertTextSeparator();
    bool SetInsertTextSeparator(const QString& separator);

    // What the list says of its length, whatever it holds; -1 if it does not say.
    int GetLanguageCount();
    QString GetLanguageName(int number);
    bool SetLanguageName(int number, const QString& name);
    // Relative to the folder of the syntax files.
    QString GetLanguageSyntaxFileName(int number);
    bool SetLanguageSyntaxFileName(int number, const QString& name);
    QString GetLanguageAutoCompFileName(int number);
    bool SetLanguageAutoCompFileName(int number, const QString& name);
    // Appends a language, whose number is the count of those that stand there. The last argument is
    // not used. False for an empty name.
    bool AddLanguage(const QString& name, const QString& syntaxFile, const QString& autoCompFile,
                     const QString& unused);
    // Closes the gap in the numbers. A number that is not there gives false, yet the count that the
    // list tells has gone down by then.
    bool RemoveLanguage(int number);

    // The words are looked up in what has been parsed; another getter has to parse the file first.
    bool AddInsertTextWord(const QString& word);
    QString GetInsertTextWord(unsigned int index);
    bool RemoveInsertTextWords();

protected:
    pug::xml_node GetLanguagesNode();
    pug::xml_node GetLanguageNodeByNumber(int number);

private:
    unsigned long GetColor(const char16_t* key);
    bool SetColor(const char16_t* key, unsigned long color);
    bool SetLanguageCount(pug::xml_node languages, int count);
    bool SetLanguageText(int number, const char16_t* key, const QString& text);
    pug::xml_node GetInsertWordsNode() const;
};
