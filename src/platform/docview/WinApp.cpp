// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/WinApp.h"

#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/View.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Questions.h"
#include "platform/windows/Wnd.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

CWinApp*& TheApp()
{
    static CWinApp* app = nullptr;
    return app;
}

struct Text
{
    UINT id;
    const char* text;
};

constexpr Text kTexts[] = {
    {IDP_FAILED_TO_OPEN, QT_TRANSLATE_NOOP("CWinApp", "%1 could not be opened.")},
    {IDP_FAILED_TO_SAVE, QT_TRANSLATE_NOOP("CWinApp", "%1 could not be saved.")},
    {IDP_ASK_TO_SAVE, QT_TRANSLATE_NOOP("CWinApp", "Save the changes to %1?")},
};

QString DefaultText(UINT id)
{
    for (const Text& row : kTexts) {
        if (row.id == id)
            return QCoreApplication::translate("CWinApp", row.text);
    }
    return QString();
}

} // namespace

CWinApp* GetApp()
{
    return TheApp();
}

QString FrameworkText(UINT id)
{
    return GetApp() ? GetApp()->LoadString(id) : DefaultText(id);
}

CWinApp::CWinApp()
{
    if (!TheApp())
        TheApp() = this;
}

CWinApp::~CWinApp()
{
    CloseAllDocuments();
    Disposal::Run();
    if (TheApp() == this)
        TheApp() = nullptr;
}

CWnd* CWinApp::GetMainWnd() const
{
    return AttachedWnd(m_mainWindow);
}

void CWinApp::SetMainWnd(CWnd* wnd)
{
    m_mainWindow = wnd ? wnd->GetSafeHwnd() : nullptr;
}

CDocTemplate& CWinApp::AddDocTemplate(std::unique_ptr<CDocTemplate> docTemplate)
{
    m_templates.push_back(std::move(docTemplate));
    return *m_templates.back();
}

CDocument* CWinApp::OpenDocumentFile(const QString& path)
{
    const FrameworkCall call;
    CDocTemplate* best = nullptr;
    auto bestConfidence = CDocTemplate::noAttempt;
    for (const auto& docTemplate : m_templates) {
        CDocument* open = nullptr;
        const CDocTemplate::Confidence confidence = docTemplate->MatchDocType(path, open);
        if (open) {
            CFrameWnd* frame =
                open->GetViews().empty() ? nullptr : open->GetViews().front()->GetParentFrame();
            if (frame)
                frame->ActivateFrame();
            return open;
        }
        if (confidence > bestConfidence) {
            best = docTemplate.get();
            bestConfidence = confidence;
        }
    }
    return best ? best->OpenDocumentFile(path) : nullptr;
}

QString CWinApp::LoadString(UINT id) const
{
    return DefaultText(id);
}

int CWinApp::SaveAllModified()
{
    for (const auto& docTemplate : m_templates) {
        if (!docTemplate->SaveAllModified())
            return 0;
    }
    return 1;
}

void CWinApp::CloseAllDocuments()
{
    for (const auto& docTemplate : m_templates)
        docTemplate->CloseAllDocuments();
}

void CWinApp::OnFileNew()
{
    if (!m_templates.empty())
        m_templates.front()->OpenDocumentFile(QString());
}

void CWinApp::OnFileOpen()
{
    QStringList filters;
    for (const auto& docTemplate : m_templates) {
        QString filter;
        if (docTemplate->GetDocString(filter, CDocTemplate::filterName) && !filter.isEmpty())
            filters << filter;
    }
    const QString path = AskOpenFile(m_mainWindow, filters.join(QStringLiteral(";;")));
    if (!path.isEmpty())
        OpenDocumentFile(path);
}

void CWinApp::OnAppExit()
{
    if (m_mainWindow)
        SendMessage(m_mainWindow, WM_CLOSE, 0, 0);
}

const CommandMap& CWinApp::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {ID_FILE_NEW, [](CCmdTarget& t) { static_cast<CWinApp&>(t).OnFileNew(); }},
        {ID_FILE_OPEN, [](CCmdTarget& t) { static_cast<CWinApp&>(t).OnFileOpen(); }},
        {ID_APP_EXIT, [](CCmdTarget& t) { static_cast<CWinApp&>(t).OnAppExit(); }},
    };
    static const CommandMap map = {&CCmdTarget::GetCommandMap(), kCommands, {}};
    return map;
}
