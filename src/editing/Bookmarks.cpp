// CZNCoreEditorControlEx: bookmarks, the engine's marker 0.
#include "editing/ZNCoreEditorControlEx.h"

namespace {

constexpr int kBookmark = 0;
constexpr int kBookmarkMask = 1 << kBookmark;

} // namespace

bool CZNCoreEditorControlEx::HasBookmark(long line)
{
    return MarkerGet(static_cast<int>(line), 1) & kBookmarkMask;
}

// A mark may have been set by another hand, and a line's marks go with its text: only the engine
// knows which handles still stand for something.
void CZNCoreEditorControlEx::ToggleBookmark(long line)
{
    const auto number = static_cast<int>(line);
    if (!HasBookmark(line)) {
        if (const int handle = MarkerAdd(number, kBookmark, 1); handle != -1)
            m_bookmarkHandles.push_back(handle);
        return;
    }
    MarkerDelete(number, kBookmark, 1);
    std::erase_if(m_bookmarkHandles,
                  [this](int handle) { return MarkerLineFromHandle(handle, 1) == -1; });
}

// -1: there is none.
void CZNCoreEditorControlEx::GotoBookmark(int line)
{
    if (line != -1)
        GotoLineEnsureVisible(line);
}

void CZNCoreEditorControlEx::NextBookmark()
{
    if (!HasBookmarks())
        return;
    const int line = MarkerNext(GetCurLineNumber() + 1, kBookmarkMask, 1);
    line == -1 ? FirstBookmark() : GotoBookmark(line);
}

void CZNCoreEditorControlEx::PreviousBookmark()
{
    if (!HasBookmarks())
        return;
    const int line = MarkerPrevious(GetCurLineNumber() - 1, kBookmarkMask, 1);
    line == -1 ? LastBookmark() : GotoBookmark(line);
}

void CZNCoreEditorControlEx::FirstBookmark()
{
    if (HasBookmarks())
        GotoBookmark(MarkerNext(0, kBookmarkMask, 1));
}

void CZNCoreEditorControlEx::LastBookmark()
{
    if (HasBookmarks())
        GotoBookmark(MarkerPrevious(LineFromPosition(GetLength(1), 1), kBookmarkMask, 1));
}

void CZNCoreEditorControlEx::ClearBookmarks()
{
    MarkerDeleteAll(kBookmark, 1);
    m_bookmarkHandles.clear();
}
