// SPDX-License-Identifier: GPL-3.0-or-later
// Embeds the editor both ways, as a widget and as document and view, and tells what came of it.
#include <ZNCoreEditor/Version.h>
#include <ZNCoreEditor/docview/ZNCoreEditorDoc.h>
#include <ZNCoreEditor/docview/ZNCoreEditorView.h>
#include <ZNCoreEditor/editing/ZNCoreEditorWidget.h>
#include <ZNCoreEditor/editing/language/Library.h>
#include <ZNCoreEditor/platform/docview/DocTemplate.h>
#include <ZNCoreEditor/platform/docview/FrameWnd.h>
#include <ZNCoreEditor/platform/docview/WinApp.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication qt(argc, argv);
    const QString path = QApplication::arguments().value(1);

    ZNCoreEditorWidget widget;
    const bool opened = widget.openFile(path);
    widget.setLanguage(3);
    std::printf("version: %s\n", zncoreeditor::GetVersion());
    std::printf("widget: opened %d, %ld units, configured %d\n", opened,
                static_cast<long>(widget.control().GetLength(1)),
                zncoreeditor::GetStartup().configured);

    CWinApp app;
    app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
        "Editor\nScript\nScript\nScripts (*.sql)\n.sql", CZNCoreEditorDoc::GetThisClass(),
        CFrameWnd::GetThisClass(), CZNCoreEditorView::GetThisClass()));
    auto* document = dynamic_cast<CZNCoreEditorDoc*>(app.OpenDocumentFile(path));
    if (!document)
        return 1;
    CZNCoreEditorControlEx& editor = document->GetFirstEditView()->GetCoreEditorControlRef();
    std::printf("document: %s, %ld units\n", qPrintable(document->GetTitle()),
                static_cast<long>(editor.GetLength(1)));
    return 0;
}
