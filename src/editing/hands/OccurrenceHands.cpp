// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/EngineModes.h"
#include "editing/hands/EditedText.h"
#include "editing/hands/Operations.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace hands {
namespace {

using engine::SelectionEnds;

// More than anybody edits at once, and what the engine takes without a wait.
constexpr std::size_t kMostCarets = 5000;

// The word at a caret; whether there is one.
bool SelectWordAtCaret(Editor& editor)
{
    const long caret = editor.GetCurrentPos(1);
    const long start = editor.WordStartPosition(caret, 1, 1);
    const long end = editor.WordEndPosition(caret, 1, 1);
    editor.SetSel(start, end, 1);
    return end > start;
}

// What the main selection holds, wherever else it stands: as a word if it is one.
class Sought
{
public:
    explicit Sought(Editor& editor)
        : m_editor(editor),
          m_text(TextOf(editor, editor.GetSelectionStart(1), editor.GetSelectionEnd(1)))
    {
        const long start = editor.GetSelectionStart(1);
        const long end = editor.GetSelectionEnd(1);
        const bool isWord = editor.WordStartPosition(start, 1, 1) == start &&
                            editor.WordEndPosition(start, 1, 1) == end;
        m_flags = engine::find::MatchCase | (isWord ? engine::find::WholeWord : 0);
    }

    // What is searched for ends at its first NUL.
    bool IsPossible() const { return !m_text.isEmpty() && !m_text.contains(QChar(u'\0')); }

    std::optional<CharacterRange> In(long start, long end) const
    {
        TextToFind record{.chrg = {static_cast<int>(start), static_cast<int>(end)},
                          .lpstrText = Units(m_text)};
        if (m_editor.FindTextW(m_flags, &record, 1) < 0)
            return std::nullopt;
        return record.chrgText;
    }

private:
    Editor& m_editor;
    QString m_text;
    int m_flags;
};

// The caret stands where it stands in the selection that was made by hand.
SelectionEnds EndsLike(Editor& editor, const CharacterRange& range)
{
    const bool caretInFront = editor.GetCurrentPos(1) < editor.GetAnchor(1);
    return caretInFront ? SelectionEnds{range.cpMax, range.cpMin}
                        : SelectionEnds{range.cpMin, range.cpMax};
}

bool Overlaps(const std::vector<SelectionEnds>& all, const CharacterRange& range)
{
    return std::ranges::any_of(all, [&](const SelectionEnds& each) {
        return std::min(each.anchor, each.caret) < range.cpMax &&
               std::max(each.anchor, each.caret) > range.cpMin;
    });
}

} // namespace

void AddNextOccurrence(Editor& editor)
{
    if (!editor.IsSelection()) {
        SelectWordAtCaret(editor);
        return;
    }
    const Sought sought(editor);
    std::vector<SelectionEnds> all = SelectionsOf(editor);
    if (!sought.IsPossible() || all.size() >= kMostCarets)
        return;
    const long behind = editor.GetSelectionEnd(1);
    const long length = editor.GetLength(1);
    for (const auto& [from, to] : {std::pair(behind, length), std::pair(0L, behind)}) {
        long at = from;
        while (const auto found = sought.In(at, to)) {
            if (!Overlaps(all, *found)) {
                all.push_back(EndsLike(editor, *found));
                Select(editor, all);
                editor.EnsureVisibleEnforcePolicy(editor.LineFromPosition(found->cpMin, 1), 1);
                editor.ScrollCaret(1);
                return;
            }
            at = found->cpMax;
        }
    }
}

void SelectOccurrences(Editor& editor)
{
    if (!editor.IsSelection() && !SelectWordAtCaret(editor))
        return;
    const Sought sought(editor);
    if (!sought.IsPossible())
        return;
    const SelectionEnds main{static_cast<int>(editor.GetAnchor(1)),
                             static_cast<int>(editor.GetCurrentPos(1))};
    const int start = std::min(main.anchor, main.caret);
    const int end = std::max(main.anchor, main.caret);
    std::vector<SelectionEnds> all;
    const auto addIn = [&](long from, long to) {
        while (all.size() + 1 < kMostCarets) {
            const auto found = sought.In(from, to);
            if (!found)
                return;
            all.push_back(EndsLike(editor, *found));
            from = found->cpMax;
        }
    };
    addIn(end, editor.GetLength(1)); // those below first, where there are too many
    addIn(0, start);
    all.push_back(main); // which stays in sight
    Select(editor, all);
}

} // namespace hands
