// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/AnchoredText.h"

#include <cctype>

namespace engine::search {
namespace {

constexpr int kNone = -1; // before the text, or behind it

bool TakePrefix(std::string_view& text, std::string_view prefix)
{
    const bool stands = text.starts_with(prefix);
    if (stands)
        text.remove_prefix(prefix.size());
    return stands;
}

// Between CR and LF there is no edge of a line.
bool IsLineStart(int before, int at)
{
    return before == kNone || before == '\n' || (before == '\r' && at != '\n');
}

bool IsLineEnd(int before, int at)
{
    return at == kNone || at == '\r' || (at == '\n' && before != '\r');
}

} // namespace

int PeekedText::ByteAt(long at) const
{
    if (const auto offset = static_cast<std::size_t>(at - base); offset < bytes.size())
        return static_cast<unsigned char>(bytes[offset]);
    return at >= 0 && at < length ? static_cast<unsigned char>(text.Bytes(at, at + 1)[0]) : kNone;
}

std::optional<AnchoredText> AnchoredText::Of(std::string_view pattern, bool posix)
{
    AnchoredText result;
    result.lineStart = TakePrefix(pattern, "^");
    result.wordStart = TakePrefix(pattern, "\\<");
    const std::string_view special = posix ? ".[*+?|^$()" : ".[*+?|^$";
    while (!pattern.empty()) {
        if (pattern == "$") {
            result.lineEnd = true;
            break;
        }
        if (!result.text.empty() && TakePrefix(pattern, "\\>")) {
            result.wordEnd = true;
            continue;
        }
        if (result.wordEnd || special.find(pattern.front()) != special.npos)
            return std::nullopt;
        if (TakePrefix(pattern, "\\")) {
            const bool isPlain =
                !pattern.empty() &&
                std::string_view(".[]*+?|^$\\/-").find(pattern.front()) != std::string_view::npos;
            if (!isPlain)
                return std::nullopt;
        }
        result.text += pattern.front();
        pattern.remove_prefix(1);
    }
    if (result.text.empty())
        return std::nullopt;
    return result;
}

std::optional<bool> AnchoredText::FitsAt(Range match, long to, const PeekedText& searched,
                                         const AsciiWords& words) const
{
    constexpr int kAscii = 0x80;
    const auto isWord = [&words](int byte) {
        return byte >= 0 && words[static_cast<unsigned>(byte)];
    };
    if (lineStart || wordStart) {
        const int before = searched.ByteAt(match.start - 1);
        const int at = searched.ByteAt(match.start);
        if (lineStart && !IsLineStart(before, at))
            return false;
        if (wordStart && (before >= kAscii || at >= kAscii))
            return std::nullopt;
        if (wordStart && (isWord(before) || !isWord(at)))
            return false;
    }
    if (lineEnd || wordEnd) {
        const int last = searched.ByteAt(match.end - 1);
        const int behind = searched.ByteAt(match.end);
        // What is behind the end of a search is only asked whether it ends the line.
        const bool isAtEnd = match.end >= to;
        if (lineEnd && !(isAtEnd ? behind == kNone || behind == '\r' || behind == '\n'
                                 : IsLineEnd(last, behind)))
            return false;
        if (wordEnd && (last >= kAscii || (behind >= kAscii && !isAtEnd)))
            return std::nullopt;
        if (wordEnd && (!isWord(last) || (isWord(behind) && !isAtEnd)))
            return false;
    }
    return true;
}

} // namespace engine::search
