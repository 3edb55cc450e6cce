// CZNCoreEditorControlEx: comment markers.
#include "editing/ZNCoreEditorControlEx.h"

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
