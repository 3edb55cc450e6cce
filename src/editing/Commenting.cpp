// CZNCoreEditorControlEx: comment markers.
#include "editing/ZNCoreEditorControlEx.h"

#include "control/FileAccess.h"

bool CZNCoreEditorControlEx::AddSingleLineComment(const QString& marker)
{
    if (marker.isEmpty())
        return false;
    m_singleLineComments.push_back(marker);
    return true;
}

bool CZNCoreEditorControlEx::AddBlockComment(const QString& start, const QString& end)
{
    if (start.isEmpty() || end.isEmpty())
        return false;
    m_blockComments.push_back(start);
    m_blockComments.push_back(end);
    return true;
}

QString CZNCoreEditorControlEx::GetSingleLineComment(int index) const
{
    return index < 0 || m_singleLineComments.empty() ? QString() : m_singleLineComments.front();
}

bool CZNCoreEditorControlEx::InsertFile(const char16_t* path,
                                        FileEncodeConverter::encodingType encoding)
{
    FilePointer file = OpenForReading(path);
    if (!file)
        return false;
    const long caret = GetCurrentPos(1);
    BeginUndoAction(1);
    ReadInFileContents(file.release(), encoding, true);
    EndUndoAction(1);
    GotoPos(caret, 1);
    SetSel(caret, caret, 1);
    return true;
}
