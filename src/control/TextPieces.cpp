// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/TextPieces.h"

#include "control/ZNCoreEditorControl.h"

#include <algorithm>

namespace {

constexpr long kPieceUnits = 128 * 1024; // two such buffers fit into a cache

} // namespace

TextPieces::TextPieces(CZNCoreEditorControl& editor, long from)
    : m_editor(editor), m_position(from), m_buffer(kPieceUnits + 1)
{}

std::u16string_view TextPieces::Next()
{
    const long length = m_editor.GetLength(1);
    if (m_position >= length)
        return {};
    const long end = std::min(m_position + kPieceUnits, length);
    // An end within a pair leaves the pair to the next piece.
    const int count =
        m_editor.GetRange(static_cast<int>(m_position), static_cast<int>(end), m_buffer.data());
    m_position += count;
    return {m_buffer.data(), static_cast<std::size_t>(count)};
}
