// SPDX-License-Identifier: GPL-3.0-or-later
// The autosave side of CZNCoreEditorControl; AutosaveCopies has what it keeps on disk.
//
// Two hosts may edit one file at the same time, each with a copy of its own. While its control
// lives, a copy is claimed (CopyClaim): a host that opens the file and handles files with care
// passes by it, so it neither asks whether to load a text that somebody is typing right now nor
// deletes it. A host without that care takes the first copy that is noted for the file, claimed or
// not; the other control notes and writes its copy again at its next tick, so that the text which
// is in memory is still safe. The claim itself is made in either case, for the sake of hosts that
// look for it.
#include "control/AutosaveCopies.h"

#include "common/Globals.h"
#include "control/CopyClaim.h"
#include "control/FileAccess.h"
#include "control/FilePolicy.h"
#include "control/ZNCoreEditorControl.h"
#include "platform/base/Units.h"
#include "platform/system/SpecialFolders.h"
#include "platform/windows/Questions.h"

#include <QDir>

#include <algorithm>
#include <climits>
#include <new>

namespace {

using Encoding = FileEncodeConverter::encodingType;

constexpr UINT kTimer = 100;
constexpr long long kMinute = 60000; // milliseconds
constexpr long long kLongest = INT_MAX;
constexpr UINT kRecoveryText = 54070;

// Whether an editor is still where it was. Its parent's object is detached when that is closed,
// which a question may bring about, and the editor itself lives on until the question is answered.
class HostOfEditor
{
public:
    explicit HostOfEditor(const CWnd& editor) : m_editor(editor), m_host(Find()) {}
    bool IsStillThere() const { return m_editor.GetSafeHwnd() && Find() == m_host; }

private:
    CWnd* Find() const
    {
        const HWND window = m_editor.GetSafeHwnd();
        return window ? AttachedWnd(GetParent(window)) : nullptr;
    }

    const CWnd& m_editor;
    CWnd* m_host; // null in a window of the host's own kind
};

} // namespace

void CZNCoreEditorControl::SetAutoSave(bool on, int minutes)
{
    if (!GetSafeHwnd())
        return;
    KillTimer(kTimer);
    if (on && !NameForNote().isEmpty() && minutes >= 1)
        SetTimer(kTimer, static_cast<UINT>(std::min(minutes * kMinute, kLongest)));
}

void CZNCoreEditorControl::setAutoSaveOn(bool on)
{
    if (on == m_bAutoSaveOn)
        return;
    m_bAutoSaveOn = on;
    SetAutoSave(on, m_nAutoSaveMinutes);
}

void CZNCoreEditorControl::SetUntitledName(const QString& name)
{
    if (name == m_untitledName)
        return;
    m_untitledName = name;
    if (m_strFileName.isEmpty())
        SetAutoSave(m_bAutoSaveOn, m_nAutoSaveMinutes);
}

const QString& CZNCoreEditorControl::NameForNote() const
{
    return m_strFileName.isEmpty() ? m_untitledName : m_strFileName;
}

void CZNCoreEditorControl::setAutoSaveMinutes(int minutes)
{
    if (minutes == m_nAutoSaveMinutes)
        return;
    m_nAutoSaveMinutes = minutes;
    SetAutoSave(m_bAutoSaveOn, minutes);
}

void CZNCoreEditorControl::CleanUpAutoSave()
{
    SetAutoSave(false, 0);
    DeleteAutoSaveFile();
}

// The note goes first: a copy without one is never offered.
void CZNCoreEditorControl::DeleteAutoSaveFile()
{
    m_bCopyFailed = false; // there is nothing more that it should hold
    if (m_strAutoSaveFile.isEmpty())
        return;
    if (Policy().passesUnwritten)
        autosave::EmptyCopy(m_strAutoSaveFile);
    autosave::RemoveNote(m_strAutoSaveFile);
    if (Policy().notesOrigin)
        autosave::RemoveOrigin(m_strAutoSaveFile);
    autosave::RemoveCopy(m_strAutoSaveFile);
    m_strAutoSaveFile.clear();
    m_bHasWrittenCopy = false;
    m_copyClaim->Release();
}

