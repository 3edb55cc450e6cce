// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/DocTemplate.h"

#include "platform/docview/CreateContext.h"
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/View.h"
#include "platform/windows/Disposal.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CDocTemplate)
};

bool IsSameFile(const QString& one, const QString& other)
{
    if (one.isEmpty() || other.isEmpty())
        return false;
    const QFileInfo first(one);
    const QFileInfo second(other);
    const QString target = first.canonicalFilePath(); // empty for a file that is not there
    return first.absoluteFilePath() == second.absoluteFilePath() ||
           (!target.isEmpty() && target == second.canonicalFilePath());
}

} // namespace

CDocTemplate::CDocTemplate(const QString& strings, const CRuntimeClass* document,
                           const CRuntimeClass* frame, const CRuntimeClass* view)
    : m_strings(strings), m_documentClass(document), m_frameClass(frame), m_viewClass(view)
{}

CDocTemplate::~CDocTemplate()
{
    for (CDocument* document : m_documents)
        document->m_pDocTemplate = nullptr;
}

bool CDocTemplate::GetDocString(QString& text, int index) const
{
    const QStringList parts = m_strings.split(u'\n');
    if (index < 0 || index >= parts.size())
        return false;
    text = parts[index];
    return true;
}

void CDocTemplate::AddDocument(CDocument* document)
{
    m_documents.push_back(document);
    document->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* document)
{
    std::erase(m_documents, document);
    document->m_pDocTemplate = nullptr;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(const QString& path, CDocument*& match) const
{
    match = nullptr;
    for (CDocument* document : m_documents) {
        if (IsSameFile(document->GetPathName(), path)) {
            match = document;
            return yesAlreadyOpen;
        }
    }
    QString extension;
    GetDocString(extension, filterExt);
    const bool isOwn = !extension.isEmpty() && path.endsWith(extension, Qt::CaseInsensitive);
    return isOwn ? yesAttemptNative : maybeAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument()
{
    CObject* object = m_documentClass ? m_documentClass->CreateObject() : nullptr;
    auto* document = dynamic_cast<CDocument*>(object);
    if (document)
        AddDocument(document);
    else
        delete object;
    return document;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* document, CFrameWnd* other)
{
    CObject* object = m_frameClass ? m_frameClass->CreateObject() : nullptr;
    auto* frame = dynamic_cast<CFrameWnd*>(object);
    if (!frame) {
        delete object;
        return nullptr;
    }
    CCreateContext context{m_viewClass, document, this, other};
    return frame->LoadFrame(&context) ? frame : nullptr;
}

bool CDocTemplate::Fill(CDocument* document, const QString& path)
{
    if (path.isEmpty()) {
        SetDefaultTitle(document);
        return document->OnNewDocument() && !document->IsClosed();
    }
    if (!document->OnOpenDocument(path) || document->IsClosed())
        return false;
    if (document->GetPathName().isEmpty())
        document->SetPathName(path);
    return true;
}

void CDocTemplate::SetDefaultTitle(CDocument* document)
{
    QString name;
    if (!GetDocString(name, docName) || name.isEmpty())
        name = Texts::tr("Untitled");
    document->SetTitle(name + QString::number(++m_untitled));
}

int CDocTemplate::SaveAllModified()
{
    const FrameworkCall call;
    const std::vector<CDocument*> documents = m_documents;
    for (CDocument* document : documents) {
        if (!document->IsClosed() && !document->SaveModified())
            return 0;
    }
    return 1;
}

void CDocTemplate::CloseAllDocuments()
{
    const FrameworkCall call;
    const std::vector<CDocument*> documents = m_documents;
    for (CDocument* document : documents)
        document->OnCloseDocument();
}

// A document that could not get a view is closed by hand: it has had none whose end would do it.
CDocument* CDocTemplate::OpenAnother(const QString& path, bool visible)
{
    CDocument* document = CreateNewDocument();
    if (!document)
        return nullptr;
    document->m_bAutoDelete = false;
    CFrameWnd* frame = CreateNewFrame(document, nullptr);
    document->m_bAutoDelete = true;
    if (!frame || !Fill(document, path)) {
        document->OnCloseDocument();
        if (frame)
            frame->DestroyWindow();
        return nullptr;
    }
    frame->InitialUpdateFrame(document, visible);
    return document;
}

CDocument* CMultiDocTemplate::OpenDocumentFile(const QString& path, bool visible)
{
    const FrameworkCall call;
    return OpenAnother(path, visible);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(const QString& path, bool visible)
{
    const FrameworkCall call;
    if (GetDocuments().empty())
        return OpenAnother(path, visible);
    CDocument* document = GetDocuments().front();
    if (!document->SaveModified() || document->IsClosed() || !Fill(document, path))
        return nullptr;
    const std::vector<CView*> views = document->GetViews();
    if (CFrameWnd* frame = views.empty() ? nullptr : views.front()->GetParentFrame())
        frame->InitialUpdateFrame(document, visible);
    return document;
}
