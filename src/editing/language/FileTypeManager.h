// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFileTypeManager: the registry of languages, and the place where settings reach an editor.
/// One for the process (zncoreeditor::GetFileTypeManager); the GUI thread owns it.
#pragma once

#include "common/Export.h"

#include <QString>

#include <memory>
#include <unordered_map>
#include <vector>

class CConfigFile;
class CSyntaxFile;
class CZNCoreEditorControlEx;

/// Languages are named by their place in the configuration's list, counted from 0. Their files are
/// read when they are first used.
class ZN_API CFileTypeManager
{
public:
    CFileTypeManager(); ///< no language is known
    CFileTypeManager(const CFileTypeManager&) = delete;
    CFileTypeManager& operator=(const CFileTypeManager&) = delete;
    virtual ~CFileTypeManager(); ///< its files go, without being saved

    /// Takes the list of languages anew. A language that is there already is read again from its
    /// files at its next use; one that left the list stays under its number.
    void Init(CConfigFile* config);

    /// The one that was bound last, in whichever editor.
    int GetCurrentLanguageNumber() const { return m_currentLanguage; }
    void SetCurrentLanguageNumber(int language) { m_currentLanguage = language; } ///< binds nothing

    /// As many as Init has found.
    int GetLanguageCount() const { return static_cast<int>(m_languageNames.size()); }
    /// Throws CInvalidArgException for a number outside the list.
    QString GetLanguageName(int language) const;
    CSyntaxFile* GetSyntaxFile(int language) const; ///< the manager's own; null if there is none

    /// 0 also for a language that is unknown or whose file cannot be read.
    int GetBraceMatching(int language);
    int GetSyntaxHighlighting(int language); ///< the same of colours
    /// The words of all sets; "" for a language that is unknown or cannot be read.
    QString GetDelimitedKeywords(int language, char delimiter);

    void ReParseAllSyntaxFiles(); ///< at their next use

    /// Gives the editor the look and the behaviour of a language. It stays as it was if the
    /// language is unknown or cannot be read, yet the language is the current one then.
    void SetCoreEditorProperties(int language, CZNCoreEditorControlEx* control);
    /// The order of what is sent is part of the contract: later messages overwrite earlier ones.
    void SetCoreEditorProperties(CConfigFile* config, CSyntaxFile* syntax,
                                 CZNCoreEditorControlEx* control);
    void SetCoreEditorDefaultProperties(int language, CZNCoreEditorControlEx* control); ///< nothing

protected:
    void FillLanguageNames(CConfigFile* config); ///< from the configuration's list
    /// Names the files; they are read at their first use.
    void LoadSyntaxFiles(CConfigFile* config);

private:
    void LoadSyntaxFile(int language, const QString& baseName, const QString& customName);

    std::vector<QString> m_languageNames;
    std::unordered_map<int, std::unique_ptr<CSyntaxFile>> m_syntaxFiles;
    int m_currentLanguage = 0;
};
