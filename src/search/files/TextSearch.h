// SPDX-License-Identifier: GPL-3.0-or-later
// TextSearch: the matches in a text that comes piece after piece. Keeps one piece and what it needs
// of the one before; knows no file. Positions count bytes of UTF-8 inside, UTF-16 units outside.
#pragma once

#include "engine/search/Searcher.h"
#include "search/files/ByteBuffer.h"
#include "search/files/FileSearch.h"

#include <atomic>
#include <optional>

// Words are those of a text without a language.
class PieceText final : public engine::search::SearchedText
{
public:
    ByteBuffer bytes;

    long Length() const override { return static_cast<long>(bytes.size()); }
    long Gap() const override { return 0; }
    std::string_view Bytes(long start, long end) const override
    {
        return std::string_view(bytes).substr(static_cast<std::size_t>(start),
                                              static_cast<std::size_t>(end - start));
    }
    bool IsWord(long start, long end) const override;
    bool IsWordStart(long at) const override { return IsWord(at, Length()); }
    std::string WordCharacters() const override;
};

class TextSearch
{
public:
    TextSearch(const FileSearchRequest& request, const std::atomic<bool>& stop);

    std::size_t Piece() const { return 4 * m_overlap; } // bytes that are best appended at once

    // Starts on another text. Appends its next piece to Buffer; Search finds what can be found.
    void Begin();
    ByteBuffer& Buffer() { return m_text.bytes; }

    // Finds on, up to the text's end if it is the last piece. Appends to the matches; gives how
    // many there were. Matches of a number below skip are passed, as they are known already.
    long Search(bool isLast, long skip, std::vector<FileMatch>& matches);
    long Count() const { return m_count; } // since Begin, those passed included
    bool RanAway() const { return m_ranAway; }

private:
    struct Place
    {
        std::size_t at = 0;        // in the piece
        std::size_t lineStart = 0; // in the piece; that of a line from before it is 0
        long line = 0;
        long column = 0; // of the place
    };

    std::optional<engine::search::Range> Find(long from, long to);
    std::optional<engine::search::Range> FindNext(bool isLast);
    void MoveTo(std::size_t at);
    FileMatch Describe(std::size_t start, std::size_t end);
    void Drop(std::size_t bytes);

    const FileSearchRequest& m_request;
    const std::atomic<bool>& m_stop;
    std::string m_sought;
    std::string m_replacement;
    // Of a piece, what the next one has again. An expression's match that is longer may be lost
    // where two pieces meet.
    std::size_t m_overlap;
    int m_flags;
    PieceText m_text;
    engine::search::Searcher m_searcher;
    // Of an expression whose matches stay in a line: what such a line has.
    std::optional<engine::search::LiteralScan> m_required;
    long m_lineEnd = 0; // of the last such line
    bool m_lineIsWhole = false;
    bool m_waits = false; // for the rest of a line that is not
    Place m_place;
    long m_from = 0;
    long m_count = 0;
    bool m_ranAway = false;
    bool m_isBrief = false; // an expression has run away once: each text gets little time

    QString m_lineText; // of the last match, and where it was cut
    std::size_t m_lineFrom = 0;
    std::size_t m_lineTo = 0;
    long m_lineColumn = 0; // of the cut
};
