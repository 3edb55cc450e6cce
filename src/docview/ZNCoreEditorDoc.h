// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNCoreEditorDoc: the document of one edited file. It holds no text, which the views' engine
/// has; it owns what is known of the file and the order of everything in open, save and reload.
/// Times are seconds since the epoch.
#pragma once

#include "encoding/FileEncodeConverter.h"
#include "platform/docview/Document.h"

#include <QString>

#include <cstdint>

class CConfigFile;
class CZNCoreEditorControlEx;
class CZNCoreEditorView;

/// The document of one edited file.
class ZN_API CZNCoreEditorDoc : public CDocument
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    ~CZNCoreEditorDoc() override;               ///< removes the temporary copy
    static const CRuntimeClass* GetThisClass(); ///< the record of this class
    /// A new one, which goes with its document or window.
    static CObject* CreateObject() { return new CZNCoreEditorDoc; }

    void Serialize(CArchive& archive) override; ///< nothing: open and save go past it

    /// An empty title becomes the path, and a read-only text is marked in it.
    void SetTitle(const QString& title) override;
    /// Keeps the mark " *" at the end of a title in step.
    void SetModifiedFlag(int modified = 1) override;

    int OnNewDocument() override;
    int OnOpenDocument(const QString& path) override; ///< with the encoding detected
    int OnSaveDocument(const QString& path) override;
    /// With an empty path the document's own, or its title with the ending of its kind: a name is
    /// asked for only if there is none of these.
    int DoSave(const QString& path, int replace = 1) override;

    /// Reads the file into the first view's control; -1 detects the encoding. 0 if there is no view
    /// or the file cannot be read, of which the user knows.
    virtual int OnOpenDocumentEx(const QString& path, FileEncodeConverter::encodingType encoding);
    /// From each view as it is created: all of them come to show one text.
    virtual void SetDocCoreEditor(CZNCoreEditorControlEx* control);

    CZNCoreEditorView* GetFirstEditView() const; ///< null if there is none

    /// When a host has to parse: the text has changed since it said that it has.
    void DocumentChanged() { m_changedTime = Now(); }
    void SetParsedTime() { m_parsedTime = Now(); } ///< the host has parsed the text as it is
    int ShouldParse() const; ///< 1 if the text has changed since SetParsedTime

    /// Looks whether others have changed the file, and asks what to do. For whoever has got the
    /// focus; a host may call it too.
    void CheckLastAccessTime();
    void ReloadFile(); ///< the user hears if the file cannot be read; the text stays then
    bool IsFileReadOnly() const { return m_fileReadOnly; } ///< as last seen

    /// Writes the text into the folder for temporary files, under the file's name, and leaves it
    /// modified. Note: 1 if the copy could not be written, 0 if it was, and 0 as well without a
    /// path, a view or a folder. Raises CFileException, as every open, save and reload from then
    /// on, if others have cleared the copy before away.
    int SaveTempCopy();
    /// Of the copy; empty: there is none.
    QString GetTempPathName() const { return m_tempPathName; }

    void ReloadDefaults();           ///< every view binds its language again
    void ToggleSyntaxHighlighting(); ///< switches colours of all views on or off
    void ToggleBraceMatching() { m_braceMatching = !m_braceMatching; } ///< tells no view
    void SetSelectCopy(int on) { m_selectCopy = on; } ///< whether selecting by the mouse copies

    int GetLanguageNr() const { return m_languageNr; } ///< that of a control without a language
    /// Whether views colour their text.
    int GetSyntaxHighlighting() const { return m_syntaxHighlighting; }
    int GetBraceMatching() const { return m_braceMatching; } ///< whether views light braces
    int GetSelectCopy() const { return m_selectCopy; } ///< whether selecting by the mouse copies

protected:
    void SetLastAccessTime(); ///< notes the file's write time as the one that is known
    /// Raises CFileException if a copy that counts as there cannot be removed, or is gone; then it
    /// still counts.
    void RemoveTempCopy(int clearName);

    void OnFileReload();                 ///< asks if something would be lost
    void OnUpdateFileReload(CCmdUI& ui); ///< possible for a file whose text was changed
    /// Switches the text, and the permission to write its file, between read-only and not.
    void OnFileReadonly();
    /// Marked if the text is read-only; impossible for a file that was found so.
    void OnUpdateFileReadonly(CCmdUI& ui);
    void OnFileMove() {}               ///< bound and does nothing
    void OnUpdateFileMove(CCmdUI& ui); ///< possible with a file

    const CommandMap& GetCommandMap() const override;

    virtual std::int64_t Now() const;           ///< the wall clock
    virtual CConfigFile* Configuration() const; ///< null: files are not tracked

    int m_languageNr = 1;              ///< of a control without a language
    int m_syntaxHighlighting = 1;      ///< whether views colour their text
    int m_braceMatching = 1;           ///< whether views light braces
    int m_selectCopy = 0;              ///< whether selecting by the mouse copies
    std::int64_t m_lastAccessTime = 0; ///< the file's write time as last seen; 0: not tracked
    std::int64_t m_changedTime = 0;    ///< of the last change of the text
    std::int64_t m_parsedTime = 0;     ///< of the last SetParsedTime
    LPARAM m_docPointer = 0; ///< the engine's document, which the views' controls keep alive
    int m_tempCopySaved = 0; ///< whether m_tempPathName was written
    QString m_tempPathName;  ///< of the temporary copy
    int m_fileFrozen = 0;    ///< found read-only and never read since it was written; stays
    bool m_checkingAccessTime = false; ///< the user is being asked already
    bool m_fileReadOnly = false;       ///< as last seen

    bool IsTracked() const; ///< whether others' changes of the file are asked about

private:
    void OnFileGone();
    void OnFileRewritten();
    void AdoptAttributes(CZNCoreEditorControlEx& control, const CFileStatus& status);
    bool IsDocPointerAlive() const;
};
