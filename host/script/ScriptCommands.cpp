// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptView: what it prints, writes and opens on a person's word.
#include "host/script/ScriptView.h"

#include "host/completion/TemplateInsertion.h"
#include "host/completion/TemplateList.h"
#include "host/completion/TemplateStore.h"
#include "host/export/RichCopy.h"
#include "host/files/FilePlace.h"
#include "host/files/Prompts.h"
#include "host/icons/FitScreen.h"
#include "host/printing/WorkbenchPrinter.h"
#include "host/script/GoToDialog.h"
#include "host/script/MenuKey.h"
#include "host/script/NameAtCaret.h"
#include "host/script/ScriptDoc.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/WinApp.h"
#include "platform/system/Shell.h"
#include "platform/windows/ActionUI.h"
#include "platform/windows/Questions.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>
#include <QUrl>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScriptCommands)
};

constexpr UINT kOpenAtCaret = 54026;

// A path with the ending, beside the script or in the folder that the process stands in.
QString ProposalFor(const ScriptDoc& script, const QString& ending)
{
    const QString& path = script.GetPathName();
    const QFileInfo file(path.isEmpty() ? QDir::current().filePath(script.Name()) : path);
    return file.dir().filePath(file.completeBaseName() + ending);
}

QString AskPath(QWidget* window, const ScriptDoc& script, const QString& ending,
                const QString& filter)
{
    return WithEnding(window, AskSaveFile(window, ProposalFor(script, ending), filter), ending);
}

} // namespace

void ScriptView::SaveAsPdf()
{
    const ScriptDoc* asked = Script();
    const QString path = asked ? AskPath(GetSafeHwnd(), *asked, QStringLiteral(".pdf"),
                                         QStringLiteral("PDF (*.pdf)"))
                               : QString();
    const UINT pages =
        path.isEmpty() || !GetSafeHwnd() ? 0 : WorkbenchPrinter::SavePdf(*this, path);
    // The script may have gone while the pages were printed.
    ScriptDoc* script = GetSafeHwnd() && pages > 0 ? Script() : nullptr;
    if (!script)
        return;
    const QString file = QDir::toNativeSeparators(path);
    Q_EMIT script->Told(pages == 1 ? Texts::tr("“%1” was written: 1 page").arg(file)
                                   : Texts::tr("“%1” was written: %L2 pages").arg(file).arg(pages));
}

void ScriptView::SaveAsHtml()
{
    const ScriptDoc* asked = Script();
    const QString path = asked ? AskPath(GetSafeHwnd(), *asked, QStringLiteral(".html"),
                                         QStringLiteral("HTML (*.html *.htm)"))
                               : QString();
    // The script may have gone while the dialog was open.
    ScriptDoc* script = Script();
    if (script && !path.isEmpty() &&
        ::SaveAsHtml(m_coreEditor, script->Name(), path, GetSafeHwnd()))
        Q_EMIT script->Told(Texts::tr("“%1” was written").arg(QDir::toNativeSeparators(path)));
}

void ScriptView::CopyWithColours()
{
    ::CopyWithColours(m_coreEditor);
}

// At the caret, below the line that is written in. The word there begins the name of what is meant.
void ScriptView::ChooseTemplate()
{
    QWidget* window = GetSafeHwnd();
    auto* list = new TemplateList(
        TemplateStore::Global().Of(m_coreEditor.GetCurrentLanguage()),
        m_coreEditor.IsSelection() ? QString() : NameBeforeCaret(m_coreEditor), window);
    QObject::connect(list, &TemplateList::Chosen, window,
                     [this, window](const completion::CodeTemplate& made) {
                         if (AttachedWnd(window) != this || m_coreEditor.GetReadOnly(1))
                             return;
                         SetFocus();
                         const QString typed =
                             m_coreEditor.IsSelection() ? QString() : NameBeforeCaret(m_coreEditor);
                         const bool isName = made.shortName.startsWith(typed, Qt::CaseInsensitive);
                         InsertTemplate(*this, made,
                                        m_coreEditor.GetCurrentPos(1) -
                                            (isName ? static_cast<long>(typed.size()) : 0));
                     });
    const QPoint top = window->mapToGlobal(QPoint((window->width() - list->width()) / 2, 0));
    list->move(top);
    FitWindow(*list, *window->window());
    list->show();
}