// The engine tells whether the text is as it was read or saved; that the file is, the file tells.
bool CZNCoreEditorControl::DiffersFromFile()
{
    return GetModify(1) != 0 || m_fileStamp != StampOf(Units(m_strFileName));
}

// The timer fires once: killed here and set again behind the write, so that ticks cannot pile up
// while a long text is written. A copy is no save, and the modified flag stays.
void CZNCoreEditorControl::OnTimer(UINT id)
{
    if (id == kTimer) {
        KillTimer(kTimer);
        const bool isEqual = Policy().sparesEqual && !DiffersFromFile();
        if (isEqual && (m_bHasWrittenCopy || m_bCopyFailed)) // everything was undone
            DeleteAutoSaveFile();
        else if (!isEqual && m_bModified && GetReadOnly(1) == 0 && GetLineCount(1) > 0 &&
                 !NameForNote().isEmpty())
            WriteAutoSaveCopy(NameForNote());
        SetAutoSave(m_bAutoSaveOn, m_nAutoSaveMinutes);
    }
    CWnd::OnTimer(id);
}

// Whatever fails here is tried again at the next tick. The note is there before the first text is,
// so that no copy is ever without one. With care the copy is empty until it is complete; without it
// the note may name a copy that is cut short.
void CZNCoreEditorControl::WriteAutoSaveCopy(const QString& documentPath)
{
    m_bCopyFailed = true;
    try {
        MakeAutoSaveFile();
        if (m_strAutoSaveFile.isEmpty())
            return;
        autosave::WriteNote(m_strAutoSaveFile, documentPath);
        if (Policy().notesOrigin && !m_strFileName.isEmpty())
            autosave::WriteOrigin(m_strAutoSaveFile, {m_fileStamp, m_nFileCodePage});
        const bool isWritten = WriteToFile(Units(m_strAutoSaveFile));
        m_bHasWrittenCopy = isWritten || m_bHasWrittenCopy;
        // Among the temporary files nobody finds it.
        m_bCopyFailed = !isWritten || m_strAutoSaveDir.isEmpty() ||
                        !m_strAutoSaveFile.startsWith(m_strAutoSaveDir);
    } catch (const std::bad_alloc&) {
        // The longest line needs a buffer, for which there may be memory later.
    }
}

// The folder is made anew for each copy, since somebody may have cleared it away.
void CZNCoreEditorControl::MakeAutoSaveFile()
{
    const QString folder = autosave::BackupFolder(true);
    if (m_strAutoSaveDir.isEmpty())
        m_strAutoSaveDir = folder;
    // A copy among the temporary files is found by nobody; it moves as soon as it can.
    const bool isLost = !m_strAutoSaveDir.isEmpty() && !m_strAutoSaveFile.isEmpty() &&
                        !m_strAutoSaveFile.startsWith(m_strAutoSaveDir);
    if (Policy().keepsCopies && isLost)
        DeleteAutoSaveFile();
    if (m_strAutoSaveFile.isEmpty())
        m_strAutoSaveFile = autosave::MakeCopyFile(m_strAutoSaveDir);
    if (!m_strAutoSaveFile.isEmpty() && !m_strAutoSaveDir.isEmpty())
        m_copyClaim->Take(m_strAutoSaveFile);
}

// The copy is for whoever opens the file next.
void CZNCoreEditorControl::LeaveAutoSaveCopy()
{
    m_strAutoSaveFile.clear();
    m_bHasWrittenCopy = false;
    m_copyClaim->Release();
}

