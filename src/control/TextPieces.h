// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The text of an editor, piece by piece, for whoever looks at all of it: a copy of 64 MB would
/// take 128 MB. The text must not change in between.
#pragma once

#include "common/Export.h"

#include <string_view>
#include <vector>

class CZNCoreEditorControl;

/// A walk through the text, from its start or a place in it.
class ZN_API TextPieces
{
public:
    /// Positions and lengths count units. The editor outlives the pieces.
    explicit TextPieces(CZNCoreEditorControl& editor, long from = 0);

    /// The next piece, good until the following call; empty behind the last one. It does not end
    /// within a pair.
    std::u16string_view Next();
    long Position() const { return m_position; } ///< of what Next will give

private:
    CZNCoreEditorControl& m_editor;
    long m_position;
    std::vector<char16_t> m_buffer;
};