void ScriptView::EditTemplates()
{
    const QString path = TemplateStore::OwnFile(m_coreEditor.GetCurrentLanguage());
    CWinApp* app = GetApp();
    if (path.isEmpty())
        GetPrompts().Tell(GetSafeHwnd(), Texts::tr("This language has no file of templates."));
    else if (app)
        app->OpenDocumentFile(path);
}

// Whoever shows the state hears of it.
void ScriptView::RecordMacro()
{
    OnToolsRecordmacro();
    if (ScriptDoc* script = Script())
        Q_EMIT script->StateChanged();
}

void ScriptView::OpenAtCaret()
{
    const QString name = m_coreEditor.SelectionFilename();
    if (name.isEmpty())
        GetPrompts().Tell(GetSafeHwnd(),
                          Texts::tr("No file name and no address stands at the caret."));
    else
        OpenNamed(name);
}

// The library's own dialog takes what is no number for the first line.
void ScriptView::AskForLine()
{
    const QPointer<QWidget> window = GetSafeHwnd();
    GoToDialog dialog(window->window(), m_coreEditor.GetCurLineNumber() + 1,
                      m_coreEditor.GetLineCount(1));
    // The script may have gone while the dialog was open.
    if (dialog.exec() != QDialog::Accepted || !window || AttachedWnd(window) != this)
        return;
    GoToLine(dialog.Line() - 1);
    if (dialog.Column() > 0)
        GoToColumn(dialog.Column() - 1);
    SetFocus();
}

// A file is looked for as it is named, folders included, before its name alone is looked for beside
// the script, as the library does.
void ScriptView::OpenNamed(const QString& name)
{
    const ScriptDoc* script = Script();
    if (!script)
        return;
    if (IsAddress(name)) {
        if (!OpenInShell(QUrl(name)))
            GetPrompts().Tell(GetSafeHwnd(), Texts::tr("Nothing opens %1.").arg(name));
        return;
    }
    const FilePlace place = FindNamed(name, script->GetPathName());
    if (place.path.isEmpty()) {
        GetPrompts().Tell(GetSafeHwnd(), Texts::tr("There is no file %1.").arg(name));
        return;
    }
    CWinApp* app = GetApp();
    CDocument* opened = app ? app->OpenDocumentFile(place.path) : nullptr;
    const auto* other = dynamic_cast<ScriptDoc*>(opened);
    if (other && place.line > 0)
        other->FirstView()->GoToLine(place.line - 1);
}

QPoint ScriptView::MenuPlaceAtCaret()
{
    const QWidget* window = m_coreEditor.GetSafeHwnd();
    const long caret = m_coreEditor.GetCurrentPos(1);
    const QRect seen = window->rect();
    const int left = m_coreEditor.PointXFromPosition(caret, 1);
    const int below = m_coreEditor.PointYFromPosition(caret, 1) + m_coreEditor.TextHeight(0, 1);
    return window->mapToGlobal(QPoint(std::clamp(left, seen.left(), seen.right()),
                                      std::clamp(below, seen.top(), seen.bottom())));
}

// The menu of the base, and what the caret stands on. The base's comes up at the pointer even if a
// key opens it.
void ScriptView::OnContextMenu(CWnd* window, CPoint point)
{
    if (m_menuKey && m_menuKey->IsPressed()) {
        const QPoint place = MenuPlaceAtCaret();
        point = {place.x(), place.y()};
    }
    CZNCoreEditorView::OnContextMenu(window, point);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ScriptDoc* script = GetSafeHwnd() ? Script() : nullptr;
    if (!menu || !script || menu->actions().isEmpty())
        return;
    Q_EMIT script->MenuOpened(menu);
    const QString name = m_coreEditor.SelectionFilename();
    if (name.isEmpty() ||
        (!IsAddress(name) && FindNamed(name, script->GetPathName()).path.isEmpty()))
        return;
    auto* open = new QAction(Texts::tr("Open &Document"), menu);
    SetCommand(*open, kOpenAtCaret, GetSafeHwnd());
    QAction* first = menu->actions().constFirst();
    menu->insertAction(first, open);
    menu->insertSeparator(first);
}
