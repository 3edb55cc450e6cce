// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptDoc: the copies that a crash would leave, and the text that one has left.
#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/files/Encodings.h"
#include "host/files/LineEnds.h"
#include "host/recovery/LineEdits.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptView.h"
#include "platform/windows/Timer.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString WhyNotRecovered(const RecoverableCopy& copy)
{
    return ScriptDoc::tr("The copy of “%1” cannot be read, or another window of the workbench has "
                         "it by now. It is still there: “%2”.")
        .arg(copy.name, QDir::toNativeSeparators(copy.path));
}

// A copy has just replaced the text of the file as a whole; only the lines that differ are to count
// as changed. One undo brings the file's text back in either case.
void ChangeLinesAlone(CZNCoreEditorControlEx& editor)
{
    constexpr long kMost = 4'000'000; // units
    if (editor.GetLength(1) > kMost)
        return;
    const QString copied = editor.GetText();
    editor.Undo(1);
    const QString filed = editor.GetText();
    if (filed.size() > kMost || filed == copied) {
        editor.Redo(1);
        return;
    }
    editor.BeginUndoAction(1);
    for (const LineEdit& edit : LineEdits(filed, copied)) {
        editor.SetTargetStart(edit.start, 1);
        editor.SetTargetEnd(edit.start + edit.length, 1);
        editor.ReplaceTarget(static_cast<int>(edit.text.size()),
                             reinterpret_cast<const char16_t*>(edit.text.utf16()), 1);
    }
    editor.EndUndoAction(1);
}

} // namespace

// The document's own, or counted on: a recovered script has brought its number along.
QString ScriptDoc::FreeTitle() const
{
    const QString own = Name();
    QStringList taken;
    for (const ScriptDoc* other : OpenBeside()) {
        if (other->GetPathName().isEmpty())
            taken << other->Name();
    }
    qsizetype digits = own.size();
    while (digits > 0 && own[digits - 1].isDigit())
        --digits;
    QString title = own;
    for (int number = own.mid(digits).toInt() + 1; taken.contains(title); ++number)
        title = own.left(digits) + QString::number(number);
    return title;
}

// A script that never had a file is copied under its name, with the language that somebody chose.
void ScriptDoc::NameCopies(CZNCoreEditorControlEx& editor) const
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    if (m_strPathName.isEmpty())
        editor.SetUntitledName(
            UntitledName(Name(), languages.GetLanguageName(editor.GetCurrentLanguage())));
}

// The place in the text is that of before, as far as there is one.
bool ScriptDoc::Recover(const RecoverableCopy& copy)
{
    ScriptView* view = FirstView();
    if (!view)
        return false;
    CZNCoreEditorControlEx& editor = view->GetCoreEditorControlRef();
    const long line = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    if (!editor.RecoverCopy(copy.path,
                            FileEncodeConverter::encodingType(FormOf(m_chosenEncoding)))) {
        if (!IsClosed())
            GetPrompts().Tell(Window(), WhyNotRecovered(copy));
        return false;
    }
    // Others may have written while the list of copies stood.
    m_isOfOther = copy.state == RecoverableCopy::State::Changed ||
                  (copy.state == RecoverableCopy::State::Unchanged &&
                   QFileInfo(copy.document).lastModified() != copy.fileTime);
    if (!m_strPathName.isEmpty())
        ChangeLinesAlone(editor);
    if (m_strPathName.isEmpty() && !copy.document.isEmpty()) {
        SetPathName(copy.document, false);
        SetLanguage(LanguageOfFile(copy.document));
        m_onlyHere = true;
    } else if (m_strPathName.isEmpty()) {
        SetTitle(copy.name);
        SetTitle(FreeTitle());
        if (const int language = LanguageNamed(copy.language, -1); language >= 0)
            SetLanguage(language);
    }
    SetModifiedFlag(1);
    view->GoToLine(line);
    m_lineEnds->Look();
    Q_EMIT StateChanged();
    return true;
}

// Keys have rested: what a crash would take is what is typed from now on. A long text takes a
// while to write and is left to the minutes.
void ScriptDoc::CopyNow()
{
    constexpr UINT kAutosave = 100;   // the editor's timer
    constexpr long kMost = 4'000'000; // units
    ScriptView* view = IsClosed() ? nullptr : FirstView();
    if (!view)
        return;
    CZNCoreEditorControlEx& editor = view->GetCoreEditorControlRef();
    if (editor.GetAutoSaveOn() && editor.GetSafeHwnd() && editor.GetLength(1) <= kMost)
        SendMessage(editor.GetSafeHwnd(), WM_TIMER, kAutosave, 0);
    if (editor.AutoSaveFailed())
        Q_EMIT Told(tr("No copy of “%1” could be written in case of a crash: the disk may be full. "
                       "Save it.")
                        .arg(Name()));
}
