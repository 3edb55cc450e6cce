// SPDX-License-Identifier: GPL-3.0-or-later
// The load side of CZNCoreEditorControl: a file goes into the engine block by block, so that
// memory stays flat beside the engine's own copy.
#include "control/ZNCoreEditorControl.h"

#include "common/Globals.h"
#include "control/FileAccess.h"
#include "control/FileBlocks.h"
#include "control/LineEnds.h"
#include "platform/file/TargetFile.h"
#include "platform/text/CodePage.h"
#include "platform/windows/Questions.h"

#include <cerrno>
#include <climits>
#include <new>

namespace {

using Encoding = FileEncodeConverter::encodingType;

constexpr UINT kTruncatedText = 28178;
constexpr UINT kNoMemoryText = 57346;
constexpr int kLinesToJudge = 200;
constexpr int kEnoughLineEnds = 10;

// A host whose loader has no text for it tells it in its own way.
void ShowText(HWND owner, UINT id)
{
    if (const QString text = zncoreeditor::GetResourceLoader().LoadString(id); !text.isEmpty())
        ShowMessage(owner, text);
}

// Storage for a long text is asked for at once, since growing to it step by step takes as long as
// the load. One byte more than the text has, since room that would be used up is grown before. 0
// for a text that is short, or beyond what the engine holds.
int BytesToAllocate(long long bytes)
{
    constexpr long long kWorthwhile = 1024 * 1024;
    constexpr long long kMost = INT_MAX / 2;
    return bytes >= kWorthwhile && bytes <= kMost ? static_cast<int>(bytes) + 1 : 0;
}

bool IsUnicode(int encoding)
{
    return encoding == FileEncodeConverter::encUTF16LE ||
           encoding == FileEncodeConverter::encUTF16BE ||
           encoding == FileEncodeConverter::encUTF8 ||
           encoding == FileEncodeConverter::encUTF32LE ||
           encoding == FileEncodeConverter::encUTF32BE;
}

} // namespace

const FilePolicy& CZNCoreEditorControl::Policy() const
{
    return m_bCarefulFiles ? kCarefulFiles : kPlainFiles;
}

// In a page that is not known a file would be read as empty, and saved so.
bool CZNCoreEditorControl::SetFileCodePage(int codePage)
{
    if (platform::MaxUnitCount(codePage, 1) == 0)
        return false;
    m_nFileCodePage = codePage;
    return true;
}

// Without an engine a load would leave nothing under the file's name, and a save would empty it.
bool CZNCoreEditorControl::CanHoldText() const
{
    return m_hEditorDllHandle &&
           (!Policy().needsWindow || (GetSafeHwnd() && m_pDirectFunction != nullptr));
}

bool CZNCoreEditorControl::Fails(FileProblem problem, const char16_t* path)
{
    m_fileResult = {problem, path ? QString::fromUtf16(path) : QString()};
    return false;
}

// Without care, a file that is there but cannot be read has cost the old document its autosave
// copy; the text stands as it was.
bool CZNCoreEditorControl::OpenFile(const char16_t* path, Encoding encoding)
{
    if (!CanHoldText())
        return Fails(FileProblem::NoEngine, path);
    if (!path || !*path)
        return Fails(FileProblem::NoName, path);
    if (!PathExists(path))
        return Fails(FileResult::OfRead(errno), path);
    const bool opensFirst = Policy().opensFirst;
    if (!opensFirst)
        CleanUpAutoSave();
    FilePointer file = OpenForReading(path);
    if (!file)
        return Fails(FileResult::OfRead(errno), path);
    m_fileResult = {};
    if (opensFirst) {
        CleanUpAutoSave();
        TargetFile::RemoveAbandoned(NativePath(path));
    }
    const bool wasReadOnly = Policy().opensReadOnly && GetReadOnly(1) != 0;
    if (wasReadOnly)
        SetReadOnly(0, 1);
    ClearAll(1);
    SetUndoCollection(0, 1);
    ReadInFileContents(file.release(), encoding, false);
    SetSel(0, 0, 1);
    SetUndoCollection(1, 1);
    if (Policy().forgetsHistory)
        EmptyUndoBuffer(1);
    if (wasReadOnly)
        SetReadOnly(1, 1);
    SetSavePoint(1);
    m_strFileName = QString::fromUtf16(path);
    m_fileStamp = StampOf(path);
    if (m_bCutShort)
        Fails(FileProblem::CutShort, path);
    OfferAutoSaveCopy(encoding);
    SetAutoSave(m_bAutoSaveOn, m_nAutoSaveMinutes);
    return true;
}

void CZNCoreEditorControl::ReadInFileContents(std::FILE* file, Encoding encoding, bool convertEOLs)
{
    if (!file)
        return;
    FilePointer closer(file);
    const int selector =
        convertEOLs ? lineends::SelectorOf(GetEOLMode(1)) : static_cast<int>(lineends::kAsItIs);
    FileBlocks blocks(file, Policy().load, m_nFileCodePage);
    bool ranOut = false;
    try {
        if (blocks.Start(encoding, m_bWriteEncodingSig)) {
            RecordEncoding(blocks.InputType());
            SetDoingReplaceAll(true, 1);
            SetEnableReconciler(false, 1);
            if (const int bytes = BytesToAllocate(blocks.EstimatedUtf8(SizeOf(file))))
                Allocate(bytes, 1);
            EnterBlocks(blocks, selector, false);
        }
    } catch (const std::bad_alloc&) {
        ranOut = true;
        ShowText(GetHwnd(), kNoMemoryText);
    }
    m_bCutShort = blocks.HasRest() || ranOut;
    if (blocks.HasRest())
        ShowText(GetHwnd(), kTruncatedText);
    SetEnableReconciler(true, 1);
    SetDoingReplaceAll(false, 1);
    closer.reset();
    if (selector == lineends::kAsItIs)
        DiscoverEOLSetting(kLinesToJudge);
}

