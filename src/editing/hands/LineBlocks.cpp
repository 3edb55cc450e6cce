// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/LineBlocks.h"

#include "editing/hands/EditedText.h"

#include <algorithm>

namespace hands {
namespace {

using engine::SelectionEnds;

LineBlock LinesOf(CZNCoreEditorControlEx& editor, const SelectionEnds& ends)
{
    const int end = std::max(ends.anchor, ends.caret);
    const int first = editor.LineFromPosition(std::min(ends.anchor, ends.caret), 1);
    int last = editor.LineFromPosition(end, 1);
    if (last > first && end == editor.PositionFromLine(last, 1))
        --last;
    return {first, last, {}};
}

void Move(SelectionEnds& ends, long by)
{
    ends.anchor += static_cast<int>(by);
    ends.caret += static_cast<int>(by);
}

} // namespace

void SelectInSight(CZNCoreEditorControlEx& editor, const std::vector<SelectionEnds>& all)
{
    if (all.size() == 1) {
        editor.SetSel(all.front().anchor, all.front().caret, 1);
        return;
    }
    Select(editor, all);
    editor.ScrollCaret(1);
}

LineBlocks::LineBlocks(CZNCoreEditorControlEx& editor)
    : m_editor(editor), m_selections(SelectionsOf(editor))
{
    if (engine::ColumnCorners corners;
        editor.Call(engine::kGetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1))
        m_columns = corners;
    std::vector<LineBlock> each;
    for (std::size_t i = 0; i < m_selections.size(); ++i) {
        each.push_back(LinesOf(editor, m_selections[i]));
        each.back().selections.push_back(i);
    }
    std::ranges::stable_sort(each, {}, &LineBlock::first);
    for (LineBlock& block : each) {
        if (m_blocks.empty() || block.first > m_blocks.back().last + 1) {
            m_blocks.push_back(std::move(block));
            continue;
        }
        m_blocks.back().last = std::max(m_blocks.back().last, block.last);
        m_blocks.back().selections.push_back(block.selections.front());
    }
}

bool LineBlocks::HasMain(const LineBlock& block) const
{
    return std::ranges::find(block.selections, m_selections.size() - 1) != block.selections.end();
}

void LineBlocks::SelectMoved(const std::vector<long>& shifts) const
{
    if (m_columns && m_blocks.size() == 1) {
        engine::ColumnCorners corners = *m_columns;
        Move(corners.ends, shifts.front());
        m_editor.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
        m_editor.ScrollCaret(1);
        return;
    }
    std::vector<SelectionEnds> all = m_selections;
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        for (const std::size_t number : m_blocks[i].selections)
            Move(all[number], shifts[i]);
    }
    SelectInSight(m_editor, all);
}

void LineBlocks::SelectChanged(const std::vector<BlockChange>& changes) const
{
    std::vector<SelectionEnds> all;
    std::size_t behindMain = 0;
    long shift = 0;
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        const std::size_t from = all.size();
        all.insert(all.end(), changes[i].carets.begin(), changes[i].carets.end());
        if (changes[i].carets.empty()) {
            for (const std::size_t number : m_blocks[i].selections)
                all.push_back(m_selections[number]);
        }
        for (std::size_t moved = from; moved < all.size(); ++moved)
            Move(all[moved], shift);
        shift += changes[i].longer;
        if (HasMain(m_blocks[i]))
            behindMain = all.size();
    }
    std::rotate(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(behindMain), all.end());
    SelectInSight(m_editor, all);
}

} // namespace hands
