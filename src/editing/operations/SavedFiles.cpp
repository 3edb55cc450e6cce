// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: files.
#include "editing/ZNCoreEditorControlEx.h"

#include "control/FileAccess.h"
#include "editing/operations/EditScopes.h"
#include "platform/text/StringUtils.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

// A place in the text that survives a clean-up of what is around it.
struct LineAndColumn
{
    int line;
    int column;
};

bool IsPair(char16_t first, char16_t second)
{
    return (first & 0xFC00) == 0xD800 && (second & 0xFC00) == 0xDC00;
}

} // namespace

bool CZNCoreEditorControlEx::OpenFile(const char16_t* path,
                                      FileEncodeConverter::encodingType encoding)
{
    const bool opened = CZNCoreEditorControl::OpenFile(path, encoding);
    if (opened && !m_scheme.isEmpty())
        ForgetChangedLines();
    return opened;
}

bool CZNCoreEditorControlEx::SaveFile(const char16_t* path, bool setSavePoint)
{
    const auto place = [this](long position) {
        return LineAndColumn{LineFromPosition(position, 1), GetColumn(position, 1)};
    };
    const LineAndColumn start = place(GetSelectionStart(1));
    const LineAndColumn end = place(GetSelectionEnd(1));
    // Without a selection the clean-ups work on the whole text.
    if (IsSelection())
        SetSel(GetCurrentPos(1), GetCurrentPos(1), 1);
    if (m_saveConvertTabToSpaces || m_saveTrimTrailingSpaces || m_ensureFinalNewLine) {
        BeginUndoAction(1);
        if (m_saveConvertTabToSpaces)
            ConvertTabToSpaces();
        if (m_saveTrimTrailingSpaces)
            RemoveTrailingSpaces();
        if (m_ensureFinalNewLine)
            EnsureFinalNewLine();
        EndUndoAction(1);
    }
    m_isSaving = setSavePoint; // the save point that comes is that of the file
    const bool saved = CZNCoreEditorControl::SaveFile(path, setSavePoint);
    if (setSavePoint && saved)
        SetSavePoint(1);
    m_isSaving = false;
    SetSelectionStart(PositionFromLine(start.line, 1) + start.column, 1);
    SetSelectionEnd(
        std::min<long>(PositionFromLine(end.line, 1) + end.column, GetLineEndPosition(end.line, 1)),
        1);
    return saved;
}

bool CZNCoreEditorControlEx::ReloadFile(const char16_t* path)
{
    const int line = LineFromPosition(GetCurrentPos(1), 1);
    SetFocus();
    const bool opened =
        OpenFile(path, static_cast<FileEncodeConverter::encodingType>(GetEncoding()));
    if (line < GetLineCount(1))
        GotoLineEnsureVisible(line);
    else
        DocumentEnd(1);
    return opened;
}

bool CZNCoreEditorControlEx::InsertFile(const char16_t* path,
                                        FileEncodeConverter::encodingType encoding)
{
    std::FILE* file = std::fopen(NativePath(path).constData(), "rb");
    if (!file)
        return false;
    InsertFile(file, encoding);
    return true;
}

// That the inserted file was cut short says nothing of the file behind the text, and with care
// neither does what it is written in.
bool CZNCoreEditorControlEx::InsertFile(std::FILE* file, FileEncodeConverter::encodingType encoding)
{
    const bool wasCutShort = WasCutShort();
    const int ownEncoding = GetEncoding();
    const bool ownMark = GetWriteEncodingSig();
    const long caret = GetCurrentPos(1);
    const UndoStep step(*this);
    ReadInFileContents(file, encoding, true);
    GotoPos(caret, 1);
    SetSel(caret, caret, 1);
    if (GetCarefulFiles()) {
        SetEncoding(ownEncoding);
        SetWriteEncodingSig(ownMark);
    }
    const bool isWhole = !WasCutShort();
    SetCutShort(wasCutShort);
    return isWhole;
}

bool CZNCoreEditorControlEx::SaveSelection(const char16_t* path)
{
    return DoSave(path, static_cast<int>(GetSelectionStart(1)),
                  static_cast<int>(GetSelectionEnd(1)));
}

bool CZNCoreEditorControlEx::DoSave(const char16_t* path, int start, int end)
{
    constexpr int kPiece = 102400;
    const FilePointer file(std::fopen(NativePath(path).constData(), "wb"));
    if (!file)
        return false;
    std::vector<char16_t> piece(kPiece + 1);
    while (start < end) {
        int until = std::min(start + kPiece, end);
        if (until < end) {
            GetRange(until - 1, until + 1, piece.data());
            until -= IsPair(piece[0], piece[1]) ? 1 : 0; // its halves stay together
        }
        GetRange(start, until, piece.data());
        const std::string bytes = znutils::StringUtils::ConvertToMBString(
            std::u16string_view(piece.data(), static_cast<std::size_t>(until - start)));
        std::fwrite(bytes.data(), 1, bytes.size(), file.get());
        start = until;
    }
    return true;
}
