// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CWinApp: the application's end of the framework. QApplication stands beside it and runs the
/// loop.
#pragma once

#include "platform/windows/CmdTarget.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class CDocTemplate;
class CDocument;
class CWnd;

/// One for the process at most, made by the host behind its QApplication. Without one, documents,
/// views and frames work; commands end at the frame.
class ZN_API CWinApp : public CCmdTarget
{
public:
    CWinApp();           ///< from here on it is what GetApp gives
    ~CWinApp() override; ///< closes all documents, asking nobody

    /// The main window, null if there is none or it is gone.
    CWnd* GetMainWnd() const;
    void SetMainWnd(CWnd* wnd); ///< null takes it away; stays the caller's

    /// The first one is that of new documents.
    CDocTemplate& AddDocTemplate(std::unique_ptr<CDocTemplate> docTemplate);
    /// In the order in which they came.
    const std::vector<std::unique_ptr<CDocTemplate>>& GetTemplates() const { return m_templates; }

    /// Opens the file, or shows it if it is open. Null if that failed, of which the user knows.
    virtual CDocument* OpenDocumentFile(const QString& path);
    /// What a document was opened from or saved to. A host that keeps a list overrides it.
    virtual void AddToRecentFileList(const QString& /*path*/) {}
    /// A text of the framework by number, empty if it has none. A host that has its own overrides
    /// it.
    virtual QString LoadString(UINT id) const;

    virtual int SaveAllModified(); ///< 0 as soon as the user keeps one
    void CloseAllDocuments();      ///< asks nobody

    void OnFileNew();  ///< of the first template
    void OnFileOpen(); ///< asks for a file of all templates' kinds
    void OnAppExit();  ///< closes the main window, which may ask

protected:
    const CommandMap& GetCommandMap() const override;

private:
    std::vector<std::unique_ptr<CDocTemplate>> m_templates;
    QPointer<QWidget> m_mainWindow;
};

ZN_API CWinApp* GetApp(); ///< null if there is none

/// A text of the framework: the application's, or the default.
ZN_API QString FrameworkText(UINT id);