// A copy that is found becomes this control's own, whatever the answer is: No leaves it to be
// written over at the next tick, and a text that is read-only is not asked about. An editor that is
// closed under the question has nowhere to load it.
void CZNCoreEditorControl::OfferAutoSaveCopy(Encoding encoding)
{
    if (!m_offersCopies)
        return;
    if (Policy().passesUnwritten)
        autosave::RemoveUnwritten();
    const QString name = autosave::FindCopy(m_strFileName, [this](const QString& copyPath) {
        if (!m_copyClaim->Take(copyPath) && Policy().sparesClaimed)
            return false;
        if (!Policy().sparesEqual || !HaveSameBytes(Units(copyPath), Units(m_strFileName)))
            return true;
        m_strAutoSaveFile = copyPath;
        DeleteAutoSaveFile();
        return false;
    });
    if (name.isEmpty()) {
        m_copyClaim->Release();
        return;
    }
    for (const bool create : {true, false}) {
        if (m_strAutoSaveDir.isEmpty())
            m_strAutoSaveDir = autosave::BackupFolder(create);
    }
    m_strAutoSaveFile = m_strAutoSaveDir + name;
    if (GetReadOnly(1) != 0) {
        if (Policy().keepsCopies)
            LeaveAutoSaveCopy();
        return;
    }
    const QString question = zncoreeditor::GetResourceLoader().FormatString(
        kRecoveryText, {znutils::CSpecialFolders::GetSimpleAppName(), m_strFileName});
    const HostOfEditor host(*this);
    const bool isWanted = AskYesNo(GetHwnd(), question);
    if (!host.IsStillThere())
        LeaveAutoSaveCopy();
    else if (isWanted)
        LoadAutoSaveCopy(encoding);
}

// A copy that this control had before is left for whoever opens its file next: what is in memory
// alone may be lost.
bool CZNCoreEditorControl::RecoverCopy(const QString& copyPath, Encoding encoding)
{
    const QString document = autosave::NoteOf(copyPath);
    if (!CanHoldText() || GetReadOnly(1) != 0 || document.isEmpty())
        return false;
    LeaveAutoSaveCopy();
    if (!m_copyClaim->Take(copyPath))
        return false;
    m_strAutoSaveDir = autosave::BackupFolder(true);
    m_strAutoSaveFile = copyPath;
    if (!LoadAutoSaveCopy(encoding)) {
        LeaveAutoSaveCopy();
        return false;
    }
    if (m_strFileName.isEmpty() && QDir::isAbsolutePath(document))
        m_strFileName = document;
    SetAutoSave(m_bAutoSaveOn, m_nAutoSaveMinutes);
    return true;
}

// The save point stays with the file on disk, and one undo brings its text back. A copy that cannot
// be opened stays for later. With care one that was loaded goes on as this control's own, so that
// its text is never in memory alone; it stems from the file that its writer read, whatever the file
// has become.
bool CZNCoreEditorControl::LoadAutoSaveCopy(Encoding encoding)
{
    FilePointer file = OpenForReading(Units(m_strAutoSaveFile));
    if (!file)
        return false;
    const HostOfEditor host(*this);
    const bool fileWasCutShort = m_bCutShort;
    // ASCII is taken for the code page's, though a copy in UTF-8 may come to nothing else.
    const bool keepsUtf8 = Policy().keepsUtf8 && encoding == FileEncodeConverter::encUnknown &&
                           m_nEncoding == FileEncodeConverter::encUTF8 && IsAscii(file.get());
    const std::optional<autosave::Origin> origin =
        Policy().notesOrigin ? autosave::OriginOf(m_strAutoSaveFile) : std::nullopt;
    if (origin)
        SetFileCodePage(origin->codePage);
    BeginUndoAction(1);
    ClearAll(1);
    ReadInFileContents(file.release(), encoding, false);
    SetSel(0, 0, 1);
    EndUndoAction(1);
    if (keepsUtf8)
        m_nEncoding = FileEncodeConverter::encUTF8;
    if (origin)
        m_fileStamp = origin->stamp;
    const bool isWhole = !m_bCutShort;
    // A complete copy of a text that was cut short does not bring back the rest of its file.
    m_bCutShort = m_bCutShort || fileWasCutShort;
    const bool isThere = host.IsStillThere();
    if (!isThere || (Policy().keepsCopies && !isWhole))
        LeaveAutoSaveCopy(); // closed under the message that it is cut short, or there is more in
                             // it
    else if (!Policy().keepsCopies)
        DeleteAutoSaveFile();
    return isThere;
}
