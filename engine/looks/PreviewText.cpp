// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/PreviewText.h"

#include "engine/text/Characters.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace engine {
namespace {

constexpr int kLongestPiece = 64; // bytes: who has no room for all draws little in vain

bool MayLookOther(const QByteArray& character)
{
    constexpr char kDelete = 0x7F;
    const auto lead = static_cast<unsigned char>(character[0]);
    return character.size() > 1 || lead < ' ' || lead == kDelete;
}

class RowReader
{
public:
    RowReader(std::span<const char> cells, int tabColumns, const TextInstead& instead)
        : m_cells(cells), m_tabColumns(tabColumns), m_instead(instead)
    {}

    PreviewRow Read(long mostCharacters)
    {
        int indent = 0;
        for (; HasByte() && (Byte() == ' ' || Byte() == '\t'); m_at += 2)
            indent += Byte() == '\t' ? m_tabColumns - indent % m_tabColumns : 1;
        if (HasByte())
            m_row.indent = indent;
        for (long i = 0; HasByte() && i < mostCharacters; ++i)
            TakeCharacter();
        EndPiece();
        return std::move(m_row);
    }

private:
    bool HasByte() const { return m_at + 1 < m_cells.size(); }
    char Byte() const { return m_cells[m_at]; }

    void TakeCharacter()
    {
        const int style = static_cast<unsigned char>(m_cells[m_at + 1]);
        QByteArray character;
        do {
            character += Byte();
            m_at += 2;
        } while (HasByte() && IsContinuation(Byte()));
        if (character == "\t") {
            EndPiece();
            m_row.pieces.push_back({PreviewPiece::Kind::Tab, style, {}});
            return;
        }
        const QString text = MayLookOther(character) ? m_instead(character) : QString();
        if (!text.isEmpty()) {
            EndPiece();
            m_row.pieces.push_back({PreviewPiece::Kind::Boxed, style, text});
            return;
        }
        if (style != m_style || m_piece.size() >= kLongestPiece)
            EndPiece();
        m_style = style;
        m_piece += character;
    }

    void EndPiece()
    {
        if (!m_piece.isEmpty())
            m_row.pieces.push_back(
                {PreviewPiece::Kind::Text, m_style, QString::fromUtf8(std::exchange(m_piece, {}))});
    }

    std::span<const char> m_cells;
    int m_tabColumns;
    const TextInstead& m_instead;
    std::size_t m_at = 0;
    PreviewRow m_row;
    QByteArray m_piece;
    int m_style = 0;
};

} // namespace

PreviewLines LinesAround(long meant, std::size_t wanted, const NextLine& before,
                         const NextLine& behind)
{
    std::deque<long> lines{meant};
    std::size_t index = 0;
    const auto goBack = [&](std::size_t most) {
        for (long line = 0; index < most && lines.size() < wanted; ++index) {
            if ((line = before(lines.front())) < 0)
                return;
            lines.push_front(line);
        }
    };
    goBack(wanted / 2);
    for (long line = 0; lines.size() < wanted && (line = behind(lines.back())) >= 0;)
        lines.push_back(line);
    goBack(wanted);
    return {{lines.begin(), lines.end()}, index};
}

PreviewRow ReadPreviewRow(std::span<const char> cells, int tabColumns, long mostCharacters,
                          const TextInstead& instead)
{
    return RowReader(cells, tabColumns, instead).Read(mostCharacters);
}

int CommonIndent(const std::vector<PreviewRow>& rows)
{
    int least = PreviewRow::kBlank;
    for (const PreviewRow& row : rows) {
        if (row.indent != PreviewRow::kBlank)
            least = least == PreviewRow::kBlank ? row.indent : std::min(least, row.indent);
    }
    return std::max(0, least);
}

} // namespace engine
