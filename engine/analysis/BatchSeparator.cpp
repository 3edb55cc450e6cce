// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/BatchSeparator.h"

#include "engine/analysis/ByteSearch.h"

#include <algorithm>

namespace engine::analysis {
namespace {

unsigned char Folded(unsigned char byte, bool matchCase)
{
    return !matchCase && byte >= 'A' && byte <= 'Z' ? byte | 0x20 : byte;
}

bool WordStandsAt(const SqlDialect& dialect, const TextSpans& text, long position,
                  const BatchSeparator& separator)
{
    for (const char c : separator.text) {
        if (position >= text.Size() ||
            Folded(text.At(position), separator.matchCase) !=
                Folded(static_cast<unsigned char>(c), separator.matchCase))
            return false;
        ++position;
    }
    const ByteTable& bytes = BytesOf(dialect);
    return !bytes.inWord[static_cast<unsigned char>(separator.text.back())] ||
           position >= text.Size() || !bytes.inWord[text.At(position)];
}

bool IsCount(const TextSpans& text, const Token& token)
{
    if (token.kind != TokenKind::Number || token.Length() >= kLongToken)
        return false;
    for (long i = token.start; i < token.end; ++i) {
        if (text.At(i) < '0' || text.At(i) > '9')
            return false;
    }
    return true;
}

bool HasLineEnd(const TextSpans& text, const Token& token)
{
    return FindEither(text, token.start, token.end, '\r', '\n') < token.end;
}

long BehindLineEnd(const TextSpans& text, long position)
{
    return position + (text.At(position) == '\r' && text.At(position + 1) == '\n' ? 2 : 1);
}

} // namespace

BatchSeparator SeparatorOf(const SqlDialect& dialect)
{
    BatchSeparator separator{.text = std::string(dialect.separator)};
    separator.takesCount =
        !separator.text.empty() &&
        BytesOf(dialect).inWord[static_cast<unsigned char>(separator.text.back())];
    return separator;
}

SeparatorLine SeparatorAt(const SqlDialect& dialect, const TextSpans& text, long position,
                          const BatchSeparator& separator)
{
    if (separator.text.empty() || !WordStandsAt(dialect, text, position, separator))
        return {};
    const long wordEnd = position + static_cast<long>(separator.text.size());
    SeparatorLine line{.found = true, .end = wordEnd};
    SqlScanner scanner(dialect, text, wordEnd);
    const long limit = wordEnd + kSeparatorReach;
    bool countAllowed = separator.takesCount;
    while (scanner.Position() < limit) {
        const Token token = scanner.Next(limit);
        line.read = scanner.Position() + kLookAhead;
        switch (token.kind) {
        case TokenKind::Blank:
            continue;
        case TokenKind::LineEnd:
            line.nextLine = BehindLineEnd(text, token.start);
            return line;
        case TokenKind::End:
            line.nextLine = text.Size() + 1; // all that follows is on the line
            return line;
        case TokenKind::LineComment:
            continue;
        case TokenKind::BlockComment:
            if (token.cut || HasLineEnd(text, token)) {
                line.nextLine = line.end;
                return line;
            }
            continue;
        case TokenKind::Number:
            if (countAllowed && IsCount(text, token)) {
                countAllowed = false;
                line.end = token.end;
                continue;
            }
            return {.read = line.read};
        default:
            return {.read = line.read};
        }
    }
    line.nextLine = line.end;
    return line;
}

} // namespace engine::analysis
