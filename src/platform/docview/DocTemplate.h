// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CDocTemplate: what kind of document, frame and view belong together. No Qt class stands behind
/// it.
#pragma once

#include "platform/windows/CmdTarget.h"

#include <QString>

#include <vector>

class CDocument;
class CFrameWnd;

/// Owned by the application. It knows its open documents; they own themselves.
class ZN_API CDocTemplate : public CCmdTarget
{
public:
    /// The parts of the text, parted by line feeds.
    enum DocStringIndex : int
    {
        windowTitle = 0,    ///< of the application
        docName = 1,        ///< of documents without a path, with a number behind it
        fileNewName = 2,    ///< of the kind, where a new document is chosen
        filterName = 3,     ///< "Scripts (*.sql)"
        filterExt = 4,      ///< ".sql"
        regFileTypeId = 5,  ///< of the kind, for the desktop
        regFileTypeName = 6 ///< the same, for a person
    };

    /// How well a template fits a path.
    enum Confidence : int
    {
        noAttempt = 0,           ///< it is not for such files
        maybeAttemptForeign = 1, ///< it may read it
        yesAttemptNative = 4,    ///< the ending is its own
        yesAlreadyOpen = 5       ///< one of its documents is that file
    };

    /// Strings as DocStringIndex parts them; the classes outlive the template.
    CDocTemplate(const QString& strings, const CRuntimeClass* document, const CRuntimeClass* frame,
                 const CRuntimeClass* view);
    ~CDocTemplate() override;

    virtual bool GetDocString(QString& text, int index) const; ///< false: no such part

    /// Those that are open.
    const std::vector<CDocument*>& GetDocuments() const { return m_documents; }
    virtual void AddDocument(CDocument* document);    ///< from a document that was made
    virtual void RemoveDocument(CDocument* document); ///< from a document that is closed

    /// match: the document of that path if it is open.
    virtual Confidence MatchDocType(const QString& path, CDocument*& match) const;

    /// Opens the file in a frame of the template's kind; an empty path makes an empty document.
    /// Null if that failed, of which the user knows.
    virtual CDocument* OpenDocumentFile(const QString& path, bool visible = true) = 0;

    /// A further frame on the document. Null if it cannot be made.
    CFrameWnd* CreateNewFrame(CDocument* document, CFrameWnd* other);

    int SaveAllModified();    ///< 0 as soon as the user keeps one
    void CloseAllDocuments(); ///< asks nobody

protected:
    /// A document of its own, in a frame of its own. Null as of OpenDocumentFile.
    CDocument* OpenAnother(const QString& path, bool visible);
    /// New or from the path. False if the document refused, or was closed meanwhile.
    bool Fill(CDocument* document, const QString& path);
    virtual void SetDefaultTitle(CDocument* document); ///< "Script1", counted on

private:
    CDocument* CreateNewDocument(); // null: the class makes none

    QString m_strings;
    const CRuntimeClass* m_documentClass;
    const CRuntimeClass* m_frameClass;
    const CRuntimeClass* m_viewClass;
    std::vector<CDocument*> m_documents;
    int m_untitled = 0;
};

/// Any number of documents, each in frames of its own.
class ZN_API CMultiDocTemplate : public CDocTemplate
{
public:
    using CDocTemplate::CDocTemplate;
    CDocument* OpenDocumentFile(const QString& path, bool visible = true) override;
};

/// One document at a time: opening another one asks what becomes of the first, and takes its place.
class ZN_API CSingleDocTemplate : public CDocTemplate
{
public:
    using CDocTemplate::CDocTemplate;
    CDocument* OpenDocumentFile(const QString& path, bool visible = true) override;
};
