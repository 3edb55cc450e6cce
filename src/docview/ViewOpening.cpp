// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: opening what the caret stands on.
#include "docview/ZNCoreEditorView.h"

#include "common/PathParts.h"
#include "platform/docview/Document.h"
#include "platform/docview/WinApp.h"
#include "platform/system/Shell.h"

#include <QUrl>

#include <algorithm>

namespace {

// As written: capitals make no address, so such a text goes the way of a file.
constexpr const char16_t* kSchemes[] = {u"http:", u"https:", u"ftp:",
                                        u"ftps:", u"news:",  u"mailto:"};

} // namespace

void CZNCoreEditorView::OnExtrasOpenFile()
{
    OpenSelected();
}

// Folders in a relative path are lost: the file is looked for beside the document alone.
bool CZNCoreEditorView::OpenSelected()
{
    QString text = m_coreEditor.SelectionFilename();
    if (text.isEmpty())
        return false;
    const bool isAddress = std::ranges::any_of(
        kSchemes, [&](const char16_t* scheme) { return text.startsWith(QStringView(scheme)); });
    if (isAddress) {
        OpenInShell(QUrl(text));
        return true;
    }
    const CDocument* document = GetDocument();
    if (!document)
        return true;
    if (!CPathParts::IsAbsolute(text)) {
        CPathParts parts(document->GetPathName());
        parts.SetNameExt(text);
        text = parts.GetPath();
    }
    if (CWinApp* app = GetApp())
        app->OpenDocumentFile(text);
    return true;
}
