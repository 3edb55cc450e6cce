// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: bookmarks, the engine's marker 0.
#include "editing/ZNCoreEditorControlEx.h"

namespace {

constexpr int kBookmark = 0;
constexpr int kBookmarkMask = 1 << kBookmark;
constexpr int kNoHandle = -1;
constexpr long kMostLinesWalked = 1 << 24; // some 20 ms

} // namespace

bool CZNCoreEditorControlEx::HasBookmark(long line)
{
    return MarkerGet(static_cast<int>(line), 1) & kBookmarkMask;
}

void CZNCoreEditorControlEx::ToggleBookmark(long line)
{
    const auto number = static_cast<int>(line);
    if (!HasBookmark(line)) {
        if (const int handle = MarkerAdd(number, kBookmark, 1); handle != kNoHandle)
            m_bookmarkHandles.push_back(handle);
        return;
    }
    MarkerDelete(number, kBookmark, 1);
    ForgetStaleHandles();
}

// A mark may have been set by another hand, and a line's marks go with its text: only the engine
// knows which handles still stand for something, and it walks the lines up to the handle's own.
// Many thousands of bookmarks are more than one toggle asks for: the next one goes on where this
// one stopped. It never stops before it has found one that stands, so that an empty queue is seen.
void CZNCoreEditorControlEx::ForgetStaleHandles()
{
    const std::size_t count = m_bookmarkHandles.size();
    std::size_t left = count;
    for (long walked = 0; left > 0 && walked < kMostLinesWalked; --left, ++m_nextAsked) {
        if (m_nextAsked >= count)
            m_nextAsked = 0;
        int& handle = m_bookmarkHandles[m_nextAsked];
        const int line = MarkerLineFromHandle(handle, 1);
        if (line == -1)
            handle = kNoHandle;
        else
            walked += line + 1;
    }
    if (left == 0)
        m_nextAsked = 0;
    std::erase(m_bookmarkHandles, kNoHandle);
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
    m_nextAsked = 0;
}