void CZNCoreEditorControl::AdoptFile(const CZNCoreEditorControl& other)
{
    m_strFileName = other.m_strFileName;
    m_nEncoding = other.m_nEncoding;
    m_nFileCodePage = other.m_nFileCodePage;
    m_bWriteEncodingSig = other.m_bWriteEncodingSig;
    m_bCutShort = other.m_bCutShort;
    m_fileStamp = other.m_fileStamp;
    m_bModified = other.m_bModified;
}

void CZNCoreEditorControl::RecordEncoding(Encoding found)
{
    if (found == FileEncodeConverter::encUTF8Cookie)
        m_nEncoding = Policy().cookieEncoding;
    else if (found == FileEncodeConverter::encANSI || IsUnicode(found))
        m_nEncoding = found;
}

void CZNCoreEditorControl::EnterBlocks(FileBlocks& blocks, int selector, bool replacesTarget)
{
    std::vector<char16_t> normalised;
    const char16_t* text = nullptr;
    long length = 0;
    char16_t held = 0;
    while (blocks.Text(text, length)) {
        lineends::NormaliseBlock(normalised, text, length, held, selector);
        if (replacesTarget) {
            ReplaceTargetNoProcess(static_cast<int>(length), text, 1);
            DocumentEnd(1);
            replacesTarget = false;
        } else {
            AddTextNoProcess(static_cast<int>(length), text, 1);
        }
        blocks.Advance();
    }
    if (held) {
        const std::u16string_view lineEnd = lineends::Sequence(selector);
        AddTextNoProcess(static_cast<int>(lineEnd.size()), lineEnd.data(), 1);
        UpdateWindow(GetSafeHwnd());
    }
}

// A document that is held in a Unicode encoding keeps it, whatever the file is.
void CZNCoreEditorControl::ReplaceTextWithFile(const char16_t* path, Encoding encoding)
{
    FilePointer file = OpenForReading(path);
    if (!file)
        return;
    FileBlocks blocks(file.get(), Policy().replace, m_nFileCodePage);
    int selector = lineends::kAsItIs;
    bool ranOut = false;
    BeginUndoAction(1);
    try {
        bool hadMark = false;
        blocks.Start(encoding, hadMark);
        if (!IsUnicode(m_nEncoding))
            AdoptEncoding(blocks.InputType(), hadMark);
        SelectAll(1);
        TargetFromSelection(1);
        SetEnableReconciler(false, 1);
        selector = lineends::SelectorOf(GetEOLMode(1));
        EnterBlocks(blocks, selector, true);
    } catch (const std::bad_alloc&) {
        ranOut = true;
        ShowText(GetHwnd(), kNoMemoryText);
    }
    EndUndoAction(1);
    m_bCutShort = m_bCutShort || blocks.HasRest() || ranOut;
    SetEnableReconciler(true, 1);
    file.reset();
    if (selector == lineends::kAsItIs)
        DiscoverEOLSetting(kLinesToJudge);
}

void CZNCoreEditorControl::AdoptEncoding(Encoding found, bool hadMark)
{
    m_bWriteEncodingSig = m_bWriteEncodingSig || hadMark;
    if (IsUnicode(found))
        m_nEncoding = found;
    else if (found == FileEncodeConverter::encUTF8Cookie && m_bCarefulFiles)
        m_nEncoding = Policy().cookieEncoding;
}

// The place of a line's end is that of its CR or LF. A text whose first line is empty has its first
// line end at 0, which ends the count.
void CZNCoreEditorControl::CountLineEnds(int& cr, int& lf, int& crlf, int maxLines)
{
    cr = lf = crlf = 0;
    int lines = GetLineCount(1);
    if (maxLines > 0 && maxLines < lines)
        lines = maxLines;
    for (int line = 0; line < lines; ++line) {
        if (cr >= kEnoughLineEnds || lf >= kEnoughLineEnds || crlf >= kEnoughLineEnds)
            return;
        const long position = GetLineEndPosition(line, 1);
        if (position <= 0 || position + 1 > GetLength(1))
            return;
        const int unit = GetCharAt(position, 1);
        if (unit == u'\r')
            ++(GetCharAt(position + 1, 1) == u'\n' ? crlf : cr);
        else if (unit == u'\n')
            ++lf;
    }
}

void CZNCoreEditorControl::DiscoverEOLSetting(int maxLines)
{
    int cr = 0;
    int lf = 0;
    int crlf = 0;
    CountLineEnds(cr, lf, crlf, maxLines);
    if (const int mode = lineends::MajorityMode(cr, lf, crlf))
        SetEOLMode(mode, 1);
}
