// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptDoc: what is asked before its file is written, and before its text goes.
#include "control/LossCheck.h"
#include "host/files/Encodings.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptView.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/FrameWnd.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <utility>

namespace {

// The file behind a path whichever way it is written; the path itself while there is no file.
QString SameFile(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

bool IsSameFile(const QString& one, const QString& other)
{
    return !one.isEmpty() && !other.isEmpty() && SameFile(one) == SameFile(other);
}

} // namespace

SaveTarget ScriptDoc::CurrentTarget() const
{
    ScriptView* view = FirstView();
    if (!view)
        return {m_strPathName, FileEncodeConverter::encUTF8, false};
    const CZNCoreEditorControlEx& editor = view->GetCoreEditorControlRef();
    return {m_strPathName, EncodingOf(editor), editor.GetWriteEncodingSig()};
}

// The person is shown what the question is about.
int ScriptDoc::SaveModified()
{
    if (m_asking)
        return 0;
    if (!IsModified())
        return 1;
    const QScopedValueRollback<bool> asking(m_asking, true);
    ScriptView* view = FirstView();
    CFrameWnd* frame = view ? view->GetParentFrame() : nullptr;
    if (frame && !frame->GetSafeHwnd()->isVisible())
        frame->ActivateFrame();
    switch (GetPrompts().BeforeLosing(Window(), Name())) {
    case LoseChanges::Save:
        return DoFileSave();
    case LoseChanges::Discard:
        return 1;
    default:
        return 0;
    }
}

int ScriptDoc::DoFileSave()
{
    const std::uint32_t attributes = GetFileAttributesW(m_strPathName);
    const bool isReadOnly =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
    return m_strPathName.isEmpty() || isReadOnly ? SaveAs() : SaveTo(CurrentTarget());
}

int ScriptDoc::SaveAs()
{
    SaveTarget proposal = CurrentTarget();
    if (proposal.path.isEmpty())
        proposal.path = QDir(m_folder.isEmpty() ? QDir::currentPath() : m_folder)
                            .filePath(Name() + QStringLiteral(".sql"));
    const std::optional<SaveTarget> target = GetPrompts().WhereToSave(Window(), proposal);
    return target && !IsClosed() ? SaveTo(*target) : 0;
}

int ScriptDoc::SaveTo(const SaveTarget& target)
{
    SaveTarget chosen = target;
    CDocument* other = nullptr;
    if (GetDocTemplate() && !IsSameFile(chosen.path, m_strPathName))
        GetDocTemplate()->MatchDocType(chosen.path, other);
    if (other && other != this) {
        GetPrompts().Tell(Window(), tr("“%1” is open in another tab. Close it first, "
                                       "or choose another name.")
                                        .arg(QFileInfo(chosen.path).fileName()));
        return 0;
    }
    // A question gives the focus back, with which others would be looked for before this is saved.
    const QScopedValueRollback<bool> checking(m_checkingAccessTime, true);
    if (!MayReplaceUnread(chosen) || !MayReplaceChangedFile(chosen) || !MayLoseCharacters(chosen) ||
        !FirstView())
        return 0;
    return WriteTo(chosen);
}

bool ScriptDoc::MayReplaceUnread(const SaveTarget& target)
{
    ReadLoss loss = m_loss;
    loss.isCutShort = FirstView()->GetCoreEditorControl()->WasCutShort(); // of a copy, too
    return !loss || !IsSameFile(target.path, m_strPathName) ||
           GetPrompts().Confirm(Window(), OverwriteQuestion(loss, Name()), tr("&Overwrite"));
}

// Behind each read of the file.
void ScriptDoc::LookForUnread()
{
    m_isOfOther = false;
    m_loss = FirstView() ? LookForLoss(FirstView()->GetCoreEditorControlRef(), m_strPathName)
                         : ReadLoss();
    m_tellsLoss = bool(m_loss);
}

// Only over its own tab, once that is seen.
void ScriptDoc::TellUnread()
{
    const ScriptView* view = FirstView();
    if (view && view->GetSafeHwnd()->isVisible() && std::exchange(m_tellsLoss, false))
        GetPrompts().Tell(Window(), LossNotice(m_loss, Name()));
}

// Others are looked for when the focus comes; they may have written since. A person who kept this
// text has agreed to lose none of the file's.
bool ScriptDoc::MayReplaceChangedFile(const SaveTarget& target)
{
    CFileStatus status;
    const bool isKnown = m_isOfOther || m_onlyHere;
    if ((m_lastAccessTime == 0 && !isKnown) || !IsSameFile(target.path, m_strPathName) ||
        !CFile::GetStatus(m_strPathName, status) ||
        (status.m_mtime == m_lastAccessTime && !isKnown))
        return true;
    return GetPrompts().ConfirmComparing(
        Window(),
        tr("“%1” has been changed outside of the workbench since it was read. Saving "
           "it replaces those changes.")
            .arg(Name()),
        tr("&Overwrite"), WithFile());
}

Comparison ScriptDoc::WithFile() const
{
    const auto text = [this] {
        ScriptView* view = FirstView();
        return view ? view->GetCoreEditorControlRef().GetText() : QString();
    };
    ScriptView* view = FirstView();
    const int codePage = view ? view->GetCoreEditorControlRef().GetFileCodePage() : 0;
    return {Name(), m_strPathName, text, codePage};
}

bool ScriptDoc::MayLoseCharacters(SaveTarget& target)
{
    CZNCoreEditorControlEx& editor = FirstView()->GetCoreEditorControlRef();
    const std::optional<LostCharacter> lost =
        FindLostCharacter(editor, FormOf(target.encoding), CodePageOf(target.encoding));
    if (!lost)
        return true;
    const QString question = LossQuestion(QFileInfo(target.path).fileName(),
                                          EncodingName(target.encoding, target.mark), *lost);
    switch (GetPrompts().BeforeQuestionMarks(Window(), question)) {
    case LoseCharacters::SaveAsUtf8:
        target.encoding = FileEncodeConverter::encUTF8;
        target.mark = false;
        return true;
    case LoseCharacters::SaveAnyway:
        return true;
    default:
        if (ScriptView* view = FirstView(); view && view->GetSafeHwnd()->isVisible())
            view->SelectRange(lost->position, lost->position + (lost->character > 0xFFFF ? 2 : 1));
        return false;
    }
}

// Without a change nothing would be written, and another encoding is one.
int ScriptDoc::WriteTo(const SaveTarget& target)
{
    CZNCoreEditorControlEx& editor = FirstView()->GetCoreEditorControlRef();
    const SaveTarget before = CurrentTarget();
    const int wasModified = IsModified();
    if (before.encoding != target.encoding || before.mark != target.mark)
        SetModifiedFlag(1);
    SetEncodingOf(editor, target.encoding);
    editor.SetWriteEncodingSig(target.mark);
    const int saved = DoSave(target.path, 1);
    if (saved && before.encoding != target.encoding) {
        m_chosenEncoding = target.encoding;
        RememberCodePage(target.path, target.encoding);
    }
    if (!saved && !IsClosed()) {
        SetEncodingOf(editor, before.encoding);
        editor.SetWriteEncodingSig(before.mark);
        SetModifiedFlag(wasModified);
    }
    Q_EMIT StateChanged();
    return saved;
}

int ScriptDoc::OnSaveDocument(const QString& path)
{
    const bool wasOnlyHere = std::exchange(m_onlyHere, false);
    if (CZNCoreEditorDoc::OnSaveDocument(path)) {
        m_isOfOther = false;
        m_loss = {};
        m_tellsLoss = false;
        return 1;
    }
    m_onlyHere = wasOnlyHere;
    return 0;
}
