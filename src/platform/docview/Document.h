// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CDocument: what a host opens, changes and saves, shown by any number of views. No Qt class
/// stands behind it.
#pragma once

#include "platform/system/File.h"
#include "platform/windows/CmdTarget.h"

#include <QString>

#include <memory>
#include <vector>

class CArchive;
class CDocTemplate;
class CFrameWnd;
class CView;

/// Made by a document template, with new. It goes by OnCloseDocument, which runs by itself when the
/// last view is gone: from then on it has no view and no template, and it is deleted once no code
/// of its own can be running.
class ZN_API CDocument : public CCmdTarget
{
public:
    CDocument() = default; ///< without a path, unmodified
    ~CDocument() override;

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass(); ///< the record of this class

    /// Reads or writes the contents, for a document that leaves open and save to the base. May
    /// raise CFileException.
    virtual void Serialize(CArchive& archive);

    const QString& GetTitle() const { return m_strTitle; }       ///< what frames show
    virtual void SetTitle(const QString& title);                 ///< the frames follow
    const QString& GetPathName() const { return m_strPathName; } ///< absolute; empty: none yet
    /// Makes the path absolute and its last part the title.
    virtual void SetPathName(const QString& path, bool addToRecent = true);
    /// Null once the document is closed.
    CDocTemplate* GetDocTemplate() const { return m_pDocTemplate; }
    virtual int IsModified();                       ///< whether something would be lost
    virtual void SetModifiedFlag(int modified = 1); ///< 0: nothing would be lost

    // Views
    void AddView(CView* view);    ///< the view's document is this one from here on
    void RemoveView(CView* view); ///< closes the document with the last one
    /// In the order in which they came.
    const std::vector<CView*>& GetViews() const { return m_views; }
    /// Tells every view but the sender. A view that is closed by it is left out.
    void UpdateAllViews(CView* sender, std::intptr_t hint = 0, CObject* object = nullptr);

    // Life
    virtual int OnNewDocument(); ///< empties it; 0 gives up
    /// Reads the file; 0 if that failed, of which the user knows.
    virtual int OnOpenDocument(const QString& path);
    /// A document that overrides this one sets its path itself.
    virtual int OnSaveDocument(const QString& path);
    /// Closes its frames and views without a question, then leaves its template.
    virtual void OnCloseDocument();
    bool IsClosed() const { return m_closed; } ///< it is on its way out: no view, no template

    /// Tells the user. The exception may be null or without a cause: then it is the text of the
    /// prompt, IDP_FAILED_TO_OPEN or IDP_FAILED_TO_SAVE.
    virtual void ReportSaveLoadException(const QString& path, const CFileException* exception,
                                         bool saving, UINT prompt);
    /// An open file, or null. ReleaseFile closes and deletes it.
    virtual CFile* GetFile(const QString& path, UINT flags, CFileException* error);
    virtual void ReleaseFile(CFile* file, bool abort); ///< with abort what was written may be lost

    /// Before a frame goes. 0 keeps it; the last frame of a document asks SaveModified.
    virtual int CanCloseFrame(CFrameWnd* frame);
    virtual void PreCloseFrame(CFrameWnd* frame); ///< A frame of its is about to go; nothing here

    /// 1 if nothing is lost when the document goes: it is unmodified, saved, or given up by the
    /// user. 0 also while the user is being asked already.
    virtual int SaveModified();
    /// Saves under the path, which an empty one asks the user for. With replace that becomes the
    /// document's. 0 if it is not saved, of which the user knows.
    virtual int DoSave(const QString& path, int replace = 1);
    virtual int DoFileSave(); ///< under its own path; a file that is read-only asks for another
    virtual void DeleteContents(); ///< the document is to be empty; nothing here

    bool m_bAutoDelete = true; ///< goes with its last view

protected:
    void OnFileClose();                    ///< asks, then closes
    void OnFileSave();                     ///< under its own path
    void OnFileSaveAs();                   ///< asks for a name
    void OnFileSendMail();                 ///< opens the mail program, with title and path
    void OnUpdateFileSendMail(CCmdUI& ui); ///< possible with a path

    const CommandMap& GetCommandMap() const override;

    QString m_strTitle;    ///< what frames show
    QString m_strPathName; ///< empty: none yet
    int m_bModified = 0;   ///< not 0: something would be lost

private:
    friend class CDocTemplate; // sets m_pDocTemplate as it adds and removes

    HWND FirstWindow() const; // for questions, null without a view
    bool AskForName(QString& path, int replace);
    bool WriteArchive(const QString& path);

    CDocTemplate* m_pDocTemplate = nullptr;
    std::vector<CView*> m_views;
    bool m_asking = false;
    bool m_closed = false;
    QString m_writtenTo;                           // by the base's own OnSaveDocument
    std::unique_ptr<CFileException> m_saveFailure; // why that failed
};
