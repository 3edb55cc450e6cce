// SPDX-License-Identifier: GPL-3.0-or-later
// CDocument: its file, opened, saved and reported on.
#include "platform/docview/Document.h"

#include "platform/docview/Archive.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/WinApp.h"
#include "platform/system/Shell.h"
#include "platform/windows/Questions.h"

#include <QUrlQuery>

#include <utility>

namespace {

// Characters that a title may have and a proposed file name had better not.
qsizetype EndOfFileName(const QString& title)
{
    const QString stops = QStringLiteral(" #%;/\\");
    for (qsizetype at = 0; at < title.size(); ++at) {
        if (stops.contains(title[at]))
            return at;
    }
    return title.size();
}

// A document that marks its changes in its title needs no mark where they are asked about.
QString WithoutMark(const QString& title)
{
    const QLatin1String mark(" *");
    return title.endsWith(mark) ? title.chopped(mark.size()) : title;
}

} // namespace

void CDocument::Serialize(CArchive& /*archive*/) {}

int CDocument::OnOpenDocument(const QString& path)
{
    CFileException error;
    CFile* file = GetFile(path, CFile::modeRead | CFile::shareDenyWrite, &error);
    if (!file) {
        ReportSaveLoadException(path, &error, false, IDP_FAILED_TO_OPEN);
        return 0;
    }
    DeleteContents();
    SetModifiedFlag(1); // until all of it is there
    try {
        CArchive archive(file, CArchive::load);
        Serialize(archive);
        ReleaseFile(file, false);
    } catch (const CFileException& failure) {
        ReleaseFile(file, true);
        DeleteContents();
        ReportSaveLoadException(path, &failure, false, IDP_FAILED_TO_OPEN);
        return 0;
    }
    SetModifiedFlag(0);
    SetPathName(path);
    return 1;
}

int CDocument::OnSaveDocument(const QString& path)
{
    m_saveFailure.reset();
    if (!WriteArchive(path))
        return 0;
    SetModifiedFlag(0);
    m_writtenTo = path;
    return 1;
}

bool CDocument::WriteArchive(const QString& path)
{
    CFileException error;
    constexpr UINT kFlags = CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive;
    CFile* file = GetFile(path, kFlags, &error);
    if (!file) {
        m_saveFailure = std::make_unique<CFileException>(error);
        return false;
    }
    try {
        CArchive archive(file, CArchive::store);
        Serialize(archive);
        file->Close();
        ReleaseFile(file, false);
        return true;
    } catch (const CFileException& failure) {
        ReleaseFile(file, true);
        m_saveFailure = std::make_unique<CFileException>(failure);
        return false;
    }
}

void CDocument::ReportSaveLoadException(const QString& path, const CFileException* exception,
                                        bool /*saving*/, UINT prompt)
{
    CFileException known = exception ? *exception : CFileException();
    if (known.m_strFileName.isEmpty())
        known.m_strFileName = path;
    const bool hasCause = known.m_cause != CFileException::none;
    ShowMessage(FirstWindow(),
                hasCause ? known.GetErrorMessage() : FrameworkText(prompt).arg(path));
}

CFile* CDocument::GetFile(const QString& path, UINT flags, CFileException* error)
{
    auto file = std::make_unique<CFile>();
    return file->Open(path, flags, error) ? file.release() : nullptr;
}

void CDocument::ReleaseFile(CFile* file, bool abort)
{
    const std::unique_ptr<CFile> owned(file);
    if (abort)
        file->Abort();
    else
        file->Close();
}

int CDocument::SaveModified()
{
    if (m_asking)
        return 0;
    if (!IsModified())
        return 1;
    m_asking = true;
    const Answer answer =
        AskYesNoCancel(FirstWindow(), FrameworkText(IDP_ASK_TO_SAVE).arg(WithoutMark(m_strTitle)));
    const int saved = answer == Answer::Yes ? DoFileSave() : answer == Answer::No;
    m_asking = false;
    return saved;
}

int CDocument::DoFileSave()
{
    const std::uint32_t attributes = GetFileAttributesW(m_strPathName);
    const bool isReadOnly =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
    return DoSave(isReadOnly ? QString() : m_strPathName, 1);
}

int CDocument::DoSave(const QString& path, int replace)
{
    QString name = path;
    if (name.isEmpty() && !AskForName(name, replace))
        return 0;
    m_writtenTo.clear();
    if (!OnSaveDocument(name)) {
        if (!m_closed)
            ReportSaveLoadException(name, m_saveFailure.get(), true, IDP_FAILED_TO_SAVE);
        m_saveFailure.reset();
        return 0;
    }
    if (replace && m_writtenTo == name)
        SetPathName(name);
    return 1;
}

bool CDocument::AskForName(QString& path, int replace)
{
    QString filters;
    path = m_strPathName;
    if (replace && path.isEmpty()) {
        path = m_strTitle.left(EndOfFileName(m_strTitle));
        QString extension;
        if (m_pDocTemplate && m_pDocTemplate->GetDocString(extension, CDocTemplate::filterExt))
            path += extension;
    }
    if (m_pDocTemplate)
        m_pDocTemplate->GetDocString(filters, CDocTemplate::filterName);
    path = AskSaveFile(FirstWindow(), path, filters);
    return !path.isEmpty();
}

void CDocument::OnFileSave()
{
    DoFileSave();
}

void CDocument::OnFileSaveAs()
{
    QString name = m_strPathName;
    if (AskForName(name, 1))
        DoSave(name, 1);
}

void CDocument::OnFileSendMail()
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("subject"), m_strTitle);
    query.addQueryItem(QStringLiteral("attach"), m_strPathName);
    QUrl mail(QStringLiteral("mailto:"));
    mail.setQuery(query);
    OpenInShell(mail);
}

void CDocument::OnUpdateFileSendMail(CCmdUI& ui)
{
    ui.Enable(!m_strPathName.isEmpty());
}
