// SPDX-License-Identifier: GPL-3.0-or-later
// Bookmarks of the control: marker 0, and ten numbered ones that are kept by their marker handles.
#include "control/ZNCoreEditorControl.h"
#include "platform/system/SystemColors.h"

namespace {

constexpr int kBookmark = 0; // marker
constexpr int kCircle = 0;
constexpr int kCharacterZero = 10000 + '0';
constexpr int kNoHandle = -1;
constexpr int kNumbered = 10;
constexpr int kMarkers = 32;

// A negative number counts as a large one.
bool IsNumbered(int number)
{
    return static_cast<unsigned>(number) < kNumbered;
}

} // namespace

void CZNCoreEditorControl::DefineBookmarks()
{
    MarkerSetFore(kBookmark, GetSysColor(COLOR_HIGHLIGHT), 1);
    MarkerSetBack(kBookmark, GetSysColor(COLOR_HOTLIGHT), 1);
    MarkerDefine(kBookmark, kCircle, 1);
}

void CZNCoreEditorControl::DefineNumberedBookmarks(int firstMarker, bool systemColours)
{
    const unsigned long fore = GetSysColor(COLOR_HIGHLIGHTTEXT);
    const unsigned long back = GetSysColor(COLOR_HIGHLIGHT);
    for (int i = 0; i < kNumbered; ++i) {
        MarkerDefine(firstMarker + i, kCharacterZero + i, 1);
        m_aNumberedBookmarks[static_cast<std::size_t>(i)] = kNoHandle;
        if (systemColours) {
            MarkerSetFore(firstMarker + i, fore, 1);
            MarkerSetBack(firstMarker + i, back, 1);
        }
    }
}

void CZNCoreEditorControl::ToggleNumberedBookmark(int number, int firstMarker)
{
    if (!IsNumbered(number))
        return;
    const int line = LineFromPosition(GetCurrentPos(1), 1);
    int& handle = m_aNumberedBookmarks[static_cast<std::size_t>(number)];
    int present = -1;
    if (handle != kNoHandle) {
        present = MarkerLineFromHandle(handle, 1);
        MarkerDeleteHandle(handle, 1);
    }
    FreeLineOfNumberedBookmarks(line, firstMarker);
    // Taken off its own line: the slot may keep its handle, which names no marker any more.
    if (present == line)
        return;
    handle = MarkerAdd(line, number + firstMarker, 1);
}

// A line carries one numbered bookmark at most. The slots are cleared by marker number, not by
// bookmark number: only with 0 as first marker are these the same.
void CZNCoreEditorControl::FreeLineOfNumberedBookmarks(int line, int firstMarker)
{
    const auto mask = static_cast<unsigned>(MarkerGet(line, 1));
    for (int i = 0; i < kNumbered; ++i) {
        const int marker = i + firstMarker;
        if (marker < 0 || marker >= kMarkers || !(mask & 1U << marker))
            continue;
        MarkerDelete(line, marker, 1);
        if (IsNumbered(marker))
            m_aNumberedBookmarks[static_cast<std::size_t>(marker)] = kNoHandle;
    }
}

// A handle can outlive its marker; the jump is then to line -1.
void CZNCoreEditorControl::JumpToNumberedBookmark(int number, int /*firstMarker*/)
{
    if (!IsNumbered(number))
        return;
    const int handle = m_aNumberedBookmarks[static_cast<std::size_t>(number)];
    if (handle != kNoHandle)
        GotoLineEnsureVisible(MarkerLineFromHandle(handle, 1));
}
