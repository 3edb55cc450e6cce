// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that carets and selections stand in: what is done to lines is done to each of them
// once. Positions count UTF-16 units.
#pragma once

#include "control/Selections.h"

#include <cstddef>
#include <optional>
#include <vector>

class CZNCoreEditorControlEx;

namespace hands {

// Lines beside each other. A selection has no part in one that it only reaches at its column 0.
struct LineBlock
{
    int first;
    int last;
    std::vector<std::size_t> selections; // their numbers
};

// What has become of a block, as if nothing had happened above it.
struct BlockChange
{
    std::vector<engine::SelectionEnds> carets; // that it has; none: its selections are as before
    long longer = 0;                           // by so much is the text
};

// The last one is the main one, whose caret is brought into sight.
void SelectInSight(CZNCoreEditorControlEx& editor, const std::vector<engine::SelectionEnds>& all);

class LineBlocks
{
public:
    explicit LineBlocks(CZNCoreEditorControlEx& editor); // those of the moment

    const std::vector<LineBlock>& All() const { return m_blocks; } // from the top, one at least
    const std::vector<engine::SelectionEnds>& Selections() const { return m_selections; }

    // The selections again, each moved along with its block. A column stays one.
    void SelectMoved(const std::vector<long>& shifts) const; // of each block
    // One caret at each place.
    void SelectChanged(const std::vector<BlockChange>& changes) const; // of each block

private:
    bool HasMain(const LineBlock& block) const;

    CZNCoreEditorControlEx& m_editor;
    std::vector<engine::SelectionEnds> m_selections; // that of the main caret last
    std::optional<engine::ColumnCorners> m_columns;
    std::vector<LineBlock> m_blocks;
};

} // namespace hands
