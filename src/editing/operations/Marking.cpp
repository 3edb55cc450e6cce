// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: bookmarks on whatever a search finds.
#include "editing/ZNCoreEditorControlEx.h"

#include "search/FindReplaceManager.h"

#include <algorithm>

namespace {

constexpr int kBookmark = 0;

} // namespace

// The marks are not in the queue of bookmarks: walking from one bookmark to the next passes them
// by. What the search was set to stays set.
int CZNCoreEditorControlEx::MarkAll(const QString& text, int matchCase)
{
    if (text.isEmpty())
        return -1;
    CFindReplaceManager& search = *zncoreeditor::GetFindReplaceManager();
    search.SetDown(true);
    search.SetMatchCase(matchCase != 0);
    search.SetRegExp(true);
    search.SetWholeWord(false);
    search.SetWrap(false);
    search.SetFind(text);

    const long caret = GetCurrentPos(1);
    SetCurrentPos(0, 1);
    long found = search.FindNext(this);
    if (found < 0)
        return -1;
    const long length = GetLength(1);
    int count = 0;
    while (found >= 0) {
        const long end = GetTargetEnd(1);
        long next = end;
        if (end > found) {
            ++count;
            const int line = LineFromPosition(found, 1);
            if (!(MarkerGet(line, 1) & 1 << kBookmark))
                MarkerAdd(line, kBookmark, 1);
        } else {
            next = std::max(found + 1, PositionAfter(found, 1)); // empty: counts for nothing
        }
        found = next > length ? -1
                              : search.FindInRange(this, static_cast<int>(next),
                                                   static_cast<int>(length), true);
    }
    SetCurrentPos(caret, 1);
    return count;
}
